#include "stringlines/PointModel.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "base/Checked.h"

namespace vrek::CCrSec {
namespace {

constexpr double dFarthest = 900000000000000.0;
constexpr double dTie = 0.0001;

// Stable sort that leaves a list in order alone: most lists are.
template <class TList, class TLess>
void SortIfNeeded(TList& aList, TLess Less) {
  if (!std::is_sorted(aList.begin(), aList.end(), Less)) std::stable_sort(aList.begin(), aList.end(), Less);
}

const TCrPoint& PointAt(const TPoints& aPoints, int n) {
  return aPoints[static_cast<std::size_t>(n)];
}

}  // namespace

TThisAndLast GetPointThisAndLast(TCrData& Cr, int nSection, int nSurface) {
  if (nSection < 1) return {};
  TThisAndLast Lists;
  return LogOnFailure("GetPointThisAndLast", Lists, [&] {
    auto& Surface = Checked::At(Checked::At(Cr.Sections, nSection).Surfaces, nSurface);
    Lists.pThis = &Surface.Points;
    auto& aBefore = Checked::At(Cr.Sections, nSection - 1).Surfaces;
    if (aBefore.empty()) Raise(Error::nSubscript);
    const int nBefore = FindSurface(Surface.nLayer, aBefore);
    if (nBefore >= 0) Lists.pLast = &Checked::At(aBefore, nBefore).Points;
    return Lists;
  });
}

int FindSurface(std::uint8_t nLayer, const std::vector<TCrSurface>& aSurfaces) {
  for (std::size_t n = 0; n < aSurfaces.size(); ++n) {
    if (aSurfaces[n].nLayer == nLayer) return static_cast<int>(n);
  }
  return -1;
}

int Sign(double dValue) {
  return (dValue > 0) - (dValue < 0);
}

bool IsSameSide(double dA, double dB) {
  const int nA = Sign(dA);
  const int nB = Sign(dB);
  return nA + nB != 0 || (nA == 0 && nB == 0);
}

TIndexes FindNearest(const TIndexes& aList, double dOffset, const TPoints& aPoints, bool bWithContinue,
                     bool bSameSide) {
  TIndexes aFound;
  double dBest = dFarthest;
  for (const int n : aList) {
    const TCrPoint& Candidate = PointAt(aPoints, n);
    if (Candidate.bContinue && !bWithContinue) continue;
    if (bSameSide && !IsSameSide(Candidate.dOffset, dOffset)) continue;
    const double dDistance = std::fabs(Candidate.dOffset - dOffset);
    if (dDistance < dBest) {
      dBest = dDistance;
      if (aFound.empty()) aFound.push_back(n);
      aFound.front() = n;
    } else if (std::fabs(dDistance - dBest) >= dTie) {
      break;
    } else {
      aFound.push_back(n);
    }
  }
  return aFound;
}

int CountUnnamed(const TPoints& aPoints) {
  return static_cast<int>(std::count_if(aPoints.begin(), aPoints.end(),
                                        [](const TCrPoint& Point) { return Point.sCode.empty(); }));
}

void SortCrSecByDistToCL(TPoints& aPoints) {
  SortIfNeeded(aPoints, [](const TCrPoint& A, const TCrPoint& B) { return A.dOffset < B.dOffset; });
}

void SortNearestPoints(std::vector<TNearest>& aNearest) {
  SortIfNeeded(aNearest, [](const TNearest& A, const TNearest& B) {
    return std::fabs(A.dDistance) < std::fabs(B.dDistance);
  });
}

void SortIndexesByHeight(TIndexes& aIndexes, const TPoints& aPoints) {
  SortIfNeeded(aIndexes,
               [&](int a, int b) { return PointAt(aPoints, a).dHeight < PointAt(aPoints, b).dHeight; });
}

void SortIndexesByOffset(TIndexes& aIndexes, const TPoints& aPoints) {
  SortIfNeeded(aIndexes,
               [&](int a, int b) { return PointAt(aPoints, a).dOffset < PointAt(aPoints, b).dOffset; });
}

TIndexes IndexesByOffset(const TPoints& aPoints) {
  TIndexes aOrder(aPoints.size());
  std::iota(aOrder.begin(), aOrder.end(), 0);
  SortIndexesByOffset(aOrder, aPoints);
  return aOrder;
}

}  // namespace vrek::CCrSec
