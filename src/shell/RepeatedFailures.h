// A failure that a loop meets again and again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <tuple>

#include "base/Failure.h"

namespace vrek {

/// While one of these lives, ErrHandler shows and logs a failure the first time only; the same failure again
/// (number, source and description) is counted. Its end logs how often each came again. For loops over
/// samples or rows, of which one fault of a file can fail a million: nobody closes that many boxes, and no
/// log holds them. One inside another leaves the work to the outer one.
class CRepeatedFailures {
 public:
  CRepeatedFailures();
  CRepeatedFailures(const CRepeatedFailures&) = delete;
  CRepeatedFailures& operator=(const CRepeatedFailures&) = delete;
  ~CRepeatedFailures();

  /// Counts a failure; whether it is to be told: the first of its kind, or no loop is watched.
  static bool IsNews(const Failure& Error);

 private:
  using TKey = std::tuple<std::int32_t, std::string, std::string>;
  std::map<TKey, std::size_t> m_aAgain;
  bool m_bOutermost;
};

}  // namespace vrek
