// The Exporting page and what a run leaves behind: range, layers, the document, its summary, the settings.
#include "WizardTest.h"
#include "design_data/CAligmentsDatas.h"
#include "wizard/clsWizard.h"

namespace vrek {
namespace {

class Exporting : public test::WizardTest {
 protected:
  /// Opens the Exporting page of a job with the plan, the profile and the side file of an example.
  void OpenExample(int nJob, const std::string& sAxis, const std::string& sSideFile) {
    OpenFiles(nJob);
    Type(1, 1, Example(sAxis + ".plt"));
    Type(1, 2, Example(sAxis + ".alz"));
    Type(1, nJob == eRailSingle ? 4 : 3, Example(sSideFile));
    Next(3);
    ASSERT_EQ(Window.CurrentPage(), ePageExporting);
  }
  void OpenRoad() { OpenExample(eRoad, "road/Axis 1", "road/Axis 1.trv"); }
  void OpenTrack() {
    OpenFiles(eRailSingle);
    Type(1, 1, Example("rail/Track.plt"));
    Next(3);
    ASSERT_EQ(Window.CurrentPage(), ePageExporting);
  }
  /// "label value; ..." of the rows of a result page.
  std::string Rows(int nPage) const {
    std::string sOut;
    for (int nRow = 1; nRow <= 6; ++nRow) {
      const auto sLabel = Window.ctlResult.GetDescription(nPage, nRow);
      if (!sLabel.empty()) sOut += sLabel + " " + Window.ctlResult.GetValue(nPage, nRow) + "; ";
    }
    return sOut;
  }
};

TEST_F(Exporting, OffersTheRangeOfThePlanAndTheLayers) {
  OpenRoad();
  auto& Page = Window.ctlExporting;
  EXPECT_EQ(Page.txtChainage[0].Text, "0.000");
  EXPECT_EQ(Page.txtChainage[1].Text, "800.000");
  EXPECT_TRUE(Page.LayersVisible());
  EXPECT_EQ(Page.GetSelectedLayers(), "$Taludes$Cunetas$Subrasante$Rasante$");
  Page.txtChainage[0].Text = "100";
  Next();
  EXPECT_FALSE(Window.frTitle.Visible);
  Window.cmdBack_Click();
  EXPECT_TRUE(Window.frTitle.Visible);
  EXPECT_EQ(Page.txtChainage[0].Text, "100") << "Back doesn't fill the page anew";
  Window.cmdBack_Click();
  Next();
  EXPECT_EQ(Page.txtChainage[0].Text, "0.000");
  // A layer of one code has nothing to link.
  auto Cr = CAligmentsDatas::GetAligmentCr(1);
  Cr.Layers[1].aCodes = {};
  Cr.Layers[1].aCodes.Append("0.000");
  CAligmentsDatas::SetAligmentCr(1, Cr);
  clsWizard(Window).IntroPage(ePageExporting);
  EXPECT_EQ(Page.GetSelectedLayersIdx(), "$0$2$3$");
}

TEST_F(Exporting, SumsUpEachPage) {
  const std::string sPlan = "LBL_HZ_CH_START 0.000000; LBL_HZ_CH_END 800.000000; ";
  OpenRoad();
  Next();
  EXPECT_EQ(Window.ctlResult.GetTitle(1), "FR_SUMMARY");
  EXPECT_EQ(Rows(1), sPlan +
                         "LBL_VT_CH_START 0.000000; LBL_VT_CH_END 800.000000; "
                         "LBL_CR_CH_START 0.000000; LBL_CR_CH_END 800.000000; ");
  OpenExample(eTunnel, "tunnel/Bore axis", "tunnel/Bore profiles.xml");
  Next();
  EXPECT_NE(Rows(1).find("LBL_TN_CH_START 2050.000000; "), std::string::npos) << Rows(1);
  OpenExample(eRailSingle, "rail/Track", "rail/Track cant.xml");
  Next();
  EXPECT_NE(Rows(1).find("LBL_TR_CH_START 10000.000000; "), std::string::npos) << Rows(1);

  OpenFiles(eRailDouble);  // without a centre
  Type(2, 1, Example("double/Left track.plt"));
  Type(3, 1, Example("double/Right track.plt"));
  Next(4);
  EXPECT_EQ(Window.ctlResult.Page(), 2) << "the first page with rows";
  Window.ctlResult.cmdPage_Click(1);
  EXPECT_EQ(Window.ctlResult.Page(), 2);
  EXPECT_EQ(Window.ctlResult.GetTitle(3), "FR_SUMMARY_RIGHT");
  EXPECT_EQ(Window.ctlResult.GetDescription(3, 1), "LBL_HZ_CH_START");
  EXPECT_EQ(Window.ctlResult.GetDescription(3, 3), "");
  EXPECT_NE(Document().find("<Feature code=\"QN Stringline Layer\">Left track\r"), std::string::npos)
      << "the centre has no name";
}

TEST_F(Exporting, UncheckedLayersAreNotWritten) {
  OpenRoad();
  Window.ctlExporting.cmdSelect_Click(1);
  EXPECT_EQ(Window.ctlExporting.GetSelectedLayers(), "__None__");
  Next();
  EXPECT_EQ(Window.CurrentPage(), ePageResult);
  EXPECT_EQ(Document().find("<CrossSects"), std::string::npos);
  Window.cmdBack_Click();
  Window.ctlExporting.lstLayers_ItemCheck(3, true);
  Next();
  EXPECT_NE(Document().find("<CrossSects"), std::string::npos) << "the second pass replaces the first";
  EXPECT_EQ(Document().find("Taludes"), std::string::npos);
}

TEST_F(Exporting, DeclinesWithoutAnyPlan) {
  OpenTrack();
  CAligmentsDatas::InitAligments();
  CAligmentsDatas::AddAligment();
  EXPECT_FALSE(clsWizard(Window).IntroPage(ePageExporting));
  EXPECT_FALSE(Platform.aBoxes.empty());
}

TEST_F(Exporting, StaysWhenTheFileCantBeOpened) {
  OpenTrack();
  Model.XmlFileToExport = (Directory / "no folder" / "out.xml").string();
  Next();
  EXPECT_EQ(Window.CurrentPage(), ePageExporting);
  EXPECT_EQ(Platform.aBoxes.size(), 1U);
  Model.XmlFileToExport = (Directory / "out.xml").string();
  Next();
  EXPECT_EQ(Window.CurrentPage(), ePageResult);
}

TEST_F(Exporting, CancelDuringTheRulesWritesNoSections) {
  OpenRoad();
  CancelAtOnce();
  Next();
  EXPECT_EQ(Window.CurrentPage(), ePageExporting);
  EXPECT_FALSE(Window.ctlProgress.Visible);
  EXPECT_EQ(Document().find("<CrossSects"), std::string::npos);
  Platform.OnMessages = {};
  Next();
  EXPECT_EQ(Window.CurrentPage(), ePageResult);
}

TEST_F(Exporting, ReadsTheSettingsWithACommaAndFinishSavesThem) {
  Platform.aSettings["Files/Page1File2"] = "older.alz";
  Platform.aSettings["Vrek/DataVersion"] = "1.0";
  Platform.aSettings["Preferences/ToleranceHz"] = "0,0136";
  OpenTrack();
  Next(2);
  EXPECT_EQ(aStops, std::vector<int>{0});
  EXPECT_EQ(Platform.aSettings["Preferences/ToleranceHz"], "0.014");
  EXPECT_EQ(Platform.aSettings["Preferences/ToleranceVt"], "0.010");
  EXPECT_EQ(Platform.aSettings["Vrek/DataVersion"], "1.0");
  EXPECT_EQ(Platform.aSettings["Files/Page1File1"], Example("rail/Track.plt"));
  EXPECT_EQ(Platform.aSettings["Files/Page1File2"], "older.alz") << "slots that aren't checked keep theirs";
}

}  // namespace
}  // namespace vrek
