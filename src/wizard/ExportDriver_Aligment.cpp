// One alignment of the document: plan, profile, cross-sections, rails, tunnel.
#include "base/Checked.h"
#include "design_data/CAligmentsDatas.h"
#include "geometry/Alg.h"
#include "landxml/CLandXML.h"
#include "rail_tunnel/clsSuperelevation.h"
#include "rail_tunnel/clsTunnel.h"
#include "shell/AppModel.h"
#include "shell/ErrHandler.h"
#include "stringlines/CCrSec.h"
#include "wizard/ExportDriver.h"
#include "wizard/frmWizard.h"

namespace vrek {

double ExportDriver::ChStart() const {
  return m_Window.ctlExporting.ChainageStart();
}
double ExportDriver::ChEnd() const {
  return m_Window.ctlExporting.ChainageEnd();
}

void ExportDriver::SetRows(int nAligment, int nRow, double dStart, double dEnd) const {
  m_Window.ctlResult.SetValueInPage(nAligment, nRow, dStart);
  m_Window.ctlResult.SetValueInPage(nAligment, nRow + 1, dEnd);
}

bool ExportDriver::ExportAligment(int nAligment) {
  auto& Progress = m_Window.ctlProgress;
  const bool bResult = Guard("ExportAligment", false, [&] {
    Progress.Reset();
    Progress.Visible = true;
    const int nType = CAligmentsDatas::GetAligmentType(nAligment);
    if (nType & AligmentType::nStrLn) ExportStringLines(nAligment, nType);
    if (nType & AligmentType::nHz) {
      ExportAxis(nAligment, nType);
    } else if (!(nType & AligmentType::nStrLn)) {
      Raise(Error::nAssertion, "Nothing to export");
    }
    return true;
  });
  Progress.Visible = false;
  return bResult;
}

void ExportDriver::ExportAxis(int nAligment, int nType) {
  const auto& aHz = CAligmentsDatas::GetAligmentHz(nAligment);
  // The limits choose elements, so the alignment begins and ends with whole ones
  const auto& First = Checked::At(aHz, Alg::FindHzElement(ChStart(), aHz));
  const auto& Last = Checked::At(aHz, Alg::FindHzElement(ChEnd(), aHz));
  const auto sName = m_Window.ctlFiles.GetName(nAligment, 1);
  if (!CLandXML::TagAlignment(false, sName, First.dChainage, Last.dChainage + Last.dLength)) return;
  // Plan
  m_Window.ctlProgress.Info(AppModel().GetToken("T_EXPORTING_HZ"));
  double dStart = 0, dEnd = 0;
  if (CLandXML::TagCoordGeom(dStart, dEnd, aHz, ChStart(), ChEnd())) SetRows(nAligment, 1, dStart, dEnd);
  if (nType & AligmentType::nVt) ExportProfile(nAligment);
  if (nType & AligmentType::nCr) ExportAligmentCr(nAligment);
  if (nType & AligmentType::nSup) ExportAligmentSuper(nAligment);
  if (nType & AligmentType::nTnl) ExportAligmentTunnel(nAligment);
  CLandXML::TagAlignment(true, "", 0, 0);
}

void ExportDriver::ExportProfile(int nAligment) {
  const auto& Files = m_Window.ctlFiles;
  m_Window.ctlProgress.Info(AppModel().GetToken("T_EXPORTING_VT"));
  // A generated profile has no file: it bears the name of the plan.
  auto sName = Files.GetName(nAligment, 2);
  const bool bOffered =
      Files.IsOptionSelected(nAligment, 2) || Files.IsOptionSelected(1, 2) || Files.IsSelected(nAligment, 2);
  if (sName.empty() && bOffered) sName = Files.GetName(nAligment, 1);
  if (!CLandXML::TagProfile(false)) return;
  double dStart = 0, dEnd = 0;
  if (CLandXML::TagProfAlign(dStart, dEnd, sName, CAligmentsDatas::GetAligmentVt(nAligment), ChStart(),
                             ChEnd())) {
    SetRows(nAligment, 3, dStart, dEnd);
  }
  CLandXML::TagProfile(true);
}

void ExportDriver::ExportAligmentCr(int nAligment) {
  auto& Progress = m_Window.ctlProgress;
  // The engine works on a copy: each export starts from what was read. Where none follows, on the
  // data.
  Progress.Tittle(AppModel().GetToken("T_EXPORTING_CR"));
  Progress.ShowCancel(true);
  TCrData Cr = AppModel().ConversionInfo.bExportOnce ? CAligmentsDatas::TakeAligmentCr(nAligment)
                                                     : CAligmentsDatas::GetAligmentCr(nAligment);
  const auto sLines = m_Window.ctlExporting.GetSelectedLayers();
  Trace(sLines);
  CCrSec::NameFirstSurfaces(Cr);
  Progress.Info(AppModel().GetToken("LBL_EXP_CR_RULES"));
  CCrSec::ApplyRules(Cr, sLines, Progress);
  if (Progress.CancelPressed()) Raise(Error::nUserCancelled, "");
  CCrSec::SetExportData(Cr);
  Progress.Info(AppModel().GetToken("LBL_EXP_CR_EXP"));
  double dStart = 0, dEnd = 0;
  CCrSec::Export2LandXML(dStart, dEnd, Cr, sLines, ChStart(), ChEnd(), Progress);
  SetRows(nAligment, 5, dStart, dEnd);
}

void ExportDriver::ExportAligmentSuper(int nAligment) {
  m_Window.ctlProgress.Info(AppModel().GetToken("T_EXPORTING_RAIL"));
  const auto sRoot = m_Window.ctlImporting.GetText("PAGE" + std::to_string(nAligment));
  const auto oCant = CAligmentsDatas::GetAligmentSup(nAligment);
  const bool bStringLines = (CAligmentsDatas::GetAligmentType(nAligment) & AligmentType::nStrLn) != 0;
  const auto sLine = bStringLines ? m_Window.ctlSelectStrLn.GetSelected(nAligment, 1) : std::string();
  double dStart = 0, dEnd = 0;
  oCant->ExportToLandXml(dStart, dEnd, sRoot, nAligment, ChStart(), ChEnd(), sLine);
  SetRows(nAligment, 5, dStart, dEnd);
}

void ExportDriver::ExportAligmentTunnel(int nAligment) {
  m_Window.ctlProgress.Info(AppModel().GetToken("T_EXPORTING_TUNNEL"));
  double dStart = 0, dEnd = 0;
  CAligmentsDatas::GetAligmentTnl(nAligment)->ExportToLandXml(dStart, dEnd, ChStart(), ChEnd());
  SetRows(nAligment, 5, dStart, dEnd);
}

}  // namespace vrek
