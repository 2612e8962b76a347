// Whole jobs from the first page to the written file, by mouse and keys.
#include <QDesktopServices>
#include <QListWidget>
#include <QTreeWidget>
#include <QUrl>

#include "gui/WizardRun.h"
#include "shell/ProcessEnd.h"
#include "wizard/qt/DrawingView.h"

namespace vrek::test {
namespace {

const QString sDoubleTrack = sCases + "via_doble_6km/";

// Stands in for the desktop's file manager.
class FolderOpener : public QObject {
  Q_OBJECT
 public:
  FolderOpener() { QDesktopServices::setUrlHandler("file", this, "Open"); }
  ~FolderOpener() override { QDesktopServices::unsetUrlHandler("file"); }
  QUrl Opened;

 public slots:
  void Open(const QUrl& Url) { Opened = Url; }
};

class Jobs : public AppTest {
 protected:
  Jobs() {
    Model.XmlFileToExport = (Directory / "doble.xml").string();
    Model.ConversionInfo.sJobName = "Duplicación Vega–Río";
    PreviousStop = SetProcessStop([this](int nCode) { nExit = nCode; });
  }
  ~Jobs() override { SetProcessStop(PreviousStop); }

  static void FillDoubleTrack(WizardRun& Run, TestPlatform& Platform) {
    // The centre: a file by the dialog, one by its path, and the option of the tracks' vertical alignments.
    Platform.sOpenAnswer = (sDoubleTrack + "Eje de la duplicación.plt").toStdString();
    Run.Click("cmdBrowse0");
    Run.Type("txtFileName1", sDoubleTrack + "Rasante eje.alz");
    Run.Click("chkOption1");
    // The tracks: files dropped on the page find their slots; the first stays free to be dropped on.
    Run.Click("cmdPage0");
    EXPECT_TRUE(WizardRun::Drop(
        Run.Window.get(), {sDoubleTrack + "Peraltes Vía izquierda.xml", sDoubleTrack + "Vía izquierda.plt"}));
    Run.Click("cmdPage0");
    EXPECT_TRUE(WizardRun::Drop(Run.Find("txtFileName0"), {sDoubleTrack + "Vía derecha.plt"}));
    EXPECT_TRUE(WizardRun::Drop(Run.Find("txtFileName3"), {sDoubleTrack + "Peraltes Vía derecha.xml"}));
  }

  int nExit = -1;
  std::function<void(int)> PreviousStop;
};

TEST_F(Jobs, WriteADoubleTrackByMouseAndKeys) {
  WizardRun Run(Platform, Model, nAllJobs, false);
  Run.Click("optDesign3");
  Run.Key(Qt::Key_Return);
  ASSERT_EQ(Run.Wizard.CurrentPage(), ePageFiles);
  FillDoubleTrack(Run, Platform);
  Run.Next();
  ASSERT_EQ(Run.Wizard.CurrentPage(), ePagePreferences);
  Run.Key(Qt::Key_Enter);
  ASSERT_EQ(Run.Wizard.CurrentPage(), ePageImporting);
  EXPECT_EQ(Run.Find<QTreeWidget>("trFiles")->topLevelItemCount(), 3);
  Run.Next();
  ASSERT_EQ(Run.Wizard.CurrentPage(), ePageExporting);
  Run.Next();
  ASSERT_EQ(Run.Wizard.CurrentPage(), ePageResult);
  EXPECT_EQ(ReadFile(Model.XmlFileToExport), ReadFile((sDoubleTrack + "expected.xml").toStdString()));
  EXPECT_TRUE(Platform.aBoxes.empty());

  // The picture holds the three alignments. Enter presses the arrow that has the focus: to the left track.
  EXPECT_FALSE(Run.Find<qt::DrawingView>("picResult")->Drawing().aStrokes.empty());
  Run.Key(Qt::Key_Return);
  EXPECT_EQ(Run.Find<QLabel>("lblPage")->text(), "2 / 3");
  EXPECT_FALSE(Run.Find("cmdCancel")->isEnabled());
  Run.Next();
  EXPECT_EQ(nExit, 0);
  EXPECT_EQ(Platform.aSettings["Files/Page3File1"], (sDoubleTrack + "Vía derecha.plt").toStdString());
}

TEST_F(Jobs, TakeTheFilesOfTheLastRunAgain) {
  Model.DebugMode = true;
  Platform.aSettings["Files/Page1File1"] = sTrackPlan.toStdString();
  WizardRun Run(Platform, Model, nAllJobs);
  Run.OpenFiles(2);
  Run.Click("cmdResume");
  EXPECT_EQ(Run.Find<QLineEdit>("txtFileName0")->text(), sTrackPlan);
}

TEST_F(Jobs, ComeBackFromTheResultAsTheyWere) {
  WizardRun Run(Platform, Model, nAllJobs);
  Run.OpenFiles(2);
  Run.Type("txtFileName0", sTrackPlan);
  Run.Next(3);
  ASSERT_EQ(Run.Wizard.CurrentPage(), ePageExporting);
  const auto sTitle = Run.Find<QLabel>("lblTitle")->text();
  Run.Next();
  ASSERT_EQ(Run.Wizard.CurrentPage(), ePageResult);
  EXPECT_FALSE(Run.IsOnShow("lblTitle"));
  FolderOpener Opener;
  Run.Click("cmdOpenFolder");
  EXPECT_EQ(Opener.Opened.toLocalFile().toStdString(), Directory.string());
  Run.Click("cmdBack");
  EXPECT_EQ(Run.Find<QLabel>("lblTitle")->text(), sTitle);
  EXPECT_FALSE(Run.IsOnShow("cmdOpenFolder"));
  EXPECT_TRUE(Run.Find("cmdCancel")->isEnabled());
  Run.Click("cmdBack");
  EXPECT_EQ(Run.Find<QLabel>("lblTitle")->text(), "Importing");
}

// A name that breaks the document's form is told where the result is looked at. Without one the box is
// hidden.
TEST_F(Jobs, TellOfANameThatBreaksTheDocument) {
  const auto sPlan = QString::fromStdString(WriteFile("axis.plt", ReadFile(sTrackPlan.toStdString())));
  for (const char* sName : {"Plain", "Cut & cover"}) {
    Model.ConversionInfo.sJobName = sName;
    WizardRun Run(Platform, Model, nAllJobs);
    Run.OpenFiles(2);
    Run.Type("txtFileName0", sPlan);
    Run.Next(4);
    ASSERT_EQ(Run.Wizard.CurrentPage(), ePageResult);
    const bool bTold = std::string(sName) != "Plain";
    ASSERT_EQ(Run.IsOnShow("lstWarnings"), bTold);
    if (!bTold) continue;
    EXPECT_TRUE(Run.Find<QListWidget>("lstWarnings")->item(0)->text().contains(sName));
  }
}

TEST_F(Jobs, EndWithACodeOnCancel) {
  WizardRun Run(Platform, Model, nAllJobs);
  Run.Key(Qt::Key_Escape);
  EXPECT_EQ(nExit, -1);
  EXPECT_TRUE(Run.Window->isVisible());
  Run.Click("cmdCancel");
  EXPECT_EQ(nExit, 1);
  EXPECT_TRUE(Platform.aSettings.empty());
}

// The real end of the process, in a child: at once, with the code of a hosted run, none in a stand-alone run.
TEST_F(Jobs, EndTheirProcess) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");  // a new process: the toolkit has threads of its own
  SetProcessStop({});
  const auto Walk = [this](int nPresses, const char* sLast) {
    WizardRun Run(Platform, Model, nAllJobs);
    Run.OpenFiles(2);
    Run.Type("txtFileName0", sTrackPlan);
    Run.Next(nPresses);
    std::filesystem::remove_all(Directory);  // behind the end of the process nothing does
    Run.Click(sLast);
  };
  EXPECT_EXIT(Walk(4, "cmdNext"), ::testing::ExitedWithCode(0), "");
  EXPECT_EXIT(Walk(2, "cmdCancel"), ::testing::ExitedWithCode(1), "");
  Model.DebugMode = true;
  EXPECT_EXIT(Walk(0, "cmdCancel"), ::testing::ExitedWithCode(0), "");
}

// While a run is on, the title bar's close box presses the panel's Cancel, and the window closes behind it.
TEST_F(Jobs, CloseWhenTheRunHasEnded) {
  WizardRun Run(Platform, Model, nAllJobs);
  Run.OpenFiles(3);
  FillDoubleTrack(Run, Platform);
  Run.Next();
  bool bClosed = true, bDropTaken = true, bNextActed = true;
  Platform.OnMessages = [&] {
    Run.Events.ProcessMessages();
    if (!Run.Wizard.ctlProgress.cmbCancel.Visible || Run.Wizard.CloseWanted()) return;
    bDropTaken = WizardRun::Drop(Run.Window.get(), {sDoubleTrack + "Vía derecha.plt"});
    bNextActed = Run.Find("cmdNext")->isEnabled();
    bClosed = Run.Window->close();
  };
  Run.Next();
  EXPECT_FALSE(bClosed);
  EXPECT_FALSE(bDropTaken);
  EXPECT_FALSE(bNextActed);
  EXPECT_FALSE(Run.Window->isVisible());
  EXPECT_EQ(Run.Wizard.ctlImporting.IsAllOk(), false);  // the generation was given up
  EXPECT_EQ(Platform.aSettings.count("Preferences/ToleranceHz"), 1U);
}

}  // namespace
}  // namespace vrek::test

#include "Jobs_test.moc"
