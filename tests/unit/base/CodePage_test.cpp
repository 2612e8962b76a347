#include "base/CodePage.h"

#include <gtest/gtest.h>

#include <utility>

namespace vrek {
namespace {

TEST(CodePage, ReadsEachByteAsItsCharacter) {
  EXPECT_EQ(CodePage::ToUtf8("\x80\x84\x9F\xA0\xF1\xFF\x7F"), "\u20AC\u201E\u0178\u00A0\u00F1\u00FF\x7F");
  EXPECT_EQ(CodePage::ToUtf8("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(CodePage, BringsEveryByteBack) {
  std::string sBytes;
  for (int n = 0; n < 256; ++n) sBytes += static_cast<char>(n);
  const std::string sText = CodePage::ToUtf8(sBytes);
  EXPECT_EQ(sText.size(), 128u + 3 * 17 + 2 * (128 - 17));  // the characters from U+0800 on have three bytes
  EXPECT_EQ(CodePage::FromUtf8(sText), sBytes);
}

TEST(CodePage, WritesAQuestionMarkForWhatItDoesNotHold) {
  const std::pair<std::string, std::string> aCases[] = {
      {"\u0100", "?"},                      // no best fit: not "A"
      {"\u0152\u0081\u0080", "\x8C\x81?"},  // U+0080 is no character of the page
      {"\u4E2D\uFEFF", "??"},
      {"a\U0001F600b\U0010FFFF", "a??b??"},  // two units
      // And for each byte that is no UTF-8:
      {"a\xC3", "a?"},  // broken off
      {"\xC3(", "?("},
      {"\xE2\x82", "??"},
      {"\xE2\x82z", "??z"},
      {"\xF0\x9F\x98", "???"},
      {"\xB1\xBF", "??"},            // nothing begins so
      {"\xC0\x80\xC1\xBF", "????"},  // longer than need be
      {"\xE0\x80\x80", "???"},
      {"\xF0\x80\x80\x80", "????"},
      {"\xED\xA0\x80", "???"},  // a surrogate
      {"\xF4\x90\x80\x80\xF5\xFF", "??????"},
      {"\xC3\xB1\xFF\xC3\xB1", "\xF1?\xF1"},
  };
  for (const auto& [sText, sBytes] : aCases) EXPECT_EQ(CodePage::FromUtf8(sText), sBytes);
}

TEST(CodePage, FindsAByteBeyondAsciiAtAnyPlace) {
  for (std::size_t nLength = 0; nLength < 40; ++nLength) {
    const std::string sText(nLength, '\x7F');
    EXPECT_TRUE(CodePage::IsAscii(sText));
    for (std::size_t i = 0; i < nLength; ++i) {
      std::string sOther = sText;
      sOther[i] = '\x80';
      EXPECT_FALSE(CodePage::IsAscii(sOther)) << i << " of " << nLength;
      EXPECT_EQ(CodePage::FromUtf8(CodePage::ToUtf8(sOther)), sOther);
    }
  }
}

}  // namespace
}  // namespace vrek
