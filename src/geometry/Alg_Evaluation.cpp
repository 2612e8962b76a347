#include <cmath>
#include "base/Checked.h"
#include "geometry/Alg.h"
#include "shell/ErrHandler.h"
namespace vrek::Alg {
EElementKind GetElementKind(const THzElement& e) {
  return e.dRadius == 0 ? eStraight : e.dParameter == 0 ? eArc : e.dParameter > 0 ? eClothoid : eCubicSpiral;
}
THzElement InRadians(const THzElement& e) {
  THzElement c = e;
  c.dAzimuth = e.dAzimuth * GM::dGonToRadians;
  return c;
}
THzPoint GetPointOnLine(double d, const THzElement& e) {
  return GM::PolarPoint(GM::StartOf(e), e.dAzimuth, d);
}
THzPoint GetPointOnArc(double d, const THzElement& e) {
  return GM::PointOnArc(GM::StartOf(e), e.dRadius, d, e.dAzimuth);
}
namespace {
struct Frame {
  double A;
  double tau(double s) const { return s * s / (2 * A * A); }
  double delta(double s) const {
    double x, y;
    GM::ClothoidUnitPoint(tau(s), x, y);
    return std::atan(Checked::Divide(y, x));
  }
  double c(double s) const {
    double x, y;
    GM::ClothoidUnitPoint(tau(s), x, y);
    return Checked::Sqrt((A * y) * (A * y) + (A * x) * (A * x));
  }
};
THzPoint Go(const THzPoint& q, double b, double c) {
  return GM::PolarPoint(q, GM::Normalized(b), c);
}
THzPoint Clothoid(double d, double rEnd, const THzElement& e) {
  const double A = e.dParameter, R = e.dRadius, L = e.dLength, a = e.dAzimuth, sg = R > 0 ? 1 : -1;
  const THzPoint P = GM::StartOf(e);
  const Frame f{A};
  auto With = [](THzPoint p, double az) {
    p.dAzimuth = GM::Normalized(az);
    return p;
  };
  if (d == 0) return {P.dX, P.dY, a};
  if (R * 1000 == 1 || R * 1000 == -1) return With(Go(P, a + sg * f.delta(d), f.c(d)), a + sg * f.tau(d));
  if (std::fabs(A * A / std::fabs(R) - L) < 0.02) {
    if (L == 0) return {P.dX, P.dY, a};
    const double b = GM::Normalized(a + GM::dPi + sg * f.tau(L));
    const THzPoint O = Go(P, b - sg * f.delta(L) + GM::dPi, f.c(L));
    const double r = L - d;
    if (r == 0) return With(O, b + GM::dPi);
    return With(Go(O, b - sg * f.delta(r), f.c(r)), b - sg * f.tau(r) + GM::dPi);
  }
  if (std::fabs(rEnd) < std::fabs(R)) {
    const double s0 = Checked::Divide(A * A, std::fabs(rEnd)) - L, b = GM::Normalized(a - sg * f.tau(s0));
    const THzPoint O = Go(P, b + sg * f.delta(s0) + GM::dPi, f.c(s0));
    const double s = d + s0;
    return With(Go(O, b + sg * f.delta(s), f.c(s)), b + sg * f.tau(s));
  }
  if (std::fabs(rEnd) > std::fabs(R)) {
    const double s0 = A * A / std::fabs(R), b = GM::Normalized(a + sg * f.tau(s0));
    const THzPoint O = Go(P, b - sg * f.delta(s0), f.c(s0));
    const double s = s0 - d;
    return With(Go(O, b + GM::dPi - sg * f.delta(s), f.c(s)), b - sg * f.tau(s));
  }
  return {};
}
}  // namespace
THzPoint GetPointOnClothoid(double d, double rEnd, const THzElement& e) {
  try {
    return Clothoid(d, rEnd, e);
  } catch (const Failure&) {
    return {};
  }
}
THzPoint GetPointOnCubicSpiral(double d0, bool bFromStart, const THzElement& e, const THzElement& n) {
  const double X0 = bFromStart ? e.dX : n.dX, Y0 = bFromStart ? e.dY : n.dY,
               a = bFromStart ? e.dAzimuth : n.dAzimuth * GM::dGonToRadians,
               x = bFromStart ? e.dLength : d0 - e.dLength, R = e.dRadius;
  const double y = Checked::Divide(x * x * x, 6 * R * d0) * (1 + 3 * d0 * d0 / (64 * R * R));
  return {X0 + std::sin(a) * x + std::cos(a) * y, Y0 + std::cos(a) * x - std::sin(a) * y, 0};
}
double EndRadiusInAligment(const THzElements& a, int i) {
  const auto e = InRadians(a[i]);
  if (i < UpperBound(a) && e.dParameter > 0 && std::fabs(e.dRadius) != 0.001) {
    try {
      const double r = GM::ChooseClothoidEndRadius(e, InRadians(a[i + 1]).dAzimuth, a[i + 1].dRadius);
      if (r != 0 && std::fabs(r) < std::fabs(e.dRadius)) return r;
    } catch (const Failure&) {
    }
  }
  return GM::GetClothoidEndRadius(e);
}
bool GetCoordFromHzAligment(const THzElements& a, double ch, THzPoint& p) {
  return Guard("GetCoordFromHzAligment", false, [&] {
    const int n = UpperBound(a);
    if (n <= 0 || ch < a[1].dChainage) Raise(5);
    int i = 1;
    for (int k = 2; k <= n; ++k)
      if (a[k].dChainage <= ch && a[k].dChainage != a[i].dChainage) i = k;
    const auto e = InRadians(a[i]);
    const double d = ch - e.dChainage;
    switch (GetElementKind(e)) {
      case eStraight:
        p = GetPointOnLine(d, e);
        break;
      case eArc:
        p = GetPointOnArc(d, e);
        break;
      case eClothoid:
        p = GetPointOnClothoid(d, EndRadiusInAligment(a, i), e);
        break;
      default:
        if (i == 1 || i == n) Raise(5);
        p = GetPointOnCubicSpiral(std::fabs(e.dParameter), a[i - 1].dRadius == 0, e, a[i + 1]);
    }
    return true;
  });
}
}  // namespace vrek::Alg
