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
  const struct {
    int nMask;
    const char* sEnabled;
    int nJob;
  } aRows[] = {{4, "0011", 2}, {7, "1111", 0}, {1, "1000", 0}, {2, "0100", 1},
               {6, "0111", 1}, {5, "1011", 0}, {3, "1100", 0}, {28, "0011", 2}};
  for (const auto& Row : aRows) {
    InitFormats(Row.nMask);
    frmWizard Frame;
    Frame.Load();
    Frame.ctlJobType.ShowJobByTypes(Row.nMask);
    std::string sEnabled;
    for (const auto& Option : Frame.ctlJobType.optDesign) sEnabled += Option.Enabled ? '1' : '0';
    EXPECT_EQ(sEnabled, Row.sEnabled);
    EXPECT_EQ(Frame.ctlJobType.JobType(), Row.nJob);
    EXPECT_EQ(Frame.CurrentPage(), Row.nMask == 1 || Row.nMask == 2 ? ePageFiles : ePageJob);
  }
  InitFormats(4);
  Window.Load();
  Window.ctlJobType.optDesign_Click(0);
  EXPECT_EQ(Window.ctlJobType.JobType(), eRailSingle) << "a job that isn't on offer can't be chosen";
  Window.ctlJobType.optDesign_Click(3);
  EXPECT_EQ(Window.ctlJobType.txtJobInfo.Text, "TXT_JOB_RAILDOUBLE");
}

TEST_F(PageControls, LayersAreNamedBetweenDollarSigns) {
  ctlExporting Page;
  EXPECT_EQ(Page.GetSelectedLayers(), "__None__");
  EXPECT_EQ(Page.GetSelectedLayersIdx(), "");
  Page.AddLayer("Taludes", 0);
  Page.AddLayer("Cunetas", 1);
  Page.AddLayer("Rasante", 3);
  Page.lstLayers_ItemCheck(1, false);
  EXPECT_EQ(Page.GetSelectedLayers(), "$Taludes$Rasante$");
  EXPECT_EQ(Page.GetSelectedLayersIdx(), "$0$3$");
  EXPECT_FALSE(Page.IsLayerActive(1));
  EXPECT_FALSE(Page.IsLayerActive(3));
  Page.cmdSelect_Click(1);
  EXPECT_EQ(Page.GetSelectedLayers(), "__None__");
  Page.cmdSelect_Click(0);
  EXPECT_EQ(Page.GetSelectedLayersIdx(), "$0$1$3$");
  Page.AddLayer("own number", -1);
  EXPECT_EQ(Page.lstLayers.Items.back().ItemData, 3);
}

TEST_F(PageControls, ChainageBoxesReadWhatIsTyped) {
  ctlExporting Page;
  const std::pair<const char*, double> aRows[] = {
      {"12,5", 12.5}, {"-3.25", -3.25}, {"", 0}, {"none", 0}, {"7 m", 7}};
  for (const auto& [sText, dValue] : aRows) {
    Page.txtChainage[0].Text = sText;
    EXPECT_EQ(Page.ChainageStart(), dValue) << sText;
  }
  Page.SetChainageEnd(1234.56789);
  EXPECT_EQ(Page.txtChainage[1].Text, "1234.568");
}

TEST_F(PageControls, ResultPagesAreSearchedForRows) {
  ctlResult Page;
  EXPECT_EQ(Page.frResult.Caption, "Summary of imported data");
  EXPECT_FALSE(Page.cmdPage[0].Visible);
  Page.DeleteAllPages();
  for (const char* sTitle : {"one", "two", "three"}) Page.AddPage(sTitle);
  Page.ConfigValueInPage(1, 1, "start", 1234.5);
  Page.ConfigValueInPage(3, 1, "start");
  Page.ShowPage(1);
  EXPECT_EQ(Page.lblData[0].Caption, "1234.500000");
  EXPECT_EQ(Page.lblUnit[0].Caption, "m.");
  EXPECT_TRUE(Page.lblData[0].Visible);
  EXPECT_FALSE(Page.lblData[1].Visible);
  Page.cmdPage_Click(0);
  EXPECT_EQ(Page.Page(), 3) << "the second page has no rows";
  EXPECT_FALSE(Page.cmdPage[0].Enabled);
  Page.cmdPage_Click(0);
  EXPECT_EQ(Page.Page(), 3);
  Page.cmdPage_Click(1);
  EXPECT_EQ(Page.Page(), 1);
  Page.ConfigValueInPage(1, 1, "", 7);
  EXPECT_EQ(Page.GetDescription(1, 1) + Page.GetValue(1, 1), "start7.000000");
  Page.ConfigValueInPage(1, 1, "from");
  EXPECT_EQ(Page.GetDescription(1, 1) + Page.GetValue(1, 1), "from7.000000");
  for (const auto& [nPage, nRow] : {std::pair{0, 1}, {4, 1}, {1, 0}, {1, 7}}) {
    Page.SetValueInPage(nPage, nRow, 1);
    EXPECT_EQ(Page.GetValue(nPage, nRow), "");
  }
}

TEST_F(PageControls, ProgressMapsItsRangeOntoTheBar) {
  ctlProgress Panel;
  int nTurns = 0;
  Platform.OnMessages = [&] { ++nTurns; };
  Panel.SetRanges(0, 100);
  Panel.Reset();
  EXPECT_EQ(nTurns, 0);
  Panel.SetRanges(0, 100);
  Panel.SetValue(50);
  EXPECT_DOUBLE_EQ(Panel.ProgressBar.Value, 16383.5);
  Panel.SetRanges(100, 200);
  Panel.SetValue(150);
  EXPECT_DOUBLE_EQ(Panel.ProgressBar.Value, 0) << "out of the bar's range";
  Panel.SetRanges(5, 5);
  Panel.SetValue(5);
  EXPECT_DOUBLE_EQ(Panel.ProgressBar.Value, 5);
  Panel.Tittle("Abc");
  EXPECT_EQ(Panel.frProgress.Caption, "    Abc    ");
  EXPECT_EQ(nTurns, 4);
  Panel.cmbCancel_Click();
  EXPECT_TRUE(Panel.CancelPressed());
  Panel.Reset();
  EXPECT_FALSE(Panel.CancelPressed());
  EXPECT_EQ(Panel.frProgress.Caption, "");
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
  EXPECT_TRUE(aShapes[5].bLine);
  EXPECT_EQ(aShapes[5].nColor, 255) << "the axis";
  EXPECT_EQ(aShapes[6].nColor, 16777215);
  EXPECT_EQ(aShapes[8].nColor, 7303008);
  EXPECT_EQ(aShapes[10].nColor, 255) << "the right rail of the second track";
}

TEST_F(PageControls, VersionsSelectTheDefault) {
  ctlPreferences Page;
  EXPECT_FALSE(Page.RefreshDefaultVersion());
  EXPECT_EQ(Page.Version(), "");
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
  EXPECT_FALSE(Logic.IntroPage(8));
  EXPECT_FALSE(Logic.ExitPage(-1));
}

}  // namespace
}  // namespace vrek
