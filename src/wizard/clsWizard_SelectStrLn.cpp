// The stringline page: which imported stringline plays which part.
#include "design_data/CAligmentsDatas.h"
#include "shell/AppModel.h"
#include "shell/ErrHandler.h"
#include "wizard/clsWizard.h"
#include "wizard/frmWizard.h"

namespace vrek {
namespace {

std::string Token(std::string_view sToken) {
  return AppModel().GetToken(sToken);
}

// Selectors of a track: its centre line, and where no cant table gives the rails these too.
void ConfigTrack(ctlSelectStrLns& Page, const ctlFiles& Files, int nPage) {
  if (!Files.IsSelected(nPage, 1)) return;
  Page.ConfigCtrl(nPage, 1, Token("FR_SEL_TRACK_CENTERLN"));
  if (Page.GetTotalToSelect(nPage) != "3") return;
  Page.ConfigCtrl(nPage, 2, Token("FR_SEL_RAIL_LEFT"), true);
  Page.ConfigCtrl(nPage, 3, Token("FR_SEL_RAIL_RIGHT"), true);
}

void LayOutDoubleTrack(ctlSelectStrLns& Page, const ctlFiles& Files) {
  const auto Selectors = [&](int nPage) {
    return Files.IsSelected(nPage, 4) ? 1 : Files.IsSelected(nPage, 1) ? 3 : 0;
  };
  Page.AddPage(Token("FR_SEL_TRACK_CENTERLN"), Files.IsSelected(1, 1) ? 1 : 0);
  Page.AddPage(Token("FR_SEL_TRK_LEFT"), Selectors(2));
  Page.AddPage(Token("FR_SEL_TRK_RIGHT"), Selectors(3));
  for (int nPage = 1; nPage <= 3; ++nPage) ConfigTrack(Page, Files, nPage);
}

void SetRails(ctlRails& Rails, int nTracks, int nTracksOn, int nRailsOn) {
  Rails.NumberOfTrack = nTracks;
  Rails.SetTracksOn(nTracksOn);
  Rails.SetRailsOn(nRailsOn);
}

}  // namespace

bool clsWizard::IntroPageSelectStrLn() {
  ShowTitle("LBL_SELECT_STRLN_TIT", "LBL_SELECT_STRLN_SUBTIT");
  auto& Page = m_Window.ctlSelectStrLn;
  const auto& Files = m_Window.ctlFiles;
  Page.DeleteAllPages();
  switch (m_Window.ctlJobType.JobType()) {
    case eRailSingle:
      Page.AddPage(Token("FR_SEL_STRINGLINES"), Files.IsSelected(1, 4) ? 1 : 3);
      ConfigTrack(Page, Files, 1);
      SetRails(Page.GetRailsCtrl(), 1, 1, 0);
      break;
    case eRailDouble:
      LayOutDoubleTrack(Page, Files);
      SetRails(Page.GetRailsCtrl(), 2, 0, 8);
      break;
    default:
      Page.AddPage(Token("FR_SEL_STRINGLINES"));
      if (Files.IsSelected(1, 1)) Page.ConfigCtrl(1, 1, Token("FR_SEL_CENTERLN"));
      SetRails(Page.GetRailsCtrl(), 0, 0, 0);
  }
  int nFirst = 1;
  for (int nPage = 3; nPage >= 1; --nPage) {
    if (Files.IsSelected(nPage, 1)) nFirst = nPage;
  }
  Page.ShowPage(nFirst);
  return true;
}

bool clsWizard::ExitPageSelectStrLn() {
  return Guard("ExitPageSelectStrLn", false, [&] {
    auto& Page = m_Window.ctlSelectStrLn;
    Page.LeaveFocus();
    for (int i = 1; i <= Page.PagesTot(); ++i) {
      auto StrLn = CAligmentsDatas::GetAligmentStrLn(i);
      StrLn.sSelected = Page.GetSelectedStrLnsIdx(i);
      CAligmentsDatas::SetAligmentStrLn(i, std::move(StrLn));
    }
    return true;
  });
}

}  // namespace vrek
