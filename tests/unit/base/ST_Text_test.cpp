#include <gtest/gtest.h>

#include "base/ST.h"

namespace vrek {
namespace {

TEST(Text, TrimsBlanksOnly) {
  EXPECT_EQ(ST::Trim("  a b "), "a b");
  EXPECT_EQ(ST::Trim("   "), "");
  EXPECT_EQ(ST::Trim(" \ta\r\n "), "\ta\r\n");
  EXPECT_EQ(ST::ToUpper("rtf \xED\xF1"), "RTF \xED\xF1");
}

TEST(Text, CutsPaths) {
  const struct {
    const char *sPath, *sExtension, *sName, *sBaseName;
  } aCases[] = {
      {"/data/line 4.v2.plt", "plt", "line 4.v2.plt", "line 4.v2"},
      {"C:\\data\\axis.Rtf", "Rtf", "axis.Rtf", "axis"},
      {"axis.", "", "axis.", "axis"},
      {"/jobs.d/axis", "d/axis", "axis", "axis"},
      {"/data/", "", "", ""},
      {"", "", "", ""},
  };
  for (const auto& Case : aCases) {
    EXPECT_EQ(ST::GetFileExtension(Case.sPath), Case.sExtension) << Case.sPath;
    EXPECT_EQ(ST::GetFileName(Case.sPath), Case.sName) << Case.sPath;
    EXPECT_EQ(ST::GetFileBaseName(Case.sPath), Case.sBaseName) << Case.sPath;
  }
}

TEST(Text, CountsOverlappingOccurrences) {
  EXPECT_EQ(ST::CountOccurrences("aaaa", "aa"), 3);
  EXPECT_EQ(ST::CountOccurrences("$1$23$", "$"), 3);
  EXPECT_EQ(ST::CountOccurrences("aaaa", ""), 0);
  EXPECT_EQ(ST::CountOccurrences("", "a"), 0);
}

TEST(Text, PadsToAWidthInCharacters) {
  EXPECT_EQ(ST::PadRight(" 1.5 ", 6, " "), "   1.5");
  EXPECT_EQ(ST::PadRight("1.5", 5, "ab"), "abab1.5");
  EXPECT_EQ(ST::PadRight("\xC3\xB1", 3, "."), "..\xC3\xB1");
  EXPECT_EQ(ST::PadRight(" 1234567 ", 3, " "), "1234567");
  EXPECT_EQ(ST::PadRight("", 2, "0"), "00");
  EXPECT_EQ(ST::PadRight("a", -1, " "), "a");
}

}  // namespace
}  // namespace vrek
