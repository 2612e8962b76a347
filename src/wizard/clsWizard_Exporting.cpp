// The Exporting page: its range and layers from the imported data, and on leaving it the document as a whole.
#include <algorithm>

#include "base/Checked.h"
#include "design_data/CAligmentsDatas.h"
#include "landxml/CLandXML.h"
#include "shell/AppModel.h"
#include "shell/ErrHandler.h"
#include "wizard/ExportDriver.h"
#include "wizard/clsWizard.h"
#include "wizard/frmWizard.h"

namespace vrek {
namespace {

void SetRange(ctlExporting& Page, const THzElements& aHz) {
  const auto& Last = Checked::At(aHz, UpperBound(aHz));
  Page.SetChainageStart(Checked::At(aHz, 1).dChainage);
  Page.SetChainageEnd(Last.dChainage + Last.dLength);
}

// The plan of the first alignment that has one; none at all is a fault of the subscript behind the table.
const THzElements& FirstHz() {
  for (int nAligment = 1; nAligment <= 3; ++nAligment) {
    if (CAligmentsDatas::GetAligmentType(nAligment) & AligmentType::nHz)
      return CAligmentsDatas::GetAligmentHz(nAligment);
  }
  Raise(Error::nSubscript);
}

// The stringline that bears the name of slot 1 of the first page that has it.
TStringLine NamedStringLine(const ctlFiles& Files) {
  TStringLine Line;
  for (int nPage = 1; nPage <= Files.PagesTot(); ++nPage) {
    if (CAligmentsDatas::GetAligmentStrLnWithName(nPage, Files.GetName(nPage, 1), Line)) return Line;
  }
  Raise(Error::nAssertion, "No stringline");
}

// A layer whose first surface had a single point has nothing to link.
void OfferLayers(ctlExporting& Page) {
  const auto& Cr = CAligmentsDatas::GetAligmentCr(1);
  for (std::size_t n = 0; n < Cr.Layers.size(); ++n) {
    const auto& Layer = Cr.Layers[n];
    if (!Layer.sName.empty() && Layer.aCodes.size() >= 2) Page.AddLayer(Layer.sName, static_cast<int>(n));
  }
  Page.SetLayersVisible(true);
}

}  // namespace

bool clsWizard::IntroPageExporting() {
  return Guard("IntroPageExporting", false, [&] {
    ShowTitle("LBL_EXP_TIT", "LBL_EXP_SUBTIT");
    auto& Page = m_Window.ctlExporting;
    const bool bRoad = m_Window.ctlJobType.JobType() == eRoad;
    const bool bThirdSlot = bRoad && m_Window.ctlFiles.IsSelected(1, 3);
    Page.ClearLayers();
    Page.SetLayersVisible(false);
    if (ReadsAny(FilesToRead::nStringLinesOfSlot1)) {
      SetRange(Page, NamedStringLine(m_Window.ctlFiles).Hz);
      if (bRoad) OfferStringLines();
      return true;
    }
    SetRange(Page, FirstHz());
    if (bThirdSlot && ReadsAny(FilesToRead::nCrossSections)) {
      OfferLayers(Page);
    } else if (bThirdSlot && ReadsAny(FilesToRead::nStringLinesOfSlot3)) {
      OfferStringLines();
    }
    return true;
  });
}

void clsWizard::OfferStringLines() {
  auto& Page = m_Window.ctlExporting;
  const auto& StrLn = CAligmentsDatas::GetAligmentStrLn(1);
  for (int i = 1; i <= StrLn.nCount; ++i) {
    const auto& Line = Checked::At(StrLn.Lines, i);
    if (Line.nPrev <= 0) Page.AddLayer(Line.sName, i);
  }
  Page.SetLayersVisible(true);
}

// Adds the lines checked on the page to those chosen before, without saying any of the old ones twice.
void clsWizard::StoreSelection() {
  auto StrLn = CAligmentsDatas::GetAligmentStrLn(1);
  auto sChecked = m_Window.ctlExporting.GetSelectedLayersIdx();
  if (!StrLn.sSelected.empty()) {
    const auto nAt = sChecked.find(StrLn.sSelected);
    if (nAt != std::string::npos) sChecked.erase(nAt, StrLn.sSelected.size());
  }
  StrLn.sSelected += sChecked;
  CAligmentsDatas::SetAligmentStrLn(1, std::move(StrLn));
}

bool clsWizard::ExitPageExporting() {
  const int nJob = m_Window.ctlJobType.JobType();
  if (nJob == eRoad && m_Window.ctlExporting.LayersVisible() &&
      ReadsAny(FilesToRead::nStringLinesOfSlot1 | FilesToRead::nStringLinesOfSlot3)) {
    StoreSelection();
  }
  LayOutResultRows();
  CLandXML::SetOutputFile(AppModel().XmlFileToExport);
  if (!CLandXML::TagLandXML(false)) return false;
  CLandXML::TagApplication(AppModel().ConversionInfo.GetCreator());
  CLandXML::TagProject(AppModel().ConversionInfo.GetRoadDataName(), AppModel().ConverterInfo.sDescription);
  CLandXML::TagUnits();
  const bool bResult = ExportDriver(m_Window).ExportJob(nJob);
  CLandXML::TagLandXML(true);
  CLandXML::CloseFile();
  return bResult;
}

}  // namespace vrek
