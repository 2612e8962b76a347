#include "platform/StagedOutput.h"

#include <sys/stat.h>

#include "support/OrdinaryUser.h"
#include "unit/platform/FileTest.h"

namespace vrek {
namespace {

namespace fs = std::filesystem;

class Staged : public test::FileTest {
 protected:
  void WriteWhole(const std::string& sPath, std::string_view sBytes) {
    const auto File = Output.Create(sPath);
    File->Write(sBytes);
    File->Close();
  }
  long FilesHere() const { return std::distance(fs::directory_iterator(Directory), {}); }

  StagedOutput Output;
};

TEST_F(Staged, ShowsADocumentOnlyWhenItIsCommitted) {
  const std::string sOld = WriteFile("old.xml", "before");
  const std::string sNew = Path(std::string(255, 'x'));  // a name of the greatest length
  WriteWhole(sOld, "after");
  WriteWhole(sNew, "new");
  EXPECT_EQ(ReadFile(sOld), "before");
  EXPECT_FALSE(fs::exists(sNew));
  Output.Commit();
  EXPECT_EQ(ReadFile(sOld), "after");
  EXPECT_EQ(ReadFile(sNew), "new");
  EXPECT_EQ(FilesHere(), 2);
}

TEST_F(Staged, LeavesNothingBehindWhenItIsDiscarded) {
  const std::string sPath = WriteFile("out.xml", "before");
  WriteWhole(sPath, "one");
  WriteWhole(sPath, "two");  // in place of the first
  EXPECT_EQ(FilesHere(), 2);
  Output.Discard();
  EXPECT_EQ(FilesHere(), 1);
  StagedOutput().Create(sPath)->Write("three");
  EXPECT_EQ(FilesHere(), 1);
  Output.Commit();
  EXPECT_EQ(ReadFile(sPath), "before");
}

TEST_F(Staged, RemovesLeftoversOfAnInterruptedRun) {
  WriteWhole(Path("out.xml"), "text");
  EXPECT_EQ(FilesHere(), 1);
  RemoveLeftovers();
  EXPECT_EQ(FilesHere(), 0);
}

TEST_F(Staged, KeepsPermissionsAndLinks) {
  const std::string sPath = WriteFile("real.xml", "before");
  ::chmod(sPath.c_str(), 0640);
  fs::create_symlink("real.xml", Path("link.xml"));
  WriteWhole(Path("link.xml"), "after");
  Output.Commit();
  EXPECT_TRUE(fs::is_symlink(Path("link.xml")));
  EXPECT_EQ(ReadFile(sPath), "after");
  EXPECT_EQ(fs::status(sPath).permissions(), static_cast<fs::perms>(0640));
  fs::create_symlink("later.xml", Path("early.xml"));
  WriteWhole(Path("early.xml"), "through a link to nothing yet");
  Output.Commit();
  EXPECT_TRUE(fs::is_symlink(Path("early.xml")));
  EXPECT_EQ(ReadFile(Path("later.xml")), "through a link to nothing yet");
}

TEST_F(Staged, DoesNotCommitADocumentThatIsNotWhole) {
  const std::string sPath = WriteFile("out.xml", "before");
  Output.Create(sPath)->Write("the beginning");  // never closed
  EXPECT_EQ(FailureOf([&] { Output.Commit(); }), Error::nPathFileAccess);
  EXPECT_EQ(ReadFile(sPath), "before");
  EXPECT_EQ(FilesHere(), 1);
}

TEST_F(Staged, WritesDevicesDirectlyAndTellsOfAFullDisk) {
  EXPECT_EQ(FailureOf([&] { WriteWhole("/dev/full", "text"); }), Error::nDiskFull);
  EXPECT_EQ(FailureOf([&] { Output.Commit(); }), Error::nDiskFull);
  WriteWhole("/dev/null", "text");
  Output.Commit();
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(Staged, RefusesPathsThatCanNotBecomeADocument) {
  // The new file would take over permissions that keep out others than the owner alone.
  ::chmod(WriteFile("locked.xml", "before").c_str(), ::geteuid() == 0 ? 0644 : 0444);
  const test::OrdinaryUser User(Directory);
  if (!User.ReachesFolder()) GTEST_SKIP() << "only root gets here";
  EXPECT_EQ(FailureOf([&] { Output.Create(Directory.string()); }), Error::nPathFileAccess);
  EXPECT_EQ(FailureOf([&] { Output.Create(""); }), Error::nPathFileAccess);
  EXPECT_EQ(FailureOf([&] { Output.Create(Path("missing/out.xml")); }), Error::nPathNotFound);
  EXPECT_EQ(FailureOf([&] { Output.Create(Path("locked.xml")); }), Error::nPermissionDenied);
}

}  // namespace
}  // namespace vrek
