// Which elements of an alignment two chainage limits leave. Elements are never cut: one that a limit falls
// into is written whole.
#pragma once

#include <algorithm>

#include "base/NotGiven.h"
#include "records/Elements.h"

namespace vrek::CLandXML {

/// Indexes of the first and last element to write; the first may lie behind the last.
struct TElementRange {
  int nFirst = 1;
  int nLast = 0;
};

/// The elements of an array with at least one.
///
/// Find    FindHzElement or FindVtElement.
/// nExtra  how many elements are taken behind the one that holds dChEnd.
template <class TElements, class TFind>
TElementRange ChooseElements(const TElements& aItems, double dChStart, double dChEnd, TFind Find,
                             int nExtra) {
  TElementRange Range{1, UpperBound(aItems)};
  if (IsGiven(dChStart) && dChStart > aItems[1].dChainage) Range.nFirst = Find(dChStart, aItems);
  if (IsGiven(dChEnd) && dChEnd < aItems.back().dChainage) {
    Range.nLast = std::min(Find(dChEnd, aItems) + nExtra, Range.nLast);
  }
  return Range;
}

}  // namespace vrek::CLandXML
