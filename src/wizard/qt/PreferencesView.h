// The Preferences page.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <array>

#include "wizard/ctlPreferences.h"
#include "wizard/qt/NumericBox.h"
#include "wizard/qt/PageView.h"

namespace vrek::qt {

class PreferencesView final : public PageView {
  Q_OBJECT
 public:
  explicit PreferencesView(ctlPreferences& Control, QWidget* pParent = nullptr);
  void Render() override;

 private:
  ctlPreferences& m_Control;
  QGroupBox* m_pFrame;
  QGroupBox* m_pTolerances;
  std::array<QLabel*, 2> m_aLabels{};
  std::array<NumericBox*, 2> m_aTolerances{};
  QLabel* m_pOffsetLabel;
  NumericBox* m_pOffset;
};

}  // namespace vrek::qt
