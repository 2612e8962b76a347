// Faults of the machine round a conversion: disks, folders, permissions, a log, settings and sibling programs
// that don't do what they should.
#include <gmock/gmock.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Projects.h"
#include "platform/IniSettings.h"
#include "platform/PosixPlatform.h"
#include "shell/CommandLine.h"
#include "support/OrdinaryUser.h"
#include "support/TestApp.h"
#include "wizard/frmWizard.h"

namespace vrek::test {
namespace {

namespace fs = std::filesystem;
using batch::TOutcome;

std::vector<std::string> Names(const fs::path& Folder) {
  std::vector<std::string> aNames;
  for (const auto& Entry : fs::directory_iterator(Folder)) aNames.push_back(Entry.path().filename());
  return aNames;
}

std::string Told(const TOutcome& Outcome) {
  std::string sText;
  for (const auto& Message : Outcome.aMessages) sText += Message.sText + "\n";
  return sText;
}

TOutcome RunLaidOut(const batch::TJob& Job, const fs::path& Folder) {
  std::ofstream(Folder / "QuennelV2.lng") << "#\r\n";
  return batch::RunJob(Job, {.sLanguageFile = "QuennelV2.lng", .sProgramDirectory = Folder.string()});
}

class OutputFault : public ProjectTest {
 protected:
  /// Converts to a path where no document can come into being; gives what was told.
  std::string NotWritten(const std::string& sOutput) {
    const auto Outcome = fuzz::Convert(ReadExample("double"), Folder, sOutput);
    EXPECT_EQ(Outcome.eStatus, batch::eNotWritten) << Told(Outcome);
    EXPECT_TRUE(Outcome.bImported);
    EXPECT_FALSE(Outcome.bExported);
    return Told(Outcome);
  }
};

TEST_F(OutputFault, AFullDeviceIsTold) {
  EXPECT_THAT(NotWritten("/dev/full"), ::testing::HasSubstr("Disk full"));
}

TEST_F(OutputFault, ADiskThatFillsUpKeepsTheEarlierDocument) {
  const auto Disk = Folder / "disk";
  fs::create_directories(Disk);
  if (::mount("tmpfs", Disk.c_str(), "tmpfs", 0, "size=64k") != 0) GTEST_SKIP() << "no disk to fill";
  std::ofstream(Disk / "out.xml") << "earlier";
  const auto sTold = NotWritten((Disk / "out.xml").string());
  const auto aNames = Names(Disk);
  const auto sKept = ReadBytes(Disk / "out.xml");
  ::umount(Disk.c_str());
  EXPECT_THAT(sTold, ::testing::HasSubstr("Disk full"));
  EXPECT_THAT(aNames, ::testing::ElementsAre("out.xml"));
  EXPECT_EQ(sKept, "earlier");
}

TEST_F(OutputFault, AFolderThatIsNotThereOrInTheWayIsTold) {
  EXPECT_THAT(NotWritten((Folder / "none" / "out.xml").string()), ::testing::HasSubstr("Path not found"));
  fs::create_directories(Folder / "out.xml");
  EXPECT_THAT(NotWritten(Output()), ::testing::HasSubstr("Path/File access error"));
  EXPECT_TRUE(fs::is_empty(Folder / "out.xml"));
}

TEST_F(OutputFault, AFolderThatMayNotBeWrittenIsTold) {
  const auto Closed = Folder / "closed";
  fs::create_directories(Closed);
  fs::permissions(Closed, fs::perms::owner_read | fs::perms::owner_exec);
  const OrdinaryUser User(Folder);
  if (!User.ReachesFolder()) GTEST_SKIP() << "only root gets here";
  EXPECT_THAT(NotWritten((Closed / "out.xml").string()), ::testing::HasSubstr("Permission denied"));
}

TEST_F(OutputFault, WithoutALogTheFailureIsToldAllTheSame) {
  ::setenv("TMPDIR", (Folder / "none").c_str(), 1);
  EXPECT_THAT(NotWritten("/dev/full"), ::testing::HasSubstr("Disk full"));
  EXPECT_THAT(NotWritten((Folder / "none" / "out.xml").string()), ::testing::HasSubstr("Path not found"));
}

TEST_F(OutputFault, ADrawingThatCanNotBeWrittenIsToldBehindTheDocument) {
  auto Job = fuzz::LayOut(ReadExample("rail"), Folder);
  Job.sOutput = Output();
  Job.sPlot = (Folder / "none" / "plot.svg").string();
  for (const bool bLog : {true, false}) {
    if (!bLog) ::setenv("TMPDIR", (Folder / "none").c_str(), 1);
    const auto Outcome = RunLaidOut(Job, Folder);
    EXPECT_EQ(Outcome.eStatus, batch::eNotWritten);
    EXPECT_TRUE(Outcome.bExported);
    EXPECT_THAT(Told(Outcome), ::testing::HasSubstr("Path not found"));
  }
}

class InputFault : public ProjectTest {};

TEST_F(InputFault, WithoutALogABrokenFileIsToldAllTheSame) {
  ::setenv("TMPDIR", (Folder / "none").c_str(), 1);
  for (const char* sExample : {"road", "printed", "rtf", "tunnel", "rail", "double"}) {
    auto Project = ReadExample(sExample);
    for (auto& sBytes : Project.aFiles) sBytes = sBytes.substr(0, sBytes.size() * 2 / 5);
    SCOPED_TRACE(sExample);
    Run(Project);
  }
}

TEST_F(InputFault, APipeInPlaceOfTheLogIsNotWaitedFor) {
  ::setenv("TMPDIR", Folder.c_str(), 1);
  ASSERT_EQ(::mkfifo((Folder / "KTVO_Converters.log").c_str(), 0600), 0);
  auto Project = ReadExample("rail");
  Project.aFiles[0] = "*PLT\r\n1,2\r\n";
  Run(Project);
}

TEST_F(InputFault, AnInstallationWithoutTextsOrLogIsWrongUsage) {
  ::setenv("TMPDIR", (Folder / "none").c_str(), 1);
  auto Job = fuzz::LayOut(ReadExample("rail"), Folder);
  Job.sOutput = Output();
  const batch::TConversionOptions Options{.sLanguageFile = "None.lng", .sProgramDirectory = Folder.string()};
  EXPECT_ANY_THROW(batch::RunJob(Job, Options));
  EXPECT_FALSE(fs::exists(Output()));
}

TEST_F(InputFault, AFileWithoutReadPermissionIsAFaultOfItsSlot) {
  auto Job = fuzz::LayOut(ReadExample("rail"), Folder);
  Job.sOutput = Output();
  fs::permissions(Job.aFiles[0].sVertical, fs::perms::none);
  const OrdinaryUser User(Folder);
  if (!User.ReachesFolder()) GTEST_SKIP() << "only root gets here";
  const auto Outcome = RunLaidOut(Job, Folder);
  EXPECT_EQ(Outcome.sFault, "1,2");
}

TEST_F(InputFault, AFileBeyondAllMeasureIsRefusedUnread) {
  auto Job = fuzz::LayOut(ReadExample("rail"), Folder);
  Job.sOutput = Output();
  fs::resize_file(Job.aFiles[0].sHorizontal, std::uintmax_t{1} << 40);  // a hole: needs no disk
  const auto Outcome = RunLaidOut(Job, Folder);
  EXPECT_FALSE(Outcome.bImported);
  EXPECT_THAT(Told(Outcome), ::testing::HasSubstr("Out of memory"));
}

TEST_F(InputFault, ADeviceWithoutAnEndIsRefused) {
  auto Job = fuzz::LayOut(ReadExample("rail"), Folder);
  Job.sOutput = Output();
  Job.aFiles[0].sVertical = "/dev/zero";
  const auto Outcome = RunLaidOut(Job, Folder);
  EXPECT_FALSE(Outcome.bImported);
  EXPECT_THAT(Told(Outcome), ::testing::HasSubstr("Path/File access error"));
}

// The wizard on its Files page, the plan of a single track chosen.
class WizardFault : public AppTest {
 protected:
  WizardFault() {
    InitFormats(4);
    Model.XmlFileToExport = (Directory / "out.xml").string();
    Window.Load();
    Window.ctlJobType.SetJobType(2);
    Window.cmdNext_Click();
    const auto Project = ReadExample("rail");
    sPlan = WriteFile("plan.plt", Project.aFiles[0]);
    Slot(0).txtFileName_Change(sPlan);
    Slot(3).txtFileName_Change(WriteFile("cant.xml", Project.aFiles[2]));
  }
  ctlSelectFilename& Slot(std::size_t n) { return Window.ctlFiles.ctlSelectFile[n]; }

  frmWizard Window;
  std::string sPlan;
};

TEST_F(WizardFault, AFileThatVanishesBeforeItsImportGetsTheFailureMark) {
  Window.cmdNext_Click();
  ASSERT_EQ(Window.CurrentPage(), ePagePreferences);
  fs::remove(sPlan);
  Window.cmdNext_Click();
  EXPECT_EQ(Window.CurrentPage(), ePageImporting);
  EXPECT_FALSE(Window.ctlImporting.IsAllOk());
  ASSERT_FALSE(Platform.aBoxes.empty());
  EXPECT_THAT(Platform.aBoxes[0].sText, ::testing::HasSubstr("File not found"));
  Window.cmdNext_Click();
  EXPECT_EQ(Window.CurrentPage(), ePageImporting);
}

TEST_F(WizardFault, SettingsThatCanNotBeWrittenAreTold) {
  // A file stands where the folder of the settings should be.
  IniSettings Broken(WriteFile("settings", "no folder"));
  TPlatform Parts = Platform.Parts();
  Parts.pSettings = &Broken;
  clsAppModel OnBroken(Parts);
  SetAppModel(&OnBroken);
  Window.cmdNext_Click();  // the page keeps what was typed
  Window.Unload();
  SetAppModel(&Model);
  EXPECT_EQ(Platform.aBoxes.size(), 2u);
  for (const auto& Box : Platform.aBoxes)
    EXPECT_THAT(Box.sText, ::testing::StartsWith("Unhandler Error in Save"));
}

TEST_F(WizardFault, WithoutSettingsOrLogTheWindowStillCloses) {
  IniSettings Broken(WriteFile("settings", "no folder"));
  Platform.sTempDirectory = (Directory / "none").string() + "/";
  TPlatform Parts = Platform.Parts();
  Parts.pSettings = &Broken;
  clsAppModel OnBroken(Parts);
  SetAppModel(&OnBroken);
  EXPECT_NO_THROW(Window.Unload());
  SetAppModel(&Model);
  EXPECT_FALSE(Platform.aBoxes.empty());
}

TEST_F(WizardFault, ASiblingProgramThatIsMissingOrDiesChangesNothing) {
  PosixProcesses Run;
  TPlatform Parts = Platform.Parts();
  Parts.pProcesses = &Run;
  clsAppModel WithProcesses(Parts);
  SetAppModel(&WithProcesses);
  const auto sCant = Slot(3).Filename();
  Slot(3).cmdEdit_Click();  // not there
  const auto sEditor = WriteFile("TrackTableEditor.exe", "#!/bin/sh\necho $# >\"$0.ran\"\nkill -9 $$\n");
  fs::permissions(sEditor, fs::perms::owner_all);
  Slot(3).cmdEdit_Click();
  SetAppModel(&Model);
  EXPECT_TRUE(fs::exists(sEditor + ".ran"));
  EXPECT_TRUE(Platform.aBoxes.empty());
  EXPECT_EQ(Slot(3).Filename(), sCant);
  Window.cmdNext_Click();
  EXPECT_EQ(Window.CurrentPage(), ePagePreferences);
}

}  // namespace
}  // namespace vrek::test
