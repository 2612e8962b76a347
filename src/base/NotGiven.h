// The mark of a number that wasn't given: a chainage limit, a value of a finding, a failed projection.
#pragma once

namespace vrek {

inline constexpr double dNotGiven = -9999999.9999;

/// True unless the value is the mark, compared for exact equality.
inline bool IsGiven(double dValue) {
  return dValue != dNotGiven;
}

}  // namespace vrek
