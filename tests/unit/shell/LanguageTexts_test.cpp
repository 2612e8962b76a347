// The language files that go with the program: every token of the program has its text in each of them.
#include <algorithm>
#include <set>

#include "shell/LanguageFile.h"
#include "support/TestApp.h"

namespace vrek {
namespace {

// clang-format off
const char* const aTokens[] = {
    "BT_BACK", "BT_NEXT", "BT_FINISH", "BT_CANCEL",
    "LBL_JOB_TIT", "LBL_JOB_SUBTIT", "FR_JOBTYPE", "FR_JOB_INFO", "OPT_JOB_ROAD", "OPT_JOB_TUNNEL",
    "OPT_JOB_RAILSINGLE", "OPT_JOB_RAILDOUBLE", "TXT_JOB_ROAD", "TXT_JOB_TUNNEL", "TXT_JOB_RAILSINGLE",
    "TXT_JOB_RAILDOUBLE",
    "LBL_FIL_TIT", "LBL_FIL_SUBTIT", "FR_FILES_ROAD", "FR_FILES_TUNNEL", "FR_FILES_RAILSINGLE",
    "FR_FILES_RAILCENTER", "FR_FILES_RAILLEFT", "FR_FILES_RAILRIGHT", "LBL_FIL_ALIGMENT",
    "LBL_FIL_HZALIGMENT", "LBL_FIL_VTALIGMENT", "LBL_FIL_CROSS", "LBL_FIL_TUNNEL", "LBL_FIL_SUPERELEV",
    "LBL_USE_CL_VTALIGMENT", "LBL_USE_LEFT_VT", "LBL_USE_RIGHT_VT", "CMD_RESUME", "CMD_TT_RESUME",
    "CMD_DBLTRACKINFO",
    "LBL_DET_TIT", "LBL_DET_SUBTIT", "FR_DETAILS", "LBL_DET_NAME", "LBL_DET_DESC", "LBL_DET_CREATOR",
    "LBL_DET_VERSION",
    "LBL_PRE_TIT", "LBL_PRE_SUBTIT", "FR_PREFERENCES", "FR_PRE_TOLERANCES", "LBL_PRE_TOL_HZ",
    "LBL_PRE_TOL_VT", "LBL_PRE_CHOFFSET",
    "LBL_IMP_TIT", "LBL_IMP_SUBTIT", "FR_IMPORTING", "LBL_IMP_FILE",
    "LBL_EXP_TIT", "LBL_EXP_SUBTIT", "FR_EXPORTING", "FR_EXP_CH_RANGE", "LBL_EXP_FROM_CH",
    "LBL_EXP_TO_CH", "FR_EXP_LAYERS", "CMD_EXP_SELECT_ALL", "CMD_EXP_UNSELECT_ALL",
    "T_EXPORTING_HZ", "T_EXPORTING_VT", "T_EXPORTING_STRLNS", "T_EXPORTING_CR", "T_EXPORTING_RAIL",
    "T_EXPORTING_TUNNEL", "LBL_EXP_CR_RULES", "LBL_EXP_CR_EXP",
    "FR_SUMMARY", "FR_SUMMARY_CENTER", "FR_SUMMARY_LEFT", "FR_SUMMARY_RIGHT", "LBL_HZ_CH_START",
    "LBL_HZ_CH_END", "LBL_VT_CH_START", "LBL_VT_CH_END", "LBL_CR_CH_START", "LBL_CR_CH_END",
    "LBL_TN_CH_START", "LBL_TN_CH_END", "LBL_TR_CH_START", "LBL_TR_CH_END",
    "LBL_SELECT_STRLN_TIT", "LBL_SELECT_STRLN_SUBTIT", "FR_SEL_STRINGLINES", "FR_SEL_CENTERLN",
    "FR_SEL_TRACK_CENTERLN", "FR_SEL_RAIL_LEFT", "FR_SEL_RAIL_RIGHT", "FR_SEL_TRK_LEFT",
    "FR_SEL_TRK_RIGHT",
    "E_NOTFILLALL", "E_SAMENAME", "E_NOTFINDXMLELM", "E_OPENLANDXML", "E_NOVALIDFILE", "E_FILE_SUPER",
    "E_FILE_SUPER_VER",
    "E_TOLE_HZ", "E_TOLE_VT", "E_TOLE_TUNNEL", "E_TOLE_SUPERELV", "E_EMPTYFILE", "E_CH", "E_X", "E_Y",
    "E_Z", "E_DESCRIPTION"};

// What only the window shows.
const char* const aWindowTokens[] = {
    "WIN_EDIT", "WIN_BROWSE", "WIN_FILE_MISSING", "WIN_ALL_FILES", "WIN_NO_SLOT", "WIN_NEXT_PAGE",
    "WIN_PREVIOUS_PAGE", "WIN_CLICK_FOR_REPORT", "WIN_MARK_SUCCESS", "WIN_MARK_FAILURE",
    "WIN_MARK_NONE", "WIN_REPORT", "WIN_COPY", "WIN_SAVE", "WIN_CLOSE", "WIN_OPEN_FOLDER",
    "WIN_PICTURE", "WIN_PICTURE_KEYS", "WIN_PLAN", "WIN_PROFILE", "WIN_SECTION", "WIN_ALIGMENT",
    "WIN_FIT", "WIN_SAVE_PICTURE", "WIN_STRAIGHT", "WIN_ARC", "WIN_SPIRAL", "WIN_CHAINAGE",
    "WIN_LENGTH", "WIN_RADIUS", "WIN_PARAMETER", "WIN_LEFT", "WIN_RIGHT", "WIN_RAILS", "WIN_NOTHING",
    "WIN_WARNINGS"};

// Sentences that the window and the batch command share.
const char* const aWarningTokens[] = {
    "WARN_NAME", "WARN_NAME_MARKUP", "WARN_NAME_LETTERS", "WARN_NAME_UTF8", "WARN_AS_DATA",
    "WARN_AS_AUTHOR", "WARN_AS_ALIGMENT", "WARN_AS_LINE", "WARN_AS_PROFILE", "WARN_AS_LAYER",
    "WARN_DO_DATA", "WARN_DO_AUTHOR", "WARN_DO_PLAN", "WARN_DO_PROFILE", "WARN_DO_LANGUAGE",
    "WARN_MORE", "WARN_SECTION", "WARN_SECTIONS", "WARN_STATION", "WARN_STATIONS",
    "WARN_ROUNDED", "WARN_OUTSIDE", "WARN_PLAN", "WARN_PROFILE", "WARN_LAYER",
    "WARN_GRADES", "WARN_LAST_ROW", "WARN_NO_PLAN", "WARN_NO_PROFILE"};
// clang-format on

class LanguageTexts : public test::AppTest, public ::testing::WithParamInterface<const char*> {
 protected:
  LanguageTexts() { Platform.sProgramDirectory = VREK_LANGUAGE_FOLDER; }
};

TEST_P(LanguageTexts, GiveEachTokenOnceAText) {
  clsLanguageFile File;
  ASSERT_TRUE(File.ReadFile(GetParam()));
  std::multiset<std::string> aFound;
  for (const TLanguageToken& Token : File.Tokens()) {
    aFound.insert(Token.sToken);
    EXPECT_NE(Token.sText, "") << Token.sToken;
  }
  std::multiset<std::string> aExpected(std::begin(aTokens), std::end(aTokens));
  aExpected.insert(std::begin(aWindowTokens), std::end(aWindowTokens));
  aExpected.insert(std::begin(aWarningTokens), std::end(aWarningTokens));
  EXPECT_EQ(aFound, aExpected);
}

TEST_P(LanguageTexts, HoldNoLineThatIsPassedOverByMistake) {
  const std::string sBytes = ReadFile(std::filesystem::path(VREK_LANGUAGE_FOLDER) / GetParam());
  ASSERT_TRUE(sBytes.ends_with("\r\n"));
  int nTokenLines = 0;
  for (std::size_t nStart = 0, nEnd = 0; nStart < sBytes.size(); nStart = nEnd + 2) {
    nEnd = sBytes.find("\r\n", nStart);
    const std::string sLine = sBytes.substr(nStart, nEnd - nStart);
    EXPECT_EQ(sLine.find_first_of("\r\n"), std::string::npos) << sLine;
    if (sLine.empty() || sLine.front() == '#') continue;
    EXPECT_EQ(std::count(sLine.begin(), sLine.end(), '='), 1) << sLine;
    ++nTokenLines;
  }
  EXPECT_EQ(nTokenLines, std::ssize(aTokens) + std::ssize(aWindowTokens) + std::ssize(aWarningTokens));
}

TEST_P(LanguageTexts, HaveTheSamePlacesForParts) {
  clsLanguageFile English, File;
  ASSERT_TRUE(English.ReadFile("QuennelV2.lng"));
  ASSERT_TRUE(File.ReadFile(GetParam()));
  const auto Places = [](const std::string& sText) {
    std::set<char> Found;
    for (auto n = sText.find('%'); n != std::string::npos; n = sText.find('%', n + 1)) {
      Found.insert(sText.at(n + 1));
    }
    return Found;
  };
  for (const TLanguageToken& Token : File.Tokens()) {
    EXPECT_EQ(Places(Token.sText), Places(English.GetToken(Token.sToken))) << Token.sToken;
  }
}

TEST_P(LanguageTexts, KeepTheHeadsOfReportColumnsWithinTheirWidth) {
  clsLanguageFile File;
  ASSERT_TRUE(File.ReadFile(GetParam()));
  for (const char* pToken : {"E_CH", "E_X", "E_Y", "E_Z", "E_DESCRIPTION"}) {
    const std::string sText = File.GetToken(pToken);
    const auto nCharacters =
        std::count_if(sText.begin(), sText.end(), [](char c) { return (c & 0xC0) != 0x80; });
    EXPECT_LE(nCharacters, 14) << pToken;
  }
}

INSTANTIATE_TEST_SUITE_P(Files, LanguageTexts, ::testing::Values("QuennelV2.lng", "QuennelV2.es.lng"));

}  // namespace
}  // namespace vrek
