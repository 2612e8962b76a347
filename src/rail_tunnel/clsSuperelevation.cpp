#include "rail_tunnel/clsSuperelevation.h"

#include <algorithm>
#include <cmath>

#include "base/Checked.h"
#include "geometry/GM.h"

namespace vrek {
namespace {

// A value between two rows at dChainage.
double Between(double dValue, double dNextValue, double dChainage, const TCantStation& Row,
               const TCantStation& Next) {
  return dValue + (dNextValue - dValue) * ((dChainage - Row.dStation) / (Next.dStation - Row.dStation));
}

// The row as it is at dChainage; only the cant runs on to the next row.
TCantStation Interpolated(TCantStation Row, const TCantStation& Next, double dChainage) {
  const TCantStation Start = Row;
  const auto Run = [&](double TCantStation::*pCant) {
    Row.*pCant = Between(Start.*pCant, Next.*pCant, dChainage, Start, Next);
  };
  if (Row.eRotationPoint == ERotationPoint::eGivenByRails) {
    Run(&TCantStation::dAppliedCantLeft);
    Run(&TCantStation::dAppliedCantRight);
  } else {
    Run(&TCantStation::dAppliedCant);
  }
  return Row;
}

double SlopeOf(const TCantStation& Row) {
  if (Row.eRotationPoint == ERotationPoint::eGivenByRails)
    return std::atan(
        Checked::Divide(Row.dAppliedCantRight - Row.dAppliedCantLeft, Row.dAppliedSuperelevation));
  return GM::ArcSin(Checked::Divide(Row.dAppliedCant, Row.dAppliedSuperelevation));
}

}  // namespace

double clsSuperelevation::GetChainageStart() const {
  return Checked::At(m_aStations, 0).dStation;
}

double clsSuperelevation::GetChainageEnd() const {
  return Checked::At(m_aStations, std::ssize(m_aStations) - 1).dStation;
}

std::vector<double> clsSuperelevation::GetChainages() const {
  std::vector<double> aChainages;
  aChainages.reserve(m_aStations.size());
  for (const auto& Row : m_aStations) aChainages.push_back(Row.dStation);
  return aChainages;
}

double clsSuperelevation::GetSlopeInChainage(double dChainage) const {
  // The row
  const int i = FindStation(dChainage);
  if (i == -1) return 0;
  const TCantStation& Row = Checked::At(m_aStations, i);
  // What it holds at this chainage
  const bool bLast = i + 1 == std::ssize(m_aStations);
  if (dChainage == Row.dStation || bLast) return SlopeOf(Row);
  const TCantStation& Next = Checked::At(m_aStations, i + 1);
  // Its slope
  return SlopeOf(Next.dStation == Row.dStation ? Row : Interpolated(Row, Next, dChainage));
}

// The index before the first station above dChainage, or the first station equal to it; -1 before the table.
int clsSuperelevation::FindStation(double dChainage) const {
  const auto AtOrAbove = [=](const TCantStation& Row) { return Row.dStation >= dChainage; };
  const auto Found = m_bInOrder ? std::partition_point(m_aStations.begin(), m_aStations.end(),
                                                       [&](const auto& Row) { return !AtOrAbove(Row); })
                                : std::find_if(m_aStations.begin(), m_aStations.end(), AtOrAbove);
  const auto i = static_cast<int>(Found - m_aStations.begin());
  return Found != m_aStations.end() && Found->dStation == dChainage ? i : i - 1;
}

}  // namespace vrek
