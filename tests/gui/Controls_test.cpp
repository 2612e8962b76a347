// Single controls of the window: file slots and drops, the numeric box, the report window, layers, dialogs.
#include <QClipboard>
#include <QGuiApplication>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTreeWidget>

#include "gui/WizardRun.h"
#include "wizard/qt/DialogFilter.h"
#include "wizard/qt/ReportWindow.h"

namespace vrek::test {
namespace {

class Controls : public AppTest {
 protected:
  Controls() { Model.XmlFileToExport = (Directory / "out.xml").string(); }
  static void FillRoad(WizardRun& Run) {
    Run.OpenFiles(0);
    const auto sRoad = sCases + "road_0006/";
    WizardRun::Drop(Run.Window.get(),
                    {sRoad + "Тоннель 4.rtf", sRoad + "rasante.alz", sRoad + "perfiles.TRV"});
    Run.Wizard.ctlPreferences.SetToleranceHz(0.02);
  }
};

TEST_F(Controls, FillTheSlotsOfAPageByTheEndingsOfDroppedFiles) {
  WizardRun Run(Platform, Model, nAllJobs);
  Run.OpenFiles(2);
  EXPECT_TRUE(
      WizardRun::Drop(Run.Window.get(), {"/p/cant.XML", "/p/photo.jpg", "/p/axis.alz", "/p/axis.plt"}));
  EXPECT_EQ(Run.Find<QLineEdit>("txtFileName0")->text(), "/p/axis.plt");
  EXPECT_EQ(Run.Find<QLineEdit>("txtFileName1")->text(), "/p/axis.alz");
  EXPECT_EQ(Run.Find<QLineEdit>("txtFileName3")->text(), "/p/cant.XML");
  EXPECT_TRUE(Run.Find<QLabel>("lblStatus")->text().contains("photo.jpg"));
  // On a box the first file is taken, whatever its ending; on another page nothing is.
  EXPECT_TRUE(WizardRun::Drop(Run.Find("txtFileName0"), {"/p/other.txt", "/p/third.plt"}));
  EXPECT_EQ(Run.Find<QLineEdit>("txtFileName0")->text(), "/p/other.txt");
  Run.Click("cmdBack");
  EXPECT_FALSE(WizardRun::Drop(Run.Window.get(), {"/p/axis.plt"}));
}

TEST_F(Controls, ShowAMissingFileWhenTheFocusHasLeftItsSlot) {
  WizardRun Run(Platform, Model, nAllJobs);
  Run.OpenFiles(2);
  Run.Type("txtFileName0", "/no/such.plt");
  auto* pBox = Run.Find<QLineEdit>("txtFileName0");
  EXPECT_TRUE(pBox->styleSheet().isEmpty());
  Run.Click("chkFile1");
  EXPECT_FALSE(pBox->styleSheet().isEmpty());
  EXPECT_TRUE(pBox->toolTip().endsWith("/no/such.plt"));
  // Next stays and brings the cursor back, which takes the colour away.
  Run.Next();
  EXPECT_EQ(Run.Wizard.CurrentPage(), ePageFiles);
  EXPECT_TRUE(pBox->hasFocus());
  EXPECT_TRUE(pBox->styleSheet().isEmpty());
}

TEST_F(Controls, FilterTheKeysOfANumericBox) {
  WizardRun Run(Platform, Model, nAllJobs);
  Run.OpenFiles(2);
  Run.Type("txtFileName0", sTrackPlan);
  Run.Next();
  auto* pBox = Run.Find<QLineEdit>("ctlTolerance0");
  EXPECT_EQ(pBox->text(), "0.010");
  pBox->selectAll();
  for (const char c : std::string("0x,0b25")) QTest::keyClick(pBox, c);
  EXPECT_EQ(pBox->text(), "0.025");
  QTest::keyClick(pBox, Qt::Key_Backspace);
  QTest::keyClick(pBox, '7');
  EXPECT_EQ(pBox->text(), "0.027");
  EXPECT_DOUBLE_EQ(Run.Wizard.ctlPreferences.ToleranceHz(), 0.027);
  QGuiApplication::clipboard()->setText("9");
  QTest::keyClick(pBox, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(pBox->text(), "0.027");
  QGuiApplication::clipboard()->setText("1a2");
  pBox->selectAll();
  pBox->paste();  // as the context menu does
  EXPECT_EQ(pBox->text(), "0.027");
}

TEST_F(Controls, ShowTheReportOfARefusedListingOnAClick) {
  WizardRun Run(Platform, Model, nAllJobs);
  Run.OpenFiles(2);
  Run.Type("txtFileName0", QString::fromStdString(WriteFile("axis.plt", "no listing\r\n")));
  Run.Next(2);
  ASSERT_EQ(Run.Wizard.CurrentPage(), ePageImporting);
  auto* pTree = Run.Find<QTreeWidget>("trFiles");
  auto* pNode = pTree->topLevelItem(0)->child(0);
  EXPECT_TRUE(pNode->toolTip(0).contains("Click"));
  auto* pReport = Run.Window->findChild<qt::ReportWindow*>("frmReport");
  QTest::mouseClick(pTree->viewport(), Qt::LeftButton, Qt::NoModifier,
                    pTree->visualItemRect(pTree->topLevelItem(0)).center());
  EXPECT_FALSE(pReport->isVisible());
  QTest::mouseClick(pTree->viewport(), Qt::LeftButton, Qt::NoModifier, pTree->visualItemRect(pNode).center());
  ASSERT_TRUE(pReport->isVisible());
  EXPECT_EQ(pReport->windowTitle(), "axis");
  EXPECT_FALSE(pReport->isModal());
  auto* pText = pReport->findChild<QPlainTextEdit*>("txtReport");
  EXPECT_EQ(pText->toPlainText().toStdString(), Model.GetToken("E_EMPTYFILE"));
  const QFontMetrics Metrics(pText->font());
  EXPECT_EQ(Metrics.horizontalAdvance("iii.1"), Metrics.horizontalAdvance("WMm08"));

  QTest::mouseClick(pReport->findChild<QWidget*>("cmdCopy"), Qt::LeftButton);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), pText->toPlainText());
  Platform.sSaveAnswer = (Directory / "report.txt").string();
  QTest::mouseClick(pReport->findChild<QWidget*>("cmdSave"), Qt::LeftButton);
  EXPECT_EQ(ReadFile(Directory / "report.txt"), Model.GetToken("E_EMPTYFILE"));
  QTest::keyClick(pText, Qt::Key_Escape);
  EXPECT_FALSE(pReport->isVisible());
  EXPECT_TRUE(Run.Window->isVisible());
}

TEST_F(Controls, CheckTheLayersOfARoad) {
  WizardRun Run(Platform, Model, nAllJobs);
  FillRoad(Run);
  Run.Next(3);
  ASSERT_EQ(Run.Wizard.CurrentPage(), ePageExporting);
  auto* pList = Run.Find<QListWidget>("lstLayers");
  ASSERT_GT(pList->count(), 0);
  Run.Click("cmdSelect1");
  EXPECT_EQ(Run.Wizard.ctlExporting.GetSelectedLayers(), "__None__");
  pList->setCurrentRow(0);
  QTest::keyClick(pList, Qt::Key_Space);
  EXPECT_EQ(Run.Wizard.ctlExporting.GetSelectedLayers(), "$" + pList->item(0)->text().toStdString() + "$");
}

void ExpectNamesAndLetters(const WizardRun& Run) {
  QStringList aLetters;
  for (auto* pWidget : Run.Window->findChildren<QWidget*>()) {
    if (!pWidget->isVisible() || !(pWidget->focusPolicy() & Qt::TabFocus)) continue;
    const auto* pButton = qobject_cast<QAbstractButton*>(pWidget);
    const bool bNamed = !pWidget->accessibleName().isEmpty() || (pButton && !pButton->text().isEmpty());
    EXPECT_TRUE(bNamed) << pWidget->objectName().toStdString();
    if (!pButton || !pButton->text().contains('&')) continue;
    aLetters << pButton->text()[pButton->text().indexOf('&') + 1].toLower();
  }
  EXPECT_GE(aLetters.size(), 3);
  EXPECT_EQ(aLetters.removeDuplicates(), 0);
}

// A page that has come into view has the focus on its first control. From there the Tab key goes down the
// page, leaving nothing out, then along the buttons below it, and round to the first again.
void ExpectTabGoesRound(const WizardRun& Run) {
  auto* pFirst = QApplication::focusWidget();
  ASSERT_TRUE(pFirst);
  QList<QWidget*> aReached;
  do {
    aReached << QApplication::focusWidget();
    Run.Key(Qt::Key_Tab);
  } while (QApplication::focusWidget() != pFirst && aReached.size() < 50);
  EXPECT_EQ(QApplication::focusWidget(), pFirst) << aReached.size();
  for (auto* pWidget : Run.Window->findChildren<QWidget*>()) {
    const bool bTakesTab = pWidget->isVisible() && pWidget->isEnabled() &&
                           (pWidget->focusPolicy() & Qt::TabFocus) && !pWidget->focusProxy();
    EXPECT_EQ(aReached.contains(pWidget), bTakesTab) << pWidget->objectName().toStdString();
  }
  const auto Place = [&](const QWidget* pWidget) {
    return QRect(pWidget->mapTo(Run.Window.get(), QPoint(0, 0)), pWidget->size());
  };
  for (qsizetype n = 1; n < aReached.size(); ++n) {
    EXPECT_GE(Place(aReached[n]).bottom(), Place(aReached[n - 1]).top())
        << aReached[n]->objectName().toStdString();
  }
}

// Every control that takes the focus says what it is, and no two on a page answer to the same letter.
TEST_F(Controls, AreReachedByKeysAndNamed) {
  WizardRun Run(Platform, Model, nAllJobs);
  ExpectTabGoesRound(Run);
  ExpectNamesAndLetters(Run);
  FillRoad(Run);
  for (const int nPage : {ePageFiles, ePagePreferences, ePageImporting, ePageExporting, ePageResult}) {
    SCOPED_TRACE(nPage);
    ASSERT_EQ(Run.Wizard.CurrentPage(), nPage);
    ExpectTabGoesRound(Run);
    ExpectNamesAndLetters(Run);
    if (nPage != ePageResult) Run.Key(Qt::Key_Return);
  }
}

TEST(DialogFilter, TakesTheToolkitsForm) {
  EXPECT_EQ(qt::DialogFilter("(*.PLT;*.RTF)|*.plt;*.rtf|"), "(*.plt *.PLT *.rtf *.RTF)");
  EXPECT_EQ(qt::DialogFilter("File xml (*.XML)|*.XML|"), "File xml (*.xml *.XML)");
  EXPECT_EQ(qt::DialogFilter("LandXML(*.xml)|*.xml|Every(*.*)|*.*"), "LandXML (*.xml *.XML);;Every (*)");
  EXPECT_EQ(qt::DialogFilter(""), "");
}

}  // namespace
}  // namespace vrek::test
