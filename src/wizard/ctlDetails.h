// ctlDetails: the descriptive fields of a conversion. No job puts this page into its sequence.
#pragma once

#include <array>
#include <string_view>

#include "wizard/Parts.h"

namespace vrek {

class ctlDetails {
 public:
  void UpdateText();

  std::string& RoadDataName() { return txtData[0].Text; }
  std::string& Description() { return txtData[1].Text; }
  std::string& Creator() { return txtData[2].Text; }
  void ShowVersion(bool bShow);
  /// Appends an entry and selects the first.
  void AddVersion(std::string_view sName);

  TPart frDetails;
  std::array<TPart, 4> lblData;
  std::array<TTextBox, 3> txtData;
  TListBox cmbVersion;
};

}  // namespace vrek
