// Writes the rails of a track:
//
//   <CrossSects>
//   	<CrossSect sta="100.000000" name="Left track">
//   		<CrossSectSurf name="Rails">
//   			<PntList2D>-0.717500 12.000000 0.717500 12.080000</PntList2D>
//   			<Feature code="QN Vertex Name">Left_L,Right_L</Feature>
//   		</CrossSectSurf>
//   	</CrossSect>
//   </CrossSects>
#include <algorithm>

#include "base/Checked.h"
#include "base/FormatReal.h"
#include "design_data/CAligmentsDatas.h"
#include "design_data/CovertData.h"
#include "geometry/Alg.h"
#include "landxml/CLandXML.h"
#include "rail_tunnel/TrackAxis.h"
#include "rail_tunnel/clsSuperelevation.h"
#include "shell/ErrHandler.h"
#include "shell/RepeatedFailures.h"

namespace vrek {
namespace {

// Two chainages; nothing is limited unless both are given.
struct TLimits {
  double dStart = dNotGiven;
  double dEnd = dNotGiven;
  bool Given() const { return IsGiven(dStart) && IsGiven(dEnd); }
};

// Indices, both ends included.
struct TRange {
  int nFirst = 0;
  int nLast = -1;
};

std::string_view RailNames(int nAligment) {
  if (nAligment == 2) return "Left_L,Right_L";
  return nAligment == 3 ? "Left_R,Right_R" : "Left,Right";
}

// The alignment's plan, or that of the stringline that stands for it; Kept holds what the store hands out.
const THzElements& Plan(int nAligment, std::string_view sStringLine, TStringLine& Kept) {
  if ((CAligmentsDatas::GetAligmentType(nAligment) & AligmentType::nStrLn) == 0)
    return CAligmentsDatas::GetAligmentHz(nAligment);
  CAligmentsDatas::GetAligmentStrLnWithName(nAligment, sStringLine, Kept);
  return Kept.Hz;
}

// The elements to look at
TRange ElementRange(const THzElements& aHz, const TLimits& Limits) {
  const int n = UpperBound(aHz);
  TRange Range{1, n};
  if (!Limits.Given()) return Range;
  if (Limits.dStart > Checked::At(aHz, 1).dChainage) Range.nFirst = Alg::FindHzElement(Limits.dStart, aHz);
  if (Limits.dEnd < Checked::At(aHz, n).dChainage)
    Range.nLast = std::min(Alg::FindHzElement(Limits.dEnd, aHz) + 1, n);
  return Range;
}

// The chainages where two clothoids meet that turn opposite ways, from dFrom to dTo
void CollectTurns(std::vector<double>& aChainages, const THzElements& aHz, TRange Range, double dFrom,
                  double dTo) {
  int nSense = 0;
  for (int i = Range.nFirst; i <= Range.nLast; ++i) {
    const THzElement& Element = Checked::At(aHz, i);
    if (Element.dChainage < dFrom || Element.dChainage > dTo) continue;
    const int nBefore = nSense;
    nSense = Element.dRadius < 0 ? -1 : 1;
    if (!(Element.dParameter > 0)) nSense = 0;
    if (nBefore * nSense < 0) aChainages.push_back(Element.dChainage);
  }
}

// The chainages to write, from index 1 on; no more than one element when there is nothing to write
TRange ListRange(const std::vector<double>& aChainages, const TLimits& Limits) {
  const int nLast = UpperBound(aChainages);
  TRange Range{1, nLast};
  if (!Limits.Given()) return Range;
  const auto At = [&](int i) { return aChainages[static_cast<std::size_t>(i)]; };
  while (Range.nFirst <= nLast && At(Range.nFirst) < Limits.dStart) ++Range.nFirst;
  Range.nLast = Range.nFirst;
  while (Range.nLast < nLast && !(At(Range.nLast) > Limits.dEnd)) ++Range.nLast;
  return Range;
}

// What ComputeRails gives; rows that set nothing leave the section before's.
struct TRails {
  double dDist2CL = 0;
  double dHeightLeft = 0;
  double dHeightRight = 0;
};

std::string PointLine(const TRails& Rails) {
  std::string sLine = "<PntList2D>";
  AppendReal(sLine, -Rails.dDist2CL, 6);
  AppendReal(sLine += ' ', Rails.dHeightLeft, 6);
  AppendReal(sLine += ' ', Rails.dDist2CL, 6);
  AppendReal(sLine += ' ', Rails.dHeightRight, 6);
  return sLine += "</PntList2D>";
}

}  // namespace

void clsSuperelevation::ExportToLandXml(double& rChainageStart, double& rChainageEnd,
                                        std::string_view sCrossSectName, int nAligment, double dChStart,
                                        double dChEnd, std::string_view sStringLine) const {
  rChainageStart = rChainageEnd = 0;
  Guard("ExportToLandXML", [&] {
    const TLimits Limits{dChStart, dChEnd};
    TStringLine Kept;
    const THzElements& aHz = Plan(nAligment, sStringLine, Kept);
    const TRange Elements = ElementRange(aHz, Limits);
    // The chainages, from index 1
    std::vector<double> aChainages(1);
    CollectTurns(aChainages, aHz, Elements, GetChainageStart(), GetChainageEnd());
    for (const auto& Row : m_aStations) aChainages.push_back(Row.dStation);
    CovertData::SortDoubles(aChainages, 1);
    // What of them is written
    const TRange Range = ListRange(aChainages, Limits);
    if (Range.nFirst >= Range.nLast || !CLandXML::TagCrossSects(false, "")) return;
    rChainageStart = Checked::At(aChainages, Range.nFirst);
    // The sections
    const CTrackAxis Axis(nAligment, sStringLine);
    TRails Rails;
    const CRepeatedFailures OnceEach;
    for (int i = Range.nFirst; i <= Range.nLast; ++i) {
      const double s = Checked::At(aChainages, i);
      if (!CLandXML::TagCrossSect(false, FormatReal(s, 6), sCrossSectName)) continue;
      if (CLandXML::TagCrossSectSurf(false, "Rails")) {
        RailsAt(Rails.dDist2CL, Rails.dHeightLeft, Rails.dHeightRight, nAligment, s, Axis);
        CLandXML::WriteTabbed(PointLine(Rails));
        rChainageEnd = s;
        CLandXML::TagFeature(true, "QN Vertex Name", RailNames(nAligment));
        CLandXML::TagCrossSectSurf(true, "");
      }
      CLandXML::TagCrossSect(true, "", "");
    }
    CLandXML::TagCrossSects(true, "");
  });
}

}  // namespace vrek
