// The profile of an axis and of a stringline. Points are chainage, height. A curve shows as the PVI at its
// start, the line of the curve with the intersection of its tangents, and the PVI of the next element.
//
//   <ProfAlign name="rasante">
//   	<PVI>12678.278000 729.031158</PVI>
//   	<ParaCurve length="304.800000" desc="-33755.210038">12830.678000 728.658000</ParaCurve>
//   </ProfAlign>
#include <cmath>

#include "base/Checked.h"
#include "geometry/Alg.h"
#include "landxml/CLandXML.h"
#include "landxml/ChainageLimits.h"
#include "landxml/ElementLines.h"
#include "landxml/Tags.h"
#include "shell/ErrHandler.h"

namespace vrek::CLandXML {
namespace {

// <PVI>12678.278000 729.031158</PVI>
bool WritePvi(CElementLines& Lines, const TVtElement& Vt) {
  Lines.Add(1, "<PVI>", Vt.dChainage, " ", Vt.dHeight, "</PVI>");
  return Lines.Write();
}

// <ParaCurve length="304.800000" desc="-33755.210038">12830.678000 728.658000</ParaCurve>
// The tangents meet at half the length.
void WriteParabola(CElementLines& Lines, const TVtElement& Vt) {
  Lines.Add(1, "<ParaCurve length=\"", Vt.dLength, "\" desc=\"", Vt.dKv, "\">",
            Vt.dChainage + Vt.dLength * 0.5, " ", Vt.dHeight + Vt.dLength * 0.5 * Vt.dSlope, "</ParaCurve>");
  Lines.Write();
}

// <CircCurve length="120.000000" radius="-5000.000000">1060.000000 51.200000</CircCurve>
void WriteCircle(CElementLines& Lines, const TVtElement& Vt, double dNextSlope) {
  // Tangent length
  const double dTangent = std::fabs(Vt.dKv * std::tan((std::atan(Vt.dSlope) - std::atan(dNextSlope)) / 2));
  // Its horizontal projection
  const double dProjection = dTangent * std::cos(std::atan(Vt.dSlope));
  // The intersection of the tangents
  Lines.Add(1, "<CircCurve length=\"", std::fabs(Vt.dLength), "\" radius=\"", Vt.dKv, "\">",
            Vt.dChainage + dProjection, " ", Vt.dHeight + Vt.dSlope * dProjection, "</CircCurve>");
  Lines.Write();
}

// The gradient at the end of a circular curve is known from the next element alone: without one, failure 9.
void WriteCurve(CElementLines& Lines, const TVtElements& aVt, int nElement) {
  const TVtElement& Vt = Checked::At(aVt, nElement);
  if (Vt.dKv == 0) return;
  if (Vt.dLength > 0) {
    WriteParabola(Lines, Vt);
  } else {
    WriteCircle(Lines, Vt, Checked::At(aVt, nElement + 1).dSlope);
  }
}

// <ProfAlign name="rasante">
bool WriteHead(std::string_view sName) {
  return WriteParts({"<ProfAlign name=\"", EncodeUtf8Text(sName), "\">"});
}

}  // namespace

bool TagProfAlign(double& dOutStart, double& dOutEnd, std::string_view sName, const TVtElements& aVt,
                  double dChStart, double dChEnd) {
  if (UpperBound(aVt) < 1) return true;
  return Guard("TagProfAlign", false, [&] {
    const TElementRange Range = ChooseElements(aVt, dChStart, dChEnd, Alg::FindVtElement, 1);
    WriteHead(sName);
    dOutStart = Checked::At(aVt, Range.nFirst).dChainage;
    dOutEnd = 0;
    CElementLines Lines;
    for (int i = Range.nFirst; i <= Range.nLast; ++i) {
      const TVtElement& Vt = Checked::At(aVt, i);
      dOutEnd = Vt.dChainage + Vt.dLength;
      WritePvi(Lines, Vt);
      WriteCurve(Lines, aVt, i);
    }
    WriteTabbed("</ProfAlign>");
    return true;
  });
}

bool TagProfAlignIrrLn(double& /*dOutStart*/, double& /*dOutEnd*/, std::string_view sName,
                       const TVtElements& aVt, double dChStart, double dChEnd) {
  if (UpperBound(aVt) < 1) return true;
  return Guard("TagProfAlignIrrLn", false, [&] {
    const TElementRange Range = ChooseElements(aVt, dChStart, dChEnd, Alg::FindVtElement, 1);
    WriteHead(sName);
    CElementLines Lines;
    for (int i = Range.nFirst; i <= Range.nLast; ++i) WritePvi(Lines, Checked::At(aVt, i));
    return WriteTabbed("</ProfAlign>");
  });
}

}  // namespace vrek::CLandXML
