// Message boxes and file dialogs of the toolkit, answered as a person would.
#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>

#include "gui/WizardRun.h"

namespace vrek::test {
namespace {

class Dialogs : public AppTest {
 protected:
  // Runs once the dialog that is about to be opened waits for its answer.
  template <class TDialog, class TAnswer>
  static void Answer(TAnswer&& Give) {
    QTimer::singleShot(0, qApp, [Give] {
      auto* pDialog = qobject_cast<TDialog*>(QApplication::activeModalWidget());
      ASSERT_TRUE(pDialog);
      Give(*pDialog);
    });
  }

  qt::QtDialogs Boxes{[] { return true; }};
};

TEST_F(Dialogs, ShowAMessageWithItsIcon) {
  for (const auto& [eIcon, eExpected] :
       {std::pair{EIcon::eWarning, QMessageBox::Warning}, {EIcon::eCritical, QMessageBox::Critical}}) {
    QString sText;
    auto eShown = QMessageBox::NoIcon;
    Answer<QMessageBox>([&](QMessageBox& Box) {
      sText = Box.text();
      eShown = Box.icon();
      QTest::keyClick(&Box, Qt::Key_Return);
    });
    Boxes.MessageBox("<b>one</b>\r\ntwo", eIcon);
    EXPECT_EQ(sText, "<b>one</b>\ntwo");
    EXPECT_EQ(eShown, eExpected);
  }
}

TEST_F(Dialogs, OpenAFileWithTheFilter) {
  const auto sFile = WriteFile("axis.PLT", "x");
  QStringList aFilters;
  Answer<QFileDialog>([&](QFileDialog& Dialog) {
    aFilters = Dialog.nameFilters();
    Dialog.selectFile(QString::fromStdString(sFile));
    QMetaObject::invokeMethod(&Dialog, "accept");
  });
  EXPECT_EQ(Boxes.OpenFile("(*.PLT;*.RTF)|*.plt;*.rtf|(*.*)|*.*"), sFile);
  EXPECT_EQ(aFilters.value(0), "(*.plt *.PLT *.rtf *.RTF)");
  EXPECT_EQ(aFilters.size(), 2);
}

TEST_F(Dialogs, GiveNothingWhenDismissed) {
  QString sOffered;
  Answer<QFileDialog>([&](QFileDialog& Dialog) {
    sOffered = Dialog.selectedFiles().value(0);
    QTest::keyClick(&Dialog, Qt::Key_Escape);
  });
  EXPECT_EQ(Boxes.SaveFile("File xml (*.XML)|*.XML|", "out_v2.3.0.xml"), "");
  EXPECT_TRUE(sOffered.endsWith("/out_v2.3.0.xml")) << sOffered.toStdString();
}

}  // namespace
}  // namespace vrek::test
