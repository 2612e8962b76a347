#include "platform/PosixPlatform.h"

#include <cstdlib>
#include <filesystem>
#include <iomanip>
#include <optional>
#include <sstream>

#include "support/TestApp.h"

namespace vrek {
namespace {

namespace fs = std::filesystem;

/// Sets a variable of the environment (nullptr: takes it away) for as long as the object lives.
class Variable {
 public:
  Variable(const char* pName, const char* pText) : m_pName(pName) {
    if (const char* pBefore = std::getenv(pName)) m_sBefore = pBefore;
    pText != nullptr ? ::setenv(pName, pText, 1) : ::unsetenv(pName);
  }
  ~Variable() { m_sBefore ? ::setenv(m_pName, m_sBefore->c_str(), 1) : ::unsetenv(m_pName); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* m_pName;
  std::optional<std::string> m_sBefore;
};

TEST(SystemClock, ReadsAFixedMomentInLocalTime) {
  const Variable Zone("TZ", "XXX-2");  // two hours east
  const Variable Moment("SOURCE_DATE_EPOCH", "1767323045");
  const std::tm Now = SystemClock().DocumentTime();
  std::ostringstream Text;
  Text << std::put_time(&Now, "%Y-%m-%d %H:%M:%S");
  EXPECT_EQ(Text.str(), "2026-01-02 05:04:05");
}

TEST(SystemClock, TakesTheClockWhereTheFixedMomentIsNone) {
  for (const char* pText : {"", "soon", "12x", "99999999999999999999"}) {
    const Variable Moment("SOURCE_DATE_EPOCH", pText);
    EXPECT_GE(SystemClock().DocumentTime().tm_year, 126) << pText;
  }
}

TEST(PosixEnvironment, KnowsItsSurroundings) {
  const PosixEnvironment Environment;
  EXPECT_NE(Environment.UserName(), "");
  EXPECT_TRUE(fs::exists(fs::path(Environment.ProgramDirectory()) / "vrek_test_platform_posix"));
  const Variable Before("TMPDIR", nullptr);
  EXPECT_EQ(Environment.TempDirectory(), "/tmp/");
  for (const char* pDirectory : {"/var/tmp", "/var/tmp/"}) {
    const Variable Set("TMPDIR", pDirectory);
    EXPECT_EQ(Environment.TempDirectory(), "/var/tmp/");
  }
}

TEST(SplitCommand, CutsAtBlanksOutsideDoubleQuotes) {
  using TWords = std::vector<std::string>;
  EXPECT_EQ(SplitCommand(""), TWords{});
  EXPECT_EQ(SplitCommand("  a  b "), (TWords{"a", "b"}));
  EXPECT_EQ(SplitCommand(R"("a b" c"d e"f "")"), (TWords{"a b", "cd ef", ""}));
  EXPECT_EQ(SplitCommand(R"(a "b c)"), (TWords{"a", "b c"}));
  EXPECT_EQ(SplitCommand(R"(a\ $HOME;`b`|'c d')"), (TWords{"a\\", "$HOME;`b`|'c", "d'"}));
}

using Processes = test::AppTest;

TEST_F(Processes, WaitsAndRunsNothingThatAFileNameHides) {
  PosixProcesses Run;
  const std::string sFolder = Directory.string() + "/";
  Run.RunAndWait("/bin/sh -c \"sleep 0.1; touch " + sFolder + "late.xml\"");
  EXPECT_TRUE(fs::exists(sFolder + "late.xml"));

  for (const char* sName : {"a; touch b.xml", "$(touch${IFS}c.xml)", "d'&e"}) {
    Run.RunAndWait("touch -- \"" + sFolder + sName + "\"");
    EXPECT_TRUE(fs::exists(sFolder + sName)) << sName;
  }
  EXPECT_FALSE(fs::exists("b.xml"));
  EXPECT_FALSE(fs::exists("c.xml"));
}

TEST_F(Processes, PassesOverWhatDoesNotStartOrDies) {
  for (const std::string& sCommand :
       {std::string(), std::string("\"\""), Directory.string(), Directory.string() + "/Missing.exe -l a.xml",
        std::string("/bin/sh -c \"kill -9 $$\"")})
    EXPECT_NO_THROW(PosixProcesses().RunAndWait(sCommand)) << sCommand;
}

}  // namespace
}  // namespace vrek
