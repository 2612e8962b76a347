// Heights on a vertical alignment.
#include <cmath>

#include "base/Checked.h"
#include "geometry/GM.h"

namespace vrek::GM {
namespace {

double Sign(double d) {
  return d > 0 ? 1 : d < 0 ? -1 : 0;
}

// Beyond its middle the parabola is worked out from its far end.
double HeightOnParabola(const TVtElement& Element, double dx) {
  const double s = Element.dSlope, K = Element.dKv, L = Element.dLength;
  if (dx <= L / 2) return Element.dHeight + dx * s + dx * dx / (2 * K);
  const double r = L - dx, s2 = L / K + s;
  return (Element.dHeight + (L / 2) * s) + (L / 2 - r) * s2 + r * r / (2 * K);
}

}  // namespace

double GetHeightAtChainage(const TVtElements& aVt, double dChainage) {
  // The first element that doesn't start before the chainage, or the last; one back if it starts behind it
  const int nLast = UpperBound(aVt);
  int i = 1;
  while (i < nLast && aVt[static_cast<std::size_t>(i)].dChainage < dChainage) ++i;
  if (i > nLast) return 0;
  if (aVt[static_cast<std::size_t>(i)].dChainage > dChainage) --i;
  return GetHeightFromElement(aVt, i, dChainage);
}

double GetHeightFromElement(const TVtElements& aVt, int nElement, double dChainage) {
  try {
    const TVtElement& Element = Checked::At(aVt, nElement);
    const double dx = dChainage - Element.dChainage;
    if (Element.dKv == 0) return Checked::Finite(Element.dHeight + dx * Element.dSlope);
    if (Element.dLength <= 0) return GetHeightOnCircle(Element, dx);
    return Checked::Finite(HeightOnParabola(Element, dx));
  } catch (const Failure&) {
    return 0;
  }
}

double GetHeightInElement(const TVtElement& Element, double dDistance) {
  if (Element.dKv == 0) return Checked::Finite(Element.dHeight + dDistance * Element.dSlope);
  if (Element.dLength < 0) return GetHeightOnCircle(Element, std::fabs(dDistance));
  return Checked::Finite(HeightOnParabola(Element, dDistance));
}

double GetHeightOnCircle(const TVtElement& Element, double dDistance) {
  const double dTheta = std::atan(Element.dSlope), rho = std::fabs(Element.dKv), sg = Sign(dTheta);
  // The centre lies below a crest and above a sag
  const double dAcross = rho * sg * std::sin(std::fabs(dTheta)), dUp = rho * std::cos(std::fabs(dTheta));
  const bool bCrest = Element.dKv < 0;
  const double cx = bCrest ? Element.dChainage + dAcross : Element.dChainage - dAcross;
  const double cz = bCrest ? Element.dHeight - dUp : Element.dHeight + dUp;
  const double u = (Element.dChainage + dDistance) - cx;
  return Checked::Finite(cz - Sign(Element.dKv) * Checked::Sqrt(Element.dKv * Element.dKv - u * u));
}

}  // namespace vrek::GM
