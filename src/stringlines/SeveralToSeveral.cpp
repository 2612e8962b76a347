// Several points of this section against several of the one before. As many on both sides are paired by their
// place in the lists; else the pair with the smallest difference of offset is settled first, and each point
// of the shorter side is given out once.
#include <algorithm>
#include <cmath>

#include "base/Checked.h"
#include "stringlines/Rules.h"

namespace vrek::CCrSec {
namespace {

/// Finds what FindNearest puts first, for many offsets against one list: by bisection where the list is in
/// order.
class CNearestFinder {
 public:
  CNearestFinder(const TPoints& aPoints, const TIndexes& aList, bool bWithContinue, bool bSameSide)
      : m_aPoints(aPoints), m_bSameSide(bSameSide) {
    for (const int n : aList) {
      const TCrPoint& Point = Checked::At(aPoints, n);
      if (Point.bContinue && !bWithContinue) continue;
      m_aList.push_back(n);
      m_aOffsets.push_back(Point.dOffset);
    }
    m_bInOrder = std::is_sorted(m_aOffsets.begin(), m_aOffsets.end());
  }

  /// The nearest point's index; -1 if there is none.
  int Find(double dOffset) const {
    if (m_aList.empty()) return -1;
    if (m_bInOrder && IsWithinReach(dOffset)) return FindInOrder(dOffset);
    const TIndexes aFound = FindNearest(m_aList, dOffset, m_aPoints, true, m_bSameSide);
    return aFound.empty() ? -1 : aFound.front();
  }

 private:
  // The walk starts from a best distance that it takes for farther than any point.
  bool IsWithinReach(double dOffset) const {
    constexpr double dReach = 800000000000000.0;
    return std::fabs(m_aOffsets.front() - dOffset) < dReach &&
           std::fabs(m_aOffsets.back() - dOffset) < dReach;
  }

  // In order of offset the distances fall up to the offset and rise behind it: the nearest is the last one
  // before the offset, or the first behind it if that is nearer. Of equal distances the first in the list
  // counts.
  int FindInOrder(double dOffset) const {
    auto Begin = m_aOffsets.begin();
    auto End = m_aOffsets.end();
    if (m_bSameSide && dOffset > 0) Begin = std::lower_bound(Begin, End, 0.0);
    if (m_bSameSide && dOffset < 0) End = std::upper_bound(Begin, End, 0.0);
    if (Begin == End) return -1;
    const auto Behind = std::lower_bound(Begin, End, dOffset);
    if (Behind == Begin) return IndexAt(Begin);
    const double dLeft = dOffset - *(Behind - 1);
    if (Behind != End && *Behind - dOffset < dLeft) return IndexAt(Behind);
    return IndexAt(std::partition_point(Begin, Behind, [&](double d) { return dOffset - d > dLeft; }));
  }

  int IndexAt(std::vector<double>::const_iterator Place) const {
    return m_aList[static_cast<std::size_t>(Place - m_aOffsets.begin())];
  }

  const TPoints& m_aPoints;
  bool m_bSameSide;
  bool m_bInOrder = true;
  TIndexes m_aList;
  std::vector<double> m_aOffsets;
};

void PairByPlace(TPoints& aThis, const TIndexes& aThisIndexes, const TPoints& aLast,
                 const TIndexes& aLastIndexes) {
  for (std::size_t n = 0; n < aThisIndexes.size(); ++n) {
    TCrPoint& This = Checked::At(aThis, aThisIndexes[n]);
    const TCrPoint& Last = Checked::At(aLast, aLastIndexes[n]);
    if (IsSameSide(This.dOffset, Last.dOffset)) This.sCode = Last.sCode;
  }
}

// Hands out the pairs from the nearest on; Take(point, candidate) for each candidate that is still free.
template <class TTake>
void NearestFirst(std::vector<TNearest> aNearest, std::size_t nTargets, TTake Take) {
  SortNearestPoints(aNearest);
  std::vector<bool> aUsed(nTargets);
  for (const auto& [nPoint, nCandidate, dDistance] : aNearest) {
    const auto nTarget = static_cast<std::size_t>(nCandidate);
    if (!IsGiven(dDistance) || aUsed.at(nTarget)) continue;
    Take(nPoint, nCandidate);
    aUsed[nTarget] = true;
  }
}

}  // namespace

void SeveralToSeveral(TPoints& aThis, const TIndexes& aThisIndexes, const TPoints& aLast,
                      const TIndexes& aLastIndexes) {
  const auto Continue = [&](int nThis, int nLast) {
    Checked::At(aThis, nThis).sCode = Checked::At(aLast, nLast).sCode;
  };
  Guard("SeveralToSeveral", [&] {
    if (aThisIndexes.size() == aLastIndexes.size()) {
      PairByPlace(aThis, aThisIndexes, aLast, aLastIndexes);
    } else if (aLastIndexes.size() > aThisIndexes.size()) {  // some lines end here
      NearestFirst(MatchNearest(aThis, aThisIndexes, aLast, aLastIndexes, false, true), aThis.size(),
                   [&](int nLast, int nThis) { Continue(nThis, nLast); });
    } else {  // some lines begin here
      NearestFirst(MatchNearest(aLast, aLastIndexes, aThis, aThisIndexes, true, true), aLast.size(),
                   Continue);
    }
  });
}

std::vector<TNearest> MatchNearest(const TPoints& aTargets, const TIndexes& aTargetIndexes,
                                   const TPoints& aSources, const TIndexes& aSourceIndexes,
                                   bool bWithContinue, bool bSameSide) {
  const CNearestFinder Finder(aTargets, aTargetIndexes, bWithContinue, bSameSide);
  std::vector<TNearest> aNearest;
  for (const int nSource : aSourceIndexes) {
    const double dOffset = Checked::At(aSources, nSource).dOffset;
    const int nTarget = Finder.Find(dOffset);
    if (nTarget < 0) continue;
    aNearest.push_back({nSource, nTarget, Checked::Finite(dOffset - Checked::At(aTargets, nTarget).dOffset)});
  }
  return aNearest;
}

}  // namespace vrek::CCrSec
