// The first rule: a point at the offset of a point of the section before continues its line.
//
// Groups are found in the order of walking all pairs of the two lists, This outside, Last inside, without
// walking them: in order of offset the Last points near a This point stand together, and so do those of a
// whole group, since its This points follow each other closer than the tolerance.
#include <algorithm>
#include <cmath>

#include "base/Checked.h"
#include "records/SurfacePoints.h"
#include "stringlines/Rules.h"

namespace vrek::CCrSec {
namespace {

// Places in the order of offset, from nFirst up to but without nEnd.
struct TRange {
  std::ptrdiff_t nFirst = 0;
  std::ptrdiff_t nEnd = 0;
};

std::vector<double> OffsetsInOrder(const TIndexes& aOrder, const TPoints& aPoints) {
  std::vector<double> aOffsets;
  aOffsets.reserve(aOrder.size());
  for (const int n : aOrder) aOffsets.push_back(aPoints[static_cast<std::size_t>(n)].dOffset);
  return aOffsets;
}

TRange Near(const std::vector<double>& aOffsets, double dOffset, double dTolerance) {
  const auto Left = [&](double d) { return dOffset - d >= dTolerance; };
  const auto NotRight = [&](double d) { return !(d - dOffset >= dTolerance); };
  const auto First = std::partition_point(aOffsets.begin(), aOffsets.end(), Left);
  return {First - aOffsets.begin(), std::partition_point(First, aOffsets.end(), NotRight) - aOffsets.begin()};
}

// Appends the points of a range that aren't in the group yet, in the order of their list.
void Join(TIndexes& aLast, TRange& Taken, const TRange& Range, const TIndexes& aOrder) {
  const auto nBefore = static_cast<std::ptrdiff_t>(aLast.size());
  for (auto n = Range.nFirst; n < std::min(Range.nEnd, Taken.nFirst); ++n)
    aLast.push_back(Checked::At(aOrder, n));
  for (auto n = std::max(Range.nFirst, Taken.nEnd); n < Range.nEnd; ++n)
    aLast.push_back(Checked::At(aOrder, n));
  std::sort(aLast.begin() + nBefore, aLast.end());
  Taken = {std::min(Taken.nFirst, Range.nFirst), std::max(Taken.nEnd, Range.nEnd)};
}

// Twice the tolerance would do; the third leaves no doubt to the rounding of the differences.
bool IsSpread(const TPoints& aPoints, double dTolerance) {
  for (std::size_t n = 1; n < aPoints.size(); ++n) {
    if (!(aPoints[n].dOffset - aPoints[n - 1].dOffset >= 3 * dTolerance)) return false;
  }
  return true;
}

// Both lists in order of offset and their points well apart, as on most roads: each group is one point to
// one, and the lists are gone through side by side. Gives how many were named.
std::size_t NameSpreadLists(TPoints& aThis, const TPoints& aLast, double dTolerance) {
  std::size_t nNamed = 0;
  auto Last = aLast.begin();
  for (TCrPoint& Point : aThis) {
    while (Last != aLast.end() && Point.dOffset - Last->dOffset >= dTolerance) ++Last;
    if (Last == aLast.end()) break;
    if (Last->dOffset - Point.dOffset >= dTolerance) continue;
    Point.sCode = Last->sCode;
    ++nNamed;
  }
  return nNamed;
}

}  // namespace

void NamesByDistance(TCrData& Cr, int nSection, int nSurface, double dTolerance) {
  TCrSurface& Surface = Checked::At(Checked::At(Cr.Sections, nSection).Surfaces, nSurface);
  const TThisAndLast Lists = GetPointThisAndLast(Cr, nSection, nSurface);
  std::size_t nNamed = 0;
  if (Lists && IsSpread(*Lists.pThis, dTolerance) && IsSpread(*Lists.pLast, dTolerance)) {
    nNamed = NameSpreadLists(*Lists.pThis, *Lists.pLast, dTolerance);
  } else if (Lists) {
    auto aGroups = GroupByDistance(*Lists.pThis, *Lists.pLast, dTolerance);
    nNamed = static_cast<std::size_t>(NameGroups(*Lists.pThis, *Lists.pLast, aGroups));
  } else {
    TCrLayer& Layer = Checked::At(Cr.Layers, Surface.nLayer);
    for (const TCrPoint& Point : Surface.Points) FindOrNewCode(Layer, Point);
    nNamed = Surface.Points.size();
  }
  if (nNamed == Surface.Points.size()) Surface.bDone = true;
}

std::vector<TSegment> GroupByDistance(const TPoints& aThis, const TPoints& aLast, double dTolerance) {
  const TIndexes aOrder = IndexesByOffset(aLast);
  const auto aOffsets = OffsetsInOrder(aOrder, aLast);
  std::vector<TSegment> aGroups;
  TRange Taken;
  double dGroup = 0;  // offset of the last This point of the group in hand
  for (std::size_t i = 0; i < aThis.size(); ++i) {
    const double dOffset = aThis[i].dOffset;
    const TRange Range = Near(aOffsets, dOffset, dTolerance);
    if (Range.nFirst >= Range.nEnd) continue;
    if (aGroups.empty() || std::fabs(dOffset - dGroup) >= dTolerance) {
      aGroups.emplace_back();
      Taken = {Range.nFirst, Range.nFirst};
    }
    aGroups.back().aThis.push_back(static_cast<int>(i));
    Join(aGroups.back().aLast, Taken, Range, aOrder);
    dGroup = dOffset;
  }
  return aGroups;
}

int NameGroups(TPoints& aThis, const TPoints& aLast, std::vector<TSegment>& aGroups) {
  std::size_t nNamed = 0;
  for (auto& [aThisIndexes, aLastIndexes] : aGroups) {
    if (aThisIndexes.size() != aLastIndexes.size()) continue;
    SortIndexesByHeight(aThisIndexes, aThis);
    SortIndexesByHeight(aLastIndexes, aLast);
    for (std::size_t n = 0; n < aThisIndexes.size(); ++n) {
      Checked::At(aThis, aThisIndexes[n]).sCode = Checked::At(aLast, aLastIndexes[n]).sCode;
    }
    nNamed += aThisIndexes.size();
  }
  return static_cast<int>(nNamed);
}

}  // namespace vrek::CCrSec
