// The Job page.
#pragma once

#include <QGroupBox>
#include <QRadioButton>
#include <QTextEdit>
#include <array>

#include "wizard/ctlJobType.h"
#include "wizard/qt/PageView.h"

namespace vrek::qt {

class JobView final : public PageView {
  Q_OBJECT
 public:
  explicit JobView(ctlJobType& Control, QWidget* pParent = nullptr);
  void Render() override;

 private:
  ctlJobType& m_Control;
  QGroupBox* m_pTypeFrame;
  QGroupBox* m_pInfoFrame;
  std::array<QRadioButton*, 4> m_aOptions{};
  QTextEdit* m_pInfo = nullptr;
};

}  // namespace vrek::qt
