#include "wizard/qt/JobView.h"

#include <QVBoxLayout>

#include "wizard/qt/View.h"

namespace vrek::qt {

JobView::JobView(ctlJobType& Control, QWidget* pParent)
    : PageView(pParent),
      m_Control(Control),
      m_pTypeFrame(new QGroupBox(this)),
      m_pInfoFrame(new QGroupBox(this)) {
  auto* pOptions = new QVBoxLayout(m_pTypeFrame);
  for (int n = 0; n < 4; ++n) {
    auto* pOption = new QRadioButton(m_pTypeFrame);
    pOption->setObjectName(QString("optDesign%1").arg(n));
    m_aOptions[static_cast<std::size_t>(n)] = pOption;
    pOptions->addWidget(pOption);
    connect(pOption, &QRadioButton::toggled, this, [this, n](bool bOn) {
      if (!bOn) return;
      m_Control.optDesign_Click(n);
      emit Used();
    });
  }
  m_pInfo = new QTextEdit(m_pInfoFrame);  // behind the options, for the Tab key
  m_pInfo->setReadOnly(true);
  m_pInfo->setTabChangesFocus(true);
  (new QVBoxLayout(m_pInfoFrame))->addWidget(m_pInfo);
  auto* pLayout = new QVBoxLayout(this);
  pLayout->addWidget(m_pTypeFrame);
  pLayout->addWidget(m_pInfoFrame, 1);
}

void JobView::Render() {
  qt::Render(*m_pTypeFrame, m_Control.frJobType);
  qt::Render(*m_pInfoFrame, m_Control.frJobInfo);
  for (std::size_t n = 0; n < 4; ++n) qt::Render(*m_aOptions[n], m_Control.optDesign[n]);
  if (m_pInfo->toPlainText() != Text(m_Control.txtJobInfo.Text)) {
    m_pInfo->setPlainText(Text(m_Control.txtJobInfo.Text));
  }
  m_pInfo->setAccessibleName(m_pInfoFrame->title());
}

}  // namespace vrek::qt
