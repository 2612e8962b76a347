#include "geometry/AligmentIndex.h"

#include "geometry/Alg.h"

namespace vrek::Alg {

CHzIndex::CHzIndex(const THzElements& aHz) : m_pHz(&aHz), m_bInOrder(IsInOrder(aHz)), m_bByX(true) {
  if (UpperBound(aHz) < 1) return;
  double dMinX = aHz[1].dX, dMaxX = dMinX, dMinY = aHz[1].dY, dMaxY = dMinY;
  for (std::size_t i = 1; i < aHz.size(); ++i) {
    dMinX = std::min(dMinX, aHz[i].dX);
    dMaxX = std::max(dMaxX, aHz[i].dX);
    dMinY = std::min(dMinY, aHz[i].dY);
    dMaxY = std::max(dMaxY, aHz[i].dY);
  }
  m_bByX = dMaxX - dMinX >= dMaxY - dMinY;
  for (std::size_t i = 1; i < aHz.size(); ++i) {
    m_aAlong.emplace_back(Along(GM::StartOf(aHz[i])), static_cast<int>(i));
  }
  std::sort(m_aAlong.begin(), m_aAlong.end());
}

int CHzIndex::ElementToEvaluate(double dChainage) const {
  const auto First = m_pHz->begin() + 1;
  const auto Starts = [](const THzElement& Element, double d) { return Element.dChainage < d; };
  const auto Lower = std::lower_bound(First, m_pHz->end(), dChainage, Starts);
  if (Lower != m_pHz->end() && Lower->dChainage == dChainage) return static_cast<int>(Lower - m_pHz->begin());
  return static_cast<int>(Lower - m_pHz->begin()) - 1;
}

int CHzIndex::NearestVertex(const THzPoint& Point) const {
  if (m_aAlong.empty()) return 1;
  int nNearest = 0;
  double dNearest = 0;
  const auto Try = [&](int i) {
    const THzElement& Element = (*m_pHz)[static_cast<std::size_t>(i)];
    const double dX = Point.dX - Element.dX, dY = Point.dY - Element.dY;
    const double dSquare = dX * dX + dY * dY;
    if (nNearest != 0 && (dSquare > dNearest || (dSquare == dNearest && i < nNearest))) return;
    dNearest = dSquare;
    nNearest = i;
  };
  // A vertex whose distance along the one axis alone is beyond the nearest can't be nearer, nor can those
  // behind it.
  const auto TooFar = [&](double dAlong) {
    const double d = Along(Point) - dAlong;
    return nNearest != 0 && d * d > dNearest;
  };
  const auto Middle = std::lower_bound(m_aAlong.begin(), m_aAlong.end(), std::pair(Along(Point), 0));
  auto Up = Middle;
  auto Down = Middle;
  bool bUp = true, bDown = true;
  while (bUp || bDown) {
    bUp = bUp && Up != m_aAlong.end() && !TooFar(Up->first);
    if (bUp) Try((Up++)->second);
    bDown = bDown && Down != m_aAlong.begin() && !TooFar(std::prev(Down)->first);
    if (bDown) Try((--Down)->second);
  }
  return nNearest;
}

double CVtIndex::Height(double dChainage) const {
  const int nLast = UpperBound(*m_pVt);
  if (!m_bInOrder || nLast < 2) return GM::GetHeightAtChainage(*m_pVt, dChainage);
  // Where the plain walk stops, and its step back.
  const auto Starts = [](const TVtElement& Element, double d) { return Element.dChainage < d; };
  const auto Lower = std::lower_bound(m_pVt->begin() + 1, m_pVt->end(), dChainage, Starts);
  const auto i = std::min(static_cast<int>(Lower - m_pVt->begin()), nLast);
  const bool bBefore = (*m_pVt)[static_cast<std::size_t>(i)].dChainage > dChainage;
  return GM::GetHeightFromElement(*m_pVt, bBefore ? i - 1 : i, dChainage);
}

}  // namespace vrek::Alg
