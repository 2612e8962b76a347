// The third rule: unnamed points between two named ones (anchors) continue the lines that stand between the
// same two codes in the section before.
//
//   Last   A   b   c       D
//   This   A     x    y    D     segment: This {x, y}, Last {b, c}
#include <algorithm>
#include <optional>

#include "base/Checked.h"
#include "stringlines/Rules.h"

namespace vrek::CCrSec {
namespace {

/// The points of a list in order of offset, and where in that order each code stands first.
class COffsetOrder {
 public:
  explicit COffsetOrder(const TPoints& aPoints) : m_aPoints(aPoints), m_aOrder(IndexesByOffset(aPoints)) {
    m_aFirst.reserve(m_aOrder.size());
    for (std::size_t n = 0; n < m_aOrder.size(); ++n) m_aFirst.emplace_back(CodeAt(n).nIndex, n);
    std::sort(m_aFirst.begin(), m_aFirst.end());
  }

  /// What lies behind the first point coded A and before the first coded B. Points coded A aren't taken.
  /// Empty when a code is missing, when B comes first, and when both are the same.
  TIndexes PointsBetweenCodes(TCode sA, TCode sB) const {
    TIndexes aTaken;
    const auto nEnd = PlaceOf(sB);
    const auto nStart = PlaceOf(sA);
    if (!nStart || !nEnd) return aTaken;
    for (std::size_t n = *nStart + 1; n < *nEnd; ++n) {
      if (CodeAt(n) != sA) aTaken.push_back(m_aOrder[n]);
    }
    return aTaken;
  }

 private:
  TCode CodeAt(std::size_t nPlace) const { return Checked::At(m_aPoints, m_aOrder[nPlace]).sCode; }

  std::optional<std::size_t> PlaceOf(TCode sCode) const {
    const auto it =
        std::lower_bound(m_aFirst.begin(), m_aFirst.end(), std::pair(sCode.nIndex, std::size_t{0}));
    if (it == m_aFirst.end() || it->first != sCode.nIndex) return std::nullopt;
    return it->second;
  }

  const TPoints& m_aPoints;
  TIndexes m_aOrder;
  std::vector<std::pair<std::uint32_t, std::size_t>> m_aFirst;  // code and place, in order
};

TIndexes ListNamedPoints(const TPoints& aPoints) {
  TIndexes aNamed;
  for (std::size_t n = 0; n < aPoints.size(); ++n) {
    if (!aPoints[n].sCode.empty()) aNamed.push_back(static_cast<int>(n));
  }
  return aNamed;
}

TIndexes IndexesBetween(int nFrom, int nTo) {
  TIndexes aBetween;
  for (int n = nFrom + 1; n < nTo; ++n) aBetween.push_back(n);
  return aBetween;
}

void NameSegment(TPoints& aThis, const TPoints& aLast, const TSegment& Segment) {
  const auto nThis = Segment.aThis.size();
  const auto nLast = Segment.aLast.size();
  if (nThis == 0 || nLast == 0) return;  // nothing to continue: left to NamesToRest
  if (nThis == 1 && nLast == 1) {
    Checked::At(aThis, Segment.aThis.front()).sCode = Checked::At(aLast, Segment.aLast.front()).sCode;
  } else if (nThis == 1) {
    OneToSeveral(aThis, Segment.aThis.front(), aLast, Segment.aLast);
  } else if (nLast == 1) {
    SeveralToOne(aLast, Segment.aLast.front(), aThis, Segment.aThis);
  } else {
    SeveralToSeveral(aThis, Segment.aThis, aLast, Segment.aLast);
  }
}

}  // namespace

void NamesByProximity(TCrData& Cr, int nSection, int nSurface) {
  if (Checked::At(Checked::At(Cr.Sections, nSection).Surfaces, nSurface).bDone) return;
  const TThisAndLast Lists = GetPointThisAndLast(Cr, nSection, nSurface);
  if (!Lists) return;
  for (const auto& Segment : GetSegments(*Lists.pThis, *Lists.pLast))
    NameSegment(*Lists.pThis, *Lists.pLast, Segment);
  SortCrSecByDistToCL(*Lists.pThis);
  SortCrSecByDistToCL(*Lists.pLast);
}

std::vector<TSegment> GetSegments(const TPoints& aThis, const TPoints& aLast) {
  return LogOnFailure("GetSegments", std::vector<TSegment>{}, [&] {
    std::vector<TSegment> aSegments;
    std::optional<COffsetOrder> Order;
    const TIndexes aAnchors = ListNamedPoints(aThis);
    for (std::size_t n = 1; n < aAnchors.size(); ++n) {
      const int nA = aAnchors[n - 1];
      const int nB = aAnchors[n];
      if (nB - nA < 2) continue;
      if (!Order) Order.emplace(aLast);
      aSegments.push_back({IndexesBetween(nA, nB), Order->PointsBetweenCodes(Checked::At(aThis, nA).sCode,
                                                                             Checked::At(aThis, nB).sCode)});
    }
    return aSegments;
  });
}

void OneToSeveral(TPoints& aThis, int nThis, const TPoints& aLast, const TIndexes& aLastIndexes) {
  const double dOffset = Checked::At(aThis, nThis).dOffset;
  // The nearest Last points on this side of the axis
  const TIndexes aFound = FindNearest(aLastIndexes, dOffset, aLast, true, true);
  if (aFound.empty()) return;
  // The line of the nearest goes on here
  Checked::At(aThis, nThis).sCode = Checked::At(aLast, aFound.front()).sCode;
  // That of a tie, too: a phantom marks it
  for (std::size_t n = 1; n < aFound.size(); ++n) {
    TCrPoint Phantom = Checked::At(aThis, nThis);
    Phantom.sCode = Checked::At(aLast, aFound[n]).sCode;
    Phantom.sLink = {};
    Phantom.bContinue = Phantom.bPhantom = true;
    aThis.push_back(Phantom);
  }
}

void SeveralToOne(const TPoints& aLast, int nLast, TPoints& aThis, const TIndexes& aThisIndexes) {
  const TCrPoint& Last = Checked::At(aLast, nLast);
  // The nearest This points, on either side
  const TIndexes aFound = FindNearest(aThisIndexes, Last.dOffset, aThis, false, false);
  if (aFound.empty()) return;
  // The nearest goes on
  Checked::At(aThis, aFound.front()).sCode = Last.sCode;
  // A tie will start a line that branches off
  for (std::size_t n = 1; n < aFound.size(); ++n) Checked::At(aThis, aFound[n]).sLink = Last.sCode;
}

}  // namespace vrek::CCrSec
