// From a chainage to a point on the alignment.
#include <cmath>

#include "base/Checked.h"
#include "geometry/Alg.h"
#include "geometry/AligmentIndex.h"
#include "geometry/UnitClothoid.h"
#include "shell/ErrHandler.h"

namespace vrek::Alg {
namespace {

constexpr double dRunOut = 0.02;  // metres within which a clothoid counts as running out to a straight

// From a point along an azimuth, normalized as soon as it is formed.
THzPoint Go(const THzPoint& From, double dAzimuth, double dDistance) {
  return GM::PolarPoint(From, GM::Normalized(dAzimuth), dDistance);
}

THzPoint WithAzimuth(THzPoint Point, double dAzimuth) {
  Point.dAzimuth = GM::Normalized(dAzimuth);
  return Point;
}

// Case A: the clothoid leaves a straight at its start, which is the origin.
THzPoint FromStraight(double d, double sg, const THzElement& Element) {
  const auto Chord = GM::ClothoidChord(Element.dParameter, d);
  const THzPoint Point = Go(GM::StartOf(Element), Element.dAzimuth + sg * Chord.dDelta, Chord.dChord);
  return WithAzimuth(Point, Element.dAzimuth + sg * Chord.dTau);
}

// Case B: it runs out to a straight at its end, where the origin lies.
THzPoint ToStraight(double d, double sg, const THzElement& Element) {
  const double L = Element.dLength;
  if (L == 0) return {Element.dX, Element.dY, Element.dAzimuth};
  // The azimuth at the origin looking back, and the origin
  const auto Whole = GM::ClothoidChord(Element.dParameter, L);
  const double b = GM::Normalized(Element.dAzimuth + GM::dPi + sg * Whole.dTau);
  const THzPoint Origin = Go(GM::StartOf(Element), b - sg * Whole.dDelta + GM::dPi, Whole.dChord);
  // Back from the origin
  const double r = L - d;
  if (r == 0) return WithAzimuth(Origin, b + GM::dPi);
  const auto Rest = GM::ClothoidChord(Element.dParameter, r);
  return WithAzimuth(Go(Origin, b - sg * Rest.dDelta, Rest.dChord), b - sg * Rest.dTau + GM::dPi);
}

// Case C: the curvature grows; the origin lies behind the start.
THzPoint Growing(double d, double dEndRadius, double sg, const THzElement& Element) {
  const double A = Element.dParameter;
  const double s0 = Checked::Divide(A * A, std::fabs(dEndRadius)) - Element.dLength;
  const auto Before = GM::ClothoidChord(A, s0);
  const double b = GM::Normalized(Element.dAzimuth - sg * Before.dTau);
  const THzPoint Origin = Go(GM::StartOf(Element), b + sg * Before.dDelta + GM::dPi, Before.dChord);
  const auto Chord = GM::ClothoidChord(A, d + s0);
  return WithAzimuth(Go(Origin, b + sg * Chord.dDelta, Chord.dChord), b + sg * Chord.dTau);
}

// Case D: the curvature falls; the origin lies ahead of the end.
THzPoint Falling(double d, double sg, const THzElement& Element) {
  const double A = Element.dParameter, s0 = A * A / std::fabs(Element.dRadius);
  const auto Whole = GM::ClothoidChord(A, s0);
  const double b = GM::Normalized(Element.dAzimuth + sg * Whole.dTau);
  const THzPoint Origin = Go(GM::StartOf(Element), b - sg * Whole.dDelta, Whole.dChord);
  const auto Rest = GM::ClothoidChord(A, s0 - d);
  return WithAzimuth(Go(Origin, b + GM::dPi - sg * Rest.dDelta, Rest.dChord), b - sg * Rest.dTau);
}

THzPoint PointOnClothoid(double d, double dEndRadius, const THzElement& Element) {
  const double A = Element.dParameter, R = Element.dRadius, sg = R > 0 ? 1 : -1;
  if (d == 0) return {Element.dX, Element.dY, Element.dAzimuth};
  if (R * 1000 == 1 || R * 1000 == -1) return FromStraight(d, sg, Element);
  if (std::fabs(A * A / std::fabs(R) - Element.dLength) < dRunOut) return ToStraight(d, sg, Element);
  if (std::fabs(dEndRadius) < std::fabs(R)) return Growing(d, dEndRadius, sg, Element);
  if (std::fabs(dEndRadius) > std::fabs(R)) return Falling(d, sg, Element);
  return {};
}

bool IsFinite(const THzPoint& Point) {
  return std::isfinite(Point.dX) && std::isfinite(Point.dY) && std::isfinite(Point.dAzimuth);
}

// The last element that starts at or before a chainage; where several start right there, in whatever order
// the chainages stand, the first of those.
int ElementToEvaluate(const THzElements& aHz, double dChainage) {
  int nLast = 1, nFirstThere = 0, nThere = 0;
  for (int i = 1; i <= UpperBound(aHz); ++i) {
    const double dStart = aHz[static_cast<std::size_t>(i)].dChainage;
    if (dStart > dChainage) continue;
    nLast = i;
    if (dStart == dChainage && ++nThere == 1) nFirstThere = i;
  }
  return nThere > 1 ? nFirstThere : nLast;
}

THzPoint PointInElement(const THzElements& aHz, int i, double dChainage) {
  const THzElement Element = InRadians(Checked::At(aHz, i));
  const double d = dChainage - Element.dChainage;
  switch (GetElementKind(Element)) {
    case eStraight:
      return GetPointOnLine(d, Element);
    case eArc:
      return GetPointOnArc(d, Element);
    case eClothoid:
      return GetPointOnClothoid(d, EndRadiusInAligment(aHz, i), Element);
    default:
      break;
  }
  if (i == 1 || i == UpperBound(aHz)) Raise(Error::nInvalidCall);
  const bool bFromStart = Checked::At(aHz, i - 1).dRadius == 0;
  return GetPointOnCubicSpiral(std::fabs(Element.dParameter), bFromStart, Element, Checked::At(aHz, i + 1));
}

template <class TFind>
bool Coord(const THzElements& aHz, double dChainage, THzPoint& Point, TFind&& Find) {
  return Guard("GetCoordFromHzAligment", false, [&] {
    if (UpperBound(aHz) < 1 || dChainage < aHz[1].dChainage) Raise(Error::nInvalidCall);
    const THzPoint Found = PointInElement(aHz, Find(), dChainage);
    if (!IsFinite(Found)) Raise(Error::nOverflow);
    Point = Found;
    return true;
  });
}

}  // namespace

EElementKind GetElementKind(const THzElement& Element) {
  if (Element.dRadius == 0) return eStraight;
  if (Element.dParameter == 0) return eArc;
  return Element.dParameter > 0 ? eClothoid : eCubicSpiral;
}

THzElement InRadians(const THzElement& Element) {
  THzElement Copy = Element;
  Copy.dAzimuth = Element.dAzimuth * GM::dGonToRadians;
  return Copy;
}

THzPoint GetPointOnLine(double dDistance, const THzElement& Element) {
  return GM::PolarPoint(GM::StartOf(Element), Element.dAzimuth, dDistance);
}

THzPoint GetPointOnArc(double dDistance, const THzElement& Element) {
  return GM::PointOnArc(GM::StartOf(Element), Element.dRadius, dDistance, Element.dAzimuth);
}

THzPoint GetPointOnClothoid(double dDistance, double dEndRadius, const THzElement& Element) {
  try {
    const THzPoint Point = PointOnClothoid(dDistance, dEndRadius, Element);
    return IsFinite(Point) ? Point : THzPoint{};
  } catch (const Failure&) {
    return {};
  }
}

THzPoint GetPointOnCubicSpiral(double d0, bool bFromStart, const THzElement& Element,
                               const THzElement& Next) {
  // Origin, azimuth there and the way along its tangent
  const THzPoint Origin = bFromStart ? GM::StartOf(Element) : GM::StartOf(Next);
  const double a = bFromStart ? Element.dAzimuth : Next.dAzimuth * GM::dGonToRadians;
  const double x = bFromStart ? Element.dLength : d0 - Element.dLength;
  // Offset of a cubic parabola, with the correction of its curvature
  const double R = Element.dRadius;
  const double y = Checked::Divide(x * x * x, 6 * R * d0) * (1 + 3 * (d0 * d0) / (64 * (R * R)));
  return {Origin.dX + std::sin(a) * x + std::cos(a) * y, Origin.dY + std::cos(a) * x - std::sin(a) * y, 0};
}

double EndRadiusInAligment(const THzElements& aHz, int nElement) {
  const THzElement Element = InRadians(Checked::At(aHz, nElement));
  const bool bHasNext = nElement < UpperBound(aHz);
  if (bHasNext && Element.dParameter > 0 && std::fabs(Element.dRadius) != GM::dInfiniteRadius) {
    const THzElement Next = InRadians(Checked::At(aHz, nElement + 1));
    const double dRadius = GM::ChooseClothoidEndRadius(Element, Next.dAzimuth, Next.dRadius);
    if (dRadius != 0 && std::fabs(dRadius) < std::fabs(Element.dRadius)) return dRadius;
  }
  return GM::GetClothoidEndRadius(Element);
}

bool GetCoordFromHzAligment(const THzElements& aHz, double dChainage, THzPoint& Point) {
  return Coord(aHz, dChainage, Point, [&] { return ElementToEvaluate(aHz, dChainage); });
}

bool GetCoordFromHzAligment(const CHzIndex& Index, double dChainage, THzPoint& Point) {
  const auto& aHz = Index.Elements();
  if (!Index.InOrder()) return GetCoordFromHzAligment(aHz, dChainage, Point);
  return Coord(aHz, dChainage, Point, [&] { return Index.ElementToEvaluate(dChainage); });
}

}  // namespace vrek::Alg
