// The plan of an axis. An element holds no end point: it ends where the next one begins; the end of the last
// one written is worked out from the element alone. Pairs are northing, easting.
//
//   <CoordGeom>
//   	<Line ...> <Curve ...> <Spiral ...>
//   </CoordGeom>
#include <cmath>
#include <optional>

#include "base/Checked.h"
#include "base/FormatReal.h"
#include "geometry/Alg.h"
#include "landxml/CLandXML.h"
#include "landxml/ChainageLimits.h"
#include "landxml/ElementLines.h"
#include "shell/ErrHandler.h"

namespace vrek::CLandXML {
namespace {

/// An element with what its lines need of its neighbours. All azimuths in radians.
struct TPlace {
  THzElement Element;
  std::optional<THzElement> Next;  ///< the one behind it in the array
  double dRadiusBefore = 0;        ///< of the one before it in the array; 0 when it is the first
  bool bLast = false;              ///< the last one to be written

  THzPoint Start() const { return GM::StartOf(Element); }
};

TPlace PlaceAt(const THzElements& aHz, int nElement, bool bLast) {
  TPlace Place;
  Place.Element = Alg::InRadians(Checked::At(aHz, nElement));
  if (nElement < UpperBound(aHz)) Place.Next = Alg::InRadians(Checked::At(aHz, nElement + 1));
  if (nElement > 1) Place.dRadiusBefore = Checked::At(aHz, nElement - 1).dRadius;
  Place.bLast = bLast;
  return Place;
}

/// The next element; where there is none: failure 9.
const THzElement& NextOf(const TPlace& Place) {
  if (!Place.Next) Raise(Error::nSubscript);
  return *Place.Next;
}

/// Start of the next element with its azimuth.
THzPoint StartOfNext(const TPlace& Place) {
  const THzElement& Next = NextOf(Place);
  return {Next.dX, Next.dY, Next.dAzimuth};
}

std::string_view Rotation(double dRadius) {
  return dRadius >= 0 ? "cw" : "ccw";
}

/// "INF" or the radius.
std::string RadiusText(double dRadius, bool bInfinite) {
  return bInfinite ? "INF" : FormatReal(std::fabs(dRadius), nDecimals);
}

// <Line staStart="0.000000">
// 	<Start>4471903.620000 458120.355000</Start>
// 	<End>4471813.822111 457874.224264</End>
// </Line>
void AddLine(CElementLines& Lines, const TPlace& Place) {
  const THzElement& Hz = Place.Element;
  const THzPoint End =
      Place.bLast ? GM::PolarPoint(Place.Start(), Hz.dAzimuth, Hz.dLength) : StartOfNext(Place);
  Lines.Add(1, "<Line staStart=\"", Hz.dChainage, "\">");
  Lines.Add(2, "<Start>", Place.Start(), "</Start>");
  Lines.Add(2, "<End>", End, "</End>");
  Lines.Add(1, "</Line>");
}

// <Curve staStart="394.250000" rot="cw" crvType="arc" radius="900.000000">
// 	<Start>4471771.560752 457748.941985</Start>
// 	<Center>4472637.410298 457503.372109</Center>
// 	<End>4471737.925671 457472.918768</End>
// </Curve>
void AddCurve(CElementLines& Lines, const TPlace& Place) {
  const THzElement& Hz = Place.Element;
  const THzPoint Start = Place.Start();
  const THzPoint End =
      Place.bLast ? GM::PointOnArc(Start, Hz.dRadius, Hz.dLength, Hz.dAzimuth) : StartOfNext(Place);
  const THzPoint Center = GM::GetArcCenter(Start, End, Hz.dRadius, Hz.dLength);
  Lines.Add(1, "<Curve staStart=\"", Hz.dChainage, "\" rot=\"", Rotation(Hz.dRadius),
            "\" crvType=\"arc\" radius=\"", std::fabs(Hz.dRadius), "\">");
  Lines.Add(2, "<Start>", Start, "</Start>");
  Lines.Add(2, "<Center>", Center, "</Center>");
  Lines.Add(2, "<End>", End, "</End>");
  Lines.Add(1, "</Curve>");
}

// What is alike in both kinds of spiral: its three points and its end.
// 	<Start>4471813.822111 457874.224264</Start>
// 	<PI>4471783.595316 457791.374396</PI>
// 	<End>4471771.560752 457748.941985</End>
// </Spiral>
void AddSpiralPoints(CElementLines& Lines, const TPlace& Place, const THzPoint& End) {
  const THzPoint PI = GM::GetSpiralPI(End, Place.Element);
  Lines.Add(2, "<Start>", Place.Start(), "</Start>");
  Lines.Add(2, "<PI>", PI, "</PI>");
  Lines.Add(2, "<End>", End, "</End>");
  Lines.Add(1, "</Spiral>");
}

std::string_view Transition(bool bStartInfinite, bool bEndInfinite) {
  if (bStartInfinite == bEndInfinite) return "CurveToCurve";
  return bStartInfinite ? "TangentToCurve" : "CurveToTangent";
}

// <Spiral staStart="262.000000" desc="TangentToCurve" length="132.250000" radiusStart="INF"
//   radiusEnd="900.000000" rot="cw" spiType="clothoid" constant="345.000000">   all in one line
void AddClothoid(CElementLines& Lines, const TPlace& Place) {
  const THzElement& Hz = Place.Element;
  // Radii and end
  const double dEndRadius =
      Place.bLast ? GM::GetClothoidEndRadius(Hz)
                  : GM::ChooseClothoidEndRadius(Hz, NextOf(Place).dAzimuth, NextOf(Place).dRadius);
  const THzPoint End = Place.bLast ? Alg::GetPointOnClothoid(Hz.dLength, dEndRadius, Hz) : StartOfNext(Place);
  const auto IsInfinite = [](double dRadius) {
    return dRadius == 0 || std::fabs(dRadius) == GM::dInfiniteRadius;
  };
  const bool bStartInfinite = IsInfinite(Hz.dRadius), bEndInfinite = IsInfinite(dEndRadius);
  Lines.Add(1, "<Spiral staStart=\"", Hz.dChainage, "\" desc=\"", Transition(bStartInfinite, bEndInfinite),
            "\" length=\"", Hz.dLength, "\" radiusStart=\"", RadiusText(Hz.dRadius, bStartInfinite),
            "\" radiusEnd=\"", RadiusText(dEndRadius, bEndInfinite), "\" rot=\"", Rotation(Hz.dRadius),
            "\" spiType=\"clothoid\" constant=\"", Hz.dParameter, "\">");
  AddSpiralPoints(Lines, Place, End);
}

// <Spiral staStart="32.875000" desc="" length="25.000000" radiusStart="INF" radiusEnd="770.000000" rot="ccw"
//   spiType="cubic">   all in one line
// It runs from the radius of the element before it to that of the one behind it, whether they are written or
// not.
void AddCubicSpiral(CElementLines& Lines, const TPlace& Place) {
  const THzElement& Hz = Place.Element;
  const double dEndRadius = NextOf(Place).dRadius;
  Lines.Add(1, "<Spiral staStart=\"", Hz.dChainage, "\" desc=\"\" length=\"", Hz.dLength, "\" radiusStart=\"",
            RadiusText(Place.dRadiusBefore, Place.dRadiusBefore == 0), "\" radiusEnd=\"",
            RadiusText(dEndRadius, dEndRadius == 0), "\" rot=\"", Rotation(Hz.dRadius),
            "\" spiType=\"cubic\">");
  AddSpiralPoints(Lines, Place, StartOfNext(Place));
}

void AddElement(CElementLines& Lines, const TPlace& Place) {
  switch (Alg::GetElementKind(Place.Element)) {
    case Alg::eStraight:
      return AddLine(Lines, Place);
    case Alg::eArc:
      return AddCurve(Lines, Place);
    case Alg::eClothoid:
      return AddClothoid(Lines, Place);
    case Alg::eCubicSpiral:
      return AddCubicSpiral(Lines, Place);
  }
}

}  // namespace

bool TagCoordGeom(double& dOutStart, double& dOutEnd, const THzElements& aHz, double dChStart,
                  double dChEnd) {
  if (UpperBound(aHz) < 1) return false;
  return Guard("CLandXML.TagCoordGeom", false, [&] {
    const TElementRange Range = ChooseElements(aHz, dChStart, dChEnd, Alg::FindHzElement, 0);
    WriteTabbed("<CoordGeom>");
    dOutStart = Checked::At(aHz, Range.nFirst).dChainage;
    dOutEnd = 0;
    CElementLines Lines;
    for (int i = Range.nFirst; i <= Range.nLast; ++i) {
      const TPlace Place = PlaceAt(aHz, i, i == Range.nLast);
      AddElement(Lines, Place);
      Lines.Write();
      dOutEnd = Place.Element.dChainage + Place.Element.dLength;
    }
    return WriteTabbed("</CoordGeom>");
  });
}

}  // namespace vrek::CLandXML
