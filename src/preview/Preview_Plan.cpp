// The elements of a plan as polylines.
#include <algorithm>
#include <cmath>
#include <optional>

#include "base/Failure.h"
#include "preview/Preview.h"

namespace vrek::Preview {
namespace {

constexpr int nMostChords = 2000;

double FiniteRadius(double dRadius) {
  return std::fabs(dRadius) == GM::dInfiniteRadius ? 0 : dRadius;
}

// How many chords keep within the tolerance of a curve of that radius: the rise of a chord c over an arc of
// radius R is c^2 / 8R.
int Chords(double dLength, double dRadius) {
  const double dChord = std::sqrt(8 * std::fabs(dRadius) * dChordTolerance);
  if (!(dChord > 0) || !std::isfinite(dLength / dChord)) return 1;
  return static_cast<int>(std::clamp(std::ceil(std::fabs(dLength) / dChord), 1.0, double{nMostChords}));
}

// What one element is sampled from.
struct TSource {
  THzElement Element;              // azimuth in radians
  std::optional<THzElement> Next;  // likewise
  double dEndRadius = 0;           // of a clothoid
};

TSource MakeSource(const THzElements& aHz, int i, bool bHasNext) {
  const auto n = static_cast<std::size_t>(i);
  TSource Source{Alg::InRadians(aHz[n]), {}, 0};
  if (bHasNext) Source.Next = Alg::InRadians(aHz[n + 1]);
  if (Alg::GetElementKind(Source.Element) == Alg::eClothoid) {
    Source.dEndRadius = Alg::EndRadiusInAligment(aHz, i);
  }
  return Source;
}

// A smooth curve from the element's start to that of the next, for what has no formula for its inside.
THzPoint OnJoiningCurve(const TSource& Source, double t) {
  const auto& From = Source.Element;
  const auto To = Source.Next.value_or(From);
  const double L = From.dLength, t2 = t * t, t3 = t2 * t;
  const auto Mix = [&](double a, double da, double b, double db) {
    return a * (2 * t3 - 3 * t2 + 1) + da * (t3 - 2 * t2 + t) + b * (3 * t2 - 2 * t3) + db * (t3 - t2);
  };
  return {Mix(From.dX, L * std::sin(From.dAzimuth), To.dX, L * std::sin(To.dAzimuth)),
          Mix(From.dY, L * std::cos(From.dAzimuth), To.dY, L * std::cos(To.dAzimuth)), 0};
}

THzPoint PointAt(const TSource& Source, double dDistance) {
  const auto& Element = Source.Element;
  switch (Alg::GetElementKind(Element)) {
    case Alg::eStraight:
      return Alg::GetPointOnLine(dDistance, Element);
    case Alg::eArc:
      return Alg::GetPointOnArc(dDistance, Element);
    case Alg::eClothoid: {
      const auto Point = Alg::GetPointOnClothoid(dDistance, Source.dEndRadius, Element);
      if (Point.dX != 0 || Point.dY != 0) return Point;
      break;
    }
    default:
      break;
  }
  return OnJoiningCurve(Source, Element.dLength > 0 ? dDistance / Element.dLength : 0);
}

double SmallestRadius(const TPlanElement& Out) {
  if (Out.eKind == Alg::eStraight) return 0;
  const double a = std::fabs(Out.dRadiusStart), b = std::fabs(Out.dRadiusEnd);
  return a == 0 ? b : b == 0 ? a : std::min(a, b);
}

TPlanElement MakeElement(const TSource& Source, double dOriginX, double dOriginY) {
  const auto& Element = Source.Element;
  TPlanElement Out{Alg::GetElementKind(Element),
                   Element.dChainage,
                   Element.dLength,
                   FiniteRadius(Element.dRadius),
                   0,
                   std::max(Element.dParameter, 0.0),
                   {}};
  if (Out.eKind == Alg::eArc) Out.dRadiusEnd = Out.dRadiusStart;
  if (Out.eKind == Alg::eClothoid) Out.dRadiusEnd = FiniteRadius(Source.dEndRadius);
  if (Out.eKind == Alg::eCubicSpiral && Source.Next) Out.dRadiusEnd = Source.Next->dRadius;
  const int nChords = Out.eKind == Alg::eStraight ? 1 : Chords(Element.dLength, SmallestRadius(Out));
  for (int n = 0; n <= nChords; ++n) {
    const double dAlong = Element.dLength * n / nChords;
    auto Point = PointAt(Source, dAlong);
    if (n == nChords && Source.Next) Point = GM::StartOf(*Source.Next);
    Out.aPoints.push_back({Point.dX - dOriginX, Point.dY - dOriginY, Element.dChainage + dAlong});
  }
  return Out;
}

bool IsFinite(const TPlanElement& Element) {
  return std::all_of(Element.aPoints.begin(), Element.aPoints.end(), [](const TPlanPoint& Point) {
    return std::isfinite(Point.dX) && std::isfinite(Point.dY) && std::isfinite(Point.dChainage);
  });
}

}  // namespace

std::vector<TPlanElement> MakePlan(const THzElements& aHz, int nFirst, int nLast, double dOriginX,
                                   double dOriginY) {
  std::vector<TPlanElement> aOut;
  for (int i = std::max(nFirst, 1); i <= std::min(nLast, UpperBound(aHz)); ++i) {
    try {
      auto Element = MakeElement(MakeSource(aHz, i, i < UpperBound(aHz)), dOriginX, dOriginY);
      if (IsFinite(Element)) aOut.push_back(std::move(Element));
    } catch (const Failure&) {
      // An element that can't be worked out leaves a gap.
    }
  }
  return aOut;
}

}  // namespace vrek::Preview
