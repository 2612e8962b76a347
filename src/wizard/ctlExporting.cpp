#include "wizard/ctlExporting.h"

#include "base/FormatReal.h"
#include "base/ST.h"
#include "shell/AppModel.h"

namespace vrek {

void ctlExporting::UpdateText() {
  frExporting.Caption = AppModel().GetToken("FR_EXPORTING");
  frChainages.Caption = AppModel().GetToken("FR_EXP_CH_RANGE");
  lblChainage[0].Caption = AppModel().GetToken("LBL_EXP_FROM_CH");
  lblChainage[1].Caption = AppModel().GetToken("LBL_EXP_TO_CH");
  frLayers.Caption = AppModel().GetToken("FR_EXP_LAYERS");
  cmdSelect[0].Caption = AppModel().GetToken("CMD_EXP_SELECT_ALL");
  cmdSelect[1].Caption = AppModel().GetToken("CMD_EXP_UNSELECT_ALL");
}

double ctlExporting::ChainageStart() const {
  return ST::ParseReal(txtChainage[0].Text);
}
void ctlExporting::SetChainageStart(double dValue) {
  txtChainage[0].Text = FormatReal(dValue, 3);
}
double ctlExporting::ChainageEnd() const {
  return ST::ParseReal(txtChainage[1].Text);
}
void ctlExporting::SetChainageEnd(double dValue) {
  txtChainage[1].Text = FormatReal(dValue, 3);
}

void ctlExporting::AddLayer(std::string_view sLayername, int lItemData) {
  lstLayers.Items.push_back(
      {std::string(sLayername), static_cast<int>(lstLayers.Items.size()), lItemData < 0});
  if (lItemData < 0) return;
  // By text: a list may place its entries where it likes, and the first of a name takes the number.
  for (auto& Item : lstLayers.Items) {
    if (Item.Text != sLayername) continue;
    Item.ItemData = lItemData;
    Item.Checked = true;
    return;
  }
}

bool ctlExporting::IsLayerActive(int nItem) const {
  const auto n = static_cast<std::size_t>(nItem);
  return nItem >= 0 && n < lstLayers.Items.size() && lstLayers.Items[n].Checked;
}

std::string ctlExporting::GetSelectedLayers() const {
  std::string sOut;
  for (const auto& Item : lstLayers.Items) {
    if (Item.Checked) sOut += "$" + Item.Text;
  }
  sOut += "$";
  return sOut == "$" ? "__None__" : sOut;
}

std::string ctlExporting::GetSelectedLayersIdx() const {
  std::string sOut;
  for (const auto& Item : lstLayers.Items) {
    if (Item.Checked) sOut += "$" + std::to_string(Item.ItemData);
  }
  return sOut.empty() ? sOut : sOut + "$";
}

void ctlExporting::cmdSelect_Click(int nIndex) {
  for (auto& Item : lstLayers.Items) Item.Checked = nIndex == 0;
}

void ctlExporting::lstLayers_ItemCheck(int nItem, bool bChecked) {
  if (nItem >= 0 && nItem < static_cast<int>(lstLayers.Items.size())) {
    lstLayers.Items[static_cast<std::size_t>(nItem)].Checked = bChecked;
  }
}

}  // namespace vrek
