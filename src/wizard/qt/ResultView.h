// The Result page: the summary and the drawing of what was written.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <array>

#include "wizard/ctlResult.h"
#include "wizard/qt/PageView.h"
#include "wizard/qt/Paging.h"

namespace vrek::qt {

class ResultView final : public PageView {
  Q_OBJECT
 public:
  explicit ResultView(ctlResult& Control, QWidget* pParent = nullptr);
  void Render() override;

 private:
  QWidget* MakeRows();

  ctlResult& m_Control;
  QGroupBox* m_pFrame;
  std::array<std::array<QLabel*, 3>, 6> m_aRows{};  // description, value, unit
  Paging* m_pPaging = nullptr;
};

}  // namespace vrek::qt
