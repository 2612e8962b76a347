// The two buttons and the label that leaf through the sub-pages of a page: "◀ 2 / 3 ▶".
#pragma once

#include <QLabel>
#include <QToolButton>
#include <array>
#include <functional>

#include "wizard/Parts.h"

namespace vrek::qt {

class Paging final : public QWidget {
  Q_OBJECT
 public:
  /// OnPress is told 0 for forward, 1 for back.
  Paging(std::function<void(int)> OnPress, QWidget* pParent = nullptr);
  void Render(const std::array<TPart, 2>& cmdPage, const TPart& lblPage);

 private:
  std::array<QToolButton*, 2> m_aButtons{};
  QLabel* m_pLabel;
};

}  // namespace vrek::qt
