#include "wizard/ExportDriver.h"

#include "design_data/CAligmentsDatas.h"
#include "landxml/CLandXML.h"
#include "shell/AppModel.h"
#include "shell/ErrHandler.h"
#include "wizard/frmWizard.h"

namespace vrek {
bool ReadsAny(int nKinds) {
  return (AppModel().ConversionInfo.nFilesToRead & nKinds) != 0;
}

bool ExportDriver::ExportJob(int nJob) {
  switch (nJob) {
    case eRoad:
      return ExportRoad();
    case eTunnel:
      return ExportTunnel();
    case eRailSingle:
      return ExportRailSingle();
    case eRailDouble:
      return ExportRailDouble();
    default:
      return false;
  }
}

bool ExportDriver::ExportRoad() {
  bool bResult = false;
  Guard("ExportRoad", [&] {
    if (!CLandXML::TagAlignments(false)) return;
    bResult = ExportAligment(1);
    const bool bStringLines = (CAligmentsDatas::GetAligmentType(1) & AligmentType::nStrLn) != 0;
    if (ReadsAny(FilesToRead::nStringLinesOfSlot1) ||
        (ReadsAny(FilesToRead::nStringLinesOfSlot3) && bStringLines)) {
      ExportLayers({{LayerOfRoad(), m_Window.ctlImporting.GetText("PAGE1")}});
    }
    CLandXML::TagAlignments(true);
  });
  return bResult;
}

bool ExportDriver::ExportTunnel() {
  bool bResult = false;
  Guard("ExportTunnel", [&] {
    if (!CLandXML::TagAlignments(false)) return;
    bResult = ExportAligment(1);
    CLandXML::TagAlignments(true);
  });
  return bResult;
}

bool ExportDriver::ExportRailSingle() {
  bool bResult = false;
  Guard("ExportRailSingle", [&] {
    if (!CLandXML::TagAlignments(false)) return;
    bResult = ExportAligment(1);
    const int nType = CAligmentsDatas::GetAligmentType(1);
    if (!ReadsAny(FilesToRead::nStringLinesOfSlot1) && (nType & AligmentType::nCr) &&
        !(nType & AligmentType::nSup)) {
      Trace(" !!Export rail with cross secction are not implemented in this version!!");
    } else {
      ExportLayers({{LayerOfSingleTrack(), m_Window.ctlImporting.GetText("PAGE1")}});
    }
    CLandXML::TagAlignments(true);
  });
  return bResult;
}

bool ExportDriver::ExportRailDouble() {
  bool bResult = false;
  Guard("ExportRailDouble", [&] {
    if (!CLandXML::TagAlignments(false)) return;
    const int nWanted = ReadsAny(FilesToRead::nStringLinesOfSlot1) ? AligmentType::nStrLn : AligmentType::nHz;
    for (int nAligment = 1; nAligment <= 3; ++nAligment) {
      if (CAligmentsDatas::GetAligmentType(nAligment) & nWanted) bResult = ExportAligment(nAligment);
    }
    std::vector<std::pair<TLayer, std::string>> aLayers;
    for (const int nTrack : {2, 3}) {
      if (!m_Window.ctlFiles.IsSelected(nTrack, 1)) continue;
      aLayers.emplace_back(LayerOfTrack(nTrack),
                           m_Window.ctlImporting.GetText("PAGE" + std::to_string(nTrack)));
    }
    ExportLayers(aLayers);
    CLandXML::TagAlignments(true);
  });
  return bResult;
}

}  // namespace vrek
