// A whole wizard on the in-memory platform, worked as a person does it: by its buttons and boxes. Display
// texts are their tokens, for there is no language file.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/FormatReal.h"
#include "shell/CommandLine.h"
#include "shell/ProcessEnd.h"
#include "support/TestApp.h"
#include "wizard/frmWizard.h"

namespace vrek::test {

class WizardTest : public AppTest {
 protected:
  WizardTest() {
    StopBefore = SetProcessStop([this](int nCode) { aStops.push_back(nCode); });
    Model.XmlFileToExport = (Directory / "out.xml").string();
  }
  ~WizardTest() override { SetProcessStop(StopBefore); }

  /// Opens the wizard with all jobs on offer and goes to the Files page of one.
  void OpenFiles(int nJob) {
    InitFormats(7);
    Window.Load();
    Window.ctlJobType.optDesign_Click(nJob);
    Window.cmdNext_Click();
    ASSERT_EQ(Window.CurrentPage(), ePageFiles);
  }
  /// Types a path into a slot; pages and slots from 1.
  void Type(int nPage, int nFile, const std::string& sPath) {
    Window.ctlFiles.ShowPage(nPage);
    Slot(nFile).txtFileName_Change(sPath);
  }
  void SetOption(int nPage) {
    Window.ctlFiles.ShowPage(nPage);
    Slot(2).chkFile_Click(true);
    Slot(2).chkOption_Click(true);
  }
  ctlSelectFilename& Slot(int nFile) {
    return Window.ctlFiles.ctlSelectFile[static_cast<std::size_t>(nFile - 1)];
  }
  void Next(int nTimes = 1) {
    for (int n = 0; n < nTimes; ++n) Window.cmdNext_Click();
  }
  /// Image of a node of the tree; -1 when it isn't there.
  int Image(const std::string& sKey) const {
    for (const auto& Node : Window.ctlImporting.trFiles) {
      if (Node.sKey == sKey) return static_cast<int>(Node.eImage);
    }
    return -1;
  }
  /// "PAGE1=FR_FILES_ROAD PAGE1@Hz=axis", the tree in its order.
  std::string Tree() const {
    std::string sOut;
    for (const auto& Node : Window.ctlImporting.trFiles) {
      sOut += (sOut.empty() ? "" : " ") + Node.sKey + "=" + Node.sText;
    }
    return sOut;
  }
  std::string Document() const { return ReadFile(Directory / "out.xml"); }

  // A straight plan of 100 m eastwards from 0 with a constant grade: small enough to work out by hand.
  std::string Plan(const std::string& sName, double dGap = 0) const {
    return WriteFile(sName, CrLf("*PLT\n0.000,1000.0000,2000.0000,100.000000,0.000,0.0000\n60.000," +
                                 FormatReal(1060 + dGap, 6) +
                                 ",2000.0000,100.000000,0.000,0.0000\n100.000,1100.0000,2000.0000,"
                                 "100.000000,0.000,0.0000\n"));
  }
  std::string Profile(const std::string& sName) const {
    return WriteFile(sName, CrLf("*ALZ\n0.000,10.0000C,0T\n50.000,11.0000C,20.000T\n100.000,10.0000C,0T\n"));
  }
  std::string Cant(const std::string& sName, const std::string& sFirst = "0.000") const {
    const std::string sEnd =
        R"(" appliedCant="40.0" rotationPoint="insideRail" appliedGauge="1.435" appliedSuperelevation="1.500"/>)";
    return WriteFile(sName,
                     "<?xml version=\"1.0\"?>\n<!-- Track table, version '2.0.1' -->\n"
                     "<Cant gauge=\"1.435\" superelevationBase=\"1.500\" rotationPoint=\"insideRail\" "
                     "coPlane=\"false\">\n<CantStation station=\"" +
                         sFirst + sEnd + "<CantStation station=\"90.000" + sEnd + "</Cant>\n");
  }
  std::string Example(const std::string& sName) const { return std::string(VREK_EXAMPLES) + "/" + sName; }

  frmWizard Window;
  std::vector<int> aStops;

 private:
  std::function<void(int)> StopBefore;
};

}  // namespace vrek::test
