#include "wizard/ctlSelectString.h"

#include "base/FormatReal.h"
#include "base/ST.h"
#include "design_data/CAligmentsDatas.h"
#include "shell/ErrHandler.h"

namespace vrek {
namespace {

constexpr std::string_view sNoStringLine = "----";

}  // namespace

std::string ctlSelectString::Tittle() const {
  return std::string(ST::Trim(frSelectStrLn.Caption));
}

void ctlSelectString::SetTittle(std::string_view sText) {
  frSelectStrLn.Caption = "   " + std::string(sText) + "   ";
}

void ctlSelectString::FillCombo(bool bWithEmptyItem) {
  if (Aligment == 0) return;
  Guard("FillCombo", [&] {
    const auto& StrLn = CAligmentsDatas::GetAligmentStrLn(Aligment);
    cmbStringline.Visible = false;
    cmbStringline.Items.clear();
    if (bWithEmptyItem) cmbStringline.Items.push_back({std::string(sNoStringLine), -1});
    for (int i = 1; i <= StrLn.nCount; ++i) {
      const auto& Line = StrLn.Lines.at(static_cast<std::size_t>(i));
      if (Line.nPrev == 0) cmbStringline.Items.push_back({Line.sName, i});
    }
    cmbStringline.Selected = cmbStringline.Items.empty() ? -1 : 0;
    cmbStringline.Visible = true;
    UpdateLabels();
  });
}

std::string ctlSelectString::SelectedString() const {
  return cmbStringline.Selected < 0
             ? std::string()
             : cmbStringline.Items.at(static_cast<std::size_t>(cmbStringline.Selected)).Text;
}

void ctlSelectString::SetSelectedString(std::string_view sName) {
  for (std::size_t n = 0; n < cmbStringline.Items.size(); ++n) {
    if (cmbStringline.Items[n].Text == sName) return cmbStringline_Click(static_cast<int>(n));
  }
}

int ctlSelectString::SelectedItemData() const {
  if (cmbStringline.Selected < 0) return -1;
  const auto& Item = cmbStringline.Items.at(static_cast<std::size_t>(cmbStringline.Selected));
  return Item.Text == sNoStringLine ? -1 : Item.ItemData;
}

void ctlSelectString::SetSelectedItemData(int nItemData) {
  for (std::size_t n = 0; n < cmbStringline.Items.size(); ++n) {
    if (cmbStringline.Items[n].ItemData == nItemData) return cmbStringline_Click(static_cast<int>(n));
  }
}

void ctlSelectString::cmbStringline_Click(int nIndex) {
  cmbStringline.Selected = nIndex;
  UpdateLabels();
}

void ctlSelectString::UpdateLabels() {
  TStringLine Line;
  const bool bFound = CAligmentsDatas::GetAligmentStrLnWithName(Aligment, SelectedString(), Line);
  lblInfo[0].Caption = bFound ? FormatReal(Line.dChainageStart, 4) : std::string(sNoStringLine);
  lblInfo[1].Caption = bFound ? FormatReal(Line.dChainageEnd, 4) : std::string(sNoStringLine);
}

}  // namespace vrek
