#include "wizard/ctlProgress.h"

#include "shell/AppModel.h"

namespace vrek {
namespace {

void ProcessMessages() {
  if (auto* pEvents = AppModel().Platform().pEvents) pEvents->ProcessMessages();
}

}  // namespace

void ctlProgress::Tittle(std::string_view sText) {
  frProgress.Caption = "    " + std::string(sText) + "    ";
  ProcessMessages();
}

void ctlProgress::Info(std::string_view sText) {
  lblInfo.Caption = sText;
  ProcessMessages();
}

void ctlProgress::ShowCancel(bool bShow) {
  cmbCancel.Visible = bShow;
  ProcessMessages();
}

void ctlProgress::ShowProgressBar(bool bShow) {
  ProgressBar.Visible = bShow;
  ProcessMessages();
}

void ctlProgress::SetRanges(double dMin, double dMax) {
  m_dScale = dMax - dMin == 0 ? 1 : dBarMax / (dMax - dMin);
  ProgressBar.Value = 0;
  ProgressBar.Visible = true;
}

void ctlProgress::SetValue(double dValue) {
  const double dBar = dValue * m_dScale;
  if (dBar >= 0 && dBar <= dBarMax) ProgressBar.Value = dBar;
  ProcessMessages();
}

void ctlProgress::Reset() {
  m_bCancelPressed = false;
  cmbCancel.Visible = false;
  ProgressBar.Visible = false;
  frProgress.Caption.clear();
  lblInfo.Caption.clear();
}

void ctlProgress::UpdateText() {
  cmbCancel.Caption = AppModel().GetToken("BT_CANCEL");
}

}  // namespace vrek
