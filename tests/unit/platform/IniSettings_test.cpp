#include "platform/IniSettings.h"

#include <gmock/gmock.h>
#include <sys/wait.h>

#include "platform/IniText.h"
#include "unit/platform/FileTest.h"

namespace vrek {
namespace {

using ::testing::AnyOf;
namespace fs = std::filesystem;

class Settings : public test::FileTest {
 protected:
  /// What a new store, another run, reads.
  std::string ReadAgain(std::string_view sSection, std::string_view sKey) {
    return IniSettings(Directory).Read("QuennelFormats", sSection, sKey, "default");
  }
  void Write(std::string_view sSection, std::string_view sKey, std::string_view sText) {
    IniSettings(Directory).Write("QuennelFormats", sSection, sKey, sText);
  }
  fs::path File() const { return Directory / "QuennelFormats" / "settings.ini"; }
};

const std::string aHardTexts[] = {
    "",       "0.010", " blanks at both ends ", "C:\\new\\x41\\road.xml",   "two\r\nlines\n",
    "[Vrek]", "# = ;", "tab\tand\x01",          std::string("NUL\0NUL", 7), "Vía única €"};

TEST_F(Settings, GiveBackAnyTextInTheNextRun) {
  EXPECT_EQ(ReadAgain("Preferences", "ToleranceHz"), "default");
  for (const std::string& sText : aHardTexts) Write("Section " + sText, sText, sText);
  for (const std::string& sText : aHardTexts) EXPECT_EQ(ReadAgain("Section " + sText, sText), sText);
  EXPECT_EQ(ReadAgain("Section ", "Other"), "default");
  EXPECT_EQ(ReadAgain("Other", "0.010"), "default");
  EXPECT_EQ(IniSettings(Directory).Read("OtherApplication", "Section ", "", "default"), "default");
}

TEST_F(Settings, KeepWhatOthersWroteIntoTheFile) {
  fs::create_directories(File().parent_path());
  std::ofstream(File())
      << "; by hand\n[Vrek]\n  DataVersion =  7 \r\n\n[Preferences]\n#ToleranceHz=9\nToleranceVt=0,005";
  EXPECT_EQ(ReadAgain("Vrek", "DataVersion"), "7");
  EXPECT_EQ(ReadAgain("Preferences", "ToleranceVt"), "0,005");
  EXPECT_EQ(ReadAgain("Vrek", "ToleranceVt"), "default") << "of the section behind";
  EXPECT_EQ(ReadAgain("Preferences", "ToleranceHz"), "default");
  Write("Vrek", "DataVersion", "8");
  Write("Preferences", "ToleranceHz", "0.010");
  EXPECT_EQ(
      ReadFile(File()),
      "; by "
      "hand\n[Vrek]\nDataVersion=8\n\n[Preferences]\n#ToleranceHz=9\nToleranceVt=0,005\nToleranceHz=0.010\n");
}

TEST_F(Settings, LoseNothingWhenTwoConvertersSaveAtOnce) {
  constexpr int nWriters = 3, nKeys = 12;
  std::vector<pid_t> aWriters;
  for (int nWriter = 0; nWriter < nWriters; ++nWriter) {
    const pid_t nChild = ::fork();
    ASSERT_GE(nChild, 0);
    if (nChild == 0) {
      for (int nKey = 0; nKey < nKeys; ++nKey) {
        Write("Preferences", std::to_string(nWriter) + "." + std::to_string(nKey), "set");
      }
      std::_Exit(0);
    }
    aWriters.push_back(nChild);
  }
  for (const pid_t nChild : aWriters) ::waitpid(nChild, nullptr, 0);
  for (int nWriter = 0; nWriter < nWriters; ++nWriter) {
    for (int nKey = 0; nKey < nKeys; ++nKey) {
      EXPECT_EQ(ReadAgain("Preferences", std::to_string(nWriter) + "." + std::to_string(nKey)), "set");
    }
  }
  EXPECT_EQ(std::distance(fs::directory_iterator(File().parent_path()), {}), 2) << "settings and their lock";
}

TEST_F(Settings, FailWhereTheyCanNotBeWritten) {
  WriteFile("QuennelFormats", "a file where the folder should be");
  EXPECT_EQ(ReadAgain("Preferences", "ToleranceHz"), "default");
  EXPECT_THAT(FailureOf([&] { Write("Preferences", "ToleranceHz", "0.010"); }),
              AnyOf(Error::nPathNotFound, Error::nPathFileAccess));
}

TEST(IniText, ReadsWhatItDidNotWriteItself) {
  const IniText Text("stray=1\n[A]\nk=C:\\temp\\x4\\q\\\n[A]\nk=2\n[unclosed\nk=3");
  EXPECT_EQ(Text.Find("A", "k"), "C:\\temp\\x4\\q\\");
  EXPECT_EQ(Text.Find("unclosed", "k"), "3");
  EXPECT_EQ(Text.Find("", "stray"), std::nullopt);
}

}  // namespace
}  // namespace vrek
