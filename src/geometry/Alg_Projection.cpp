// From a point to chainage and offset. The core is the foot of a point on the clothoid of parameter 1, found
// by going on along the osculating circle.
#include <cmath>

#include "base/Checked.h"
#include "base/NotGiven.h"
#include "geometry/Alg.h"
#include "geometry/AligmentIndex.h"
#include "geometry/UnitClothoid.h"
#include "shell/ErrHandler.h"

namespace vrek::Alg {
namespace {

constexpr double dOutside = 900000000000000;          // offset and chainage where there is no foot
constexpr double dNoFoot = 999999999;                 // distance of a point behind the origin
constexpr double dLongestUnitArc = 1.77245385090552;  // √π: the unit clothoid's tangent has turned by π/2
constexpr double dThreeHalvesPiFoot = 4.712388980384685;

// Halves to the even digit.
double RoundedToMillimetres(double dValue) {
  return std::nearbyint(dValue * 1000) / 1000;
}

// Offset and chainage of a point on an element; a cubic spiral keeps what is there.
void ProjectOnElement(double& dChainage, double& dOffset, const THzPoint& Point, const THzElements& aHz,
                      int nElement) {
  const THzElement& Element = Checked::At(aHz, nElement);
  switch (GetElementKind(Element)) {
    case eStraight:
      ProjectOnLine(dOffset, dChainage, Point, Element);
      break;
    case eArc:
      ProjectOnArc(dOffset, dChainage, Point, Element);
      break;
    case eClothoid:
      ProjectOnClothoid(dOffset, dChainage, Point, Element, EndRadiusInAligment(aHz, nElement));
      break;
    case eCubicSpiral:
      return;
  }
  dChainage += Element.dChainage;
}

bool IsInside(double dChainage, const THzElement& Element) {
  return RoundedToMillimetres(dChainage) >= Element.dChainage &&
         RoundedToMillimetres(dChainage) <= RoundedToMillimetres(Element.dChainage + Element.dLength);
}

}  // namespace

bool ProjectChainToAnotherAligment(double dChainage, const THzElements& aSource, const THzElements& aTarget,
                                   double& dOffset, double& dChainPjt) {
  return Guard("ProjectChainToAnotherAligment", false, [&] {
    dOffset = dChainPjt = 0;
    THzPoint Point;
    if (!GetCoordFromHzAligment(aSource, dChainage, Point)) Raise(Error::nInvalidCall);
    return ProjectPointToAligment(dChainPjt, dOffset, Point, aTarget, 1, UpperBound(aTarget));
  });
}

int FindNearestVertex(const THzPoint& Point, const THzElements& aHz, int nFirst, int nLast) {
  int nNearest = nFirst;
  double dNearest = 0;
  for (int i = nFirst; i <= nLast; ++i) {
    const THzElement& Element = Checked::At(aHz, i);
    const double dX = Point.dX - Element.dX, dY = Point.dY - Element.dY;
    const double dSquare = dX * dX + dY * dY;
    if (i > nFirst && dSquare > dNearest) continue;
    dNearest = dSquare;
    nNearest = i;
  }
  return nNearest;
}

namespace {

// On the element of the nearest vertex k or the one before it; where neither holds the foot, the way to the vertex.
bool ProjectNear(double& dChainage, double& dOffset, const THzPoint& Point, const THzElements& aHz,
                 int nFirst, int k) {
  dChainage = dOffset = dOutside;
  double dPrevChainage = dOutside, dPrevOffset = dOutside;
  if (k > nFirst) ProjectOnElement(dPrevChainage, dPrevOffset, Point, aHz, k - 1);
  ProjectOnElement(dChainage, dOffset, Point, aHz, k);
  const THzElement& Nearest = Checked::At(aHz, k);
  const bool bInPrev = k > nFirst && IsInside(dPrevChainage, Checked::At(aHz, k - 1));
  const bool bInThis = IsInside(dChainage, Nearest);
  if (bInPrev && (!bInThis || std::fabs(dPrevOffset) < std::fabs(dOffset))) {
    dChainage = dPrevChainage;
    dOffset = dPrevOffset;
  } else if (!bInPrev && !bInThis) {
    dOffset = GM::GetDistance(Point, GM::StartOf(Nearest));
    dChainage = Nearest.dChainage;
  }
  dChainage = RoundedToMillimetres(dChainage);
  dOffset = RoundedToMillimetres(dOffset);
  return bInPrev || bInThis;
}

}  // namespace

bool ProjectPointToAligment(double& dChainage, double& dOffset, const THzPoint& Point, const THzElements& aHz,
                            int nFirst, int nLast) {
  return ProjectNear(dChainage, dOffset, Point, aHz, nFirst, FindNearestVertex(Point, aHz, nFirst, nLast));
}

bool ProjectPointToAligment(double& dChainage, double& dOffset, const THzPoint& Point,
                            const CHzIndex& Index) {
  return ProjectNear(dChainage, dOffset, Point, Index.Elements(), 1, Index.NearestVertex(Point));
}

bool ProjectChainToAnotherAligment(double dChainage, const CHzIndex& Source, const CHzIndex& Target,
                                   double& dOffset, double& dChainPjt) {
  return Guard("ProjectChainToAnotherAligment", false, [&] {
    dOffset = dChainPjt = 0;
    THzPoint Point;
    if (!GetCoordFromHzAligment(Source, dChainage, Point)) Raise(Error::nInvalidCall);
    return ProjectPointToAligment(dChainPjt, dOffset, Point, Target);
  });
}

void ProjectOnLine(double& dOffset, double& dAlong, const THzPoint& Point, const THzElement& Element) {
  const THzPoint Start = GM::StartOf(Element);
  const double d = GM::GetDistance(Start, Point);
  const double b = GM::GetAzimuth(Start, Point) - Element.dAzimuth * GM::dGonToRadians;
  dOffset = std::sin(b) * d;
  dAlong = std::cos(b) * d;
}

void ProjectOnArc(double& dOffset, double& dAlong, const THzPoint& Point, const THzElement& Element) {
  const double rho = std::fabs(Element.dRadius), sg = Element.dRadius > 0 ? 1 : -1;
  const double dToCenter = GM::Normalized(sg * GM::dHalfPi + Element.dAzimuth * GM::dGonToRadians);
  const THzPoint Center = GM::PolarPoint(GM::StartOf(Element), dToCenter, rho);
  const double d = GM::GetDistance(Center, Point), b = GM::GetAzimuth(Center, Point);
  const double c0 = GM::Normalized(dToCenter - GM::dPi);
  dOffset = Element.dRadius > 0 ? rho - d : d - rho;
  dAlong = rho * GM::Normalized(Element.dRadius > 0 ? b - c0 : c0 - b);
}

namespace {

// Where the clothoid's point of zero curvature lies and how arc lengths from it become distances from the
// start.
struct TUnitFrame {
  THzPoint Origin;
  double dTangent = 0;    // azimuth of the tangent at the origin, in the direction of travel
  bool bForward = true;   // the curvature grows along the element
  double dFromStart = 0;  // forward: origin to start; backward: start to origin
};

TUnitFrame FrameOf(const THzElement& Element, double dEndRadius) {
  const double A = Element.dParameter, R = Element.dRadius, L = Element.dLength;
  const double a = Element.dAzimuth * GM::dGonToRadians, sg = R > 0 ? 1 : -1;
  const THzPoint S = GM::StartOf(Element);
  // From a straight
  if (std::fabs(R) == GM::dInfiniteRadius) return {S, GM::Normalized(a), true, 0};
  // Growing between two radii
  if (dEndRadius != 0 && std::fabs(dEndRadius) != GM::dInfiniteRadius &&
      std::fabs(R) > std::fabs(dEndRadius)) {
    const double s0 = A * A / std::fabs(dEndRadius) - L;
    const auto Before = GM::ClothoidChord(A, s0);
    const double dBack = GM::Normalized(a - sg * Before.dTau + sg * Before.dDelta + GM::dPi);
    return {GM::PolarPoint(S, dBack, Before.dChord), GM::Normalized(a - sg * Before.dTau), true, s0};
  }
  // To a straight, or falling between two radii
  const bool bToStraight = dEndRadius == 0 || std::fabs(dEndRadius) == GM::dInfiniteRadius;
  const double s0 = bToStraight ? L : A * A / std::fabs(R);
  const auto Ahead = GM::ClothoidChord(A, s0);
  const double dToOrigin = GM::Normalized(a + sg * (Ahead.dTau - Ahead.dDelta));
  return {GM::PolarPoint(S, dToOrigin, Ahead.dChord), GM::Normalized(a + sg * Ahead.dTau), false, s0};
}

}  // namespace

void ProjectOnClothoid(double& dOffset, double& dAlong, const THzPoint& Point, const THzElement& Element,
                       double dEndRadius) {
  const double A = Element.dParameter, R = Element.dRadius;
  const TUnitFrame Frame = FrameOf(Element, dEndRadius);
  const double dX = Point.dX - Frame.Origin.dX, dY = Point.dY - Frame.Origin.dY, t = Frame.dTangent;
  const double u = (dX * std::sin(t) + dY * std::cos(t)) / A, w = (dY * std::sin(t) - dX * std::cos(t)) / A;
  // As the unit clothoid sees it; a point beyond the origin of a falling one through its mirror image
  double x = Frame.bForward ? u : -u;
  const bool bBeyond = !Frame.bForward && x < 0;
  if (bBeyond) x = std::fabs(x);
  double s = dAlong, d = 0;
  int nSide = 1;
  FootOnUnitClothoid(s, d, nSide, {x, R > 0 ? -w : w, 0});
  dOffset = R > 0 ? -nSide * d * A : nSide * d * A;
  dAlong = Frame.bForward ? A * s - Frame.dFromStart
           : bBeyond      ? Frame.dFromStart + A * s
                          : Frame.dFromStart - A * s;
}

void FootOnUnitClothoid(double& s, double& dDistance, int& nSide, const THzPoint& Point) {
  // Behind the origin: no foot
  if (Point.dX < 0) {
    dDistance = dNoFoot;
    return;
  }
  double dTau = 0, b = 0;
  THzPoint Foot;
  const auto MoveTo = [&](double dArc) {
    s = dArc;
    dTau = s * s / 2;
    GM::ClothoidUnitPoint(dTau, Foot.dX, Foot.dY);
  };
  const auto Measure = [&](const THzPoint& To) {
    b = GM::GetAzimuth(Foot, To);
    dDistance = GM::GetDistance(Foot, To);
  };
  const auto Begin = [&](const THzPoint& From) {
    MoveTo(std::fmin(From.dX, dLongestUnitArc));
    Measure(From);
  };
  Begin(Point);
  nSide = b <= GM::dHalfPi - dTau || b >= dThreeHalvesPiFoot - dTau ? -1 : 1;
  if (Point.dX < 0.000001) {
    s = 0;
    dDistance = Point.dY;
    return;
  }
  // On the concave side the start values come from the mirror image
  if (nSide == -1) {
    const double xi = Foot.dX - Checked::Divide(Foot.dY, std::tan(dTau));
    Begin(GM::MirrorPoint(Foot, {xi, 0, 0}, Point));
  }
  // Newton's steps until the foot lies square to the point
  double dStep = 0;
  for (int nPass = 0; nPass < 6; ++nPass) {
    const double phi = b - (GM::dPi - dTau);
    dStep = std::atan(Checked::Divide(s * dDistance * std::sin(phi), 1 + s * dDistance * std::cos(phi))) / s;
    if (std::fabs(dStep) < 0.00000001) return;
    MoveTo(std::fmax(s - dStep, 0.00001));
    Measure(Point);
  }
  // No foot found
  s = dDistance = dNotGiven;
}

}  // namespace vrek::Alg
