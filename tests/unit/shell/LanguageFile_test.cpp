#include "shell/LanguageFile.h"

#include "support/TestApp.h"

namespace vrek {
namespace {

class LanguageFile : public test::AppTest {
 protected:
  /// Reads a language file of these bytes.
  bool Load(std::string_view sBytes) {
    WriteFile("q.lng", sBytes);
    return File.ReadFile("q.lng");
  }
  clsLanguageFile File;
};

TEST_F(LanguageFile, ReadsTokenLinesAndPassesOverTheRest) {
  ASSERT_TRUE(
      Load(test::CrLf("# comment = none\n"
                      "  # LBL_C=commented\n"
                      "\n"
                      "   \n"
                      "[Section]\n"
                      "LBL_A  =  Text  \n"
                      "no sign\n"
                      "LBL_TWO=a=b\n"
                      "LBL_A=second\n"
                      "LBL_LINES=one\\nT\xFAnel\\n\n"
                      " LBL_EMPTY =\n"
                      "LBL_LAST=\x80")));
  EXPECT_EQ(File.Tokens().size(), 5u);
  EXPECT_EQ(File.GetToken("LBL_A"), "Text");
  EXPECT_EQ(File.GetToken("lbl_a"), "lbl_a");
  EXPECT_EQ(File.GetToken("LBL_C"), "LBL_C");
  EXPECT_EQ(File.GetToken("LBL_TWO"), "LBL_TWO");
  EXPECT_EQ(File.GetToken("LBL_LINES"), "one\r\nTúnel\r\n");
  EXPECT_EQ(File.GetToken("LBL_EMPTY"), "");
  EXPECT_EQ(File.GetToken("LBL_LAST"), "€");
  EXPECT_EQ(File.GetToken("# comment"), "# comment");
}

TEST_F(LanguageFile, HoldsOneEmptyElementWhenThereIsNoToken) {
  ASSERT_TRUE(Load("# nothing\r\n\r\n"));
  ASSERT_EQ(File.Tokens().size(), 1u);
  EXPECT_EQ(File.Tokens()[0].sToken, "");
  EXPECT_EQ(File.GetToken("LBL_A"), "LBL_A");
}

TEST_F(LanguageFile, RefusesAMissingAndAnEmptyFile) {
  EXPECT_FALSE(File.ReadFile("missing.lng"));
  EXPECT_FALSE(Load(""));
  ASSERT_EQ(Platform.aBoxes.size(), 2u);
  EXPECT_EQ(Platform.aBoxes[0].sText, "Unhandler Error in clsLanguageFile.ReadFile\r\nFile not found");
  EXPECT_EQ(Platform.aBoxes[1].sText,
            "Unhandler Error in clsLanguageFile.ReadFile\r\nInput past end of file");
}

TEST_F(LanguageFile, TakesAsManyTokensAsA16BitCounterCounts) {
  std::string sBytes;
  for (int i = 0; i < 32767; ++i) sBytes += "T" + std::to_string(i) + "=x\r\n";
  EXPECT_TRUE(Load(sBytes));
  EXPECT_EQ(File.Tokens().size(), 32767u);
  EXPECT_FALSE(Load(sBytes + "ONE_MORE=x\r\n"));
  ASSERT_EQ(Platform.aBoxes.size(), 1u);
  EXPECT_EQ(Platform.aBoxes[0].sText, "Unhandler Error in clsLanguageFile.ReadFile\r\nOverflow");
}

}  // namespace
}  // namespace vrek
