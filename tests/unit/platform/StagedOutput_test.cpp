#include "platform/StagedOutput.h"

#include <sys/stat.h>

#include "support/OrdinaryUser.h"
#include "support/TestApp.h"

namespace vrek {
namespace {

namespace fs = std::filesystem;

class Staged : public test::AppTest {
 protected:
  void WriteWhole(const std::string& sPath, std::string_view sBytes) {
    const auto File = Output.Create(sPath);
    File->Write(sBytes);
    File->Close();
  }
  int NumberOf(const std::function<void()>& Body) {
    try {
      Body();
    } catch (const Failure& Caught) {
      return Caught.nNumber;
    }
    return 0;
  }
  std::size_t FilesHere() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(Directory), {}));
  }

  StagedOutput Output;
};

TEST_F(Staged, ShowsADocumentOnlyWhenItIsCommitted) {
  const std::string sOld = WriteFile("old.xml", "before"), sNew = (Directory / "new.xml").string();
  WriteWhole(sOld, "after");
  WriteWhole(sNew, "new");
  EXPECT_EQ(ReadFile(sOld), "before");
  EXPECT_FALSE(fs::exists(sNew));
  Output.Commit();
  EXPECT_EQ(ReadFile(sOld), "after");
  EXPECT_EQ(ReadFile(sNew), "new");
  EXPECT_EQ(FilesHere(), 2u);
}

TEST_F(Staged, LeavesNothingBehindWhenItIsDiscarded) {
  const std::string sPath = WriteFile("out.xml", "before");
  WriteWhole(sPath, "one");
  WriteWhole(sPath, "two");  // in place of the first
  EXPECT_EQ(FilesHere(), 2u);
  Output.Discard();
  EXPECT_EQ(FilesHere(), 1u);
  {
    StagedOutput Dropped;
    Dropped.Create(sPath)->Write("three");
  }
  EXPECT_EQ(FilesHere(), 1u);
  Output.Commit();
  EXPECT_EQ(ReadFile(sPath), "before");
}

TEST_F(Staged, RemovesLeftoversOfAnInterruptedRun) {
  WriteWhole((Directory / "out.xml").string(), "text");
  EXPECT_EQ(FilesHere(), 1u);
  RemoveLeftovers();
  EXPECT_EQ(FilesHere(), 0u);
}

TEST_F(Staged, KeepsPermissionsAndLinks) {
  const std::string sPath = WriteFile("real.xml", "before"), sLink = (Directory / "link.xml").string();
  ::chmod(sPath.c_str(), 0640);
  fs::create_symlink("real.xml", sLink);
  WriteWhole(sLink, "after");
  Output.Commit();
  EXPECT_TRUE(fs::is_symlink(sLink));
  EXPECT_EQ(ReadFile(sPath), "after");
  EXPECT_EQ(fs::status(sPath).permissions(), static_cast<fs::perms>(0640));
}

TEST_F(Staged, DoesNotCommitADocumentThatIsNotWhole) {
  const std::string sPath = WriteFile("out.xml", "before");
  Output.Create(sPath)->Write("the beginning");  // never closed
  EXPECT_EQ(NumberOf([&] { Output.Commit(); }), Error::nPathFileAccess);
  EXPECT_EQ(ReadFile(sPath), "before");
  EXPECT_EQ(FilesHere(), 1u);
}

TEST_F(Staged, WritesDevicesDirectlyAndTellsOfAFullDisk) {
  const auto File = Output.Create("/dev/full");
  EXPECT_EQ(NumberOf([&] {
              File->Write("text");
              File->Close();
            }),
            Error::nDiskFull);
  EXPECT_EQ(NumberOf([&] { Output.Commit(); }), Error::nDiskFull);
  WriteWhole("/dev/null", "text");
  Output.Commit();
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(Staged, RefusesPathsThatCanNotBecomeADocument) {
  EXPECT_EQ(NumberOf([&] { Output.Create(Directory.string()); }), Error::nPathFileAccess);
  EXPECT_EQ(NumberOf([&] { Output.Create(""); }), Error::nPathFileAccess);
  EXPECT_EQ(NumberOf([&] { Output.Create((Directory / "missing" / "out.xml").string()); }),
            Error::nPathNotFound);
}

TEST_F(Staged, RefusesAFileThatMayNotBeWritten) {
  const std::string sLocked = WriteFile("locked.xml", "before");
  ::chmod(sLocked.c_str(), 0444);
  const test::OrdinaryUser User(Directory);
  EXPECT_EQ(NumberOf([&] { Output.Create(sLocked); }), Error::nPermissionDenied);
}

TEST_F(Staged, TakesNamesOfTheGreatestLength) {
  const std::string sPath = (Directory / std::string(255, 'x')).string();
  WriteWhole(sPath, "text");
  Output.Commit();
  EXPECT_EQ(ReadFile(sPath), "text");
}

}  // namespace
}  // namespace vrek
