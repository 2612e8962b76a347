#include <gtest/gtest.h>

#include "base/ST.h"

namespace vrek {
namespace {

using TTexts = std::vector<std::string>;

// "start-end:text" of each field from index 1.
TTexts Fields(const TTokens& aTokens) {
  TTexts aOut;
  for (std::size_t i = 1; i < aTokens.size(); ++i) {
    const auto& Token = aTokens[i];
    aOut.push_back(std::to_string(Token.nStart) + "-" + std::to_string(Token.nEnd) + ":" +
                   std::string(Token.sText));
  }
  return aOut;
}

TEST(ScanTokens, CutsRunsBetweenRunsOfTheSeparatorUpToPosition799) {
  const auto Behind = [](std::size_t nBlanks, std::string_view sRest) {
    return std::string(nBlanks, ' ').append(sRest);
  };
  const std::pair<std::string, TTexts> aCases[] = {
      {"  a  b", {"3-3:a", "6-799:b"}},
      {"ab cd", {"1-2:ab", "4-799:cd"}},
      {"ab  ", {"1-2:ab", "5-799:"}},
      {"", {"1-799:"}},
      {"   ", {"4-799:"}},
      {Behind(797, "ab"), {"798-799:ab"}},
      {Behind(797, "abc"), {"798-799:ab"}},
      {Behind(797, "a b"), {"798-798:a", "800-799:"}},
      {Behind(798, "a b"), {"799-799:a"}},
      {Behind(799, "a b"), {"800-799:"}},
  };
  TTokens aTokens(5);  // what an earlier line left
  for (const auto& [sLine, aFields] : aCases) {
    int nCount = -1;
    ST::ScanTokens(sLine, ' ', nCount, aTokens);
    EXPECT_EQ(Fields(aTokens), aFields) << sLine.size() << " " << sLine;
    EXPECT_EQ(nCount, std::ssize(aFields)) << sLine;
  }
}

TEST(SplitBySeparator, EndsAFieldAtEverySeparator) {
  const struct {
    const char* sLine;
    int nLimit;
    bool bSkipEmpty;
    int nReported;
    TTexts aFields;
  } aCases[] = {
      {"a,,b", 10, false, 3, {"1-2:a", "3-3:", "4-5:b"}},
      {"a,,b", 10, true, 2, {"1-2:a", "4-5:b"}},
      {"a,", 10, false, 2, {"1-2:a", "3-3:"}},
      {",a", 10, false, 2, {"1-1:", "2-3:a"}},
      {"", 10, false, 1, {"1-1:"}},
      {"", 10, true, 0, {}},
      {"a,b,c,d", 2, false, 2, {"1-2:a", "3-4:b", "5-6:c"}},  // one more than reported
      {"a,b,c", 3, false, 3, {"1-2:a", "3-4:b", "5-6:c"}},
      {"a,,,b", 1, true, 1, {"1-2:a", "5-6:b"}},
      {"a,b", -1, false, -1, {}},
  };
  for (const auto& Case : aCases) {
    TTokens aTokens(5);  // what an earlier line left
    int nLimit = Case.nLimit;
    ST::SplitBySeparator(Case.sLine, ',', nLimit, aTokens, Case.bSkipEmpty);
    EXPECT_EQ(nLimit, Case.nReported) << Case.sLine;
    EXPECT_EQ(Fields(aTokens), Case.aFields) << Case.sLine;
  }
}

// All lines of a text up to its end.
TTexts Lines(std::string_view sText) {
  TTexts aOut;
  std::size_t nPos = 1;
  for (;;) {
    bool bEnd = false;
    const std::size_t nBefore = nPos;
    const auto sLine = ST::NextTextLine(sText, nPos, bEnd);
    if (bEnd) {
      EXPECT_EQ(sLine, "");
      EXPECT_EQ(nPos, nBefore);
      return aOut;
    }
    aOut.emplace_back(sLine);
  }
}

TEST(NextTextLine, BeginsEveryLaterLineWithTheLineEndBefore) {
  const std::pair<const char*, TTexts> aCases[] = {
      {"a\r\nbc\r\n", {"a", "\r\nbc"}},
      {"a\r\n\r\nb\r\n", {"a", "\r\n", "\r\nb"}},
      // A last line without its end is lost; the last character isn't looked at.
      {"a\r\nb", {"a"}},
      {"a\r\nb\r", {"a"}},
      {"abc", {}},
      // A line doesn't see a line end at its own start.
      {"\ra\r\n", {"\ra"}},
      {"\r\na\r\n", {"\r\na"}},
      {"", {}},
      {"\r", {}},
      {"\r\n", {}},
  };
  for (const auto& [sText, aLines] : aCases) EXPECT_EQ(Lines(sText), aLines) << sText;
  std::size_t nPos = 99;
  bool bEnd = false;
  EXPECT_EQ(ST::NextTextLine("a\r\n", nPos, bEnd), "");
  EXPECT_TRUE(bEnd);
}

}  // namespace
}  // namespace vrek
