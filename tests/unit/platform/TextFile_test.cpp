#include "platform/TextFile.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "support/OrdinaryUser.h"
#include "unit/platform/FileTest.h"

namespace vrek {
namespace {

using ::testing::ElementsAre;

class TextFile : public test::FileTest {
 protected:
  std::vector<std::string> Lines(std::string_view sBytes) {
    CTextFile File(WriteFile("lines.txt", sBytes));
    bEndsWithLf = File.EndsLinesWithLf();
    std::vector<std::string> aOut;
    while (!File.AtEnd()) aOut.emplace_back(File.NextLine());
    EXPECT_EQ(FailureOf([&] { File.NextLine(); }), Error::nInputPastEnd);
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
  EXPECT_THAT(Lines("a\f\x1B\x1A.b"), ElementsAre("a\f\x1B\x1A.b"));
  // A lone LF ends nothing where there is a CR.
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

TEST_F(TextFile, KeepsEveryByteAndReadsWhatHasNoSize) {
  std::string sBytes;
  for (int n = 0; n < 300'000; ++n) sBytes += static_cast<char>(n % 251);
  EXPECT_EQ(ReadWholeFile(WriteFile("bytes", sBytes)), sBytes);
  EXPECT_NE(ReadWholeFile("/proc/self/status").find("Pid:"), std::string::npos);
}

TEST_F(TextFile, CountsTheLfsThatEndNoLine) {
  const std::string sLong(262'143, 'x');  // puts what follows on the edge of what is read at once
  const std::pair<std::string, std::size_t> aCases[] = {{"", 0},
                                                        {"a\r\nb\r\n", 0},
                                                        {"a\rb\r", 0},
                                                        {"a\nb\n", 0},
                                                        {"\na\r\nb\n\nc\n\r", 4},
                                                        {sLong + "\r\n", 0},
                                                        {sLong + "\n\r", 1},
                                                        {sLong + "x\n" + "\r", 1}};
  for (const auto& [sBytes, nStray] : aCases) {
    EXPECT_EQ(CountStrayLfs(WriteFile("ends.txt", sBytes)), nStray) << sBytes.substr(sBytes.size() / 2);
  }
}

TEST_F(TextFile, SaysWhyAFileCannotBeRead) {
  WriteFile("plain", "x");
  ::chmod(WriteFile("locked", "x").c_str(), 0);
  const test::OrdinaryUser User(Directory);
  if (!User.ReachesFolder()) GTEST_SKIP() << "only root gets here";
  const std::pair<std::string, int> aCases[] = {{Path("missing"), Error::nFileNotFound},
                                                {"missing-beside-the-program", Error::nFileNotFound},
                                                {Path("nowhere/missing"), Error::nPathNotFound},
                                                {Path("plain/missing"), Error::nPathNotFound},
                                                {Path(""), Error::nPathFileAccess},
                                                {"", Error::nPathFileAccess},
                                                {Path("plain") + '\0', Error::nPathFileAccess},
                                                {Path("locked"), Error::nPermissionDenied}};
  for (const auto& [sPath, nNumber] : aCases) {
    EXPECT_FALSE(CanOpenForReading(sPath)) << sPath;
    EXPECT_EQ(FailureOf([&] { CTextFile File(sPath); }), nNumber) << sPath;
  }
  EXPECT_TRUE(CanOpenForReading(Path("plain")));
}

TEST_F(TextFile, DoesNotWaitForAPipeWhenAskedWhetherItOpens) {
  ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
  EXPECT_TRUE(CanOpenForReading(Path("pipe")));
}

}  // namespace
}  // namespace vrek
