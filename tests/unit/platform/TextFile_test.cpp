#include "platform/TextFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include "base/Failure.h"
#include "support/OrdinaryUser.h"
#include "unit/platform/OwnDirectory.h"

namespace vrek {
namespace {

using ::testing::ElementsAre;

class TextFile : public test::OwnDirectory {
 protected:
  std::vector<std::string> Lines(std::string_view sBytes) {
    CTextFile File(Write("lines.txt", sBytes));
    bEndsWithLf = File.EndsLinesWithLf();
    std::vector<std::string> aOut;
    while (!File.AtEnd()) aOut.emplace_back(File.NextLine());
    EXPECT_EQ(test::FailureOf([&] { File.NextLine(); }), 62);
    return aOut;
  }
  bool bEndsWithLf = false;
};

TEST_F(TextFile, EndsALineAtCrOrCrLf) {
  EXPECT_THAT(Lines("a\r\nb\rc"), ElementsAre("a", "b", "c"));
  EXPECT_THAT(Lines("a\r\n"), ElementsAre("a"));
  EXPECT_THAT(Lines("a\r"), ElementsAre("a"));
  EXPECT_THAT(Lines("\r\n\r\r\nb"), ElementsAre("", "", "", "b"));
  EXPECT_THAT(Lines(""), ElementsAre());
  EXPECT_THAT(Lines("a\f\x1B\x1A"
                    "b"),
              ElementsAre("a\f\x1B\x1A"
                          "b"));
}

TEST_F(TextFile, EndsNothingAtALoneLfWhereThereIsACr) {
  EXPECT_THAT(Lines("a\nb\r\nc\n\rd\n"), ElementsAre("a\nb", "c\n", "d\n"));
  EXPECT_FALSE(bEndsWithLf);
}

TEST_F(TextFile, EndsALineAtLfWhereThereIsNoCrAtAll) {
  EXPECT_THAT(Lines("a\n\nb"), ElementsAre("a", "", "b"));
  EXPECT_TRUE(bEndsWithLf);
  EXPECT_THAT(Lines("a\n"), ElementsAre("a"));
  EXPECT_THAT(Lines("a"), ElementsAre("a"));
  EXPECT_FALSE(bEndsWithLf);
}

TEST_F(TextFile, KeepsEveryByte) {
  std::string sBytes;
  for (int n = 0; n < 300'000; ++n) sBytes += static_cast<char>(n % 251);
  EXPECT_EQ(ReadWholeFile(Write("bytes", sBytes)), sBytes);
}

TEST_F(TextFile, ReadsWhatHasNoSize) {
  EXPECT_NE(ReadWholeFile("/proc/self/status").find("Pid:"), std::string::npos);
}

TEST_F(TextFile, SaysWhyAFileCannotBeRead) {
  const auto Failing = [](const std::string& sPath) {
    EXPECT_FALSE(CanOpenForReading(sPath)) << sPath;
    return test::FailureOf([&] { ReadWholeFile(sPath); });
  };
  Write("plain", "x");
  EXPECT_EQ(Failing(Path("missing")), 53);
  EXPECT_EQ(Failing("missing-beside-the-program"), 53);
  EXPECT_EQ(Failing(Path("nowhere/missing")), 76);
  EXPECT_EQ(Failing(Path("plain/missing")), 76);
  EXPECT_EQ(Failing(Path("")), 75);
  EXPECT_EQ(Failing(""), 75);
  EXPECT_EQ(Failing(Path("plain") + '\0'), 75);
  EXPECT_TRUE(CanOpenForReading(Path("plain")));
}

TEST_F(TextFile, NeedsPermission) {
  ::chmod(Write("locked", "x").c_str(), 0);
  const test::OrdinaryUser User(Path(""));
  EXPECT_EQ(test::FailureOf([&] { CTextFile File(Path("locked")); }), 70);
  EXPECT_FALSE(CanOpenForReading(Path("locked")));
}

TEST_F(TextFile, DoesNotWaitForAPipeWhenAskedWhetherItOpens) {
  ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
  EXPECT_TRUE(CanOpenForReading(Path("pipe")));
}

}  // namespace
}  // namespace vrek
