// The Importing page: reads and checks every selected file into the store, then generates the vertical
// alignments that were asked for. All files are tried, so that the user sees every fault at once.
#include "checks/CAligmentCheck.h"
#include "design_data/CAligmentsDatas.h"
#include "design_data/Entry.h"
#include "rail_tunnel/GenerateVt.h"
#include "rail_tunnel/clsSuperelevation.h"
#include "rail_tunnel/clsTunnel.h"
#include "shell/AppModel.h"
#include "wizard/clsWizard.h"
#include "wizard/frmWizard.h"

namespace vrek {
namespace {

constexpr double dSampleStep = 0.5;  // metres between the samples of a generated vertical alignment

std::string Root(int nPage) {
  return "PAGE" + std::to_string(nPage);
}

EImage Mark(bool bOk) {
  return bOk ? EImage::eSuccess : EImage::eFailure;
}

}  // namespace

// What lives as long as one run of the page.
struct clsWizard::TImport {
  TVtElements aVt;           // the vertical array in hand: what the last vertical reader left
  std::vector<bool> aSupOk;  // by page: the cant table was read and passed its check
};

bool clsWizard::IntroPageImporting() {
  ShowTitle("LBL_IMP_TIT", "LBL_IMP_SUBTIT");
  CAligmentCheck::InitReports();
  CAligmentsDatas::InitAligments();
  const auto& Files = m_Window.ctlFiles;
  auto& Progress = m_Window.ctlProgress;
  TImport Import;
  Import.aSupOk.assign(static_cast<std::size_t>(Files.PagesTot()) + 1, false);
  for (int nPage = 1; nPage <= Files.PagesTot(); ++nPage) ImportPage(Import, nPage);
  // From the other track: one side only, the left first.
  if (Files.IsOptionSelected(2, 2)) {
    GenerateTrack(Import, 2, 3, false, "Generating Vt. Alignment");
  } else if (Files.IsOptionSelected(3, 2)) {
    GenerateTrack(Import, 3, 2, false, "Generating Vt. Alignment");
  }
  if (Files.IsOptionSelected(1, 2)) {
    GenerateTrack(Import, 2, 1, true, "Generating Vt. Alignment Left Track");
    GenerateTrack(Import, 3, 1, true, "Generating Vt. Alignment Right Track");
  }
  Progress.Visible = false;
  return true;
}

bool clsWizard::ExitPageImporting() {
  return m_Window.ctlImporting.IsAllOk();
}

void clsWizard::ImportPage(TImport& Import, int nPage) {
  const auto& Files = m_Window.ctlFiles;
  auto& Progress = m_Window.ctlProgress;
  const int nJob = m_Window.ctlJobType.JobType();
  CAligmentsDatas::AddAligment();
  Progress.Visible = true;
  Progress.ShowProgressBar(false);
  const auto Announce = [&](int nFile) {
    Progress.Info(AppModel().GetToken("LBL_IMP_FILE") + "  " + Files.GetName(nPage, nFile));
  };
  if (Files.IsSelected(nPage, 1)) {
    Announce(1);
    ImportHz(nPage);
  }
  if (Files.IsSelected(nPage, 2) && (nPage == 1 || !Files.IsOptionSelected(nPage, 2))) {
    Announce(2);
    ImportVt(Import, nPage);
  }
  if (Files.IsSelected(nPage, 3)) {
    Announce(3);
    if (nJob == eRoad) ImportCr(nPage);
    if (nJob == eTunnel) ImportTunnel(Import, nPage);
  }
  if (Files.IsSelected(nPage, 4)) {
    Announce(4);
    ImportCant(Import, nPage);
  }
}

void clsWizard::ImportHz(int nPage) {
  const auto& Files = m_Window.ctlFiles;
  THzElements aHz;
  const bool bRead = Entry::ImportHzAligment(aHz, Files.GetFile(nPage, 1));
  CAligmentCheck::AddReportFile(Files.GetName(nPage, 1), EFileKind::eHorizontal);
  const int nErrors = CAligmentCheck::CheckHz(aHz, m_Window.ctlPreferences.ToleranceHz());
  m_Window.ctlImporting.SetImage(Root(nPage), "Hz", Mark(bRead && nErrors == 0));
  CAligmentsDatas::SetAligmentHz(nPage, std::move(aHz));
}

void clsWizard::ImportVt(TImport& Import, int nPage) {
  const auto& Files = m_Window.ctlFiles;
  Import.aVt.clear();
  const bool bRead = Entry::ImportVtAligment(Import.aVt, Files.GetFile(nPage, 2));
  CAligmentCheck::AddReportFile(Files.GetName(nPage, 2), EFileKind::eVertical);
  const int nErrors = CAligmentCheck::CheckVt(Import.aVt, m_Window.ctlPreferences.ToleranceVt());
  m_Window.ctlImporting.SetImage(Root(nPage), "Vt", Mark(bRead && nErrors == 0));
  CAligmentsDatas::SetAligmentVt(nPage, Import.aVt);
}

void clsWizard::ImportCr(int nPage) {
  const auto& Files = m_Window.ctlFiles;
  TCrData Cr;
  const bool bRead = Entry::ImportCrAligment(Cr, Files.GetFile(nPage, 3));
  CAligmentCheck::AddReportFile(Files.GetName(nPage, 3), EFileKind::eCrossSections);
  m_Window.ctlImporting.SetImage(Root(nPage), "Cr", Mark(bRead));
  CAligmentsDatas::SetAligmentCr(nPage, std::move(Cr));
}

void clsWizard::ImportTunnel(const TImport& Import, int nPage) {
  const auto& Files = m_Window.ctlFiles;
  const auto oTunnel = std::make_shared<clsTunnel>();
  bool bOk = oTunnel->Load(Files.GetFile(nPage, 3));
  if (bOk) {
    CAligmentCheck::AddReportFile(Files.GetName(nPage, 3), EFileKind::eTunnel);
    bOk = !CAligmentCheck::CheckTunnel(Import.aVt, oTunnel->GetChainages());
  }
  if (bOk) CAligmentsDatas::SetAligmentTnl(nPage, oTunnel);
  m_Window.ctlImporting.SetImage(Root(nPage), "Cr", Mark(bOk));
}

void clsWizard::ImportCant(TImport& Import, int nPage) {
  const auto& Files = m_Window.ctlFiles;
  const auto oCant = std::make_shared<clsSuperelevation>();
  bool bOk = oCant->Import(Files.GetFile(nPage, 4));
  if (bOk) {
    CAligmentCheck::AddReportFile(Files.GetName(nPage, 4), EFileKind::eCant);
    bOk = !CAligmentCheck::CheckSuperelevation(Import.aVt, oCant->GetChainages());
  }
  if (bOk) CAligmentsDatas::SetAligmentSup(nPage, oCant);
  m_Window.ctlImporting.SetImage(Root(nPage), "Cr", Mark(bOk));
  Import.aSupOk[static_cast<std::size_t>(nPage)] = bOk;
}

void clsWizard::GenerateTrack(const TImport& Import, int nTarget, int nSource, bool bFromCentre,
                              const char* sTittle) {
  auto& Progress = m_Window.ctlProgress;
  Progress.Reset();
  Progress.Tittle(sTittle);
  Progress.ShowCancel(true);
  // Marked first: a failure that rises from here must not leave a profile out in silence.
  m_Window.ctlImporting.SetImage(Root(nTarget), "Vt", EImage::eFailure);
  const bool bOk =
      Import.aSupOk.at(static_cast<std::size_t>(nTarget)) &&
      CAligmentsDatas::GenerateVtAligment(nTarget, nSource, nTarget, dSampleStep, Progress, bFromCentre);
  m_Window.ctlImporting.SetImage(Root(nTarget), "Vt", Mark(bOk));
}

}  // namespace vrek
