// From a chainage to the element that holds it.
#include <algorithm>

#include "geometry/Alg.h"

namespace vrek::Alg {
namespace {

template <class TElements>
int FindElement(double dChainage, const TElements& aElements) {
  for (int i = 1; i <= UpperBound(aElements); ++i) {
    const double dStart = aElements[static_cast<std::size_t>(i)].dChainage;
    if (dChainage < dStart) return std::max(i - 1, 1);
    if (dChainage == dStart) return i;
  }
  return UpperBound(aElements);
}

}  // namespace

int FindHzElement(double dChainage, const THzElements& aHz) {
  return FindElement(dChainage, aHz);
}

int FindHzElementInOrder(double dChainage, const THzElements& aHz) {
  if (UpperBound(aHz) < 1) return UpperBound(aHz);
  const auto Starts = [](const THzElement& Element, double d) { return Element.dChainage < d; };
  const auto Lower = std::lower_bound(aHz.begin() + 1, aHz.end(), dChainage, Starts);
  const int i = static_cast<int>(Lower - aHz.begin());
  if (Lower == aHz.end()) return i - 1;
  return Lower->dChainage == dChainage ? i : std::max(i - 1, 1);
}

int FindVtElement(double dChainage, const TVtElements& aVt) {
  return FindElement(dChainage, aVt);
}

}  // namespace vrek::Alg
