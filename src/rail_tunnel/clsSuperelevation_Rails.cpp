// The rails worked out from the cant table.
//
//   <CrossSects>
//   	<CrossSect sta="104470.412000" name="...">
//   		<CrossSectSurf name="Rails">
//   			<PntList2D>-0.832 401.2 0.832 401.3</PntList2D>           left rail, right rail (six
//   decimals) 			<Feature code="QN Vertex Name">Left,Right</Feature>
//   		</CrossSectSurf>
//   	</CrossSect>
//   </CrossSects>
#include <algorithm>
#include <cmath>

#include "base/Checked.h"
#include "base/FormatReal.h"
#include "design_data/CAligmentsDatas.h"
#include "design_data/CovertData.h"
#include "geometry/Alg.h"
#include "landxml/CLandXML.h"
#include "rail_tunnel/clsSuperelevation.h"
#include "shell/ErrHandler.h"

namespace vrek {
namespace {

std::string_view RailNames(int nAligment) {
  return nAligment == 2 ? "Left_L,Right_L" : nAligment == 3 ? "Left_R,Right_R" : "Left,Right";
}

// 2. Z: height of the track axis.
double AxisHeight(int nAligment, double dChainage, std::string_view sStringLine) {
  if (CAligmentsDatas::GetAligmentType(nAligment) & AligmentType::nVt) {
    return GM::GetHeightAtChainage(CAligmentsDatas::GetAligmentVt(nAligment), dChainage);
  }
  TStringLine Line;
  if (!CAligmentsDatas::GetAligmentStrLnWithName(nAligment, sStringLine, Line)) return 0;
  return GM::GetHeightAtChainage(Line.Vt, dChainage);
}

// 3. R: radius of the plan where a row stands.
double RadiusAt(int nAligment, const TCantStation& Row) {
  return CAligmentsDatas::GetAligmentHzWithChainage(nAligment, Row.dStation).dRadius;
}

bool TakesSideFromPlan(ERotationPoint ePoint) {
  return ePoint == ERotationPoint::eInsideRail || ePoint == ERotationPoint::eOutsideRail ||
         ePoint == ERotationPoint::eCenter;
}

// Lift of each rail above the axis, and the rise between them over the base of the cant.
struct TLift {
  bool bSet = true;
  double dLeft = 0;
  double dRight = 0;
  double dRise = 0;
  bool bLevel = false;  // no side to tilt to: the rails lie half a gauge from the axis
};

// 4. the table of rotation points; the inside rail is the one the curve turns to.
TLift LiftOf(const TCantStation& Row, int nAligment) {
  const double c = Row.dAppliedCant;
  const TLift RightUp{true, 0, c, c, false}, LeftUp{true, c, 0, c, false};
  switch (Row.eRotationPoint) {
    case ERotationPoint::eGivenByRails:
      return {true, Row.dAppliedCantLeft, Row.dAppliedCantRight, Row.dAppliedCantLeft - Row.dAppliedCantRight,
              false};
    case ERotationPoint::eLeftRail:
      return RightUp;
    case ERotationPoint::eRightRail:
      return LeftUp;
    case ERotationPoint::ePlatformAxis:
      return {false, 0, 0, 0, false};
    default:
      break;
  }
  const double R = RadiusAt(nAligment, Row);
  if (R == 0) return {true, 0, 0, 0, true};
  if (Row.eRotationPoint == ERotationPoint::eInsideRail) return R > 0 ? LeftUp : RightUp;
  if (Row.eRotationPoint == ERotationPoint::eOutsideRail) return R > 0 ? RightUp : LeftUp;
  return R > 0 ? TLift{true, c / 2, -c / 2, c, false} : TLift{true, -c / 2, c / 2, c, false};
}

// Half the plan distance between rails a gauge apart on a plane that rises dRise over the base.
double HalfDistance(const TCantStation& Row, double dRise) {
  const double S = Row.dAppliedSuperelevation;
  return Checked::Divide(0.5 * Checked::Sqrt(S * S - dRise * dRise) * Row.dAppliedGauge, S);
}

struct TRange {
  int nFirst = 1;
  int nLast = 0;
};

// 2. the elements to look at
TRange ElementsToExport(const THzElements& aHz, double dChStart, double dChEnd) {
  const int n = UpperBound(aHz);
  TRange Range{1, n};
  if (n < 1 || !IsGiven(dChStart) || !IsGiven(dChEnd)) return Range;
  if (dChStart > Checked::At(aHz, 1).dChainage) Range.nFirst = Alg::FindHzElement(dChStart, aHz);
  if (dChEnd < Checked::At(aHz, n).dChainage) Range.nLast = std::min(Alg::FindHzElement(dChEnd, aHz) + 1, n);
  return Range;
}

// 3. chainages where two clothoids meet that turn opposite ways
void AddReversals(std::vector<double>& aChainages, const THzElements& aHz, const TRange& Range, double dFrom,
                  double dTo) {
  int nSense = 0;
  for (int i = Range.nFirst; i <= Range.nLast; ++i) {
    const THzElement& Element = Checked::At(aHz, i);
    if (Element.dChainage < dFrom || Element.dChainage > dTo) continue;
    if (!(Element.dParameter > 0)) {
      nSense = 0;
      continue;
    }
    const int nThis = Element.dRadius < 0 ? -1 : 1;
    if (nSense != 0 && nSense != nThis) aChainages.push_back(Element.dChainage);
    nSense = nThis;
  }
}

// 5. a is the first at or above the start, b the first from there on above the end, or the last
TRange ChainagesToExport(const std::vector<double>& aChainages, double dChStart, double dChEnd) {
  const int nLast = static_cast<int>(aChainages.size()) - 1;
  TRange Range{1, nLast};
  if (!IsGiven(dChStart) || !IsGiven(dChEnd)) return Range;
  const auto First =
      std::find_if(aChainages.begin() + 1, aChainages.end(), [&](double d) { return d >= dChStart; });
  const auto Behind = std::find_if(First, aChainages.end(), [&](double d) { return d > dChEnd; });
  Range.nFirst = static_cast<int>(First - aChainages.begin());
  if (Behind != aChainages.end()) Range.nLast = static_cast<int>(Behind - aChainages.begin());
  return Range;
}

}  // namespace

bool clsSuperelevation::ComputeRails(double& r_dDist2CL, double& r_dHeightLeft, double& r_dHeightRight,
                                     int nAligment, double dChainage, std::string_view sStringLine) const {
  return Guard("ComputeRails", false, [&] {
    // 1.
    const int i = FindStation(dChainage);
    if (i < 0) return false;
    const TCantStation& Row = Checked::At(m_aStations, i);
    const double Z = AxisHeight(nAligment, dChainage, sStringLine);
    const TLift Lift = LiftOf(Row, nAligment);
    if (!Lift.bSet) return true;
    const double dHalf = Lift.bLevel ? 0.5 * Row.dAppliedGauge : HalfDistance(Row, Lift.dRise);
    r_dDist2CL = Checked::Finite(dHalf);
    r_dHeightLeft = Checked::Finite(Z + Lift.dLeft);
    r_dHeightRight = Checked::Finite(Z + Lift.dRight);
    return true;
  });
}

void clsSuperelevation::ExportToLandXml(double& rChainageStart, double& rChainageEnd,
                                        std::string_view sCrossSectName, int nAligment, double dChStart,
                                        double dChEnd, std::string_view sStringLine) const {
  rChainageStart = rChainageEnd = 0;
  Guard("ExportToLandXML", [&] {
    // 1.
    TStringLine Line;
    const bool bLine = (CAligmentsDatas::GetAligmentType(nAligment) & AligmentType::nStrLn) != 0;
    if (bLine) CAligmentsDatas::GetAligmentStrLnWithName(nAligment, sStringLine, Line);
    const THzElements& aHz = bLine ? Line.Hz : CAligmentsDatas::GetAligmentHz(nAligment);
    // 2. - 4. the first entry stays unused
    std::vector<double> aChainages(1);
    AddReversals(aChainages, aHz, ElementsToExport(aHz, dChStart, dChEnd), GetChainageStart(),
                 GetChainageEnd());
    for (const auto& Station : m_aStations) aChainages.push_back(Station.dStation);
    CovertData::SortDoubles(aChainages);
    // 5., 6.
    const TRange Range = ChainagesToExport(aChainages, dChStart, dChEnd);
    if (Range.nFirst >= Range.nLast) return;
    // 7. - 9.
    if (!CLandXML::TagCrossSects(false, "")) return;
    rChainageStart = Checked::At(aChainages, Range.nFirst);
    TRails Rails;
    for (int n = Range.nFirst; n <= Range.nLast; ++n) {
      WriteSection(Checked::At(aChainages, n), sCrossSectName, nAligment, sStringLine, Rails, rChainageEnd);
    }
    CLandXML::TagCrossSects(true, "");
  });
}

// One section. What ComputeRails doesn't set is that of the section before.
void clsSuperelevation::WriteSection(double s, std::string_view sName, int nAligment,
                                     std::string_view sStringLine, TRails& Rails,
                                     double& rChainageEnd) const {
  if (!CLandXML::TagCrossSect(false, FormatReal(s, 6), sName)) return;
  if (CLandXML::TagCrossSectSurf(false, "Rails")) {
    ComputeRails(Rails.dDist2CL, Rails.dHeightLeft, Rails.dHeightRight, nAligment, s, sStringLine);
    CLandXML::WriteTabbed("<PntList2D>" + FormatReal(-Rails.dDist2CL, 6) + " " +
                          FormatReal(Rails.dHeightLeft, 6) + " " + FormatReal(Rails.dDist2CL, 6) + " " +
                          FormatReal(Rails.dHeightRight, 6) + "</PntList2D>");
    rChainageEnd = s;
    CLandXML::TagFeature(true, "QN Vertex Name", RailNames(nAligment));
    CLandXML::TagCrossSectSurf(true, "");
  }
  CLandXML::TagCrossSect(true, "", "");
}

bool clsSuperelevation::CalcHeightVtAligmentCoplane(int nAligment, double dChainage, double dOffset,
                                                    double& dHeightCL,
                                                    bool bIsVtAligmentSourceChainageCL) const {
  return Guard("ModifyHeightVtAligmentCoplane", false, [&] {
    // 1.
    const double a = GetSlopeInChainage(dChainage), t = std::fabs(dOffset) * std::tan(a);
    // 2.
    const int i = FindStation(dChainage);
    if (i < 0) return false;
    const TCantStation& Row = Checked::At(m_aStations, i);
    // 3.
    const double e = bIsVtAligmentSourceChainageCL ? 0.5 * Row.dAppliedSuperelevation * std::sin(a) : 0;
    // 4. which way the plane falls: -1 when the right rail is the higher one, +1 when the left one is, 0 for
    // none
    int nWay = 0;
    const double R = TakesSideFromPlan(Row.eRotationPoint) ? RadiusAt(nAligment, Row) : 0;
    const int nTurn = R > 0 ? 1 : R < 0 ? -1 : 0;
    switch (Row.eRotationPoint) {
      case ERotationPoint::eGivenByRails:
        nWay = Row.dAppliedCantLeft < Row.dAppliedCantRight   ? -1
               : Row.dAppliedCantLeft > Row.dAppliedCantRight ? 1
                                                              : 0;
        break;
      case ERotationPoint::eInsideRail:
      case ERotationPoint::eCenter:
        nWay = nTurn;
        break;
      case ERotationPoint::eOutsideRail:
        nWay = -nTurn;
        break;
      case ERotationPoint::eLeftRail:
        nWay = -1;
        break;
      case ERotationPoint::eRightRail:
        nWay = 1;
        break;
      default:
        break;
    }
    // 5. the left track lies on the other side of the plane's axis than the right one
    const int nSide = nAligment == 2 ? nWay : nAligment == 3 ? -nWay : 0;
    if (nSide < 0) dHeightCL = Checked::Finite(dHeightCL - t + e);
    if (nSide > 0) dHeightCL = Checked::Finite(dHeightCL + t - e);
    return true;
  });
}

}  // namespace vrek
