#include "wizard/qt/ResultView.h"

#include <QGridLayout>
#include <QShowEvent>
#include <QVBoxLayout>

#include "wizard/qt/View.h"

namespace vrek::qt {

ResultView::ResultView(ctlResult& Control, std::function<TPreview()> MakePreview, QWidget* pParent)
    : PageView(pParent),
      m_Control(Control),
      m_MakePreview(std::move(MakePreview)),
      m_pFrame(new QGroupBox(this)) {
  auto* pLayout = new QVBoxLayout(this);
  pLayout->addWidget(MakeRows());
  m_pWarnings = new QListWidget(this);
  m_pWarnings->setObjectName("lstWarnings");
  m_pWarnings->setAccessibleName(Word("WIN_WARNINGS", "Warnings"));
  m_pWarnings->setWordWrap(true);
  m_pWarnings->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
  pLayout->addWidget(m_pWarnings);
  pLayout->addWidget(m_pPreview = new PreviewView(this), 1);
}

// A page that comes into view shows what has just been written.
void ResultView::showEvent(QShowEvent* pEvent) {
  if (!pEvent->spontaneous()) m_pPreview->Show(m_MakePreview());
  PageView::showEvent(pEvent);
}

QWidget* ResultView::MakeRows() {
  auto* pGrid = new QGridLayout(m_pFrame);
  for (int nRow = 0; nRow < 6; ++nRow) {
    auto& aRow = m_aRows[static_cast<std::size_t>(nRow)];
    for (int n = 0; n < 3; ++n) {
      auto* pLabel = aRow[static_cast<std::size_t>(n)] = new QLabel(m_pFrame);
      if (n == 1) pLabel->setAlignment(Qt::AlignRight);
      if (n == 1) pLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
      pGrid->addWidget(pLabel, nRow, n);
    }
    aRow[1]->setObjectName(QString("lblData%1").arg(nRow));
  }
  m_pPaging = new Paging(
      [this](int n) {
        m_Control.cmdPage_Click(n);
        emit Used();
      },
      m_pFrame);
  pGrid->addWidget(m_pPaging, 0, 4, 6, 1, Qt::AlignRight | Qt::AlignTop);
  pGrid->setColumnStretch(3, 1);
  pGrid->setVerticalSpacing(pGrid->verticalSpacing() / 2);
  return m_pFrame;
}

void ResultView::Render() {
  qt::Render(*m_pFrame, m_Control.frResult);
  for (std::size_t n = 0; n < 6; ++n) {
    qt::Render(*m_aRows[n][0], m_Control.lblDescription[n]);
    qt::Render(*m_aRows[n][1], m_Control.lblData[n]);
    qt::Render(*m_aRows[n][2], m_Control.lblUnit[n]);
    m_aRows[n][1]->setAccessibleName(m_aRows[n][0]->text());
  }
  m_pPaging->Render(m_Control.cmdPage, m_Control.lblPage);
  m_pWarnings->clear();
  for (const auto& Item : m_Control.lstWarnings.Items) {
    m_pWarnings->addItem(Text(Item.Text));
    m_pWarnings->item(m_pWarnings->count() - 1)->setToolTip(Text(Item.Text));
  }
  const bool bAny = m_pWarnings->count() > 0;
  m_pWarnings->setVisible(bAny);
  if (bAny) m_pWarnings->setMaximumHeight(4 * m_pWarnings->sizeHintForRow(0) + 2 * m_pWarnings->frameWidth());
}

}  // namespace vrek::qt
