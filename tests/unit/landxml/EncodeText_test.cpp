#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "landxml/CLandXML.h"

namespace vrek {
namespace {

TEST(EncodeUtf8Text, PutsTheUtf8BytesOfANameIntoTheFile) {
  struct TCase {
    const char* sName;
    const char* sInFile;
  };
  // clang-format off
  const TCase aCases[] = {
      {"Eje 1 <&\">",    "Eje 1 <&\">"},
      {"Pe\xC3\xB1" "a", "Pe\xC3\xB1" "a"},  // ñ
      {"\xC3\x81\xC3\x8D", "\xC3\x81\xC3\x8D"},  // Á, Í: bytes that the code page leaves undefined
      {"\xE2\x82\xAC",   "\xE2\x82\xAC"},    // the euro sign: three bytes, though below 256 in the code page
      {"\x7F\xC2\x81",   "\x7F\xC2\x81"},
      {"\xCE\xA9 eje",   "? eje"},           // Ω is not in the code page
      {"\xF0\x9F\x9A\x84", "??"},            // beyond 16 bits: two units
  };
  // clang-format on
  for (const TCase& Case : aCases) {
    EXPECT_EQ(CodePage::FromUtf8(CLandXML::EncodeUtf8Text(Case.sName)), Case.sInFile) << Case.sName;
  }
}

}  // namespace
}  // namespace vrek
