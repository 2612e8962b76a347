// The Files page: its slots for each job, what must be chosen, and the tree that the choices lay out.
#include "base/Failure.h"
#include "base/ST.h"
#include "shell/AppModel.h"
#include "shell/Services.h"
#include "wizard/clsWizard.h"
#include "wizard/frmWizard.h"

namespace vrek {
namespace {

constexpr std::string_view sFilterPlt = "(*.PLT;*.RTF)|*.plt;*.rtf|(*.*)|*.*";
constexpr std::string_view sFilterAlz = "(*.ALZ;*.RTF)|*.alz;*.rtf|(*.*)|*.*";
constexpr std::string_view sFilterTrv = "(*.TRV;*.RTF)|*.trv;*.rtf|(*.*)|*.*";
constexpr std::string_view sFilterXml = "LandXML(*.xml)|*.xml|(*.*)|*.*";

std::string Token(std::string_view sToken) {
  return AppModel().GetToken(sToken);
}

[[noreturn]] void RaiseFault(int nPage, int nFile) {
  Raise(Error::nFilesPage, std::to_string(nPage) + "," + std::to_string(nFile));
}

}  // namespace

bool clsWizard::IntroPageFiles() {
  ShowTitle("LBL_FIL_TIT", "LBL_FIL_SUBTIT");
  auto& Files = m_Window.ctlFiles;
  const int nJob = m_Window.ctlJobType.JobType();
  const auto sCantEditor = SiblingProgram("TrackTableEditor.exe") + " -l ";
  Files.DeleteAllPages();
  switch (nJob) {
    case eRoad:
      Files.AddPage(Token("FR_FILES_ROAD"));
      break;
    case eTunnel:
      Files.AddPage(Token("FR_FILES_TUNNEL"));
      Files.ConfigFile(1, 3, Token("LBL_FIL_TUNNEL"), sFilterXml,
                       SiblingProgram("BoreSectionEditor.exe") + " -l ");
      break;
    case eRailSingle:
      Files.AddPage(Token("FR_FILES_RAILSINGLE"));
      Files.ConfigFile(1, 4, Token("LBL_FIL_SUPERELEV"), sFilterXml, sCantEditor);
      break;
    default:
      Files.AddPage(Token("FR_FILES_RAILCENTER"));
      Files.AddPage(Token("FR_FILES_RAILLEFT"));
      Files.AddPage(Token("FR_FILES_RAILRIGHT"));
      Files.ConfigFile(2, 4, Token("LBL_FIL_SUPERELEV"), sFilterXml, sCantEditor);
      Files.ConfigFile(3, 4, Token("LBL_FIL_SUPERELEV"), sFilterXml, sCantEditor);
      Files.ConfigOption(1, 2, Token("LBL_USE_CL_VTALIGMENT"), false);
      Files.ConfigOption(2, 2, Token("LBL_USE_RIGHT_VT"), false);
      Files.ConfigOption(3, 2, Token("LBL_USE_LEFT_VT"), false);
  }
  auto& Rails = Files.GetRailsCtrl();
  Rails.NumberOfTrack = nJob == eRailDouble ? 2 : 0;
  if (nJob == eRailDouble) {
    Rails.SetTracksOn(0);
    Rails.SetRailsOn(8);
  }
  for (int nPage = 1; nPage <= Files.PagesTot(); ++nPage) {
    Files.ConfigFile(nPage, 1, Token("LBL_FIL_HZALIGMENT"), sFilterPlt);
    Files.ConfigFile(nPage, 2, Token("LBL_FIL_VTALIGMENT"), sFilterAlz);
    // Only a road has cross-sections; the slot of the rail jobs stays hidden.
    if (nJob == eRoad) Files.ConfigFile(nPage, 3, Token("LBL_FIL_CROSS"), sFilterTrv);
  }
  Files.ShowPage(1);
  Files.ShowResume(AppModel().DebugMode);
  return true;
}

bool clsWizard::ExitPageFiles() {
  if (!ValidateFiles()) return false;
  LayOutTree();
  return true;
}

// A fault moves the focus to its slot; nothing else is said.
bool clsWizard::ValidateFiles() {
  try {
    RaiseFileFaults();
    return true;
  } catch (const Failure& Fault) {
    const auto nComma = Fault.sDescription.find(',');
    if (Fault.nNumber == Error::nFilesPage && nComma != std::string::npos) {
      m_Window.ctlFiles.SetFocusTo(
          static_cast<int>(ST::LeadingNumber(Fault.sDescription)),
          static_cast<int>(ST::LeadingNumber(Fault.sDescription.substr(nComma + 1))));
    }
    return false;
  }
}

void clsWizard::RaiseFileFaults() {
  auto& Files = m_Window.ctlFiles;
  Files.FocusPage = Files.FocusFile = 0;
  // Files that can't be opened; a vertical slot may be empty where a side track's is generated
  int nPage = 0, nFile = 0;
  if (!Files.ExistAllFiles(nPage, nFile)) {
    const bool bGenerated = Files.IsOptionSelected(2, 2) || Files.IsOptionSelected(3, 2);
    if (nFile != 2 || !bGenerated) RaiseFault(nPage, nFile);
  }
  // One alignment: its plan
  if (m_Window.ctlJobType.JobType() != eRailDouble) {
    if (!Files.IsSelected(1, 1)) RaiseFault(1, 1);
    return;
  }
  // Double track: one of the tracks, and what a generated vertical alignment needs
  if (!Files.IsSelected(2, 1) && !Files.IsSelected(3, 1)) RaiseFault(2, 1);
  for (const int nTrack : {2, 3}) {
    if (!Files.IsOptionSelected(nTrack, 2)) continue;
    if (!Files.IsSelected(5 - nTrack, 2)) RaiseFault(5 - nTrack, 2);
    if (!Files.IsSelected(nTrack, 4)) RaiseFault(nTrack, 4);
  }
}

void clsWizard::LayOutTree() {
  auto& Files = m_Window.ctlFiles;
  auto& Tree = m_Window.ctlImporting;
  Tree.DeleteAllNodes();
  const auto Add = [&](const char* sRoot, const char* sKey, int nPage, int nFile) {
    if (Files.IsSelected(nPage, nFile)) Tree.AddNode(sRoot, sKey, Files.GetName(nPage, nFile), EImage::eNone);
  };
  const int nJob = m_Window.ctlJobType.JobType();
  if (nJob == eRailDouble) {
    if (Files.IsSelected(1, 1)) {
      Tree.AddRoot("PAGE1", Token("FR_FILES_RAILCENTER"));
      Add("PAGE1", "Hz", 1, 1);
      Add("PAGE1", "Vt", 1, 2);
    }
    LayOutSideTrack(2, "FR_FILES_RAILLEFT");
    LayOutSideTrack(3, "FR_FILES_RAILRIGHT");
    return;
  }
  constexpr const char* aRoots[] = {"FR_FILES_ROAD", "FR_FILES_TUNNEL", "FR_FILES_RAILSINGLE"};
  Tree.AddRoot("PAGE1", Token(aRoots[nJob]));
  Add("PAGE1", "Hz", 1, 1);
  Add("PAGE1", "Vt", 1, 2);
  Add("PAGE1", "Cr", 1, 3);
  if (nJob == eRailSingle) Add("PAGE1", "Cr", 1, 4);
}

void clsWizard::LayOutSideTrack(int nPage, const char* sTitleToken) {
  auto& Files = m_Window.ctlFiles;
  auto& Tree = m_Window.ctlImporting;
  if (!Files.IsSelected(nPage, 1)) return;
  const auto sRoot = "PAGE" + std::to_string(nPage);
  Tree.AddRoot(sRoot, Token(sTitleToken));
  Tree.AddNode(sRoot, "Hz", Files.GetName(nPage, 1), EImage::eNone);
  // A generated vertical alignment bears the name of the plan.
  const bool bFromCentre = Files.IsOptionSelected(1, 2);
  const bool bGenerated = bFromCentre || Files.IsOptionSelected(nPage, 2);
  if (bFromCentre || Files.IsSelected(nPage, 2)) {
    Tree.AddNode(sRoot, "Vt", Files.GetName(nPage, bGenerated ? 1 : 2), EImage::eNone);
  }
  for (const int nFile : {3, 4}) {
    if (Files.IsSelected(nPage, nFile)) Tree.AddNode(sRoot, "Cr", Files.GetName(nPage, nFile), EImage::eNone);
  }
}

}  // namespace vrek
