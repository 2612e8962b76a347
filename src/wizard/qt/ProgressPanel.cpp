#include "wizard/qt/ProgressPanel.h"

#include <QVBoxLayout>

#include "wizard/qt/View.h"

namespace vrek::qt {
namespace {

constexpr qint64 nTurnMilliseconds = 20;

}  // namespace

ProgressPanel::ProgressPanel(ctlProgress& Control, QWidget* pParent)
    : QWidget(pParent),
      m_Control(Control),
      m_pFrame(new QGroupBox(this)),
      m_pInfo(new QLabel(m_pFrame)),
      m_pBar(new QProgressBar(m_pFrame)),
      m_pCancel(new QPushButton(m_pFrame)) {
  setObjectName("ctlProgress");
  setAutoFillBackground(true);
  m_pBar->setRange(0, static_cast<int>(ctlProgress::dBarMax));
  m_pCancel->setObjectName("cmbCancel");
  m_pInfo->setWordWrap(true);
  m_pInfo->setMinimumHeight(2 * fontMetrics().lineSpacing());
  connect(m_pCancel, &QPushButton::clicked, this, [this] { m_Control.cmbCancel_Click(); });
  auto* pInner = new QVBoxLayout(m_pFrame);
  pInner->addWidget(m_pInfo);
  pInner->addWidget(m_pBar);
  pInner->addWidget(m_pCancel, 0, Qt::AlignRight);
  m_pFrame->setFixedWidth(fontMetrics().averageCharWidth() * 60);
  (new QVBoxLayout(this))->addWidget(m_pFrame, 0, Qt::AlignCenter);
  hide();
}

bool ProgressPanel::Render() {
  const auto sTitle = Text(m_Control.frProgress.Caption).trimmed();
  const auto sInfo = Text(m_Control.lblInfo.Caption);
  const bool bSame = isVisibleTo(parentWidget()) == m_Control.Visible && m_pFrame->title() == sTitle &&
                     m_pInfo->text() == sInfo && m_pBar->isVisibleTo(this) == m_Control.ProgressBar.Visible &&
                     m_pCancel->isVisibleTo(this) == m_Control.cmbCancel.Visible;
  if (bSame && m_LastTurn.isValid() && m_LastTurn.elapsed() < nTurnMilliseconds) return false;
  m_LastTurn.start();
  m_pFrame->setTitle(sTitle);
  m_pInfo->setText(sInfo);
  m_pBar->setValue(static_cast<int>(m_Control.ProgressBar.Value));
  m_pBar->setVisible(m_Control.ProgressBar.Visible);
  qt::Render(*m_pCancel, m_Control.cmbCancel);
  m_pBar->setAccessibleName(sTitle);
  setVisible(m_Control.Visible);
  if (m_Control.Visible) raise();
  return true;
}

}  // namespace vrek::qt
