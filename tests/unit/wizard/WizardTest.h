// A whole wizard on the in-memory platform, worked as a person does it: by its buttons and boxes. Display
// texts are their tokens, for there is no language file.
#pragma once

#include <map>
#include <string>
#include <vector>

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
  /// From now on presses the panel's Cancel as soon as it is on show.
  void CancelAtOnce() {
    Platform.OnMessages = [this] {
      if (Window.ctlProgress.cmbCancel.Visible) Window.ctlProgress.cmbCancel_Click();
    };
  }

  std::string Example(const std::string& sName) const { return std::string(VREK_EXAMPLES) + "/" + sName; }

  frmWizard Window;
  std::vector<int> aStops;

 private:
  std::function<void(int)> StopBefore;
};

}  // namespace vrek::test
