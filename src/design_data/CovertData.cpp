#include "design_data/CovertData.h"

#include <algorithm>

#include "records/SurfacePoints.h"
#include "shell/ErrHandler.h"

namespace vrek::CovertData {

void StartCr(TCrData& Cr) {
  Cr = {};
  for (const char* sName : {"Taludes", "Cunetas", "Subrasante", "Rasante"}) Cr.Layers.push_back({sName, {}});
}

void AddCrSection(TCrData& Cr, double dChainage, const TPointLists& aLists) {
  TCrSection& Section = Cr.Sections.emplace_back();
  Section.dChainage = dChainage;
  const auto nSurfaces =
      std::count_if(aLists.begin(), aLists.end(), [](const auto& a) { return !a.empty(); });
  Section.Surfaces.reserve(static_cast<std::size_t>(nSurfaces));
  for (std::size_t n = 0; n < aLists.size(); ++n) {
    if (!aLists[n].empty()) AddCrSurface(Cr, aLists[n], static_cast<std::uint8_t>(n));
  }
}

void AddCrSurface(TCrData& Cr, const PointList3D& aPoints, std::uint8_t nLayer) {
  TCrSurface& Surface = Cr.Sections.back().Surfaces.emplace_back();
  Surface.nLayer = nLayer;
  Surface.Points.reserve(aPoints.size());
  for (const auto& Point : aPoints)
    Surface.Points.push_back({Point.dOffset, Point.dHeight, {}, {}, false, false});
  if (CCrSec::DeleteDuplicatedpoints(Surface.Points) > 0) Surface.Points.shrink_to_fit();
  TCrLayer& Layer = Cr.Layers[nLayer];
  if (Layer.aCodes.empty()) CCrSec::NameSurface(Surface, Layer);
}

void SortDoubles(std::vector<double>& aValues, std::size_t nFirst) {
  Guard("SortDoubles", [&] {
    if (nFirst < aValues.size())
      std::stable_sort(aValues.begin() + static_cast<std::ptrdiff_t>(nFirst), aValues.end());
  });
}

}  // namespace vrek::CovertData
