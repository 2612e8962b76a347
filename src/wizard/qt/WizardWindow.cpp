#include "wizard/qt/WizardWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMimeData>
#include <QUrl>

#include "shell/AppModel.h"
#include "wizard/qt/View.h"

namespace vrek::qt {
namespace {

/// Local files of a drag.
QStringList DraggedFiles(const QMimeData& Data) {
  QStringList aFiles;
  for (const auto& Url : Data.urls()) {
    if (Url.isLocalFile()) aFiles << Url.toLocalFile();
  }
  return aFiles;
}

/// The first control of a page that the Tab key would reach.
QWidget* FirstControl(QWidget& Page) {
  for (auto* pWidget = Page.nextInFocusChain(); pWidget && pWidget != &Page;
       pWidget = pWidget->nextInFocusChain()) {
    const bool bTakesFocus = (pWidget->focusPolicy() & Qt::TabFocus) && pWidget->isEnabled();
    if (Page.isAncestorOf(pWidget) && bTakesFocus && pWidget->isVisibleTo(&Page)) return pWidget;
  }
  return nullptr;
}

}  // namespace

WizardWindow::WizardWindow(frmWizard& Wizard, QtEvents& Events) : m_Wizard(Wizard), m_Events(Events) {
  setObjectName("frmWizard");
  setAcceptDrops(true);
  MakePages();
  LayOut();
  m_pReport = new ReportWindow(Wizard.ctlImporting.Report, this);
  m_Events.BeforeTurn = [this] { return RenderTurn(); };
}

// The focus goes while there is still someone to tell of it.
WizardWindow::~WizardWindow() {
  m_Events.BeforeTurn = {};
  if (auto* pFocus = focusWidget()) pFocus->clearFocus();
  for (auto* pPage : m_aPages) pPage->disconnect(this);
}

void WizardWindow::Load() {
  m_Wizard.Load();
  Render();
}

// Runs what a person did, then shows what became of it.
template <class TBody>
void WizardWindow::Act(TBody&& Body) {
  ShowStatus({});
  Body();
  Render();
  if (m_Wizard.CloseWanted() && !m_Wizard.Busy()) close();
}

void WizardWindow::Next() {
  Act([this] { m_Wizard.cmdNext_Click(); });
  if (m_Wizard.CurrentPage() == ePageFiles) m_pFiles->FocusFault();
}

void WizardWindow::Back() {
  Act([this] { m_Wizard.cmdBack_Click(); });
}

void WizardWindow::Cancel() {
  Act([this] { m_Wizard.cmdCancel_Click(); });
}

void WizardWindow::OpenFolder() {
  const QFileInfo File(Text(AppModel().XmlFileToExport));
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(File.absolutePath()))) ShowStatus(File.absolutePath());
}

void WizardWindow::Render() {
  setWindowTitle(Text(m_Wizard.Caption));
  RenderTitle();
  Freeze(m_Wizard.Busy());
  ShowPage();
  m_pProgress->Render();
  RenderButtons();
  m_pReport->Render();
  AssignMnemonics(*this, {m_pNext, m_pBack, m_pCancel, m_pOpenFolder});
}

void WizardWindow::RenderTitle() {
  RenderState(*m_pTitleBand, m_Wizard.frTitle);
  qt::Render(*m_pTitle, m_Wizard.lblTitle);
  qt::Render(*m_pSubTitle, m_Wizard.lblSubTitle);
}

void WizardWindow::RenderButtons() {
  m_pVersion->setText(Text(m_Wizard.frButtons.Caption).trimmed());
  qt::Render(*m_pBack, m_Wizard.cmdBack);
  qt::Render(*m_pNext, m_Wizard.cmdNext);
  qt::Render(*m_pCancel, m_Wizard.cmdCancel);
  m_pOpenFolder->setVisible(m_Wizard.cmdOpenFolder.Visible);
}

// A page that comes into view gets the focus on its first control; a frozen one could not.
void WizardWindow::ShowPage() {
  const int nPage = m_Wizard.SSTabWizard.Tab;
  auto* pPage = m_aPages[static_cast<std::size_t>(nPage)];
  const bool bNew = m_nShown != nPage;
  m_nShown = nPage;
  m_pStack->setCurrentIndex(nPage);
  pPage->Render();
  pPage->setAccessibleName(Text(m_Wizard.lblTitle.Caption));
  if (!bNew) return;
  // What was hidden before the page had ever been on show still counts in the sizes that its layouts keep.
  for (auto* pChild : pPage->findChildren<QWidget*>()) pChild->updateGeometry();
  if (auto* pFirst = FirstControl(*pPage)) pFirst->setFocus();
}

// While a run is on, nothing but the panel takes keys.
void WizardWindow::Freeze(bool bBusy) {
  if (bBusy == m_bFrozen) return;
  m_bFrozen = bBusy;
  if (bBusy) m_pFocusBefore = focusWidget();
  m_pStack->setEnabled(!bBusy);
  m_pBand->setEnabled(!bBusy);
  if (!bBusy && m_pFocusBefore) m_pFocusBefore->setFocus();
}

// The panel moves often, everything else seldom.
bool WizardWindow::RenderTurn() {
  if (!m_Wizard.Busy()) return true;
  if (!m_pProgress->Render()) return false;
  RenderTitle();
  Freeze(true);
  return true;
}

void WizardWindow::ShowStatus(const QString& sText) {
  m_pStatus->setText(sText);
  m_pStatus->setToolTip(sText);
}

void WizardWindow::closeEvent(QCloseEvent* pEvent) {
  if (!m_Wizard.QueryClose()) return pEvent->ignore();
  m_pReport->hide();
  pEvent->accept();
  QCoreApplication::quit();
}

// Enter presses the button that has the focus, an arrow button too, else Next. Esc does nothing: Cancel asks
// no question.
void WizardWindow::keyPressEvent(QKeyEvent* pEvent) {
  if (pEvent->key() != Qt::Key_Return && pEvent->key() != Qt::Key_Enter)
    return QWidget::keyPressEvent(pEvent);
  if (pEvent->isAutoRepeat()) return;  // a key held down doesn't run through the pages
  auto* pButton = qobject_cast<QAbstractButton*>(focusWidget());
  (pButton && !pButton->isCheckable() ? pButton : m_pNext)->click();
}

bool WizardWindow::TakesDrop(const QDropEvent& Event) const {
  const bool bFilesPage = m_Wizard.SSTabWizard.Tab == ePageFiles;
  return bFilesPage && !m_Wizard.Busy() && !DraggedFiles(*Event.mimeData()).isEmpty();
}

void WizardWindow::dragEnterEvent(QDragEnterEvent* pEvent) {
  pEvent->setAccepted(TakesDrop(*pEvent));
}

void WizardWindow::dragMoveEvent(QDragMoveEvent* pEvent) {
  pEvent->setAccepted(TakesDrop(*pEvent));
}

void WizardWindow::dropEvent(QDropEvent* pEvent) {
  pEvent->setAccepted(TakesDrop(*pEvent));
  if (!pEvent->isAccepted()) return;
  ShowStatus({});
  m_pFiles->DropFiles(DraggedFiles(*pEvent->mimeData()));
}

// The panel lies over the page area, whatever its size.
bool WizardWindow::eventFilter(QObject* pObject, QEvent* pEvent) {
  if (pEvent->type() == QEvent::Resize || pEvent->type() == QEvent::Move) {
    m_pProgress->setGeometry(m_pStack->geometry());
  }
  return QWidget::eventFilter(pObject, pEvent);
}

}  // namespace vrek::qt
