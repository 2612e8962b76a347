// The Exporting page and what a run leaves behind: range, layers, the document, the settings.
#include "WizardTest.h"
#include "design_data/CAligmentsDatas.h"
#include "wizard/clsWizard.h"

namespace vrek {
namespace {

class Exporting : public test::WizardTest {
 protected:
  void OpenRoad() {
    OpenFiles(eRoad);
    Type(1, 1, Example("road/Axis 1.plt"));
    Type(1, 2, Example("road/Axis 1.alz"));
    Type(1, 3, Example("road/Axis 1.trv"));
    Next(3);
    ASSERT_EQ(Window.CurrentPage(), ePageExporting);
  }
  void OpenTrack() {
    OpenFiles(eRailSingle);
    Type(1, 1, Plan("a.plt"));
    Next(3);
    ASSERT_EQ(Window.CurrentPage(), ePageExporting);
  }
};

TEST_F(Exporting, OffersTheRangeOfThePlanAndTheLayers) {
  OpenRoad();
  auto& Page = Window.ctlExporting;
  EXPECT_EQ(Page.txtChainage[0].Text, "0.000");
  EXPECT_EQ(Page.txtChainage[1].Text, "800.000");
  EXPECT_TRUE(Page.LayersVisible());
  EXPECT_EQ(Page.GetSelectedLayers(), "$Taludes$Cunetas$Subrasante$Rasante$");
  EXPECT_EQ(Page.GetSelectedLayersIdx(), "$0$1$2$3$");
  Page.txtChainage[0].Text = "100";
  Next();
  Window.cmdBack_Click();
  EXPECT_EQ(Page.txtChainage[0].Text, "100") << "Back doesn't fill the page anew";
  Window.cmdBack_Click();
  Next();
  EXPECT_EQ(Page.txtChainage[0].Text, "0.000");
}

TEST_F(Exporting, ALayerOfOneCodeIsntOffered) {
  OpenRoad();
  auto Cr = CAligmentsDatas::GetAligmentCr(1);
  ASSERT_EQ(Cr.Layers.size(), 4U);
  Cr.Layers[1].aCodes = {};
  Cr.Layers[1].aCodes.Append("0.000");
  CAligmentsDatas::SetAligmentCr(1, Cr);
  clsWizard(Window).IntroPage(ePageExporting);
  EXPECT_EQ(Window.ctlExporting.GetSelectedLayersIdx(), "$0$2$3$");
}

TEST_F(Exporting, UncheckedLayersAreNotWritten) {
  OpenRoad();
  Window.ctlExporting.cmdSelect_Click(1);
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
  clsWizard Logic(Window);
  EXPECT_FALSE(Logic.IntroPage(ePageExporting));
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
  Platform.OnMessages = [this] {
    if (Window.ctlProgress.cmbCancel.Visible) Window.ctlProgress.cmbCancel_Click();
  };
  Next();
  EXPECT_EQ(Window.CurrentPage(), ePageExporting);
  EXPECT_FALSE(Window.ctlProgress.Visible);
  EXPECT_EQ(Document().find("<CrossSects"), std::string::npos);
  Platform.OnMessages = {};
  Next();
  EXPECT_EQ(Window.CurrentPage(), ePageResult);
}

TEST_F(Exporting, FinishSavesTheSettingsAndTheFiles) {
  Platform.aSettings["Files/Page1File2"] = "older.alz";
  Platform.aSettings["Vrek/DataVersion"] = "1.0";
  OpenTrack();
  Window.ctlPreferences.ctlTolerance[0].txtNumber_Change("0,0136");
  Next(2);
  EXPECT_EQ(aStops, std::vector<int>{0});
  EXPECT_EQ(Platform.aSettings["Preferences/ToleranceHz"], "0.014");
  EXPECT_EQ(Platform.aSettings["Preferences/ToleranceVt"], "0.010");
  EXPECT_EQ(Platform.aSettings["Vrek/DataVersion"], "1.0");
  EXPECT_EQ(Platform.aSettings["Files/Page1File1"], (Directory / "a.plt").string());
  EXPECT_EQ(Platform.aSettings["Files/Page1File2"], "older.alz") << "slots that aren't checked keep theirs";
}

TEST_F(Exporting, CancelSavesNothing) {
  OpenTrack();
  Window.ctlPreferences.SetToleranceHz(0.5);
  Window.cmdCancel_Click();
  EXPECT_EQ(aStops, std::vector<int>{1});
  EXPECT_TRUE(Platform.aSettings.empty());
}

TEST_F(Exporting, ReadsTheSettingsWithAComma) {
  Platform.aSettings["Preferences/ToleranceHz"] = "0,005";
  Platform.aSettings["Preferences/ToleranceVt"] = "none";
  InitFormats(4);
  Window.Load();
  EXPECT_DOUBLE_EQ(Window.ctlPreferences.ToleranceHz(), 0.005);
  EXPECT_DOUBLE_EQ(Window.ctlPreferences.ToleranceVt(), 0);
}

}  // namespace
}  // namespace vrek
