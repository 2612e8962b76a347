#include "gui/WizardRun.h"

#include <QDropEvent>
#include <QPixmap>
#include <QUrl>

#include "base/Configuration.h"

namespace vrek::test {

WizardRun::WizardRun(TestPlatform& Platform, clsAppModel& Model, int nFormats, bool bTexts)
    : m_Platform(Platform) {
  InitFormats(nFormats);
  m_Platform.sProgramDirectory = VREK_LANGUAGE_FOLDER;
  m_Platform.OnMessages = [this] { Events.ProcessMessages(); };
  if (bTexts) Model.TokenFile.ReadFile(Configuration::sLanguageFile);
  Window = std::make_unique<qt::WizardWindow>(Wizard, Events);
  Window->Load();
  Window->show();
  Window->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(Window.get()));
}

WizardRun::~WizardRun() {
  m_Platform.OnMessages = {};
}

bool WizardRun::IsOnShow(const QString& sName) const {
  const auto* pWidget = Window->findChild<QWidget*>(sName);
  return pWidget && pWidget->isVisible();
}

void WizardRun::Click(const QString& sName) const {
  auto* pWidget = Find(sName);
  if (!pWidget) return;
  // A check box is hit at its mark, which stands at its left.
  const QPoint At(qMin(10, pWidget->width() / 2), pWidget->height() / 2);
  QTest::mouseClick(pWidget, Qt::LeftButton, Qt::NoModifier, At);
}

void WizardRun::Key(Qt::Key eKey, Qt::KeyboardModifiers eModifiers) const {
  auto* pFocus = QApplication::focusWidget();
  QTest::keyClick(pFocus ? pFocus : Window.get(), eKey, eModifiers);
}

void WizardRun::Type(const QString& sName, const QString& sText) const {
  auto* pBox = Find(sName);
  if (!pBox) return;
  QTest::mouseClick(pBox, Qt::LeftButton);
  for (const auto& c : sText)
    QTest::sendKeyEvent(QTest::Click, pBox, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

bool WizardRun::Drop(QWidget* pTarget, const QStringList& aFiles) {
  QMimeData Data;
  QList<QUrl> aUrls;
  for (const auto& sFile : aFiles) aUrls << QUrl::fromLocalFile(sFile);
  Data.setUrls(aUrls);
  const auto At = pTarget->rect().center();
  QDragEnterEvent Enter(At, Qt::CopyAction, &Data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(pTarget, &Enter);
  if (!Enter.isAccepted()) return false;
  QDropEvent Drop(At, Qt::CopyAction, &Data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(pTarget, &Drop);
  return Drop.isAccepted();
}

void WizardRun::Shoot(const QString& sFile) const {
  QApplication::processEvents();
  Window->grab().save(sFile);
}

}  // namespace vrek::test
