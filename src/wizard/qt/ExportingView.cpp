#include "wizard/qt/ExportingView.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "wizard/qt/View.h"

namespace vrek::qt {

ExportingView::ExportingView(ctlExporting& Control, QWidget* pParent)
    : PageView(pParent),
      m_Control(Control),
      m_pFrame(new QGroupBox(this)),
      m_pRange(new QGroupBox(m_pFrame)),
      m_pLayers(new QGroupBox(m_pFrame)) {
  MakeRange();
  MakeLayers();
  auto* pInner = new QVBoxLayout(m_pFrame);
  pInner->addWidget(m_pRange);
  pInner->addWidget(m_pLayers, 1);
  pInner->addStretch();
  (new QVBoxLayout(this))->addWidget(m_pFrame);
}

void ExportingView::MakeRange() {
  auto* pForm = new QFormLayout(m_pRange);
  for (std::size_t n = 0; n < 2; ++n) {
    auto* pLabel = m_aLabels[n] = new QLabel(m_pRange);
    auto* pBox = m_aChainages[n] = new QLineEdit(m_pRange);
    pBox->setObjectName(QString("txtChainage%1").arg(n));
    pBox->setAlignment(Qt::AlignRight);
    pLabel->setBuddy(pBox);
    pForm->addRow(pLabel, pBox);
    connect(pBox, &QLineEdit::textEdited, this,
            [this, n](const QString& sText) { m_Control.txtChainage[n].Text = Text(sText); });
  }
}

void ExportingView::MakeLayers() {
  m_pList = new QListWidget(m_pLayers);
  m_pList->setObjectName("lstLayers");
  connect(m_pList, &QListWidget::itemChanged, this, [this](const QListWidgetItem* pItem) {
    m_Control.lstLayers_ItemCheck(m_pList->row(pItem), pItem->checkState() == Qt::Checked);
  });
  auto* pButtons = new QHBoxLayout;
  for (std::size_t n = 0; n < 2; ++n) {
    auto* pButton = m_aSelect[n] = new QPushButton(m_pLayers);
    pButton->setObjectName(QString("cmdSelect%1").arg(n));
    pButtons->addWidget(pButton);
    connect(pButton, &QPushButton::clicked, this, [this, n] {
      m_Control.cmdSelect_Click(static_cast<int>(n));
      emit Used();
    });
  }
  pButtons->addStretch();
  auto* pLayout = new QVBoxLayout(m_pLayers);
  pLayout->addWidget(m_pList);
  pLayout->addLayout(pButtons);
}

void ExportingView::Render() {
  qt::Render(*m_pFrame, m_Control.frExporting);
  qt::Render(*m_pRange, m_Control.frChainages);
  qt::Render(*m_pLayers, m_Control.frLayers);
  for (std::size_t n = 0; n < 2; ++n) {
    qt::Render(*m_aLabels[n], m_Control.lblChainage[n]);
    const auto sText = Text(m_Control.txtChainage[n].Text);
    if (m_aChainages[n]->text() != sText) m_aChainages[n]->setText(sText);
    m_aChainages[n]->setAccessibleName(Text(m_Control.lblChainage[n].Caption));
    qt::Render(*m_aSelect[n], m_Control.cmdSelect[n]);
  }
  m_pList->setAccessibleName(m_pLayers->title());
  RenderLayers();
}

void ExportingView::RenderLayers() {
  const QSignalBlocker Quiet(m_pList);
  const auto& aItems = m_Control.lstLayers.Items;
  const auto nCount = static_cast<int>(aItems.size());
  while (m_pList->count() > nCount) delete m_pList->takeItem(nCount);
  while (m_pList->count() < nCount) m_pList->addItem(QString());
  for (int n = 0; n < nCount; ++n) {
    const auto& Item = aItems[static_cast<std::size_t>(n)];
    m_pList->item(n)->setText(Text(Item.Text));
    m_pList->item(n)->setCheckState(Item.Checked ? Qt::Checked : Qt::Unchecked);
  }
}

}  // namespace vrek::qt
