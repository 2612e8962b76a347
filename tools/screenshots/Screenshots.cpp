// Takes pictures of every page of each job: vrek_screenshots FOLDER. The window is driven as in its tests.
#include <gtest/gtest.h>

#include <QDir>
#include <QSlider>
#include <QTabBar>
#include <QTreeWidget>
#include <QWheelEvent>

#include "gui/WizardRun.h"
#include "wizard/qt/DrawingView.h"
#include "wizard/qt/ReportWindow.h"

namespace vrek::test {
namespace {

QString sFolder;

struct TJobPictures {
  const char* sName;
  int nOption;
  const char* sCase;
  std::vector<std::vector<std::string>> aPages;  // files to drop on each page of the Files page
  const char* sVtOption;
};

class Screenshots : public AppTest {
 protected:
  void Take(const TJobPictures& Job);
  void Report();
};

void Screenshots::Take(const TJobPictures& Job) {
  Model.XmlFileToExport = (Directory / "out.xml").string();
  Model.DebugMode = true;
  WizardRun Run(Platform, Model, nAllJobs);
  int nPicture = 0;
  const auto Shoot = [&](const QString& sPage) {
    Run.Shoot(QString("%1/%2_%3_%4.png").arg(sFolder, Job.sName).arg(++nPicture).arg(sPage));
  };
  QDir::setCurrent(QString(VREK_GOLDEN_CASES) + "/" + Job.sCase);  // so that the pictures show no paths
  Run.Click(QString("optDesign%1").arg(Job.nOption));
  Shoot("job");
  Run.Click("cmdNext");
  for (std::size_t n = 0; n < Job.aPages.size(); ++n) {
    if (n > 0) Run.Click("cmdPage0");
    Run.Wizard.ctlFiles.DropFiles(Job.aPages[n]);
    Run.Window->Render();
    if (n == 0 && Job.sVtOption) Run.Click(Job.sVtOption);
    Shoot("files");
  }
  Run.Click("cmdNext");
  Run.Wizard.ctlPreferences.SetToleranceHz(0.02);
  Run.Window->Render();
  Shoot("preferences");
  bool bTaken = false;
  Platform.OnMessages = [&] {
    Run.Events.ProcessMessages();
    const auto& Panel = Run.Wizard.ctlProgress;
    if (bTaken || !Panel.ProgressBar.Visible || Panel.ProgressBar.Value < ctlProgress::dBarMax / 3) return;
    bTaken = true;
    Shoot("progress");
  };
  Run.Click("cmdNext");
  Shoot("importing");
  Run.Click("cmdNext");
  Shoot("exporting");
  Run.Click("cmdNext");
  Shoot("result");
  ASSERT_EQ(Run.Wizard.CurrentPage(), ePageResult);
  Run.Window->resize(Run.Window->width() * 5 / 3, Run.Window->height() * 5 / 3);
  QApplication::processEvents();
  auto* pPicture = Run.Find<qt::DrawingView>("picResult");
  const auto At = pPicture->ToPixels({0, 0});
  QTest::mouseClick(pPicture, Qt::LeftButton, Qt::NoModifier, At.toPoint());
  Shoot("plan");
  for (int n = 0; n < 22; ++n) {
    QWheelEvent Wheel(At, pPicture->mapToGlobal(At), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(pPicture, &Wheel);
  }
  Shoot("plan_near");
  auto* pTabs = Run.Find<QTabBar>("tabPicture");
  pTabs->setCurrentIndex(1);
  Shoot("profile");
  if (!pTabs->isTabEnabled(2)) return;
  pTabs->setCurrentIndex(2);
  auto* pSlider = Run.Find<QSlider>("sldSection");
  pSlider->setValue(pSlider->maximum() / 2);
  Shoot("section");
}

void Screenshots::Report() {
  Model.XmlFileToExport = (Directory / "out.xml").string();
  WizardRun Run(Platform, Model, nAllJobs);
  Run.Click("optDesign2");
  Run.Click("cmdNext");
  const auto sFaulty = QString(VREK_EXAMPLES) + "/faulty/gap-in-the-plan/";
  WizardRun::Drop(Run.Window.get(), {sFaulty + "axis.plt", sFaulty + "axis.alz"});
  Run.Next(2);
  Run.Shoot(sFolder + "/report_1_importing.png");
  const auto* pTree = Run.Find<QTreeWidget>("trFiles");
  QTest::mouseClick(pTree->viewport(), Qt::LeftButton, Qt::NoModifier,
                    pTree->visualItemRect(pTree->topLevelItem(0)->child(0)).center());
  QApplication::processEvents();
  Run.Window->findChild<qt::ReportWindow*>("frmReport")->grab().save(sFolder + "/report_2_window.png");
}

TEST_F(Screenshots, Road) {
  Take({"road", 0, "road_0006", {{"Тоннель 4.rtf", "rasante.alz", "perfiles.TRV"}}, nullptr});
}

TEST_F(Screenshots, Tunnel) {
  Take({"tunnel", 1, "tunel_1km2", {{"Eje túnel.plt", "Rasante túnel.alz", "Secciones túnel.xml"}}, nullptr});
}

TEST_F(Screenshots, SingleTrack) {
  Take({"rail", 2, "via_unica_8km", {{"Vía única.plt", "Rasante vía única.alz", "Peraltes.xml"}}, nullptr});
}

TEST_F(Screenshots, DoubleTrack) {
  Take({"double",
        3,
        "via_doble_6km",
        {{"Eje de la duplicación.plt", "Rasante eje.alz"},
         {"Vía izquierda.plt", "Peraltes Vía izquierda.xml"},
         {"Vía derecha.plt", "Peraltes Vía derecha.xml"}},
        "chkOption1"});
}

TEST_F(Screenshots, ReportOfAFailedCheck) {
  Report();
}

}  // namespace

void UseDarkTheme() {
  QPalette Dark(QColor(0x35, 0x38, 0x3c), QColor(0x2b, 0x2d, 0x30));
  Dark.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
  Dark.setColor(QPalette::PlaceholderText, QColor(0x9a, 0x9a, 0x9a));
  QApplication::setPalette(Dark);
}

}  // namespace vrek::test

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication Application(argc, argv);
  if (qEnvironmentVariableIsSet("DARK")) vrek::test::UseDarkTheme();
  if (Application.arguments().size() < 2) qFatal("usage: vrek_screenshots FOLDER");
  vrek::test::sFolder = QDir(Application.arguments().at(1)).absolutePath();
  QDir().mkpath(vrek::test::sFolder);
  return RUN_ALL_TESTS();
}
