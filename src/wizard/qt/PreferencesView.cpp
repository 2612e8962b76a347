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
      m_aTolerances{MakeRow(Control.ctlTolerance[0], "ctlTolerance0", m_pTolerances),
                    MakeRow(Control.ctlTolerance[1], "ctlTolerance1", m_pTolerances)},
      m_Offset(MakeRow(Control.ctlChOffset, "ctlChOffset", m_pFrame)),
      m_pVersionFrame(new QGroupBox(m_pFrame)),
      m_pVersionLabel(new QLabel(m_pVersionFrame)),
      m_pVersion(new QComboBox(m_pVersionFrame)) {
  auto* pTolerances = new QFormLayout(m_pTolerances);
  for (const auto& Row : m_aTolerances) pTolerances->addRow(Row.pLabel, Row.pBox);
  auto* pOffset = new QFormLayout;
  pOffset->addRow(m_Offset.pLabel, m_Offset.pBox);
  m_pVersionLabel->setBuddy(m_pVersion);
  (new QFormLayout(m_pVersionFrame))->addRow(m_pVersionLabel, m_pVersion);
  connect(m_pVersion, &QComboBox::activated, this, [this](int n) { m_Control.cmbVersion.Selected = n; });
  auto* pInner = new QVBoxLayout(m_pFrame);
  pInner->addWidget(m_pTolerances);
  pInner->addLayout(pOffset);
  pInner->addWidget(m_pVersionFrame);
  pInner->addStretch(1);
  (new QVBoxLayout(this))->addWidget(m_pFrame);
}

PreferencesView::TRow PreferencesView::MakeRow(ctlNumericText& Number, const QString& sObjectName,
                                               QWidget* pParent) {
  const TRow Row{new QLabel(pParent), new NumericBox(Number, sObjectName, pParent)};
  Row.pLabel->setBuddy(Row.pBox->Box());
  connect(Row.pBox, &NumericBox::Used, this, &PreferencesView::Used);
  return Row;
}

void PreferencesView::RenderRow(const TRow& Row, const TPart& lblRow) {
  qt::Render(*Row.pLabel, lblRow);
  Row.pBox->Render();
  Row.pBox->Box()->setAccessibleName(Text(lblRow.Caption));
}

void PreferencesView::Render() {
  qt::Render(*m_pFrame, m_Control.frPreferences);
  qt::Render(*m_pTolerances, m_Control.frTolerances);
  for (std::size_t n = 0; n < 2; ++n) RenderRow(m_aTolerances[n], m_Control.lblTolerance[n]);
  RenderRow(m_Offset, m_Control.lblChOffset);
  qt::Render(*m_pVersionFrame, m_Control.frVersion);
  qt::Render(*m_pVersionLabel, m_Control.lblVersion);
  qt::Render(*m_pVersion, m_Control.cmbVersion);
  m_pVersion->setAccessibleName(Text(m_Control.lblVersion.Caption));
}

}  // namespace vrek::qt
