// ctlSelectString: one selector of a stringline of an alignment.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "wizard/Parts.h"

namespace vrek {

class ctlSelectString {
 public:
  /// The list got the focus.
  std::function<void()> OnFocus;

  int Aligment = 0;  ///< number of the alignment whose stringlines are offered; 0 for none

  std::string Tittle() const;
  void SetTittle(std::string_view sText);
  /// Offers the stringlines that continue no other and have no chain, "----" first where asked for.
  void FillCombo(bool bWithEmptyItem);
  std::string SelectedString() const;
  void SetSelectedString(std::string_view sName);
  /// Number of the stringline on show; -1 for none or "----".
  int SelectedItemData() const;
  void SetSelectedItemData(int nItemData);

  // What a person does.
  void cmbStringline_Click(int nIndex);
  void cmbStringline_GotFocus() const {
    if (OnFocus) OnFocus();
  }

  bool Visible = true;
  TPart frSelectStrLn{.Caption = "   Select Stringline   "};
  TListBox cmbStringline;
  std::array<TPart, 2> lblInfo;  ///< first and last chainage of the stringline

 private:
  void UpdateLabels();
};

}  // namespace vrek
