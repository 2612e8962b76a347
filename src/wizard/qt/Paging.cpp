#include "wizard/qt/Paging.h"

#include <QHBoxLayout>

#include "wizard/qt/View.h"

namespace vrek::qt {

Paging::Paging(std::function<void(int)> OnPress, QWidget* pParent)
    : QWidget(pParent), m_pLabel(new QLabel(this)) {
  for (const int n : {1, 0}) {
    auto* pButton = new QToolButton(this);
    pButton->setObjectName(QString("cmdPage%1").arg(n));
    pButton->setArrowType(n == 0 ? Qt::RightArrow : Qt::LeftArrow);
    pButton->setFocusPolicy(Qt::StrongFocus);
    pButton->setAccessibleName(n == 0 ? Word("WIN_NEXT_PAGE", "Next alignment")
                                      : Word("WIN_PREVIOUS_PAGE", "Previous alignment"));
    pButton->setToolTip(pButton->accessibleName());
    connect(pButton, &QToolButton::clicked, this, [OnPress, n] { OnPress(n); });
    m_aButtons[static_cast<std::size_t>(n)] = pButton;
  }
  m_pLabel->setObjectName("lblPage");
  m_pLabel->setAlignment(Qt::AlignCenter);
  m_pLabel->setMinimumWidth(m_pLabel->fontMetrics().horizontalAdvance("8 / 8") + 2);
  auto* pLayout = new QHBoxLayout(this);
  pLayout->setContentsMargins(0, 0, 0, 0);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  pLayout->addWidget(m_aButtons[1]);
  pLayout->addWidget(m_pLabel);
  pLayout->addWidget(m_aButtons[0]);
}

void Paging::Render(const std::array<TPart, 2>& cmdPage, const TPart& lblPage) {
  for (std::size_t n = 0; n < 2; ++n) RenderState(*m_aButtons[n], cmdPage[n]);
  qt::Render(*m_pLabel, lblPage);
}

}  // namespace vrek::qt
