// ctlNumericText: a text box for a number, with a unit label beside it.
#pragma once

#include <string>
#include <string_view>

#include "wizard/Parts.h"

namespace vrek {

class ctlNumericText {
 public:
  /// ParseReal of the text; 0 when it is empty.
  double NumericValue() const;
  /// The value with DecimalPlaces decimals.
  void SetNumericValue(double dValue);
  void SetNumericValue(double dValue, int nDigits);
  void SetEmpty();

  /// What becomes of a key before it enters the box: the character to insert, or 0 for a key that is
  /// swallowed.
  static int FilterKey(int nKey);

  /// The text has changed: keeps it, without blanks at its ends, when it is the beginning of a number;
  /// otherwise the last valid text comes back. cDecimal and cThousands: the machine's separators. Gives
  /// whether it was kept.
  bool txtNumber_Change(std::string_view sText, char cDecimal = '.', char cThousands = ',');

  TTextBox txtNumber;
  TPart lblUnit{.Caption = "m."};
  int DecimalPlaces = 3;

 private:
  std::string m_sLastValid;
};

}  // namespace vrek
