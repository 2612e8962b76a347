// ctlPreferences: the Preferences page: the tolerances of the continuity checks, metres.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "wizard/Parts.h"
#include "wizard/ctlNumericText.h"

namespace vrek {

class ctlPreferences {
 public:
  void UpdateText();

  double ToleranceHz() const { return ctlTolerance[0].NumericValue(); }
  void SetToleranceHz(double dValue) { ctlTolerance[0].SetNumericValue(dValue); }
  double ToleranceVt() const { return ctlTolerance[1].NumericValue(); }
  void SetToleranceVt(double dValue) { ctlTolerance[1].SetNumericValue(dValue); }
  double ChOffset() const { return ctlChOffset.NumericValue(); }

  /// Text of the version on show; empty while the list has no entries.
  std::string Version() const;
  void ShowVersion(bool bShow);
  void AddVersion(std::string_view sName);
  /// Selects the entry equal to DefaultVersion, else the first. False when it isn't there or the list is
  /// empty.
  bool RefreshDefaultVersion();

  std::string DefaultVersion;
  TPart frPreferences, frTolerances, lblChOffset, frVersion, lblVersion;
  std::array<TPart, 2> lblTolerance;
  std::array<ctlNumericText, 2> ctlTolerance;
  ctlNumericText ctlChOffset;
  TListBox cmbVersion;
};

}  // namespace vrek
