#include "wizard/frmWizard.h"

#include "base/Configuration.h"
#include "shell/AppModel.h"
#include "shell/ErrHandler.h"
#include "shell/ProcessEnd.h"
#include "wizard/clsEntry.h"

namespace vrek {
namespace {

void WaitPointer(bool bShow) {
  if (auto* pEvents = AppModel().Platform().pEvents) pEvents->WaitPointer(bShow);
}

}  // namespace

// A page's work: the wait pointer shows, and Next and Back are ignored, until it ends.
class frmWizard::CWork {
 public:
  explicit CWork(frmWizard& Wizard) : m_Wizard(Wizard) {
    m_Wizard.m_bBusy = true;
    WaitPointer(true);
  }
  CWork(const CWork&) = delete;
  ~CWork() {
    m_Wizard.m_bBusy = false;
    WaitPointer(false);
  }

 private:
  frmWizard& m_Wizard;
};

void frmWizard::Load(const TMakeLogic& MakeLogic) {
  m_aPages = {ePageJob};
  m_nCurrent = 0;
  ctlProgress.Visible = ctlProgress.cmbCancel.Visible = false;
  m_oWizard = MakeLogic ? MakeLogic(*this) : std::make_unique<clsEntry>(*this);
  UpdateText();
  ShowFirstPage();
}

// Settings that can't be saved, even where the log can't tell of it either, don't hold up the end.
void frmWizard::Unload() {
  if (m_oWizard) TopLevel([&] { m_oWizard->Release(); });
  m_oWizard.reset();
  TopLevel([&] { Guard("SaveFilenames", [&] { ctlFiles.SaveFilenames(); }); });
}

void frmWizard::UpdateText() {
  frButtons.Caption = "  " + std::string(Configuration::sVersion) + "  ";
  Caption = AppModel().ConverterInfo.sName;
  cmdBack.Caption = AppModel().GetToken("BT_BACK");
  cmdNext.Caption = AppModel().GetToken("BT_NEXT");
  cmdCancel.Caption = AppModel().GetToken("BT_CANCEL");
  ctlJobType.UpdateText();
  ctlFiles.UpdateText();
  ctlDetails.UpdateText();
  ctlPreferences.UpdateText();
  ctlImporting.UpdateText();
  ctlExporting.UpdateText();
  ctlProgress.UpdateText();
}

int frmWizard::FirstPage() const {
  return AppModel().ConverterInfo.nJobTypesNumber == 1 ? ePageFiles : ePageJob;
}

// A failure that no routine below caught is reported once; the page is shown as far as it came.
bool frmWizard::Enter(int nPage) {
  bool bShow = true;
  if (!TopLevel([&] { bShow = m_oWizard->IntroPage(nPage); })) ctlProgress.Visible = false;
  return bShow;
}

// The same on the way out: the page stays.
bool frmWizard::Leave(int nPage) {
  bool bLeave = false;
  if (!TopLevel([&] { bLeave = m_oWizard->ExitPage(nPage); })) ctlProgress.Visible = false;
  return bLeave;
}

void frmWizard::ShowFirstPage() {
  const CWork Work(*this);
  m_nCurrent = FirstPage() == ePageFiles ? 1 : 0;
  if (!Enter(CurrentPage())) return;
  KeepTitles();
  ShowCurrent();
}

void frmWizard::ShowCurrent() {
  SSTabWizard.Tab = CurrentPage();
  UpdateButtons();
}

void frmWizard::KeepTitles() {
  m_aTitles[CurrentPage()] = {lblTitle.Caption, lblSubTitle.Caption};
}

// A page that comes back isn't entered again: its title comes back with it.
void frmWizard::RestoreTitles() {
  const auto& aTitle = m_aTitles[CurrentPage()];
  lblTitle.Caption = aTitle[0];
  lblSubTitle.Caption = aTitle[1];
}

void frmWizard::UpdateButtons() {
  cmdOpenFolder.Visible = OnLastPage();
  if (CurrentPage() == FirstPage()) {
    cmdBack.Enabled = false;
    cmdNext.Enabled = true;
    cmdNext.Caption = AppModel().GetToken("BT_NEXT");
  } else if (CurrentPage() == m_aPages.back()) {
    cmdBack.Enabled = true;
    cmdNext.Caption = AppModel().GetToken("BT_FINISH");
    cmdCancel.Enabled = false;
  } else {
    cmdBack.Enabled = cmdNext.Enabled = cmdCancel.Enabled = true;
    cmdNext.Caption = AppModel().GetToken("BT_NEXT");
  }
}

void frmWizard::cmdNext_Click() {
  if (m_bBusy || !m_oWizard) return;
  if (OnLastPage()) {
    Unload();
    EndProcess(0);
  } else {
    NextPage();
  }
}

void frmWizard::NextPage() {
  const CWork Work(*this);
  if (!Leave(CurrentPage())) return;
  ++m_nCurrent;
  if (!Enter(CurrentPage()) && !OnLastPage()) {
    // The page declines: the one behind it is shown, whatever it says. Back may still lead to this one.
    KeepTitles();
    ++m_nCurrent;
    Enter(CurrentPage());
  }
  KeepTitles();
  ShowCurrent();
}

void frmWizard::cmdBack_Click() {
  if (!m_bBusy && m_oWizard && m_nCurrent != 0 && cmdBack.Enabled) BackPage();
}

void frmWizard::BackPage() {
  const CWork Work(*this);
  if (OnLastPage()) Leave(CurrentPage());
  --m_nCurrent;
  RestoreTitles();
  ShowCurrent();
}

void frmWizard::cmdCancel_Click() {
  if (!m_bBusy && cmdCancel.Enabled) EndProcess(1);
}

bool frmWizard::QueryClose() {
  if (m_bBusy) {
    ctlProgress.CancelAll();
    m_bCloseWanted = true;
    return false;
  }
  Unload();
  return true;
}

}  // namespace vrek
