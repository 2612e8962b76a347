#include "wizard/qt/SelectStrLnView.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "wizard/qt/View.h"

namespace vrek::qt {

SelectStrLnView::SelectStrLnView(ctlSelectStrLns& Control, QWidget* pParent)
    : PageView(pParent), m_Control(Control), m_pFrame(new QGroupBox(this)) {
  auto* pSelectors = new QVBoxLayout(m_pFrame);
  for (std::size_t n = 0; n < 3; ++n) {
    m_aSelectors[n] = MakeSelector(n);
    pSelectors->addWidget(m_aSelectors[n].pFrame);
  }
  pSelectors->addStretch(1);
  m_pRails = new RailsView(Control.GetRailsCtrl(), this);
  m_pPaging = new Paging(
      [this](int n) {
        m_Control.cmdPage_Click(n);
        emit Used();
      },
      this);
  auto* pLower = new QHBoxLayout;
  pLower->addStretch();
  pLower->addWidget(m_pRails);
  pLower->addWidget(m_pPaging);
  auto* pLayout = new QVBoxLayout(this);
  pLayout->addWidget(m_pFrame, 1);
  pLayout->addLayout(pLower);
}

SelectStrLnView::TSelector SelectStrLnView::MakeSelector(std::size_t nSelector) {
  TSelector Selector;
  Selector.pFrame = new QGroupBox(m_pFrame);
  Selector.pList = new QComboBox(Selector.pFrame);
  Selector.pList->installEventFilter(this);
  auto* pLayout = new QHBoxLayout(Selector.pFrame);
  pLayout->addWidget(Selector.pList, 1);
  for (auto*& pInfo : Selector.aInfo) pLayout->addWidget(pInfo = new QLabel(Selector.pFrame));
  connect(Selector.pList, &QComboBox::activated, this, [this, nSelector](int n) {
    m_Control.cString[nSelector].cmbStringline_Click(n);
    emit Used();
  });
  return Selector;
}

void SelectStrLnView::Render() {
  qt::Render(*m_pFrame, m_Control.frSelectStrLn);
  for (std::size_t n = 0; n < 3; ++n) {
    const auto& Control = m_Control.cString[n];
    const auto& Selector = m_aSelectors[n];
    qt::Render(*Selector.pFrame, Control.frSelectStrLn);
    Selector.pFrame->setVisible(Control.Visible);
    qt::Render(*Selector.pList, Control.cmbStringline);
    Selector.pList->setAccessibleName(Selector.pFrame->title());
    for (std::size_t i = 0; i < 2; ++i) qt::Render(*Selector.aInfo[i], Control.lblInfo[i]);
  }
  m_pRails->setVisible(m_Control.GetRailsCtrl().NumberOfTrack > 0);
  m_pRails->update();
  m_pPaging->Render(m_Control.cmdPage, m_Control.lblPage);
}

bool SelectStrLnView::eventFilter(QObject* pObject, QEvent* pEvent) {
  if (pEvent->type() == QEvent::FocusIn) {
    for (std::size_t n = 0; n < 3; ++n) {
      if (m_aSelectors[n].pList == pObject) m_Control.cString[n].cmbStringline_GotFocus();
    }
    m_pRails->update();
  }
  return PageView::eventFilter(pObject, pEvent);
}

}  // namespace vrek::qt
