// The "QN Stringline Layers" behind the alignments: which stringlines belong together, which of them is the
// centre line, and which are no lines of the surface.
#include "base/Checked.h"
#include "design_data/CAligmentsDatas.h"
#include "landxml/CLandXML.h"
#include "shell/AppModel.h"
#include "wizard/ExportDriver.h"
#include "wizard/frmWizard.h"

namespace vrek {
namespace {

std::string Or(std::string sText, std::string_view sFallback) {
  return sText.empty() ? std::string(sFallback) : sText;
}

}  // namespace

void ExportDriver::ExportLayers(const std::vector<std::pair<TLayer, std::string>>& aLayers) {
  if (!CLandXML::TagFeature(false, "QN Stringline Layers", "")) return;
  for (const auto& [Layer, sName] : aLayers)
    ExportLayer(Layer.aNames, sName, Layer.nCentre, false, Layer.aExcluded);
  CLandXML::TagFeature(true, "", "");
}

// <Feature code="QN Stringline Layer">E1,E3
// 	<Property label="name" value="..."/> ... centreline, sorted, excluded
// </Feature>
void ExportDriver::ExportLayer(const std::vector<std::string>& aNames, std::string_view sLayerName,
                               int nCentre, bool bSorted, const std::vector<int>& aExcluded) {
  std::string sNames;
  for (const auto& sName : aNames) {
    if (sName.empty()) continue;
    if (!sNames.empty()) sNames += ",";
    sNames += sName;
  }
  if (!CLandXML::TagFeature(false, "QN Stringline Layer", sNames)) return;
  CLandXML::TagProperty("name", sLayerName);
  CLandXML::TagProperty("centreline", Checked::At(aNames, nCentre));
  CLandXML::TagProperty("sorted", bSorted ? "YES" : "NO");
  if (!aExcluded.empty() && aExcluded.front() >= 0) {
    for (const int nName : aExcluded) {
      if (nName < 0) continue;
      const auto& sName = Checked::At(aNames, nName);
      if (!sName.empty()) CLandXML::TagProperty("excluded", sName);
    }
  }
  CLandXML::TagFeature(true, "", "");
}

// A configuration with stringlines: the rails come from the cant table or from chosen lines.
bool ExportDriver::RailsChosen(int nPage) const {
  if (m_Window.ctlFiles.IsSelected(nPage, 4)) return true;
  const auto& Chosen = m_Window.ctlSelectStrLn;
  if (Chosen.PagesTot() < nPage || Chosen.GetTotalToSelect(nPage) != "3") return false;
  return Chosen.GetSelectedItemData(nPage, 2) > 0 || Chosen.GetSelectedItemData(nPage, 3) > 0;
}

ExportDriver::TLayer ExportDriver::LayerOfSingleTrack() const {
  const auto& Chosen = m_Window.ctlSelectStrLn;
  if (!ReadsAny(FilesToRead::nStringLinesOfSlot1)) {
    const auto sAxis = m_Window.ctlFiles.GetName(1, 1);
    if (CAligmentsDatas::GetAligmentType(1) & AligmentType::nSup) return {{"Left", sAxis, "Right"}, 1, {1}};
    return {{sAxis}, 0, {-1}};
  }
  if (!RailsChosen(1)) return {{Chosen.GetSelected(1, 1)}, 0, {-1}};
  const bool bSelectors = Chosen.GetTotalToSelect(1) == "3";
  const auto Rail = [&](int nFile) { return bSelectors ? Chosen.GetSelected(1, nFile) : std::string(); };
  return {{Chosen.GetSelected(1, 1), Or(Rail(2), "Left"), Or(Rail(3), "Right")}, 0, {0}};
}

ExportDriver::TLayer ExportDriver::LayerOfTrack(int nTrack) const {
  const auto& Files = m_Window.ctlFiles;
  const auto& Chosen = m_Window.ctlSelectStrLn;
  const std::string sLeft = nTrack == 2 ? "Left_L" : "Left_R", sRight = nTrack == 2 ? "Right_L" : "Right_R";
  if (!ReadsAny(FilesToRead::nStringLinesOfSlot1)) {
    if (CAligmentsDatas::GetAligmentType(nTrack) & AligmentType::nSup) {
      return {{sLeft, Files.GetName(nTrack, 1), sRight, Files.GetName(1, 1)}, 1, {1, 3}};
    }
    return {{Files.GetName(1, 1), Files.GetName(nTrack, 1)}, 1, {0, 1}};
  }
  if (!RailsChosen(nTrack)) return {{Chosen.GetSelected(1, 1), Chosen.GetSelected(nTrack, 1)}, 1, {0, 1}};
  const bool bSelectors = Chosen.GetTotalToSelect(nTrack) == "3";
  const auto Rail = [&](int nFile) { return bSelectors ? Chosen.GetSelected(nTrack, nFile) : std::string(); };
  return {{Or(Rail(2), sLeft), Chosen.GetSelected(nTrack, 1), Or(Rail(3), sRight), Chosen.GetSelected(1, 1)},
          1,
          {1, 3}};
}

// All stringlines that were written; around the axis where there is one, else around the line chosen as
// centre.
ExportDriver::TLayer ExportDriver::LayerOfRoad() const {
  TLayer Layer;
  const auto& StrLn = CAligmentsDatas::GetAligmentStrLn(1);
  if (ReadsAny(FilesToRead::nStringLinesOfSlot1)) {
    Layer.aExcluded = {-1};
  } else {
    Layer.aNames.push_back(m_Window.ctlFiles.GetName(1, 1));
    Layer.aExcluded = {0};
  }
  for (int i = 1; i <= StrLn.nCount; ++i) {
    const auto& Line = StrLn.Lines.at(static_cast<std::size_t>(i));
    if (!Line.bExported) continue;
    if (ReadsAny(FilesToRead::nStringLinesOfSlot1) &&
        i == m_Window.ctlSelectStrLn.GetSelectedItemData(1, 1)) {
      Layer.nCentre = static_cast<int>(Layer.aNames.size());
    }
    Layer.aNames.push_back(Line.sName);
  }
  return Layer;
}

}  // namespace vrek
