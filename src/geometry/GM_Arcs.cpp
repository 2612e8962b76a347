// Circular arcs.
#include <cmath>

#include "base/Checked.h"
#include "geometry/GM.h"

namespace vrek::GM {

THzPoint PointOnArc(const THzPoint& Start, double dRadius, double dLength, double dAzimuth) {
  const double rho = std::fabs(dRadius), h = dPi * rho, l = std::fabs(dLength);
  // The angle at the centre, of the shorter way round
  double delta = dPi;
  if (l < h) {
    delta = Checked::Divide(l, rho);
  } else if (l > h) {
    delta = Checked::Divide(2 * h - l, rho);
  }
  // The chord and the base angle of its triangle
  const double c = std::fabs(2 * dRadius * std::sin(delta / 2)), beta = (dPi - delta) / 2;
  // Azimuths of the chord and at the end
  double dChord = 0, dEnd = 0;
  if (l <= h) {
    dChord = dRadius > 0 ? dAzimuth + delta / 2 : dAzimuth - delta / 2;
    dEnd = dRadius > 0 ? dChord + delta / 2 : dChord - delta / 2;
  } else {
    dChord = dRadius > 0 ? dAzimuth + dHalfPi + beta : dAzimuth - dHalfPi - beta;
    dEnd = dRadius > 0 ? dChord + dPi - delta / 2 : dChord - dPi + delta / 2;
  }
  THzPoint End = PolarPoint(Start, dChord, c);
  End.dAzimuth = Normalized(dEnd);
  return End;
}

THzPoint GetArcCenter(const THzPoint& Start, const THzPoint& End, double dRadius, double dLength) {
  if (dRadius == 0) return Start;
  const double rho = std::fabs(dRadius);
  const double d = GetDistance(Start, End), az = GetAzimuth(Start, End);
  const double beta = Normalized(dHalfPi - ArcSin(d / (2 * rho)));
  // The side of the centre: that of the radius' sign, the other one beyond a half circle
  const bool bLong = dLength > dPi * rho;
  const double dToCenter = (dRadius >= 0) != bLong ? az + beta : az - beta;
  return PolarPoint(Start, Normalized(dToCenter), rho);
}

}  // namespace vrek::GM
