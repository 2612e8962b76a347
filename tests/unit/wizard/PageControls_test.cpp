// Controls of the pages by themselves: boxes, lists, panels.
#include "WizardTest.h"
#include "wizard/clsWizard.h"

namespace vrek {
namespace {

class PageControls : public test::WizardTest {};

TEST_F(PageControls, NumericBoxTakesOnlyBeginningsOfNumbers) {
  // clang-format off
  const struct { const char* sText; bool bKept; double dValue; } aRows[] = {
      {"",        true,  0},     {"0.025",  true, 0.025}, {"  12.5 ", true,  12.5}, {"-12",  true,  -12},
      {"+12",     true,  12},    {"-",      true, 0},     {".5",      true,  0.5},  {"1,5",  true,  1.5},
      {"1,234.5", true,  1.234}, {"1-2",    false, 7},    {"--1",     false, 7},    {"1a2",  false, 7},
      {"1.2.3",   false, 7},     {"1.2,3",  false, 7},    {"1e5",     false, 7},    {"1 2",  false, 7}};
  // clang-format on
  for (const auto& Row : aRows) {
    ctlNumericText Box;
    ASSERT_TRUE(Box.txtNumber_Change("7"));
    EXPECT_EQ(Box.txtNumber_Change(Row.sText), Row.bKept) << Row.sText;
    EXPECT_DOUBLE_EQ(Box.NumericValue(), Row.dValue) << Row.sText;
  }
}

TEST_F(PageControls, NumericBoxFiltersKeysAndKnowsTheMachinesSeparators) {
  EXPECT_EQ(ctlNumericText::FilterKey(','), '.');
  for (const int nKey : {8, int{'0'}, int{'9'}, int{'+'}, int{'-'}, int{'.'}}) {
    EXPECT_EQ(ctlNumericText::FilterKey(nKey), nKey);
  }
  for (const int nKey : {13, 22, int{'a'}, int{'e'}, int{' '}, int{'/'}, int{'*'}}) {
    EXPECT_EQ(ctlNumericText::FilterKey(nKey), 0) << nKey;
  }
  ctlNumericText Box;
  EXPECT_TRUE(Box.txtNumber_Change("1.2.3,5", ',', '.')) << "points between thousands";
  EXPECT_FALSE(Box.txtNumber_Change("1,2,3", ',', '.'));
  Box.SetNumericValue(0.01);
  EXPECT_EQ(Box.txtNumber.Text, "0.010");
}

TEST_F(PageControls, OffersTheJobsOfTheMask) {
  // clang-format off
  const struct { int nMask; const char* sEnabled; int nJob, nPage; } aRows[] = {
      {1, "1000", 0, ePageFiles}, {2, "0100", 1, ePageFiles}, {4,  "0011", 2, ePageJob},
      {5, "1011", 0, ePageJob},   {6, "0111", 1, ePageJob},   {28, "0011", 2, ePageJob}};
  // clang-format on
  for (const auto& Row : aRows) {
    InitFormats(Row.nMask);
    frmWizard Frame;
    Frame.Load();
    Frame.ctlJobType.ShowJobByTypes(Row.nMask);
    std::string sEnabled;
    for (const auto& Option : Frame.ctlJobType.optDesign) sEnabled += Option.Enabled ? '1' : '0';
    EXPECT_EQ(sEnabled, Row.sEnabled);
    EXPECT_EQ(Frame.ctlJobType.JobType(), Row.nJob) << Row.nMask;
    EXPECT_EQ(Frame.CurrentPage(), Row.nPage) << Row.nMask;
    if (Row.nMask != 4) continue;
    Frame.ctlJobType.optDesign_Click(0);
    EXPECT_EQ(Frame.ctlJobType.JobType(), eRailSingle) << "a job that isn't on offer can't be chosen";
    Frame.ctlJobType.optDesign_Click(3);
    EXPECT_EQ(Frame.ctlJobType.txtJobInfo.Text, "TXT_JOB_RAILDOUBLE");
  }
}

TEST_F(PageControls, ALayerWithoutANumberTakesItsPlace) {
  ctlExporting Page;
  EXPECT_EQ(Page.GetSelectedLayersIdx(), "");
  Page.AddLayer("Rasante", 3);
  Page.AddLayer("own number", -1);
  EXPECT_EQ(Page.lstLayers.Items.back().ItemData, 1);
  Page.cmdSelect_Click(0);
  EXPECT_EQ(Page.GetSelectedLayersIdx(), "$3$1$");
}

TEST_F(PageControls, ResultPagesAreSearchedForRows) {
  ctlResult Page;
  EXPECT_FALSE(Page.cmdPage[0].Visible);
  Page.DeleteAllPages();
  for (const char* sTitle : {"one", "two", "three"}) Page.AddPage(sTitle);
  Page.ConfigValueInPage(1, 1, "start", 1234.5);
  Page.ConfigValueInPage(3, 1, "start");
  Page.ShowPage(1);
  EXPECT_EQ(Page.lblData[0].Caption + Page.lblUnit[0].Caption, "1234.500000m.");
  EXPECT_TRUE(Page.lblData[0].Visible);
  EXPECT_FALSE(Page.lblData[1].Visible);
  for (int n = 0; n < 2; ++n) {
    Page.cmdPage_Click(0);
    EXPECT_EQ(Page.Page(), 3) << "the second page has no rows";
  }
  EXPECT_FALSE(Page.cmdPage[0].Enabled);
  Page.cmdPage_Click(1);
  EXPECT_EQ(Page.Page(), 1);
  Page.ConfigValueInPage(1, 1, "from");
  EXPECT_EQ(Page.GetDescription(1, 1) + Page.GetValue(1, 1), "from1234.500000") << "keeps what isn't given";
  for (const auto& [nPage, nRow] : {std::pair{0, 1}, {4, 1}, {1, 0}, {1, 7}}) {
    Page.SetValueInPage(nPage, nRow, 1);
    EXPECT_EQ(Page.GetValue(nPage, nRow), "");
  }
}

TEST_F(PageControls, ProgressMapsItsRangeOntoTheBar) {
  ctlProgress Panel;
  int nTurns = 0;
  Platform.OnMessages = [&] { ++nTurns; };
  const auto dBar = [&](double dMin, double dMax, double dValue) {
    Panel.SetRanges(dMin, dMax);
    Panel.SetValue(dValue);
    return Panel.ProgressBar.Value;
  };
  EXPECT_DOUBLE_EQ(dBar(0, 100, 50), 16383.5);
  EXPECT_DOUBLE_EQ(dBar(100, 200, 150), 0) << "out of the bar's range";
  EXPECT_DOUBLE_EQ(dBar(5, 5, 5), 5);
  Panel.Tittle("Abc");
  EXPECT_EQ(Panel.frProgress.Caption, "    Abc    ");
  Panel.cmbCancel_Click();
  Panel.Reset();
  EXPECT_FALSE(Panel.CancelPressed());
  EXPECT_EQ(nTurns, 4);
}

TEST_F(PageControls, RailsDrawTheMarkedTrack) {
  ctlRails Rails;
  Rails.NumberOfTrack = 0;
  EXPECT_TRUE(Rails.Draw(1000, 650).empty());
  Rails.NumberOfTrack = 2;
  Rails.SetTracksOn(1);
  Rails.SetRailsOn(8 | 64);
  const auto aShapes = Rails.Draw(1000, 650);  // h = 100: sleepers at 135 and 435 below the top of 10
  ASSERT_EQ(aShapes.size(), 11U);
  EXPECT_EQ(aShapes[0].nColor, 2960740);
  EXPECT_DOUBLE_EQ(aShapes[1].dY1, 435);
  EXPECT_TRUE(aShapes[5].bLine) << "the axis";
  EXPECT_EQ(aShapes[6].nColor, 16777215);
  std::string sRed;
  for (std::size_t n = 0; n < aShapes.size(); ++n) {
    if (aShapes[n].nColor == 255) sRed += std::to_string(n) + " ";
  }
  EXPECT_EQ(sRed, "5 10 ") << "the axis and the right rail of the second track";
}

// Pages and parts of pages that no job shows today.
TEST_F(PageControls, VersionsSelectTheDefault) {
  ctlPreferences Page;
  EXPECT_FALSE(Page.RefreshDefaultVersion());
  Page.AddVersion("1.0");
  Page.AddVersion("2.0");
  Page.DefaultVersion = "2.0";
  EXPECT_TRUE(Page.RefreshDefaultVersion());
  EXPECT_EQ(Page.Version(), "2.0");
  Page.DefaultVersion = "3.0";
  EXPECT_FALSE(Page.RefreshDefaultVersion());
  EXPECT_EQ(Page.Version(), "1.0");
}

TEST_F(PageControls, DetailsPageFillsWhatIsEmpty) {
  InitFormats(4);
  Window.Load();
  clsWizard Logic(Window);
  Window.ctlDetails.Description() = "mine";
  EXPECT_TRUE(Logic.IntroPage(ePageDetails));
  EXPECT_EQ(Window.ctlDetails.RoadDataName(), "out");
  EXPECT_EQ(Window.ctlDetails.Description(), "mine");
  EXPECT_EQ(Window.ctlDetails.Creator(), "tester");
  EXPECT_FALSE(Window.ctlDetails.cmbVersion.Visible);
}

}  // namespace
}  // namespace vrek
