#include "wizard/qt/SlotView.h"

#include <QDropEvent>
#include <QGridLayout>
#include <QMimeData>
#include <QSignalBlocker>
#include <QUrl>

#include "wizard/qt/View.h"

namespace vrek::qt {

SlotView::SlotView(ctlSelectFilename& Control, int nSlot, QWidget* pParent)
    : PageView(pParent),
      m_Control(Control),
      m_pCheck(new QCheckBox(this)),
      m_pPath(new QLineEdit(this)),
      m_pBrowse(new QPushButton(QStringLiteral("…"), this)),
      m_pEdit(new QPushButton(Word("WIN_EDIT", "&Edit"), this)),
      m_pOption(new QCheckBox(this)) {
  m_pCheck->setObjectName(QString("chkFile%1").arg(nSlot));
  m_pPath->setObjectName(QString("txtFileName%1").arg(nSlot));
  m_pBrowse->setObjectName(QString("cmdBrowse%1").arg(nSlot));
  m_pEdit->setObjectName(QString("cmdEdit%1").arg(nSlot));
  m_pOption->setObjectName(QString("chkOption%1").arg(nSlot));
  auto* pLayout = new QGridLayout(this);
  pLayout->setContentsMargins(0, 0, 0, 0);
  pLayout->addWidget(m_pCheck, 0, 0, 1, 3);
  pLayout->addWidget(m_pPath, 1, 0);
  pLayout->addWidget(m_pBrowse, 1, 1);
  pLayout->addWidget(m_pEdit, 1, 2);
  pLayout->addWidget(m_pOption, 2, 0, 1, 3);
  pLayout->setColumnStretch(0, 1);
  m_pPath->setAcceptDrops(true);
  m_pPath->installEventFilter(this);

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
  m_pPath->setToolTip(sPath);
  // White on red stays readable in a light and in a dark theme.
  m_pPath->setStyleSheet(m_Control.txtFileName.FileMissing ? "background: #b00020; color: white" : "");
  const auto sLabel = Text(m_Control.chkFile.Caption);
  m_pPath->setAccessibleName(sLabel);
  m_pBrowse->setAccessibleName(sLabel + " …");
  m_pBrowse->setToolTip(sLabel);
}

void SlotView::FocusPath() { (m_pPath->isEnabled() ? static_cast<QWidget*>(m_pPath) : m_pCheck)->setFocus(); }

void SlotView::Drop(const QList<QUrl>& aUrls) {
  std::vector<std::string> aFiles;
  for (const auto& Url : aUrls) {
    if (Url.isLocalFile()) aFiles.push_back(Text(Url.toLocalFile()));
  }
  m_Control.DropFiles(aFiles);
  emit Used();
}

bool SlotView::eventFilter(QObject* pObject, QEvent* pEvent) {
  switch (pEvent->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: {
      auto* pDrag = static_cast<QDragMoveEvent*>(pEvent);
      if (!pDrag->mimeData()->hasUrls()) break;
      pDrag->acceptProposedAction();
      return true;
    }
    case QEvent::Drop: {
      auto* pDrop = static_cast<QDropEvent*>(pEvent);
      if (!pDrop->mimeData()->hasUrls()) break;
      pDrop->acceptProposedAction();
      Drop(pDrop->mimeData()->urls());
      return true;
    }
    case QEvent::FocusIn:
      m_Control.EnterFocus();
      emit Used();
      break;
    case QEvent::FocusOut:
      m_Control.txtFileName_LostFocus();
      m_Control.LeaveFocus();
      emit Used();
      break;
    default: break;
  }
  return PageView::eventFilter(pObject, pEvent);
}

}  // namespace vrek::qt
