#include "wizard/ctlDetails.h"

#include "shell/AppModel.h"

namespace vrek {

void ctlDetails::UpdateText() {
  frDetails.Caption = AppModel().GetToken("FR_DETAILS");
  lblData[0].Caption = AppModel().GetToken("LBL_DET_NAME");
  lblData[1].Caption = AppModel().GetToken("LBL_DET_DESC");
  lblData[2].Caption = AppModel().GetToken("LBL_DET_CREATOR");
  lblData[3].Caption = AppModel().GetToken("LBL_DET_VERSION");
}

void ctlDetails::ShowVersion(bool bShow) {
  lblData[3].Visible = cmbVersion.Visible = bShow;
}

void ctlDetails::AddVersion(std::string_view sName) {
  cmbVersion.Items.push_back({std::string(sName)});
  cmbVersion.Selected = 0;
}

}  // namespace vrek
