#include "wizard/qt/FilesView.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "base/ST.h"
#include "wizard/qt/View.h"

namespace vrek::qt {

FilesView::FilesView(ctlFiles& Control, QWidget* pParent)
    : PageView(pParent), m_Control(Control), m_pFrame(new QGroupBox(this)) {
  for (std::size_t n = 0; n < 4; ++n) {
    m_aSlots[n] = new SlotView(Control.ctlSelectFile[n], static_cast<int>(n), m_pFrame);
    connect(m_aSlots[n], &SlotView::Used, this, &FilesView::Used);
  }
  m_pRails = new RailsView(Control.GetRailsCtrl(), this);
  m_pResume = new QPushButton(this);
  m_pInfo = new QLabel(this);
  m_pPaging = new Paging(
      [this](int n) {
        m_Control.cmdPage_Click(n);
        emit Used();
      },
      this);
  m_pInfo->setWordWrap(true);
  m_pResume->setObjectName("cmdResume");
  connect(m_pResume, &QPushButton::clicked, this, [this] {
    m_Control.cmdResume_Click();
    emit Used();
  });
  connect(qApp, &QApplication::focusChanged, this, &FilesView::FocusMoved);
  LayOut();
}

void FilesView::LayOut() {
  auto* pSlots = new QVBoxLayout(m_pFrame);
  for (auto* pSlot : m_aSlots) pSlots->addWidget(pSlot);
  pSlots->addStretch(1);
  auto* pLower = new QHBoxLayout;
  pLower->addWidget(m_pResume);
  pLower->addWidget(m_pInfo, 1);
  pLower->addStretch();
  pLower->addWidget(m_pRails);
  pLower->addWidget(m_pPaging);
  auto* pLayout = new QVBoxLayout(this);
  pLayout->addWidget(m_pFrame, 1);
  pLayout->addLayout(pLower);
}

void FilesView::Render() {
  qt::Render(*m_pFrame, m_Control.frFiles);
  for (auto* pSlot : m_aSlots) pSlot->Render();
  m_pPaging->Render(m_Control.cmdPage, m_Control.lblPage);
  qt::Render(*m_pInfo, m_Control.LabelInfo);
  qt::Render(*m_pResume, m_Control.cmdResume);
  m_pRails->setVisible(m_Control.GetRailsCtrl().NumberOfTrack > 0);
  m_pRails->setAccessibleName(m_pFrame->title());
  m_pRails->update();
}

void FilesView::FocusFault() {
  if (m_Control.FocusFile >= 1) m_aSlots[static_cast<std::size_t>(m_Control.FocusFile - 1)]->FocusPath();
}

void FilesView::FocusMoved(const QWidget* pOld, const QWidget* pNow) {
  if (pOld && pNow && isAncestorOf(pOld) && !isAncestorOf(pNow)) m_Control.LeaveFocus();
}

void FilesView::DropFiles(const QStringList& aFiles) {
  std::vector<std::string> aPaths;
  for (const auto& sFile : aFiles) aPaths.push_back(Text(sFile));
  QStringList aRefused;
  for (const auto& sFile : m_Control.DropFiles(aPaths)) {
    aRefused << Text(std::string(ST::GetFileName(sFile)));
  }
  emit Used();
  if (aRefused.isEmpty()) return;
  emit Told(Word("WIN_NO_SLOT", "No free slot of this page takes: %1").arg(aRefused.join(", ")));
}

}  // namespace vrek::qt
