// Every job from the Job page to the Result page, by its buttons, with the example projects.
#include "WizardTest.h"

namespace vrek {
namespace {

class Jobs : public test::WizardTest {
 protected:
  /// "label value; ..." of the rows of a result page.
  std::string Rows(int nPage) const {
    std::string sOut;
    for (int nRow = 1; nRow <= 6; ++nRow) {
      const auto sLabel = Window.ctlResult.GetDescription(nPage, nRow);
      if (!sLabel.empty()) sOut += sLabel + " " + Window.ctlResult.GetValue(nPage, nRow) + "; ";
    }
    return sOut;
  }
  void ToResult() {
    Next(4);
    ASSERT_EQ(Window.CurrentPage(), ePageResult);
    EXPECT_TRUE(Platform.aBoxes.empty());
    EXPECT_FALSE(Window.frTitle.Visible);
  }
  int Count(const std::string& sText) const {
    const auto sDocument = Document();
    int n = 0;
    for (auto i = sDocument.find(sText); i != sDocument.npos; i = sDocument.find(sText, i + 1)) ++n;
    return n;
  }
};

TEST_F(Jobs, Road) {
  OpenFiles(eRoad);
  Type(1, 1, Example("road/Axis 1.plt"));
  Type(1, 2, Example("road/Axis 1.alz"));
  Type(1, 3, Example("road/Axis 1.trv"));
  ToResult();
  EXPECT_EQ(Window.ctlResult.GetTitle(1), "FR_SUMMARY");
  EXPECT_EQ(Rows(1),
            "LBL_HZ_CH_START 0.000000; LBL_HZ_CH_END 800.000000; LBL_VT_CH_START 0.000000; LBL_VT_CH_END "
            "800.000000; LBL_CR_CH_START 0.000000; LBL_CR_CH_END 800.000000; ");
  EXPECT_EQ(Count("<Alignment "), 1);
  EXPECT_GT(Count("<CrossSect "), 10);
  Window.cmdBack_Click();
  EXPECT_TRUE(Window.frTitle.Visible);
}

TEST_F(Jobs, Tunnel) {
  OpenFiles(eTunnel);
  Type(1, 1, Example("tunnel/Bore axis.plt"));
  Type(1, 2, Example("tunnel/Bore axis.alz"));
  Type(1, 3, Example("tunnel/Bore profiles.xml"));
  ToResult();
  EXPECT_NE(Rows(1).find("LBL_TN_CH_START 2050.000000; "), std::string::npos) << Rows(1);
  EXPECT_EQ(Count("<TunnelProfiles"), 1);
}

TEST_F(Jobs, RailWithCant) {
  OpenFiles(eRailSingle);
  Type(1, 1, Example("rail/Track.plt"));
  Type(1, 2, Example("rail/Track.alz"));
  Type(1, 4, Example("rail/Track cant.xml"));
  ToResult();
  EXPECT_NE(Rows(1).find("LBL_TR_CH_START 10000.000000; "), std::string::npos) << Rows(1);
  EXPECT_EQ(Count("<Feature code=\"QN Stringline Layer\">Left,Track,Right"), 1);
  EXPECT_EQ(Count("label=\"excluded\" value=\"Track\""), 1);
}

TEST_F(Jobs, RailOfAPlanAlone) {
  OpenFiles(eRailSingle);
  Type(1, 1, Plan("only.plt"));
  ToResult();
  EXPECT_EQ(Rows(1), "LBL_HZ_CH_START 0.000000; LBL_HZ_CH_END 100.000000; ");
  EXPECT_EQ(Count("<Profile"), 0);
  EXPECT_EQ(Count("<Feature code=\"QN Stringline Layer\">only"), 1);
  EXPECT_EQ(Count("excluded"), 0);
}

TEST_F(Jobs, DoubleTrackGeneratedFromTheCentre) {
  OpenFiles(eRailDouble);
  Type(1, 1, Example("double/Axis.plt"));
  SetOption(1);
  Slot(2).txtFileName_Change(Example("double/Axis.alz"));
  Type(2, 1, Example("double/Left track.plt"));
  Type(2, 4, Example("double/Left cant.xml"));
  Type(3, 1, Example("double/Right track.plt"));
  Type(3, 4, Example("double/Right cant.xml"));
  ToResult();
  EXPECT_EQ(Count("<Alignment "), 3);
  EXPECT_EQ(Count("<Feature code=\"QN Stringline Layer\">Left_L,Left track,Right_L,Axis"), 1);
  EXPECT_EQ(Count("<Feature code=\"QN Stringline Layer\">Left_R,Right track,Right_R,Axis"), 1);
  EXPECT_EQ(Window.ctlResult.GetTitle(3), "FR_SUMMARY_RIGHT");
  for (int nPage = 1; nPage <= 3; ++nPage) {
    EXPECT_NE(Rows(nPage).find("LBL_VT_CH_END"), std::string::npos) << nPage;
  }
  EXPECT_EQ(Window.ctlResult.GetDescription(1, 5), "");
  EXPECT_EQ(Window.ctlResult.GetDescription(2, 5), "LBL_TR_CH_START");
}

TEST_F(Jobs, DoubleTrackWithoutACentre) {
  OpenFiles(eRailDouble);
  Type(2, 1, Plan("l.plt"));
  Type(3, 1, Plan("r.plt"));
  ToResult();
  EXPECT_EQ(Window.ctlResult.Page(), 2) << "the first page with rows";
  Window.ctlResult.cmdPage_Click(1);
  EXPECT_EQ(Window.ctlResult.Page(), 2);
  EXPECT_EQ(Count("<Alignment "), 2);
  EXPECT_EQ(Count("<Feature code=\"QN Stringline Layer\">l\r"), 1) << "the centre has no name";
}

TEST_F(Jobs, ALimitInsideAnElementKeepsItWhole) {
  OpenFiles(eRailSingle);
  Type(1, 1, Plan("a.plt"));
  Next(3);
  Window.ctlExporting.txtChainage[0].Text = "70";
  Window.ctlExporting.txtChainage[1].Text = "80";
  Next();
  EXPECT_EQ(Count("<Line "), 1);
  EXPECT_EQ(Count("<Alignment name=\"a\" length=\"40.000000\" staStart=\"60.000000\">"), 1) << Document();
}

}  // namespace
}  // namespace vrek
