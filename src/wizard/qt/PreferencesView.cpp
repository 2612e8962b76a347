#include "wizard/qt/PreferencesView.h"

#include <QFormLayout>
#include <QVBoxLayout>

#include "wizard/qt/View.h"

namespace vrek::qt {

PreferencesView::PreferencesView(ctlPreferences& Control, QWidget* pParent)
    : PageView(pParent),
      m_Control(Control),
      m_pFrame(new QGroupBox(this)),
      m_pTolerances(new QGroupBox(m_pFrame)),
      m_pOffsetLabel(new QLabel(m_pFrame)),
      m_pOffset(new NumericBox(Control.ctlChOffset, "ctlChOffset", m_pFrame)) {
  auto* pForm = new QFormLayout(m_pTolerances);
  for (std::size_t n = 0; n < 2; ++n) {
    m_aLabels[n] = new QLabel(m_pTolerances);
    m_aTolerances[n] = new NumericBox(Control.ctlTolerance[n], QString("ctlTolerance%1").arg(n), m_pTolerances);
    m_aLabels[n]->setBuddy(m_aTolerances[n]->Box());
    pForm->addRow(m_aLabels[n], m_aTolerances[n]);
    connect(m_aTolerances[n], &NumericBox::Used, this, &PreferencesView::Used);
  }
  m_pOffsetLabel->setBuddy(m_pOffset->Box());
  auto* pOffset = new QFormLayout;
  pOffset->addRow(m_pOffsetLabel, m_pOffset);
  auto* pInner = new QVBoxLayout(m_pFrame);
  pInner->addWidget(m_pTolerances);
  pInner->addLayout(pOffset);
  pInner->addStretch(1);
  (new QVBoxLayout(this))->addWidget(m_pFrame);
}

void PreferencesView::Render() {
  qt::Render(*m_pFrame, m_Control.frPreferences);
  qt::Render(*m_pTolerances, m_Control.frTolerances);
  for (std::size_t n = 0; n < 2; ++n) {
    qt::Render(*m_aLabels[n], m_Control.lblTolerance[n]);
    m_aTolerances[n]->Render();
    m_aTolerances[n]->Box()->setAccessibleName(Text(m_Control.lblTolerance[n].Caption));
  }
  qt::Render(*m_pOffsetLabel, m_Control.lblChOffset);
  m_pOffset->Box()->setAccessibleName(Text(m_Control.lblChOffset.Caption));
  m_pOffset->Render();
}

}  // namespace vrek::qt
