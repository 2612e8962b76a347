#include "preview/Sections.h"

#include "design_data/CAligmentsDatas.h"
#include "rail_tunnel/clsSuperelevation.h"

namespace vrek::Preview {
namespace {

bool IsWithin(double dChainage, const TPreviewChoice& Choice) {
  if (Choice.dChStart == 0 && Choice.dChEnd == 0) return true;
  return dChainage >= Choice.dChStart && dChainage <= Choice.dChEnd;
}

void AddSurfaces(TPreviewSection& Out, const TCrSection& Section, const TCrData& Cr,
                 const std::string& sLayers) {
  for (const auto& Surface : Section.Surfaces) {
    if (Surface.nLayer >= Cr.Layers.size()) continue;
    const auto& sName = Cr.Layers[Surface.nLayer].sName;
    if (sLayers.find("$" + sName + "$") == std::string::npos) continue;
    TSectionLine Line{sName, {}};
    for (const auto& Point : Surface.Points) Line.aPoints.push_back({Point.dOffset, Point.dHeight});
    Out.aLines.push_back(std::move(Line));
  }
}

std::vector<TPreviewSection> RoadSections(int nAligment, const TPreviewChoice& Choice) {
  std::vector<TPreviewSection> aOut;
  const auto& Cr = CAligmentsDatas::GetAligmentCr(nAligment);
  for (const auto& Section : Cr.Sections) {
    if (!IsWithin(Section.dChainage, Choice)) continue;
    TPreviewSection Out{Section.dChainage, {}};
    AddSurfaces(Out, Section, Cr, Choice.sLayers);
    if (!Out.aLines.empty()) aOut.push_back(std::move(Out));
  }
  return aOut;
}

// A row that gives no rails behind the first that does is a fault, which has been told: no need to run into
// it again for each row.
std::vector<TPreviewSection> RailSections(int nAligment, const TPreviewChoice& Choice) {
  std::vector<TPreviewSection> aOut;
  const auto oCant = CAligmentsDatas::GetAligmentSup(nAligment);
  if (!oCant) return aOut;
  double dHalf = 0, dLeft = 0, dRight = 0;
  for (const double dChainage : oCant->GetChainages()) {
    if (!IsWithin(dChainage, Choice)) continue;
    if (!oCant->ComputeRails(dHalf, dLeft, dRight, nAligment, dChainage)) break;
    aOut.push_back({dChainage, {{{}, {{-dHalf, dLeft}, {dHalf, dRight}}}}});
  }
  return aOut;
}

}  // namespace

std::vector<TPreviewSection> MakeSections(int nAligment, const TPreviewChoice& Choice) {
  const int nType = CAligmentsDatas::GetAligmentType(nAligment);
  if (nType & AligmentType::nCr) return RoadSections(nAligment, Choice);
  const bool bRails = (nType & AligmentType::nSup) && (nType & AligmentType::nVt);
  return bRails ? RailSections(nAligment, Choice) : std::vector<TPreviewSection>{};
}

}  // namespace vrek::Preview
