// The language files that go with the program: every token of the sources has its text in each of them.
#include <algorithm>
#include <set>

#include "shell/LanguageFile.h"
#include "support/TestApp.h"

namespace vrek {
namespace {

namespace fs = std::filesystem;

class LanguageTexts : public test::AppTest, public ::testing::WithParamInterface<const char*> {
 protected:
  LanguageTexts() {
    Platform.sProgramDirectory = VREK_LANGUAGE_FOLDER;
    EXPECT_TRUE(File.ReadFile(GetParam()));
  }
  static bool IsToken(std::string_view sText) {
    constexpr std::string_view aKinds[] = {"BT_",  "LBL_", "FR_", "OPT_", "TXT_",
                                           "CMD_", "T_",   "E_",  "WIN_", "WARN_"};
    return std::any_of(std::begin(aKinds), std::end(aKinds),
                       [&](std::string_view sKind) { return sText.starts_with(sKind); });
  }
  /// "BT_BACK", "E_CH" ... in quotes in the sources.
  static std::multiset<std::string> TokensOfTheSources() {
    std::set<std::string> aFound;
    for (const auto& Entry : fs::recursive_directory_iterator(VREK_LANGUAGE_FOLDER "/../src")) {
      if (Entry.path().extension() != ".cpp" && Entry.path().extension() != ".h") continue;
      const auto sText = ReadFile(Entry.path());
      for (auto n = sText.find('"'); n != std::string::npos; n = sText.find('"', n + 1)) {
        const auto nEnd = sText.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789", n + 1);
        if (nEnd == std::string::npos || sText[nEnd] != '"') continue;
        const auto sQuoted = sText.substr(n + 1, nEnd - n - 1);
        if (IsToken(sQuoted)) aFound.insert(sQuoted);
      }
    }
    return {aFound.begin(), aFound.end()};
  }

  clsLanguageFile File;
};

TEST_P(LanguageTexts, GiveEachTokenOnceAText) {
  std::multiset<std::string> aFound;
  for (const TLanguageToken& Token : File.Tokens()) {
    aFound.insert(Token.sToken);
    EXPECT_NE(Token.sText, "") << Token.sToken;
  }
  auto aExpected = TokensOfTheSources();
  EXPECT_GT(aExpected.size(), 100U);
  aExpected.insert("LBL_FIL_ALIGMENT");  // which nothing shows
  EXPECT_EQ(aFound, aExpected) << "a line without its one equals sign gives no token";
  EXPECT_EQ(Log(), "") << "its lines end with CR LF";
}

TEST_P(LanguageTexts, HaveTheSamePlacesForParts) {
  clsLanguageFile English;
  ASSERT_TRUE(English.ReadFile("QuennelV2.lng"));
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
  for (const char* pToken : {"E_CH", "E_X", "E_Y", "E_Z", "E_DESCRIPTION"}) {
    const std::string sText = File.GetToken(pToken);
    const auto nCharacters =
        std::count_if(sText.begin(), sText.end(), [](char c) { return (c & 0xC0) != 0x80; });
    EXPECT_LE(nCharacters, 14) << pToken;
  }
}

/// The value of a literal of one or several parts, "..." "...", that begins at nPos; "" where none does.
std::string Literal(const std::string& sText, std::size_t nPos) {
  std::string sOut;
  for (; (nPos = sText.find_first_not_of(" \n", nPos)) != std::string::npos && sText[nPos] == '"'; ++nPos) {
    for (++nPos; sText[nPos] != '"'; ++nPos) {
      if (sText[nPos] == '\\') ++nPos;
      sOut += sText[nPos];
    }
  }
  return sOut;
}

using LanguageDefaults = test::AppTest;

// Phrase("WARN_NONE", "none") and its like: what stands for a token that the file lacks.
TEST_F(LanguageDefaults, AreTheTextsOfTheEnglishFile) {
  Platform.sProgramDirectory = VREK_LANGUAGE_FOLDER;
  ASSERT_TRUE(Model.TokenFile.ReadFile("QuennelV2.lng"));
  int nCompared = 0;
  for (const auto& Entry : fs::recursive_directory_iterator(VREK_LANGUAGE_FOLDER "/../src")) {
    if (Entry.path().extension() != ".cpp") continue;
    const auto sText = ReadFile(Entry.path());
    for (const auto& Token : Model.TokenFile.Tokens()) {
      const auto sQuoted = '"' + Token.sToken + "\",";
      for (auto n = sText.find(sQuoted); n != std::string::npos; n = sText.find(sQuoted, n + 1)) {
        const auto sDefault = Literal(sText, n + sQuoted.size());
        if (sDefault.empty() || Model.GetToken(sDefault) != sDefault)
          continue;  // another token, a list of them
        EXPECT_EQ(sDefault, Token.sText) << Token.sToken;
        ++nCompared;
      }
    }
  }
  EXPECT_GT(nCompared, 50);
}

INSTANTIATE_TEST_SUITE_P(Files, LanguageTexts, ::testing::Values("QuennelV2.lng", "QuennelV2.es.lng"));

}  // namespace
}  // namespace vrek
