// Look-ups for many questions to one alignment: by chainage through bisection where the array is in order of
// chainage, the nearest vertex through an order in the plane. The answers are those of the plain walks, to
// the last bit; an array that isn't in order is walked.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "geometry/GM.h"
#include "records/Elements.h"

namespace vrek::Alg {

/// Whether the elements from 1 on never fall back in chainage.
template <class TElements>
bool IsInOrder(const TElements& aElements) {
  return aElements.size() < 3 ||
         std::is_sorted(aElements.begin() + 1, aElements.end(),
                        [](const auto& a, const auto& b) { return a.dChainage < b.dChainage; });
}

/// Index over a plan. The array must outlive it and stay as it is. Building it takes the time of a sort.
class CHzIndex {
 public:
  explicit CHzIndex(const THzElements& aHz);
  explicit CHzIndex(THzElements&&) = delete;

  const THzElements& Elements() const { return *m_pHz; }
  bool InOrder() const { return m_bInOrder; }

  /// The last element that starts at or before a chainage (of several that start right there, the first);
  /// only for an array in order whose first element starts at or before the chainage.
  int ElementToEvaluate(double dChainage) const;

  /// As Alg::FindNearestVertex over all elements.
  int NearestVertex(const THzPoint& Point) const;

 private:
  double Along(const THzPoint& Point) const { return m_bByX ? Point.dX : Point.dY; }

  const THzElements* m_pHz;
  bool m_bInOrder;
  bool m_bByX;                                   // the plan reaches farther in X than in Y
  std::vector<std::pair<double, int>> m_aAlong;  // coordinate on that axis, element; sorted
};

/// Index over a profile, for GetHeightAtChainage. The array must outlive it and stay as it is.
class CVtIndex {
 public:
  explicit CVtIndex(const TVtElements& aVt) : m_pVt(&aVt), m_bInOrder(IsInOrder(aVt)) {}
  explicit CVtIndex(TVtElements&&) = delete;
  /// As GM::GetHeightAtChainage.
  double Height(double dChainage) const;

 private:
  const TVtElements* m_pVt;
  bool m_bInOrder;
};

/// As the routines of the same names over arrays; the projection of a point over all elements.
bool GetCoordFromHzAligment(const CHzIndex& Index, double dChainage, THzPoint& Point);
bool ProjectPointToAligment(double& dChainage, double& dOffset, const THzPoint& Point, const CHzIndex& Index);
bool ProjectChainToAnotherAligment(double dChainage, const CHzIndex& Source, const CHzIndex& Target,
                                   double& dOffset, double& dChainPjt);

}  // namespace vrek::Alg
