#include <cmath>

#include "base/Checked.h"
#include "geometry/GM.h"

namespace vrek::GM {

double GetHeightOnCircle(const TVtElement& e, double dx) {
  const double th = std::atan(e.dSlope), rho = std::fabs(e.dKv), sg = th > 0 ? 1 : th < 0 ? -1 : 0;
  double cx, cz;
  if (e.dKv < 0) {
    cx = e.dChainage + rho * sg * std::sin(std::fabs(th));
    cz = e.dHeight - rho * std::cos(std::fabs(th));
  } else {
    cx = e.dChainage - rho * sg * std::sin(std::fabs(th));
    cz = e.dHeight + rho * std::cos(std::fabs(th));
  }
  const double u = (e.dChainage + dx) - cx;
  return cz - (e.dKv < 0 ? -1 : e.dKv > 0 ? 1 : 0) * Checked::Sqrt(e.dKv * e.dKv - u * u);
}
static double Parabola(const TVtElement& e, double dx) {
  const double s = e.dSlope, K = e.dKv, L = e.dLength;
  if (dx <= L / 2) return e.dHeight + dx * s + dx * dx / (2 * K);
  const double r = L - dx, s2 = L / K + s;
  return (e.dHeight + (L / 2) * s) + (L / 2 - r) * s2 + r * r / (2 * K);
}
double GetHeightInElement(const TVtElement& e, double dx) {
  if (e.dKv == 0) return e.dHeight + dx * e.dSlope;
  if (e.dLength < 0) return GetHeightOnCircle(e, std::fabs(dx));
  return Parabola(e, dx);
}
double GetHeightAtChainage(const TVtElements& a, double ch) {
  double z = 0;
  try {
    const int n = UpperBound(a);
    if (n < 0) return 0;
    int i = 1;
    while (i < n && a[i].dChainage < ch) ++i;
    if (i > n) i = n;
    if (a[i].dChainage > ch) --i;
    if (i < 0) return 0;
    const auto& e = a[i];
    const double dx = ch - e.dChainage;
    if (e.dKv == 0)
      z = e.dHeight + dx * e.dSlope;
    else if (e.dLength <= 0)
      z = GetHeightOnCircle(e, dx);
    else
      z = Parabola(e, dx);
  } catch (const Failure&) {
  }
  return z;
}

}  // namespace vrek::GM
