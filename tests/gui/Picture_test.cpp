// The drawing of the Result page under mouse and keys.
#include <QImage>
#include <QSlider>
#include <QTabBar>
#include <QWheelEvent>

#include "gui/WizardRun.h"
#include "wizard/qt/DrawingView.h"

namespace vrek::test {
namespace {

class Picture : public AppTest {
 protected:
  Picture() {
    Model.XmlFileToExport = (Directory / "out.xml").string();
    Run = std::make_unique<WizardRun>(Platform, Model, nAllJobs);
    Run->OpenFiles(2);
    const QString sTrack = sCases + "via_unica_8km/";
    WizardRun::Drop(Run->Window.get(),
                    {sTrackPlan, sTrack + "Rasante vía única.alz", sTrack + "Peraltes.xml"});
    Run->Next(4);
    pView = Run->Find<qt::DrawingView>("picResult");
  }

  std::unique_ptr<WizardRun> Run;
  qt::DrawingView* pView = nullptr;
};

TEST_F(Picture, MovesAndZoomsAndFits) {
  ASSERT_TRUE(pView);
  const auto Whole = pView->View();
  QTest::keyClick(pView, Qt::Key_Right);
  EXPECT_GT(pView->View().dCentreX, Whole.dCentreX);
  QTest::keyClick(pView, Qt::Key_Plus);
  EXPECT_GT(pView->View().dScaleX, Whole.dScaleX);
  const QPointF At(20, 30);
  const auto Before = pView->ToMetres(At);
  QWheelEvent Wheel(At, pView->mapToGlobal(At), {}, {0, 240}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(pView, &Wheel);
  const auto After = pView->ToMetres(At);
  EXPECT_NEAR(After.dX, Before.dX, 1e-6);
  EXPECT_NEAR(After.dY, Before.dY, 1e-6);
  Run->Click("cmdFit");
  EXPECT_DOUBLE_EQ(pView->View().dScaleX, Whole.dScaleX);
  EXPECT_DOUBLE_EQ(pView->View().dCentreX, Whole.dCentreX);
}

TEST_F(Picture, TellsOfTheElementThatIsClicked) {
  const auto At = pView->ToPixels({0, 0});  // the local origin is the start of the plan
  QTest::mouseClick(pView, Qt::LeftButton, Qt::NoModifier, At.toPoint());
  const auto sText = Run->Find<QLabel>("lblElement")->text();
  EXPECT_TRUE(sText.startsWith("Vía única: straight, chainage ")) << sText.toStdString();
  QTest::mouseClick(pView, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
  EXPECT_EQ(Run->Find<QLabel>("lblElement")->text(), "");
}

TEST_F(Picture, GrowsWithTheFont) {
  auto Font = pView->font();
  Font.setPixelSize(44);  // four times the size that drawings are laid out for
  pView->setFont(Font);
  pView->Fit();
  EXPECT_DOUBLE_EQ(pView->Drawing().dWidth, pView->width() / 4.0);
}

TEST_F(Picture, KeepsItsTabsWholeInTheSmallestWindow) {
  Run->Window->resize(1, 1);
  QApplication::processEvents();
  const auto* pTabs = Run->Find<QTabBar>("tabPicture");
  EXPECT_GE(pTabs->width(), pTabs->sizeHint().width());
}

TEST_F(Picture, LeafsThroughTheSections) {
  Run->Find<QTabBar>("tabPicture")->setCurrentIndex(2);
  auto* pSlider = Run->Find<QSlider>("sldSection");
  ASSERT_GT(pSlider->maximum(), 0);
  const auto First = pView->Drawing().aLabels.front().sText;
  pSlider->setFocus();
  QTest::keyClick(pSlider, Qt::Key_End);
  EXPECT_NE(pView->Drawing().aLabels.front().sText, First);
}

TEST_F(Picture, IsSavedAsPngAndSvg) {
  Platform.sSaveAnswer = (Directory / "plan.png").string();
  Run->Click("cmdSavePicture");
  EXPECT_EQ(QImage(QString::fromStdString(Platform.sSaveAnswer)).width(),
            2 * static_cast<int>(pView->Drawing().dWidth));
  Platform.sSaveAnswer = (Directory / "plan.SVG").string();
  Run->Click("cmdSavePicture");
  EXPECT_NE(ReadFile(Platform.sSaveAnswer).find("<polyline"), std::string::npos);
  Platform.sSaveAnswer = (Directory / "no/such/folder.png").string();
  Run->Click("cmdSavePicture");
  ASSERT_EQ(Platform.aBoxes.size(), 1U);
  EXPECT_EQ(Platform.aBoxes[0].eIcon, EIcon::eCritical);
}

}  // namespace
}  // namespace vrek::test
