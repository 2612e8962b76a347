#include "wizard/ctlFiles.h"

#include <algorithm>

#include "base/Configuration.h"
#include "base/ST.h"
#include "shell/AppModel.h"
#include "shell/Services.h"

namespace vrek {
namespace {

std::string SettingsKey(std::size_t nPage, std::size_t nFile) {
  return "Page" + std::to_string(nPage + 1) + "File" + std::to_string(nFile + 1);
}

// Whether a filter such as "(*.PLT;*.RTF)|*.plt;*.rtf|(*.*)|*.*" names the ending of a file.
bool TakesEnding(const std::string& sFilter, const std::string& sFile) {
  const auto sEnding = "*." + ST::ToUpper(ST::GetFileExtension(ST::GetFileName(sFile)));
  const auto sPatterns = ST::ToUpper(sFilter);
  return sPatterns.find(sEnding + ";") != sPatterns.npos || sPatterns.find(sEnding + ")") != sPatterns.npos;
}

}  // namespace

ctlFiles::ctlFiles(const ctlJobType& Job) : m_Job(Job) {
  for (int n = 0; n < 4; ++n) {
    ctlSelectFile[static_cast<std::size_t>(n)].OnUsed = [this, n](auto eControl) { SlotUsed(n, eControl); };
  }
  DeleteAllPages();
}

void ctlFiles::UpdateText() {
  cmdResume.Caption = AppModel().GetToken("CMD_RESUME");
  cmdResume.ToolTip = AppModel().GetToken("CMD_TT_RESUME");
  LabelInfo.Caption = AppModel().GetToken("CMD_DBLTRACKINFO");
}

void ctlFiles::AddPage(std::string_view sTitle) {
  m_aPages.push_back({std::string(sTitle), {}});
  cmdPage[0].Visible = cmdPage[1].Visible = lblPage.Visible = PagesTot() >= 2;
}

void ctlFiles::DeleteAllPages() {
  m_aPages.clear();
  m_nPage = 1;
  FocusPage = FocusFile = 0;
  m_bLoading = true;  // nothing of the pages that go is to be stored in those that come
  for (auto& Control : ctlSelectFile) {
    Control.SetFilename({});
    Control.SetOption(false, false, {});
  }
  m_bLoading = false;
  cmdPage[0].Visible = cmdPage[1].Visible = lblPage.Visible = false;
}

const TFileSlot* ctlFiles::Slot(int nPage, int nFile) const {
  if (nPage < 1 || nPage > PagesTot() || nFile < 1 || nFile > 4) return nullptr;
  return &m_aPages[static_cast<std::size_t>(nPage - 1)].aFiles[static_cast<std::size_t>(nFile - 1)];
}

TFileSlot* ctlFiles::Slot(int nPage, int nFile) {
  return const_cast<TFileSlot*>(static_cast<const ctlFiles*>(this)->Slot(nPage, nFile));
}

void ctlFiles::ConfigFile(int nPage, int nFile, std::string_view sDescription, std::string_view sFilter,
                          std::string_view sEditCmd) {
  if (auto* pSlot = Slot(nPage, nFile)) {
    pSlot->sDescription = sDescription;
    pSlot->sFilter = sFilter;
    pSlot->sEditCmd = sEditCmd;
  }
}

void ctlFiles::ConfigOption(int nPage, int nFile, std::string_view sCaption, bool bValue) {
  if (auto* pSlot = Slot(nPage, nFile)) {
    pSlot->bShowOption = !sCaption.empty();
    pSlot->sOptionCaption = sCaption;
    pSlot->bOptionValue = bValue;
  }
}

void ctlFiles::ConfigFilter(int nPage, int nFile, std::string_view sFilter) {
  if (auto* pSlot = Slot(nPage, nFile)) pSlot->sFilter = sFilter;
}

bool ctlFiles::IsSelected(int nPage, int nFile) const {
  const auto* pSlot = Slot(nPage, nFile);
  return pSlot && pSlot->bChecked;
}

bool ctlFiles::IsOptionSelected(int nPage, int nFile) const {
  const auto* pSlot = Slot(nPage, nFile);
  return pSlot && !pSlot->sDescription.empty() && pSlot->bChecked && pSlot->bShowOption &&
         pSlot->bOptionValue;
}

std::string ctlFiles::GetFile(int nPage, int nFile) const {
  const auto* pSlot = Slot(nPage, nFile);
  return pSlot ? pSlot->sFilename : std::string();
}

std::string ctlFiles::GetName(int nPage, int nFile) const {
  return std::string(ST::GetFileBaseName(GetFile(nPage, nFile)));
}

void ctlFiles::StoreControls() {
  for (int nFile = 1; nFile <= 4; ++nFile) {
    auto* pSlot = Slot(m_nPage, nFile);
    if (!pSlot) return;
    const auto& Control = ctlSelectFile[static_cast<std::size_t>(nFile - 1)];
    pSlot->bChecked = Control.Checked();
    pSlot->sFilename = Control.Filename();
    pSlot->bOptionValue = Control.OptionValue();
  }
}

void ctlFiles::LoadControls() {
  m_bLoading = true;
  const auto& Page = m_aPages[static_cast<std::size_t>(m_nPage - 1)];
  frFiles.Caption = Page.sTitle;
  for (std::size_t n = 0; n < 4; ++n) {
    auto& Control = ctlSelectFile[n];
    const auto& Slot = Page.aFiles[n];
    Control.Visible = !Slot.sDescription.empty();
    Control.SetEnabled(true);
    Control.SetFileTitle(Slot.sDescription);
    Control.SetFilename(Slot.sFilename);
    Control.Filter = Slot.sFilter;
    Control.SetEditCmd(Slot.sEditCmd);
    Control.SetChecked(Slot.bChecked);
    // A slot that comes on show empty waits for a path.
    Control.txtFileName.Enabled = Slot.bChecked || Slot.sFilename.empty();
    Control.SetOption(Slot.bShowOption, Slot.bOptionValue, Slot.sOptionCaption);
    Control.txtFileName.FileMissing = false;
  }
  m_bLoading = false;
}

void ctlFiles::MarkTrack() {
  m_Rails.SetTracksOn(m_nPage - 1);
  m_Rails.SetRailsOn(m_nPage == 1 ? 8 : m_nPage == 2 ? 2 : 32);
}

void ctlFiles::ShowPage(int nPage) {
  if (nPage < 1 || nPage > PagesTot()) return;
  StoreControls();
  m_nPage = nPage;
  LoadControls();
  MarkTrack();
  if (nPage > 1) ctlSelectFile[3].Visible = true;
  cmdPage[1].Enabled = nPage > 1;
  cmdPage[0].Enabled = nPage < PagesTot();
  lblPage.Caption = std::to_string(nPage) + " / " + std::to_string(PagesTot());
  LabelInfo.Visible = m_Job.JobType() == eRailDouble && nPage == 1;
  ApplyCheckBoxRule();
}

void ctlFiles::cmdPage_Click(int nIndex) {
  ShowPage(nIndex == 0 ? m_nPage + 1 : m_nPage - 1);
}

void ctlFiles::SlotUsed(int nIndex, ctlSelectFilename::EControl eControl) {
  if (m_bLoading) return;
  if (eControl == ctlSelectFilename::eCheckBox) ApplyCheckBoxRule();
  if (eControl == ctlSelectFilename::eOption && nIndex == 1) ApplyOptionRule();
  if (eControl == ctlSelectFilename::eEdit) RebuildEditCommand(nIndex);
}

void ctlFiles::ApplyCheckBoxRule() {
  auto& a = ctlSelectFile;
  m_bLoading = true;  // what the rule clears doesn't start it again
  // Each slot needs the one before; a vertical alignment generated from the centre's needs none
  if (m_Job.JobType() == eRailDouble && m_nPage != 1 && IsOptionSelected(1, 2)) {
    a[1].SetEnabled(false);
    a[2].SetEnabled(a[0].Checked());
  } else {
    a[1].SetEnabled(a[0].Checked());
    a[2].SetEnabled(a[1].Checked());
  }
  a[3].SetEnabled(a[2].Enabled());
  // Slots 3 and 4 exclude each other
  if (a[2].Checked()) a[3].SetChecked(false);
  if (a[3].Checked()) a[2].SetChecked(false);
  m_bLoading = false;
}

void ctlFiles::ApplyOptionRule() {
  const int nOther = m_nPage == 2 ? 3 : m_nPage == 3 ? 2 : 0;
  if (auto* pSlot = Slot(nOther, 2)) pSlot->bShowOption = !ctlSelectFile[1].OptionValue();
}

void ctlFiles::RebuildEditCommand(int nIndex) {
  auto& Control = ctlSelectFile[static_cast<std::size_t>(nIndex)];
  switch (m_Job.JobType()) {
    case eTunnel:
      Control.SetEditCmd(SiblingProgram("BoreSectionEditor.exe") + " -l");
      break;
    case eRailSingle:
      Control.SetEditCmd(SiblingProgram("TrackTableEditor.exe") + " -s -l");
      break;
    case eRailDouble: {
      const auto Option = [&](int nPage) { return Slot(nPage, 2) && Slot(nPage, 2)->bOptionValue; };
      const bool bAnyOption = ctlSelectFile[1].OptionValue() || Option(2) || Option(3);
      const bool bCentre = IsSelected(1, 1) && IsSelected(1, 2);
      Control.SetEditCmd(SiblingProgram("TrackTableEditor.exe") + (bAnyOption ? " -d1" : " -d") +
                         (bCentre ? " -c" : "") + " -l");
      break;
    }
    default:
      break;
  }
}

bool ctlFiles::ExistAllFiles(int& nPage, int& nFile) {
  StoreControls();
  for (nPage = 1; nPage <= PagesTot(); ++nPage) {
    for (nFile = 1; nFile <= 4; ++nFile) {
      if (IsSelected(nPage, nFile) && !ExistFile(GetFile(nPage, nFile))) return false;
    }
  }
  nPage = nFile = 0;
  return true;
}

void ctlFiles::SetFocusTo(int nPage, int nFile) {
  ShowPage(nPage);
  if (nFile < 1 || nFile > 4) return;
  auto& Control = ctlSelectFile[static_cast<std::size_t>(nFile - 1)];
  FocusPage = nPage;
  FocusFile = nFile;
  if (Control.Visible && Control.Enabled()) Control.EnterFocus();
}

void ctlFiles::cmdResume_Click() {
  if (m_aPages.empty()) return;
  for (std::size_t nPage = 0; nPage < m_aPages.size(); ++nPage) {
    for (std::size_t nFile = 0; nFile < 4; ++nFile) {
      auto& Slot = m_aPages[nPage].aFiles[nFile];
      Slot.sFilename = AppModel().Platform().pSettings->Read(Configuration::sSettingsApplication, "Files",
                                                             SettingsKey(nPage, nFile), Slot.sFilename);
      if (!Slot.sFilename.empty()) Slot.bChecked = true;
    }
  }
  m_nPage = 0;  // nothing to store of the page on show
  ShowPage(1);
}

void ctlFiles::SaveFilenames() const {
  for (std::size_t nPage = 0; nPage < m_aPages.size(); ++nPage) {
    for (std::size_t nFile = 0; nFile < 4; ++nFile) {
      const auto& Slot = m_aPages[nPage].aFiles[nFile];
      if (!Slot.bChecked) continue;
      AppModel().Platform().pSettings->Write(Configuration::sSettingsApplication, "Files",
                                             SettingsKey(nPage, nFile), Slot.sFilename);
    }
  }
}

// Slots are filled from the first on, since each is enabled by the one before it.
std::vector<std::string> ctlFiles::DropFiles(const std::vector<std::string>& aFiles) {
  std::vector<std::string> aLeft = aFiles;
  for (auto& Control : ctlSelectFile) {
    if (!Control.Visible || !Control.Enabled() || !Control.Filename().empty()) continue;
    const auto it = std::find_if(aLeft.begin(), aLeft.end(), [&](const std::string& sFile) {
      return TakesEnding(Control.Filter, sFile);
    });
    if (it == aLeft.end()) continue;
    Control.DropFiles({*it});
    aLeft.erase(it);
  }
  return aLeft;
}

}  // namespace vrek
