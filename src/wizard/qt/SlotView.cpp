#include "wizard/qt/SlotView.h"

#include <QApplication>
#include <QDropEvent>
#include <QGridLayout>
#include <QMimeData>
#include <QSignalBlocker>

#include "wizard/qt/View.h"

namespace vrek::qt {

SlotView::SlotView(ctlSelectFilename& Control, int nSlot, QWidget* pParent)
    : PageView(pParent),
      m_Control(Control),
      m_pCheck(new QCheckBox(this)),
      m_pPath(new QLineEdit(this)),
      m_pBrowse(new QPushButton(QStringLiteral("…"), this)),
      m_pEdit(new QPushButton(this)),
      m_pOption(new QCheckBox(this)) {
  m_pCheck->setObjectName(QString("chkFile%1").arg(nSlot));
  m_pPath->setObjectName(QString("txtFileName%1").arg(nSlot));
  m_pBrowse->setObjectName(QString("cmdBrowse%1").arg(nSlot));
  m_pEdit->setObjectName(QString("cmdEdit%1").arg(nSlot));
  m_pOption->setObjectName(QString("chkOption%1").arg(nSlot));
  SetCaption(*m_pEdit, Word("WIN_EDIT", "Edit"));
  m_pPath->setAcceptDrops(true);
  m_pPath->installEventFilter(this);
  LayOut();
  Connect();
}

void SlotView::LayOut() {
  auto* pLayout = new QGridLayout(this);
  pLayout->setContentsMargins(0, 0, 0, 0);
  pLayout->addWidget(m_pCheck, 0, 0, 1, 3);
  pLayout->addWidget(m_pPath, 1, 0);
  pLayout->addWidget(m_pBrowse, 1, 1);
  pLayout->addWidget(m_pEdit, 1, 2);
  pLayout->addWidget(m_pOption, 2, 0, 1, 3);
  pLayout->setColumnStretch(0, 1);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  m_pBrowse->setMaximumWidth(m_pBrowse->fontMetrics().horizontalAdvance("…") * 4);
}

void SlotView::Connect() {
  connect(m_pCheck, &QCheckBox::toggled, this, [this](bool bOn) {
    m_Control.chkFile_Click(bOn);
    emit Used();
  });
  connect(m_pPath, &QLineEdit::textEdited, this, [this](const QString& sText) {
    m_Control.txtFileName_Change(Text(sText));
    emit Used();
  });
  connect(m_pBrowse, &QPushButton::clicked, this, [this] {
    m_Control.cmdBrowse_Click();
    emit Used();
  });
  connect(m_pEdit, &QPushButton::clicked, this, [this] {
    m_Control.cmdEdit_Click();
    emit Used();
  });
  connect(m_pOption, &QCheckBox::toggled, this, [this](bool bOn) {
    m_Control.chkOption_Click(bOn);
    emit Used();
  });
  connect(qApp, &QApplication::focusChanged, this, &SlotView::FocusMoved);
}

void SlotView::Render() {
  setVisible(m_Control.Visible);
  qt::Render(*m_pCheck, m_Control.chkFile);
  qt::Render(*m_pOption, m_Control.chkOption);
  m_pBrowse->setEnabled(m_Control.cmdBrowse.Enabled);
  m_pEdit->setVisible(m_Control.cmdEdit.Visible);
  m_pEdit->setEnabled(m_Control.cmdEdit.Enabled);
  const QSignalBlocker Quiet(m_pPath);
  const auto sPath = Text(m_Control.txtFileName.Text);
  if (m_pPath->text() != sPath) m_pPath->setText(sPath);
  m_pPath->setEnabled(m_Control.txtFileName.Enabled);
  // White on red stays readable in a light and in a dark theme.
  m_pPath->setStyleSheet(m_Control.txtFileName.FileMissing ? "background: #b00020; color: white" : "");
  m_pPath->setToolTip(m_Control.txtFileName.FileMissing
                          ? Word("WIN_FILE_MISSING", "This file cannot be opened:") + "\n" + sPath
                          : sPath);
  const auto sLabel = Text(m_Control.chkFile.Caption);
  m_pPath->setAccessibleName(sLabel);
  m_pBrowse->setAccessibleName(Word("WIN_BROWSE", "Choose a file:") + " " + sLabel);
  m_pBrowse->setToolTip(m_pBrowse->accessibleName());
}

void SlotView::FocusPath() {
  (m_pPath->isEnabled() ? static_cast<QWidget*>(m_pPath) : m_pCheck)->setFocus();
}

bool SlotView::Holds(const QWidget* pWidget) const {
  return pWidget && isAncestorOf(pWidget);
}

// A box of another window that takes the focus, such as the file dialog, doesn't end the work on the slot.
void SlotView::FocusMoved(const QWidget* pOld, const QWidget* pNow) {
  const bool bWas = Holds(pOld), bIs = Holds(pNow);
  if (pNow && pNow->window() != window()) return;
  if (pOld == m_pPath) m_Control.txtFileName_LostFocus();
  if (bWas && !bIs && pNow) m_Control.LeaveFocus();
  if (!bWas && bIs) m_Control.EnterFocus();
  if (bWas || bIs) emit Used();
}

void SlotView::Drop(const QList<QUrl>& aUrls) {
  std::vector<std::string> aFiles;
  for (const auto& Url : aUrls) {
    if (Url.isLocalFile()) aFiles.push_back(Text(Url.toLocalFile()));
  }
  m_Control.DropFiles(aFiles);
  emit Used();
}

bool SlotView::eventFilter(QObject* pObject, QEvent* pEvent) {
  if (pEvent->type() == QEvent::DragEnter || pEvent->type() == QEvent::DragMove ||
      pEvent->type() == QEvent::Drop) {
    auto* pDrop = static_cast<QDropEvent*>(pEvent);
    if (!pDrop->mimeData()->hasUrls()) return PageView::eventFilter(pObject, pEvent);
    pDrop->acceptProposedAction();
    if (pEvent->type() == QEvent::Drop) Drop(pDrop->mimeData()->urls());
    return true;
  }
  if (pEvent->type() == QEvent::MouseButtonPress) m_Control.txtFileName_Click();
  return PageView::eventFilter(pObject, pEvent);
}

}  // namespace vrek::qt
