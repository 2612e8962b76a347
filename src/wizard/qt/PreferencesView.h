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
  struct TRow {
    QLabel* pLabel;
    NumericBox* pBox;
  };
  TRow MakeRow(ctlNumericText& Number, const QString& sObjectName, QWidget* pParent);
  static void RenderRow(const TRow& Row, const TPart& lblRow);

  ctlPreferences& m_Control;
  QGroupBox* m_pFrame;
  QGroupBox* m_pTolerances;
  std::array<TRow, 2> m_aTolerances;
  TRow m_Offset;
  QGroupBox* m_pVersionFrame;
  QLabel* m_pVersionLabel;
  QComboBox* m_pVersion;
};

}  // namespace vrek::qt
