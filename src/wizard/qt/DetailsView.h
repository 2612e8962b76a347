// The Details page, which no job puts into its sequence.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <array>

#include "wizard/ctlDetails.h"
#include "wizard/qt/PageView.h"

namespace vrek::qt {

class DetailsView final : public PageView {
  Q_OBJECT
 public:
  explicit DetailsView(ctlDetails& Control, QWidget* pParent = nullptr);
  void Render() override;

 private:
  ctlDetails& m_Control;
  QGroupBox* m_pFrame;
  std::array<QLabel*, 4> m_aLabels{};
  std::array<QLineEdit*, 3> m_aTexts{};
  QComboBox* m_pVersion = nullptr;
};

}  // namespace vrek::qt
