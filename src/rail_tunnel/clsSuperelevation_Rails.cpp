// The two rails at a chainage, and the height of one track from that of another on a common plane.
//
//      left rail        right rail
//   Z + l  o---__          o  Z + r
//         |      ---___  / |
//         |<- d ->|<- d ->|
//                axis
//
// Both stand the gauge g apart on a plane that rises by x over the base S; in plan their half distance is
// D(x) = 0.5·sqrt(S² - x²)·g/S. Inside and outside rail follow from the radius R of the plan at the station of the
// row: the inside is right where R is above 0.
#include <cmath>

#include "base/Checked.h"
#include "design_data/CAligmentsDatas.h"
#include "geometry/GM.h"
#include "rail_tunnel/TrackAxis.h"
#include "rail_tunnel/clsSuperelevation.h"
#include "shell/ErrHandler.h"

namespace vrek {
namespace {

// Which rail a positive cant leaves lower, or with lifts given for both, which one is.
enum class ELower { eNone, eLeft, eRight };

// What stands for R: only the rows that turn about a rail of the curve need it.
bool NeedsRadius(ERotationPoint e) {
  return e == ERotationPoint::eInsideRail || e == ERotationPoint::eOutsideRail ||
         e == ERotationPoint::eCenter;
}

ELower Sided(double dDifference, ELower eAbove, ELower eBelow) {
  if (dDifference > 0) return eAbove;
  return dDifference < 0 ? eBelow : ELower::eNone;
}

ELower LowerRail(const TCantStation& Row, double dRadius) {
  switch (Row.eRotationPoint) {
    case ERotationPoint::eGivenByRails:
      return Sided(Row.dAppliedCantLeft - Row.dAppliedCantRight, ELower::eRight, ELower::eLeft);
    case ERotationPoint::eLeftRail:
      return ELower::eLeft;
    case ERotationPoint::eRightRail:
      return ELower::eRight;
    case ERotationPoint::eInsideRail:
    case ERotationPoint::eCenter:
      return Sided(dRadius, ELower::eRight, ELower::eLeft);
    case ERotationPoint::eOutsideRail:
      return Sided(dRadius, ELower::eLeft, ELower::eRight);
    default:
      return ELower::eNone;
  }
}

// Lifts of both rails above the axis.
struct TLifts {
  double dLeft = 0;
  double dRight = 0;
};

TLifts LiftsOf(const TCantStation& Row, ELower eLower) {
  const double c = Row.dAppliedCant;
  const bool bLeftLower = eLower == ELower::eLeft;
  if (Row.eRotationPoint == ERotationPoint::eGivenByRails)
    return {Row.dAppliedCantLeft, Row.dAppliedCantRight};
  if (Row.eRotationPoint == ERotationPoint::eCenter)
    return bLeftLower ? TLifts{-(c / 2), c / 2} : TLifts{c / 2, -(c / 2)};
  return bLeftLower ? TLifts{0, c} : TLifts{c, 0};
}

// D(x): half the plan distance of the rails where the plane rises by x over the base.
double HalfDistance(const TCantStation& Row, double x) {
  const double S = Row.dAppliedSuperelevation;
  return Checked::Divide(0.5 * Checked::Sqrt(S * S - x * x) * Row.dAppliedGauge, S);
}

double RadiusAt(int nAligment, const TCantStation& Row) {
  if (!NeedsRadius(Row.eRotationPoint)) return 0;
  return CAligmentsDatas::GetAligmentHzWithChainage(nAligment, Row.dStation).dRadius;
}

}  // namespace

bool clsSuperelevation::ComputeRails(double& r_dDist2CL, double& r_dHeightLeft, double& r_dHeightRight,
                                     int nAligment, double dChainage, std::string_view sStringLine) const {
  return RailsAt(r_dDist2CL, r_dHeightLeft, r_dHeightRight, nAligment, dChainage,
                 CTrackAxis(nAligment, sStringLine));
}

bool clsSuperelevation::RailsAt(double& r_dDist2CL, double& r_dHeightLeft, double& r_dHeightRight,
                                int nAligment, double dChainage, const CTrackAxis& Axis) const {
  return Guard("ComputeRails", false, [&] {
    // The row, the axis and the radius
    const int i = FindStation(dChainage);
    if (i == -1) return false;
    const TCantStation& Row = Checked::At(m_aStations, i);
    const double Z = Axis.Height(dChainage);
    const ELower eLower = LowerRail(Row, RadiusAt(nAligment, Row));
    // By the point of rotation
    if (Row.eRotationPoint == ERotationPoint::ePlatformAxis) return true;
    const bool bGiven = Row.eRotationPoint == ERotationPoint::eGivenByRails;
    if (eLower == ELower::eNone && !bGiven) {
      r_dDist2CL = 0.5 * Row.dAppliedGauge;
      r_dHeightLeft = r_dHeightRight = Z;
      return true;
    }
    const TLifts Lifts = LiftsOf(Row, eLower);
    r_dDist2CL = HalfDistance(Row, bGiven ? Lifts.dLeft - Lifts.dRight : Row.dAppliedCant);
    r_dHeightLeft = Z + Lifts.dLeft;
    r_dHeightRight = Z + Lifts.dRight;
    return true;
  });
}

bool clsSuperelevation::CalcHeightVtAligmentCoplane(int nAligment, double dChainage, double dOffset,
                                                    double& dHeightCL, bool bIsVtAligmentSourceChainageCL,
                                                    TRowRadius* pRadius) const {
  return Guard("ModifyHeightVtAligmentCoplane", false, [&] {
    // The rise of the plane over the distance of the tracks
    const double a = GetSlopeInChainage(dChainage);
    const double t = std::fabs(dOffset) * std::tan(a);
    // The row, and what lies between the centre and the rails
    const int i = FindStation(dChainage);
    if (i == -1) return false;
    const TCantStation& Row = Checked::At(m_aStations, i);
    const double e = bIsVtAligmentSourceChainageCL ? 0.5 * Row.dAppliedSuperelevation * std::sin(a) : 0;
    // Which way the plane falls
    TRowRadius Radius = pRadius ? *pRadius : TRowRadius{};
    if (Radius.nRow != i) Radius = {i, RadiusAt(nAligment, Row)};
    if (pRadius) *pRadius = Radius;
    const ELower eLower = LowerRail(Row, Radius.dRadius);
    // The left track lies lower where the left rail does
    if (eLower == ELower::eNone || (nAligment != 2 && nAligment != 3)) return true;
    const bool bLower = (eLower == ELower::eLeft) == (nAligment == 2);
    dHeightCL = Checked::Finite(bLower ? dHeightCL - t + e : dHeightCL + t - e);
    return true;
  });
}

}  // namespace vrek
