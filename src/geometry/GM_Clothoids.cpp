#include <cmath>

#include "base/Checked.h"
#include "geometry/GM.h"

namespace vrek::GM {

double GetClothoidEndRadius(const THzElement& e) {
  const double A = std::fabs(e.dParameter), R = e.dRadius, L = e.dLength;
  double m = L;
  if (std::fabs(R) != 0.001 && R != 0) m = A * A / std::fabs(R) - L;
  const double mag = std::fabs(m) < 0.02 ? 0 : A * A / std::fabs(m);
  return R < 0 ? -mag : mag;
}
double ChooseClothoidEndRadius(const THzElement& e, double aNext, double rNext) {
  const double A = std::fabs(e.dParameter), R = e.dRadius, L = std::fabs(e.dLength), aR = std::fabs(R),
               aN = std::fabs(rNext);
  const double sg = R > 0 ? 1 : R < 0 ? -1 : 0;
  double mag;
  if (R == 0 || aR == 0.001)
    mag = Checked::Divide(A * A, L);
  else {
    const double s0 = A * A / aR;
    if (std::fabs(s0 - L) < 0.02)
      mag = 0;
    else {
      const double s1 = rNext == 0 ? 0 : A * A / aN;
      const double g = aR > aN ? L - (s1 - s0) : L - (s0 - s1);
      if (std::fabs(g) < 0.02)
        mag = aN;
      else {
        const double l0 = s0, l1 = std::fabs(s0 - L), l2 = std::fabs(s0 + L);
        const double r0 = Checked::Divide(A * A, l0), r1 = l1 == 0 ? 0 : A * A / l1,
                     r2 = l2 == 0 ? 0 : A * A / l2;
        const double t0 = Checked::Divide(l0, 2 * r0), t1 = Checked::Divide(l1, 2 * r1),
                     t2 = Checked::Divide(l2, 2 * r2);
        const double D = R >= 0 ? aNext - e.dAzimuth : e.dAzimuth - aNext;
        mag = std::fabs(D - (t2 - t0)) < std::fabs(D - (t0 - t1)) ? r2 : r1;
      }
    }
  }
  return sg * mag;
}
double GetClothoidStartRadius(double az1, double az2, double r1, double r2, double A) {
  const double w = std::sin(az2 * dGonToRadians - az1 * dGonToRadians);
  double sense = 1, D = az2 - az1;
  if (w < 0) {
    sense = -1;
    D = az1 - az2;
  }
  D = Normalized(D * dGonToRadians);
  const double a1 = std::fabs(r1), a2 = std::fabs(r2);
  const double t1 = a1 == 0 ? 0 : (A * A / a1) / (2 * a1), t2 = a2 == 0 ? 0 : (A * A / a2) / (2 * a2),
               t3 = std::fabs(t1 - t2);
  double best = std::fabs(D - t1), mag = a1;
  if (std::fabs(D - t2) < best) {
    best = std::fabs(D - t2);
    mag = 0.001;
  }
  if (std::fabs(D - t3) < best) {
    mag = a1;
  }
  return sense * mag;
}
void ClothoidUnitPoint(double tau, double& x, double& y) {
  x = y = 0;
  for (int i = 1; i <= 50; ++i) {
    double f1 = 1, f2 = 1;
    for (int k = 2; k <= 2 * i - 2; ++k) f1 *= k;
    for (int k = 2; k <= 2 * i - 1; ++k) f2 *= k;
    const double sg = i % 2 ? 1 : -1;
    x += sg * std::pow(tau, 2 * i - 2) / ((4 * i - 3) * f1);
    y += sg * std::pow(tau, 2 * i - 1) / ((4 * i - 1) * f2);
  }
  const double s = Checked::Sqrt(2 * tau);
  x *= s;
  y *= s;
}
THzPoint GetSpiralPI(const THzPoint& pEnd, const THzElement& e) {
  const THzPoint S = StartOf(e);
  const double az = GetAzimuth(S, pEnd), d = GetDistance(S, pEnd);
  double a1, a2;
  if (e.dRadius < 0) {
    a1 = e.dAzimuth - az;
    a2 = az - pEnd.dAzimuth;
  } else {
    a1 = az - e.dAzimuth;
    a2 = pEnd.dAzimuth - az;
  }
  const double s = std::sin(dPi - (a1 + a2));
  return PolarPoint(S, e.dAzimuth, s == 0 ? 0 : std::sin(a2) * d / s);
}

}  // namespace vrek::GM
