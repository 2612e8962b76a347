// The Files page: which slots a job has, what enables what, and what keeps a person on the page.
#include "WizardTest.h"

namespace vrek {
namespace {

class FilesPage : public test::WizardTest {
 protected:
  /// "1:HZ 2:VT": the slots on show with their labels.
  std::string Shown() {
    std::string sOut;
    for (int nFile = 1; nFile <= 4; ++nFile) {
      if (Slot(nFile).Visible) sOut += std::to_string(nFile) + ":" + Slot(nFile).chkFile.Caption + " ";
    }
    return sOut;
  }
  std::string Enabled() {
    std::string sOut;
    for (int nFile = 1; nFile <= 4; ++nFile) sOut += Slot(nFile).Enabled() ? '1' : '0';
    return sOut;
  }
  /// Where Next leaves the focus: "page,slot" of a fault, "" when the page was left.
  std::string NextFault() {
    Next();
    if (Window.CurrentPage() != ePageFiles) return "";
    return std::to_string(Window.ctlFiles.FocusPage) + "," + std::to_string(Window.ctlFiles.FocusFile);
  }
};

TEST_F(FilesPage, OffersTheSlotsOfTheJob) {
  const std::string sPlanAndProfile = "1:LBL_FIL_HZALIGMENT 2:LBL_FIL_VTALIGMENT ";
  const struct {
    int nJob, nPage, nPages;
    const char *sTitle, *sRest;
  } aRows[] = {{0, 1, 1, "FR_FILES_ROAD", "3:LBL_FIL_CROSS "},
               {1, 1, 1, "FR_FILES_TUNNEL", "3:LBL_FIL_TUNNEL "},
               {2, 1, 1, "FR_FILES_RAILSINGLE", "4:LBL_FIL_SUPERELEV "},
               {3, 1, 3, "FR_FILES_RAILCENTER", ""},
               {3, 2, 3, "FR_FILES_RAILLEFT", "4:LBL_FIL_SUPERELEV "},
               {3, 3, 3, "FR_FILES_RAILRIGHT", "4:LBL_FIL_SUPERELEV "}};
  for (const auto& Row : aRows) {
    OpenFiles(Row.nJob);
    Window.ctlFiles.ShowPage(Row.nPage);
    EXPECT_EQ(Window.ctlFiles.PagesTot(), Row.nPages);
    EXPECT_EQ(Window.ctlFiles.frFiles.Caption, Row.sTitle);
    EXPECT_EQ(Shown(), sPlanAndProfile + Row.sRest) << Row.sTitle;
    EXPECT_EQ(Slot(2).chkOption.Visible, Row.nJob == 3) << Row.sTitle;
    EXPECT_EQ(Window.ctlFiles.lblPage.Caption,
              std::to_string(Row.nPage) + " / " + std::to_string(Row.nPages));
    EXPECT_EQ(Window.ctlFiles.LabelInfo.Visible, Row.nJob == 3 && Row.nPage == 1) << Row.sTitle;
  }
}

TEST_F(FilesPage, EachSlotNeedsTheOneBeforeItAndTheLastTwoExcludeEachOther) {
  OpenFiles(eRoad);
  EXPECT_EQ(Enabled(), "1000");
  Type(1, 3, "a.trv");
  EXPECT_FALSE(Slot(3).Checked()) << "a path in a disabled slot doesn't count";
  Type(1, 1, "a.plt");
  EXPECT_EQ(Enabled(), "1100");
  Slot(2).txtFileName_Change("a.alz");
  EXPECT_EQ(Enabled(), "1111");
  Slot(3).txtFileName_Change("a.trv");
  Slot(4).chkFile_Click(true);
  EXPECT_TRUE(Slot(3).Checked());
  EXPECT_FALSE(Slot(4).Checked());
  Slot(3).chkFile_Click(false);
  Slot(4).chkFile_Click(true);
  EXPECT_TRUE(Slot(4).Checked());
  Slot(1).txtFileName_Change("");
  EXPECT_EQ(Enabled(), "1000");
  Window.cmdBack_Click();
  Next();
  EXPECT_EQ(Slot(2).Filename(), "") << "the way through the Job page drops the files";
}

TEST_F(FilesPage, TheCentresOptionFreesTheTracksFromTheirProfile) {
  OpenFiles(eRailDouble);
  Type(1, 1, "a.plt");
  SetOption(1);
  Type(2, 1, "l.plt");
  EXPECT_EQ(Enabled(), "1011");
  Slot(4).txtFileName_Change("l.xml");
  EXPECT_TRUE(Slot(4).Checked());
  Slot(1).txtFileName_Change("");
  EXPECT_EQ(Enabled(), "1000");
}

TEST_F(FilesPage, OneTrackAtMostIsGeneratedFromTheOther) {
  for (const int nTrack : {2, 3}) {
    OpenFiles(eRailDouble);
    Type(nTrack, 1, "l.plt");
    SetOption(nTrack);
    Window.ctlFiles.ShowPage(5 - nTrack);
    EXPECT_FALSE(Slot(2).chkOption.Visible);
    Window.ctlFiles.ShowPage(nTrack);
    EXPECT_TRUE(Slot(2).chkOption.Value);
    Slot(2).chkFile_Click(false);  // clears the option with it
    EXPECT_FALSE(Slot(2).chkOption.Value);
    Window.ctlFiles.ShowPage(5 - nTrack);
    EXPECT_TRUE(Slot(2).chkOption.Visible);
  }
}

TEST_F(FilesPage, RefusesToBeLeftWithAFocusOnTheFault) {
  const auto sFile = WriteFile("there.plt", "x");
  // clang-format off
  const struct {
    int nJob;
    std::vector<std::pair<int, int>> aFiles;  // page and slot, the plans first
    int nOption;  // page
    const char* sFault;
  } aRows[] = {
      {0, {},                               0, "1,1"},
      {0, {{1, 1}},                         0, ""},
      {3, {},                               0, "2,1"},
      {3, {{1, 1}},                         0, "2,1"},
      {3, {{3, 1}},                         0, ""},
      {3, {{2, 1}},                         2, "3,2"},
      {3, {{2, 1}, {3, 1}, {3, 2}},         2, "2,4"},
      {3, {{2, 1}, {3, 1}, {3, 2}, {2, 4}}, 2, ""},
      {3, {{3, 1}},                         3, "2,2"},
      {3, {{3, 1}, {2, 1}, {2, 2}},         3, "3,4"},
      {3, {{1, 1}, {2, 1}},                 1, "1,2"}};
  // clang-format on
  for (const auto& Row : aRows) {
    OpenFiles(Row.nJob);
    for (const auto& [nPage, nFile] : Row.aFiles) {
      if (nFile == 1) Type(nPage, nFile, sFile);
    }
    if (Row.nOption) SetOption(Row.nOption);
    for (const auto& [nPage, nFile] : Row.aFiles) {
      if (nFile != 1) Type(nPage, nFile, sFile);
    }
    EXPECT_EQ(NextFault(), Row.sFault)
        << "job " << Row.nJob << ", option " << Row.nOption << ", " << Row.aFiles.size() << " files";
    EXPECT_TRUE(Platform.aBoxes.empty());
  }
}

TEST_F(FilesPage, FindsAFileThatIsGone) {
  OpenFiles(eRailDouble);
  Type(3, 1, Example("rail/Track.plt"));
  for (const auto& sPath : {(Directory / "gone.plt").string(), Directory.string()}) {
    Type(2, 1, sPath);
    Window.ctlFiles.ShowPage(1);
    EXPECT_EQ(NextFault(), "2,1") << sPath;
    EXPECT_EQ(Window.ctlFiles.Page(), 2);
  }
  for (const int nFile : {1, 2}) {
    Slot(nFile).LeaveFocus();
    EXPECT_EQ(Slot(nFile).txtFileName.FileMissing, nFile == 1) << "an empty slot misses nothing";
  }
  Slot(1).EnterFocus();
  EXPECT_FALSE(Slot(1).txtFileName.FileMissing);
}

TEST_F(FilesPage, ABoxThatIsClearKeepsItsPathGreyWhenItsPageComesBack) {
  OpenFiles(eRailDouble);
  Type(2, 1, "a.plt");
  Slot(1).chkFile_Click(false);
  Window.ctlFiles.ShowPage(1);
  Window.ctlFiles.ShowPage(2);
  EXPECT_EQ(Slot(1).Filename(), "a.plt");
  EXPECT_FALSE(Slot(1).txtFileName.Enabled);
}

TEST_F(FilesPage, StartsTheEditorsWithTheirArguments) {
  const auto sCommand = [this](int nJob, int nFile, int nOption, bool bCentre) {
    OpenFiles(nJob);
    if (bCentre) Type(1, 1, "a"), Slot(2).txtFileName_Change("b");
    if (nOption) Type(nOption, 1, "c"), SetOption(nOption);
    Window.ctlFiles.ShowPage(nJob == 3 ? 2 : 1);
    Slot(nFile).txtFileName_Change("cant.xml");
    Slot(nFile).cmdEdit_Click();
    return Platform.aCommands.back().substr(Directory.string().size() + 1);
  };
  EXPECT_EQ(sCommand(1, 3, 0, false), "BoreSectionEditor.exe -l cant.xml");
  EXPECT_EQ(sCommand(2, 4, 0, false), "TrackTableEditor.exe -s -l cant.xml");
  EXPECT_EQ(sCommand(3, 4, 0, false), "TrackTableEditor.exe -d -l cant.xml");
  EXPECT_EQ(sCommand(3, 4, 0, true), "TrackTableEditor.exe -d -c -l cant.xml");
  EXPECT_EQ(sCommand(3, 4, 2, false), "TrackTableEditor.exe -d1 -l cant.xml");
  EXPECT_EQ(sCommand(3, 4, 3, true), "TrackTableEditor.exe -d1 -c -l cant.xml");
  Platform.sProgramDirectory = "/opt/my tools";
  OpenFiles(eTunnel);
  Slot(3).txtFileName_Change("bore.xml");
  Slot(3).cmdEdit_Click();
  EXPECT_EQ(Platform.aCommands.back(), "\"/opt/my tools/BoreSectionEditor.exe\" -l bore.xml");
}

TEST_F(FilesPage, TakesDroppedFilesEachWhereItFits) {
  OpenFiles(eRoad);
  const auto aLeft = Window.ctlFiles.DropFiles({"s.TRV", "readme.txt", "v.alz", "h.rtf"});
  EXPECT_EQ(aLeft, (std::vector<std::string>{"readme.txt"}));
  EXPECT_EQ(Slot(1).Filename() + Slot(2).Filename() + Slot(3).Filename(), "h.rtfv.alzs.TRV");
}

TEST_F(FilesPage, BrowsesWithoutLosingThePathWhenDismissed) {
  OpenFiles(eRoad);
  for (const auto& [sAnswer, sName] : {std::pair{"/x/b.c.plt", "b.c"}, {"", "b.c"}}) {
    Platform.sOpenAnswer = sAnswer;
    Slot(1).cmdBrowse_Click();
    EXPECT_EQ(Slot(1).GetName(), sName);
  }
}

TEST_F(FilesPage, ResumesTheLastFilesInARunStartedByHand) {
  Model.DebugMode = true;
  Platform.aSettings["Files/Page1File1"] = "/x/last.plt";
  Platform.aSettings["Files/Page3File4"] = "/x/last.xml";
  OpenFiles(eRailDouble);
  EXPECT_TRUE(Window.ctlFiles.cmdResume.Visible);
  Type(2, 1, "kept.plt");
  Window.ctlFiles.ShowPage(3);
  Window.ctlFiles.cmdResume_Click();
  EXPECT_EQ(Window.ctlFiles.Page(), 1);
  EXPECT_TRUE(Window.ctlFiles.IsSelected(1, 1));
  EXPECT_EQ(Window.ctlFiles.GetFile(1, 1), "/x/last.plt");
  EXPECT_EQ(Window.ctlFiles.GetFile(2, 1), "kept.plt");
  EXPECT_EQ(Window.ctlFiles.GetFile(3, 4), "/x/last.xml");
  EXPECT_FALSE(Window.ctlFiles.IsSelected(1, 2));
  Model.DebugMode = false;
  Window.cmdBack_Click();
  Next();
  EXPECT_FALSE(Window.ctlFiles.cmdResume.Visible);
}

TEST_F(FilesPage, NumbersOutOfRangeDoNothing) {
  OpenFiles(eRoad);
  auto& Files = Window.ctlFiles;
  for (const auto& [nPage, nFile] : {std::pair{0, 1}, {2, 1}, {1, 0}, {1, 5}}) {
    Files.ConfigFile(nPage, nFile, "x");
    Files.ConfigOption(nPage, nFile, "x", true);
    EXPECT_FALSE(Files.IsSelected(nPage, nFile));
    EXPECT_EQ(Files.GetName(nPage, nFile), "");
  }
  Files.ShowPage(2);
  EXPECT_EQ(Files.Page(), 1);
}

}  // namespace
}  // namespace vrek
