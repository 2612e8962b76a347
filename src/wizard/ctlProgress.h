// ctlProgress: the panel that lies over the page area while long work runs. Its writers let the window
// process its messages, which keeps the panel painted and its Cancel button alive while the one thread works.
#pragma once

#include "platform/Progress.h"
#include "wizard/Parts.h"

namespace vrek {

class ctlProgress final : public IProgress {
 public:
  static constexpr double dBarMax = 32767;

  void Tittle(std::string_view sText) override;
  void Info(std::string_view sText) override;
  void ShowCancel(bool bShow) override;
  void ShowProgressBar(bool bShow) override;
  /// Maps dMin..dMax onto the bar; SetValue doesn't subtract dMin.
  void SetRanges(double dMin, double dMax) override;
  /// A value outside the bar's range leaves the bar as it was.
  void SetValue(double dValue) override;
  bool CancelPressed() const override { return m_bCancelPressed || m_bCancelAll; }
  void Reset() override;
  void UpdateText();

  void cmbCancel_Click() { m_bCancelPressed = true; }
  /// The program is to end: Cancel counts as pressed from now on, whatever Reset clears.
  void CancelAll() { m_bCancelAll = true; }

  bool Visible = false;
  TPart frProgress, lblInfo;
  TPart cmbCancel{.Visible = false};
  struct {
    double Value = 0;
    bool Visible = false;
  } ProgressBar;

 private:
  bool m_bCancelPressed = false;  // since the last Reset
  bool m_bCancelAll = false;
  double m_dScale = 1;  // bar units per unit of value
};

}  // namespace vrek
