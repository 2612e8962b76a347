#include <cmath>

#include "base/Checked.h"
#include "geometry/GM.h"

namespace vrek::GM {

THzPoint PointOnArc(const THzPoint& p, double R, double L, double a) {
  const double h = dPi * std::fabs(R), l = std::fabs(L);
  double delta = l < h    ? Checked::Divide(l, std::fabs(R))
                 : l == h ? dPi
                          : Checked::Divide(2 * h - l, std::fabs(R));
  const double c = std::fabs(2 * R * std::sin(delta / 2)), beta = (dPi - delta) / 2;
  double chord, end;
  if (l <= h) {
    if (R > 0) {
      chord = a + delta / 2;
      end = chord + delta / 2;
    } else {
      chord = a - delta / 2;
      end = chord - delta / 2;
    }
  } else {
    if (R > 0) {
      chord = a + dHalfPi + beta;
      end = chord + dPi - delta / 2;
    } else {
      chord = a - dHalfPi - beta;
      end = chord - dPi + delta / 2;
    }
  }
  THzPoint q = PolarPoint(p, chord, c);
  q.dAzimuth = Normalized(end);
  return q;
}
THzPoint GetArcCenter(const THzPoint& p1, const THzPoint& p2, double R, double L) {
  if (R == 0) return p1;
  const double d = GetDistance(p1, p2), az = GetAzimuth(p1, p2);
  const double beta = Normalized(dHalfPi - ArcSin(d / (2 * std::fabs(R))));
  const bool longArc = L > dPi * std::fabs(R);
  const double a = ((R >= 0 && !longArc) || (R < 0 && longArc)) ? az + beta : az - beta;
  return PolarPoint(p1, Normalized(a), std::fabs(R));
}

}  // namespace vrek::GM
