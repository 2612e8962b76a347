// Clothoids: what their radii must be, and the clothoid of parameter 1 that all others are scaled from.
#include <array>
#include <cmath>

#include "base/Checked.h"
#include "geometry/GM.h"

namespace vrek::GM {
namespace {

constexpr double dFits = 0.02;  // metres within which a length fits
constexpr int nTerms = 50;

double Sign(double d) {
  return d > 0 ? 1 : d < 0 ? -1 : 0;
}

// What the terms of both series are divided by: (4i-3)·(2i-2)! and (4i-1)·(2i-1)!, for i from 1.
struct TDivisors {
  std::array<double, nTerms> aX{}, aY{};
};

const TDivisors& Divisors() {
  static const TDivisors All = [] {
    TDivisors D;
    double dFactorial = 1;  // of 2i-2
    for (int i = 1; i <= nTerms; ++i) {
      const auto n = static_cast<std::size_t>(i - 1);
      D.aX[n] = (4 * i - 3) * dFactorial;
      dFactorial *= 2 * i - 1;
      D.aY[n] = (4 * i - 1) * dFactorial;
      dFactorial *= 2 * i;
    }
    return D;
  }();
  return All;
}

// Whether every term behind number n is at most half the one before it, in both series.
bool Shrinks(std::size_t n, double dTau) {
  const auto i = static_cast<double>(n + 1);
  return 2 * dTau * dTau <= (2 * i - 1) * (2 * i);
}

// Whether a term leaves a sum as it is, added or taken away. As rounding keeps the order of numbers, so does
// then every smaller term of either sign.
bool IsLost(double dTerm, double dSum) {
  return dSum + dTerm == dSum && dSum - dTerm == dSum;
}

// The deflection of a clothoid of parameter A between a straight and a radius; 0 for no radius.
double Deflection(double dParameter, double dMagnitude) {
  if (dMagnitude == 0) return 0;
  const double dLength = dParameter * dParameter / dMagnitude;
  return dLength / (2 * dMagnitude);
}

// For ChooseClothoidEndRadius: two candidates, told apart by the deflection to the next element.
double RadiusByDeflection(const THzElement& Clothoid, double s0, double dNextAzimuth) {
  const double A = std::fabs(Clothoid.dParameter), L = std::fabs(Clothoid.dLength);
  const double l0 = s0, l1 = std::fabs(s0 - L), l2 = std::fabs(s0 + L);
  const double r0 = Checked::Divide(A * A, l0), r1 = l1 == 0 ? 0 : A * A / l1, r2 = l2 == 0 ? 0 : A * A / l2;
  const double t0 = Checked::Divide(l0, 2 * r0), t1 = Checked::Divide(l1, 2 * r1),
               t2 = Checked::Divide(l2, 2 * r2);
  const double delta =
      Clothoid.dRadius >= 0 ? dNextAzimuth - Clothoid.dAzimuth : Clothoid.dAzimuth - dNextAzimuth;
  return std::fabs(delta - (t2 - t0)) < std::fabs(delta - (t0 - t1)) ? r2 : r1;
}

}  // namespace

double GetClothoidEndRadius(const THzElement& Clothoid) {
  const double A = std::fabs(Clothoid.dParameter), R = Clothoid.dRadius, L = Clothoid.dLength;
  // Distance from the end to the point of zero curvature
  double m = L;
  if (std::fabs(R) != dInfiniteRadius && R != 0) m = A * A / std::fabs(R) - L;
  const double dMagnitude = std::fabs(m) < dFits ? 0 : A * A / std::fabs(m);
  return R < 0 ? -dMagnitude : dMagnitude;
}

double ChooseClothoidEndRadius(const THzElement& Clothoid, double dNextAzimuth, double dNextRadius) {
  const double A = std::fabs(Clothoid.dParameter), R = std::fabs(Clothoid.dRadius),
               L = std::fabs(Clothoid.dLength);
  const double sg = Sign(Clothoid.dRadius), rNext = std::fabs(dNextRadius);
  // From a straight
  if (R == 0 || R == dInfiniteRadius) return sg * Checked::Divide(A * A, L);
  // Out to a straight
  const double s0 = A * A / R;
  if (std::fabs(s0 - L) < dFits) return sg * 0;
  // It fits the next element
  const double s1 = rNext == 0 ? 0 : A * A / rNext;
  const double g = R > rNext ? L - (s1 - s0) : L - (s0 - s1);
  if (std::fabs(g) < dFits) return sg * rNext;
  return sg * RadiusByDeflection(Clothoid, s0, dNextAzimuth);
}

double GetClothoidStartRadius(double dAzimuth1, double dAzimuth2, double dRadius1, double dRadius2,
                              double dParameter) {
  // The sense of the turn and its size
  const bool bLeft = std::sin(dAzimuth2 * dGonToRadians - dAzimuth1 * dGonToRadians) < 0;
  const double delta = Normalized((bLeft ? dAzimuth1 - dAzimuth2 : dAzimuth2 - dAzimuth1) * dGonToRadians);
  // From radius 1 to a straight, from a straight to radius 2, between both
  const double a1 = std::fabs(dRadius1), t1 = Deflection(dParameter, a1);
  const double t2 = Deflection(dParameter, std::fabs(dRadius2)), t3 = std::fabs(t1 - t2);
  // The nearest; on a tie the earliest
  double dMagnitude = a1, dNearest = std::fabs(delta - t1);
  if (std::fabs(delta - t2) < dNearest) {
    dMagnitude = dInfiniteRadius;
    dNearest = std::fabs(delta - t2);
  }
  if (std::fabs(delta - t3) < dNearest) dMagnitude = a1;
  return bLeft ? -dMagnitude : dMagnitude;
}

void ClothoidUnitPoint(double dTau, double& dUnitX, double& dUnitY) {
  const TDivisors& By = Divisors();
  double dPower = 1, x = 0, y = 0;  // the power is τ^(2i-2), then τ^(2i-1)
  for (std::size_t n = 0; n < nTerms; ++n) {
    const double dSign = n % 2 == 0 ? 1 : -1;
    const double dTermX = dSign * dPower / By.aX[n];
    dPower *= dTau;
    const double dTermY = dSign * dPower / By.aY[n];
    dPower *= dTau;
    x += dTermX;
    y += dTermY;
    if (Shrinks(n, dTau) && IsLost(dTermX, x) && IsLost(dTermY, y)) break;
  }
  const double dFactor = Checked::Sqrt(2 * dTau);
  dUnitX = x * dFactor;
  dUnitY = y * dFactor;
}

THzPoint GetSpiralPI(const THzPoint& End, const THzElement& Spiral) {
  const THzPoint Start = StartOf(Spiral);
  const double az = GetAzimuth(Start, End), d = GetDistance(Start, End);
  // Angles between the chord and the tangents
  const bool bLeft = Spiral.dRadius < 0;
  const double a1 = bLeft ? Spiral.dAzimuth - az : az - Spiral.dAzimuth;
  const double a2 = bLeft ? az - End.dAzimuth : End.dAzimuth - az;
  // Law of sines
  const double s = std::sin(dPi - (a1 + a2));
  return PolarPoint(Start, Spiral.dAzimuth, s == 0 ? 0 : std::sin(a2) * d / s);
}

}  // namespace vrek::GM
