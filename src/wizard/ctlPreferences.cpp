#include "wizard/ctlPreferences.h"

#include "shell/AppModel.h"

namespace vrek {

void ctlPreferences::UpdateText() {
  frPreferences.Caption = AppModel().GetToken("FR_PREFERENCES");
  frTolerances.Caption = AppModel().GetToken("FR_PRE_TOLERANCES");
  lblTolerance[0].Caption = AppModel().GetToken("LBL_PRE_TOL_HZ");
  lblTolerance[1].Caption = AppModel().GetToken("LBL_PRE_TOL_VT");
  lblChOffset.Caption = AppModel().GetToken("LBL_PRE_CHOFFSET");
  frVersion.Caption = lblVersion.Caption = AppModel().GetToken("LBL_DET_VERSION");
}

std::string ctlPreferences::Version() const {
  const auto nSelected = static_cast<std::size_t>(cmbVersion.Selected);
  return cmbVersion.Selected < 0 ? std::string() : cmbVersion.Items.at(nSelected).Text;
}

void ctlPreferences::ShowVersion(bool bShow) {
  frVersion.Visible = cmbVersion.Visible = lblVersion.Visible = bShow;
}

void ctlPreferences::AddVersion(std::string_view sName) {
  cmbVersion.Items.push_back({std::string(sName)});
}

bool ctlPreferences::RefreshDefaultVersion() {
  if (cmbVersion.Items.empty()) return false;
  cmbVersion.Selected = 0;
  for (std::size_t n = 0; n < cmbVersion.Items.size(); ++n) {
    if (cmbVersion.Items[n].Text != DefaultVersion) continue;
    cmbVersion.Selected = static_cast<int>(n);
    return true;
  }
  return false;
}

}  // namespace vrek
