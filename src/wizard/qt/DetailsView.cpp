#include "wizard/qt/DetailsView.h"

#include <QFormLayout>
#include <QVBoxLayout>

#include "wizard/qt/View.h"

namespace vrek::qt {

DetailsView::DetailsView(ctlDetails& Control, QWidget* pParent)
    : PageView(pParent), m_Control(Control), m_pFrame(new QGroupBox(this)) {
  auto* pForm = new QFormLayout(m_pFrame);
  for (auto*& pLabel : m_aLabels) pLabel = new QLabel(m_pFrame);
  for (std::size_t n = 0; n < 3; ++n) {
    auto* pText = m_aTexts[n] = new QLineEdit(m_pFrame);
    pText->setObjectName(QString("txtData%1").arg(n));
    m_aLabels[n]->setBuddy(pText);
    pForm->addRow(m_aLabels[n], pText);
    connect(pText, &QLineEdit::textEdited, this,
            [this, n](const QString& sText) { m_Control.txtData[n].Text = Text(sText); });
  }
  m_pVersion = new QComboBox(m_pFrame);
  m_aLabels[3]->setBuddy(m_pVersion);
  pForm->addRow(m_aLabels[3], m_pVersion);
  connect(m_pVersion, &QComboBox::activated, this, [this](int n) { m_Control.cmbVersion.Selected = n; });
  (new QVBoxLayout(this))->addWidget(m_pFrame);
}

void DetailsView::Render() {
  qt::Render(*m_pFrame, m_Control.frDetails);
  for (std::size_t n = 0; n < 4; ++n) qt::Render(*m_aLabels[n], m_Control.lblData[n]);
  for (std::size_t n = 0; n < 3; ++n) {
    const auto sText = Text(m_Control.txtData[n].Text);
    if (m_aTexts[n]->text() != sText) m_aTexts[n]->setText(sText);
    m_aTexts[n]->setAccessibleName(Text(m_Control.lblData[n].Caption));
  }
  qt::Render(*m_pVersion, m_Control.cmbVersion);
  m_pVersion->setAccessibleName(Text(m_Control.lblData[3].Caption));
}

}  // namespace vrek::qt
