#include <cmath>

#include "base/Checked.h"
#include "geometry/GM.h"

namespace vrek::GM {

double ArcSin(double x) {
  if (x == 1) return 2 * std::atan(1.0);
  if (x == -1) return 6 * std::atan(1.0);
  return std::atan(x / Checked::Sqrt(1 - x * x));
}
void NormalizeAngle(double& a) {
  if (a < 0)
    a += dTwoPiNormalize;
  else if (a > dTwoPiNormalize)
    a -= dTwoPiNormalize;
}
double Normalized(double a) {
  NormalizeAngle(a);
  return a;
}
THzPoint PolarPoint(const THzPoint& p, double a, double d) {
  return {p.dX + std::sin(a) * d, p.dY + std::cos(a) * d, a};
}
double GetAzimuth(const THzPoint& p1, const THzPoint& p2) {
  const double dx = p2.dX - p1.dX, dy = p2.dY - p1.dY;
  double a = 0;
  if (dx != 0 && dy != 0) {
    a = std::atan(dx / dy);
    if (dy < 0)
      a += dPi;
    else if (dx < 0)
      a += dTwoPiAzimuth;
  } else if (dx == 0)
    a = dy > 0 ? 0 : dPi;
  else
    a = dx > 0 ? dHalfPi : dThreeHalvesPi;
  NormalizeAngle(a);
  return a;
}
double GetDistance(const THzPoint& p1, const THzPoint& p2) {
  const double dx = p2.dX - p1.dX, dy = p2.dY - p1.dY;
  return Checked::Sqrt(dy * dy + dx * dx);
}
THzPoint MirrorPoint(const THzPoint& p1, const THzPoint& p2, const THzPoint& p) {
  const double m = Checked::Divide(0.0, p2.dX - p1.dX), b = p1.dY - m * p1.dX;
  return {((1 - m * m) * p.dX + 2 * m * p.dY - 2 * m * b) / (m * m + 1),
          (2 * m * p.dX - (1 - m * m) * p.dY + 2 * b) / (m * m + 1), 0};
}

}  // namespace vrek::GM
