// Configurations that read stringlines: the page that gives each its part, and what the export makes of it.
#include "WizardTest.h"
#include "design_data/CAligmentsDatas.h"
#include "landxml/CLandXML.h"
#include "wizard/ExportDriver.h"
#include "wizard/clsWizard.h"

namespace vrek {
namespace {

// A line along x from dStart to dEnd at y.
TStringLine Line(const std::string& sName, double dStart, double dEnd, int nPrev = 0, int nNext = 0) {
  TStringLine Out;
  Out.sName = sName;
  Out.nPrev = nPrev;
  Out.nNext = nNext;
  Out.dChainageStart = dStart;
  Out.dChainageEnd = dEnd;
  Out.Hz = {{}, {1, dStart, dStart, 5, 100, 0, 0, dEnd - dStart}};
  Out.Vt = {{}, {1, dStart, 7, 0, 0, dEnd - dStart}};
  return Out;
}

class StringLines : public test::WizardTest {
 protected:
  /// The job's pages with a plan of the name given in slot 1 ("" leaves it empty), and the store as if the
  /// kinds of lines had been read: line 1 alone, lines 2 and 3 a chain, 4 alone.
  void Open(int nJob, const std::vector<std::string>& aPlans, int nKinds = 8) {
    OpenFiles(nJob);
    Model.ConversionInfo.nFilesToRead = nKinds;
    CAligmentsDatas::InitAligments();
    TStringLines Lines;
    Lines.Lines = {{}, Line("A", 0, 100), Line("B", 0, 40, -1, 3), Line("B2", 40, 90, 2), Line("D", 0, 80)};
    Lines.nCount = 4;
    for (int nAligment = 1; nAligment <= Window.ctlFiles.PagesTot(); ++nAligment) {
      CAligmentsDatas::AddAligment();
      CAligmentsDatas::SetAligmentStrLn(nAligment, Lines);
      Window.ctlImporting.AddRoot("PAGE" + std::to_string(nAligment), "root" + std::to_string(nAligment));
      Type(nAligment, 1, aPlans[static_cast<std::size_t>(nAligment - 1)]);
    }
    Window.ctlFiles.LeaveFocus();
    Logic = std::make_unique<clsWizard>(Window);
  }
  /// The same as far as the page where the lines get their parts.
  void OpenSelection(int nJob, const std::vector<std::string>& aPlans) {
    Open(nJob, aPlans);
    ASSERT_TRUE(Logic->IntroPage(ePageSelectStrLn));
  }
  std::string Write(int nJob) {
    Window.ctlExporting.SetChainageStart(0);
    Window.ctlExporting.SetChainageEnd(1000);
    CLandXML::SetOutputFile(Model.XmlFileToExport);
    EXPECT_TRUE(CLandXML::TagLandXML(false));
    EXPECT_TRUE(ExportDriver(Window).ExportJob(nJob));
    CLandXML::TagLandXML(true);
    CLandXML::CloseFile();
    return Document();
  }
  /// The names of the layer and its properties: "A,B|PAGE..|centre|NO|excluded".
  static std::string Layers(const std::string& sDocument) {
    std::string sOut;
    for (auto i = sDocument.find("Layer\">"); i != sDocument.npos; i = sDocument.find("Layer\">", i + 1)) {
      const auto nEnd = sDocument.find("</Feature>", i);
      sOut += sDocument.substr(i + 7, sDocument.find('\r', i) - i - 7);
      for (auto n = sDocument.find("value=\"", i); n < nEnd; n = sDocument.find("value=\"", n + 1)) {
        sOut += "|" + sDocument.substr(n + 7, sDocument.find('"', n + 7) - n - 7);
      }
      sOut += ";";
    }
    return sOut;
  }

  std::unique_ptr<clsWizard> Logic;
  ctlSelectStrLns& Page = Window.ctlSelectStrLn;
};

TEST_F(StringLines, ThePageOffersWhatContinuesNoOther) {
  OpenSelection(eRailSingle, {"A.plt"});
  EXPECT_EQ(Page.GetTotalToSelect(1), "3");
  ASSERT_EQ(Page.cString[0].cmbStringline.Items.size(), 2U);
  EXPECT_EQ(Page.cString[0].SelectedString(), "A");
  EXPECT_EQ(Page.cString[0].lblInfo[1].Caption, "100.0000");
  EXPECT_EQ(Page.cString[1].SelectedString(), "----");
  EXPECT_EQ(Page.cString[1].SelectedItemData(), -1);
  EXPECT_EQ(Page.cString[1].lblInfo[0].Caption, "----");
  EXPECT_EQ(Page.cString[2].Tittle(), "FR_SEL_RAIL_RIGHT");
  EXPECT_EQ(Page.GetRailsCtrl().RailsOn(), 2);
  Page.cString[2].cmbStringline_GotFocus();
  EXPECT_EQ(Page.GetRailsCtrl().RailsOn(), 4);
  Page.cString[1].SetSelectedString("D");
  ASSERT_TRUE(Logic->ExitPage(ePageSelectStrLn));
  EXPECT_EQ(CAligmentsDatas::GetAligmentStrLn(1).sSelected, "$1$4$");
}

TEST_F(StringLines, ThePageOfADoubleTrackPassesOverSubPagesWithoutSelectors) {
  OpenSelection(eRailDouble, {"A.plt", "", "A.plt"});
  EXPECT_EQ(Page.Page(), 1);
  EXPECT_EQ(Page.GetRailsCtrl().RailsOn(), 8);
  EXPECT_EQ(Page.GetTotalToSelect(2), "0");
  Page.cmdPage_Click(0);
  EXPECT_EQ(Page.Page(), 3);
  EXPECT_EQ(Page.GetRailsCtrl().RailsOn(), 32);
  EXPECT_EQ(Page.GetRailsCtrl().TracksOn(), 2);
  Page.cString[2].cmbStringline_GotFocus();
  EXPECT_EQ(Page.GetRailsCtrl().RailsOn(), 64);
  Page.cString[0].SetSelectedItemData(4);
  Page.cmdPage_Click(1);
  EXPECT_EQ(Page.Page(), 1);
  EXPECT_EQ(Page.GetSelected(3, 1), "D") << "a choice is kept";
}

TEST_F(StringLines, BadNumbersAreReportedAsSuch) {
  Model.DebugMode = true;
  Page.AddPage("one", 2);
  Page.ShowPage(2);
  EXPECT_EQ(Page.GetSelected(1, 3), "");
  EXPECT_EQ(Page.GetSelectedItemData(0, 1), -1);
  ASSERT_EQ(Platform.aBoxes.size(), 3U);
  EXPECT_EQ(Platform.aBoxes[0].sText, "ASSERT in ctlSelectStrLns.IsOk\r\nNo valid page");
  EXPECT_EQ(Platform.aBoxes[1].sText, "ASSERT in ctlSelectStrLns.IsOk\r\nNo valid element");
  EXPECT_EQ(Page.Page(), 1);
}

TEST_F(StringLines, TheExportingPageOffersHeadsAndLinesAlone) {
  Open(eRoad, {"D.plt"});
  ASSERT_TRUE(Logic->IntroPage(ePageExporting));
  EXPECT_EQ(Window.ctlExporting.ChainageEnd(), 80) << "the range of the line named as the file";
  EXPECT_EQ(Window.ctlExporting.GetSelectedLayersIdx(), "$1$2$4$");
  Open(eRoad, {"nobody.plt"});
  EXPECT_FALSE(Logic->IntroPage(ePageExporting));
}

TEST_F(StringLines, ARoadWritesItsChosenLinesEachAsAnAlignment) {
  OpenSelection(eRoad, {"A.plt"});
  ASSERT_TRUE(Logic->ExitPage(ePageSelectStrLn));
  ASSERT_TRUE(Logic->IntroPage(ePageExporting));
  Window.ctlExporting.lstLayers_ItemCheck(2, false);
  ASSERT_TRUE(Logic->ExitPage(ePageExporting));
  const auto& Lines = CAligmentsDatas::GetAligmentStrLn(1);
  EXPECT_EQ(Lines.sSelected, "$1$2$");
  EXPECT_FALSE(Lines.Lines[4].bExported);
  EXPECT_TRUE(Lines.Lines[3].bExported) << "a link is written with its head";
  const auto sDocument = Document();
  EXPECT_NE(sDocument.find("<Alignment name=\"B\" length=\"90.000000\" staStart=\"0.000000\">"),
            std::string::npos);
  EXPECT_EQ(sDocument.find("<Alignment name=\"B2\""), std::string::npos);
  EXPECT_EQ(Layers(sDocument), "A,B,B2|root1|A|NO;");
  EXPECT_EQ(Window.ctlResult.GetValue(1, 2), "100.000000");
}

TEST_F(StringLines, SelectionNumbersAreWholeNumbers) {
  Open(eRoad, {"axis.plt"}, 32);
  auto Lines = CAligmentsDatas::GetAligmentStrLn(1);
  while (Lines.nCount < 12) {
    Lines.Lines.push_back(Line("L" + std::to_string(++Lines.nCount), 0, 10));
  }
  Lines.sSelected = "$12$";
  CAligmentsDatas::SetAligmentStrLn(1, Lines);
  EXPECT_EQ(Layers(Write(eRoad)), "axis,L12|root1|axis|NO|axis;");
}

TEST_F(StringLines, TheTracksTakeTheirRailsFromTheChosenLines) {
  OpenSelection(eRailSingle, {"A.plt"});
  ASSERT_TRUE(Logic->ExitPage(ePageSelectStrLn));
  EXPECT_EQ(Layers(Write(eRailSingle)), "A|root1|A|NO;") << "no rails chosen";
  Page.cString[1].SetSelectedString("D");
  Page.cString[2].SetSelectedString("A");
  ASSERT_TRUE(Logic->ExitPage(ePageSelectStrLn));
  EXPECT_EQ(Layers(Write(eRailSingle)), "A,D,A|root1|A|NO|A;");
}

TEST_F(StringLines, ADoubleTrackGroupsItsLinesByTrack) {
  OpenSelection(eRailDouble, {"A.plt", "A.plt", "A.plt"});
  Page.ShowPage(2);
  Page.cString[0].SetSelectedString("D");
  Page.cString[1].SetSelectedString("A");
  Page.cString[2].SetSelectedString("D");
  Page.ShowPage(3);
  ASSERT_TRUE(Logic->ExitPage(ePageSelectStrLn));
  EXPECT_EQ(Layers(Write(eRailDouble)), "A,D,D,A|root2|D|NO|D|A;A,A|root3|A|NO|A|A;");
}

TEST_F(StringLines, ALayerWithoutNamesIsAFailureAndNotTheEnd) {
  OpenSelection(eRoad, {"A.plt"});
  Write(eRoad);  // nothing is selected
  ASSERT_FALSE(Platform.aBoxes.empty());
  EXPECT_EQ(Platform.aBoxes.back().sText, "Unhandler Error in ExportRoad\r\nSubscript out of range");
}

}  // namespace
}  // namespace vrek
