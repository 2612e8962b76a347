// Checked arithmetic and subscripts: faults that the machine does not report by itself become failures.
#pragma once

#include <cmath>
#include <cstddef>

#include "base/Failure.h"

namespace vrek::Checked {

/// The value itself. Not finite: failure 6.
inline double Finite(double dValue) {
  if (!std::isfinite(dValue)) Raise(Error::nOverflow);
  return dValue;
}

/// dNumerator / dDenominator. A denominator of 0, 0/0 too: failure 11; a result that isn't finite: failure 6.
inline double Divide(double dNumerator, double dDenominator) {
  if (dDenominator == 0) Raise(Error::nDivisionByZero);
  return Finite(dNumerator / dDenominator);
}

/// The square root. A negative value: failure 5; a result that isn't finite: failure 6.
inline double Sqrt(double dValue) {
  if (dValue < 0) Raise(Error::nInvalidCall);
  return Finite(std::sqrt(dValue));
}

/// Element nIndex of an array. Outside it, also below 0: failure 9.
template <class TArray>
auto& At(TArray& aItems, std::ptrdiff_t nIndex) {
  if (nIndex < 0 || nIndex >= static_cast<std::ptrdiff_t>(aItems.size())) Raise(Error::nSubscript);
  return aItems[static_cast<std::size_t>(nIndex)];
}

}  // namespace vrek::Checked
