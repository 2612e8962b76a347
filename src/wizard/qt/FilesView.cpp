#include "wizard/qt/FilesView.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "base/ST.h"
#include "wizard/qt/View.h"

namespace vrek::qt {

FilesView::FilesView(ctlFiles& Control, QWidget* pParent)
    : PageView(pParent),
      m_Control(Control),
      m_pFrame(new QGroupBox(this)),
      m_pRails(new RailsView(Control.GetRailsCtrl(), this)),
      m_pPage(new QLabel(this)),
      m_pInfo(new QLabel(this)),
      m_pResume(new QPushButton(this)) {
  auto* pSlots = new QVBoxLayout(m_pFrame);
  for (std::size_t n = 0; n < 4; ++n) {
    m_aSlots[n] = new SlotView(Control.ctlSelectFile[n], static_cast<int>(n), m_pFrame);
    connect(m_aSlots[n], &SlotView::Used, this, &FilesView::Used);
    pSlots->addWidget(m_aSlots[n]);
  }
  pSlots->addStretch(1);
  auto* pPaging = new QHBoxLayout;
  m_pInfo->setWordWrap(true);
  m_pResume->setObjectName("cmdResume");
  connect(m_pResume, &QPushButton::clicked, this, [this] {
    m_Control.cmdResume_Click();
    emit Used();
  });
  pPaging->addWidget(m_pResume);
  pPaging->addWidget(m_pInfo, 1);
  for (const int n : {1, 0}) {
    auto* pButton = new QPushButton(n == 0 ? QStringLiteral("▶") : QStringLiteral("◀"), this);
    pButton->setObjectName(QString("cmdPage%1").arg(n));
    pButton->setAccessibleName(n == 0 ? Word("WIN_NEXT_PAGE", "Next page") : Word("WIN_PREVIOUS_PAGE", "Previous page"));
    m_aPaging[static_cast<std::size_t>(n)] = pButton;
    connect(pButton, &QPushButton::clicked, this, [this, n] {
      m_Control.cmdPage_Click(n);
      emit Used();
    });
  }
  pPaging->addWidget(m_aPaging[1]);
  pPaging->addWidget(m_pPage);
  pPaging->addWidget(m_aPaging[0]);
  auto* pUpper = new QHBoxLayout;
  pUpper->addWidget(m_pFrame, 1);
  pUpper->addWidget(m_pRails);
  auto* pLayout = new QVBoxLayout(this);
  pLayout->addLayout(pUpper, 1);
  pLayout->addLayout(pPaging);
}

void FilesView::Render() {
  qt::Render(*m_pFrame, m_Control.frFiles);
  for (auto* pSlot : m_aSlots) pSlot->Render();
  qt::Render(*m_aPaging[0], TPart{"▶", m_Control.cmdPage[0].Visible, m_Control.cmdPage[0].Enabled, {}});
  qt::Render(*m_aPaging[1], TPart{"◀", m_Control.cmdPage[1].Visible, m_Control.cmdPage[1].Enabled, {}});
  qt::Render(*m_pPage, m_Control.lblPage);
  qt::Render(*m_pInfo, m_Control.LabelInfo);
  qt::Render(*m_pResume, m_Control.cmdResume);
  m_pRails->setVisible(m_Control.GetRailsCtrl().NumberOfTrack > 0);
  m_pRails->update();
}

void FilesView::FocusFault() {
  if (m_Control.FocusFile >= 1) m_aSlots[static_cast<std::size_t>(m_Control.FocusFile - 1)]->FocusPath();
}

void FilesView::DropFiles(const QStringList& aFiles) {
  std::vector<std::string> aPaths;
  for (const auto& sFile : aFiles) aPaths.push_back(Text(sFile));
  QStringList aRefused;
  for (const auto& sFile : m_Control.DropFiles(aPaths)) aRefused << Text(std::string(ST::GetFileName(sFile)));
  if (!aRefused.isEmpty()) {
    emit Told(Word("WIN_NO_SLOT", "No free slot on this page takes: %1").arg(aRefused.join(", ")));
  }
  emit Used();
}

}  // namespace vrek::qt
