// The Result page: its rows for each job, laid out before the document is written.
#include "shell/AppModel.h"
#include "wizard/WarningsOf.h"
#include "wizard/clsWizard.h"
#include "wizard/frmWizard.h"

namespace vrek {
namespace {

struct TRowTokens {
  const char* sStart;
  const char* sEnd;
};

constexpr TRowTokens PlanRows{"LBL_HZ_CH_START", "LBL_HZ_CH_END"};
constexpr TRowTokens ProfileRows{"LBL_VT_CH_START", "LBL_VT_CH_END"};
constexpr TRowTokens SectionRows{"LBL_CR_CH_START", "LBL_CR_CH_END"};
constexpr TRowTokens TunnelRows{"LBL_TN_CH_START", "LBL_TN_CH_END"};
constexpr TRowTokens TrackRows{"LBL_TR_CH_START", "LBL_TR_CH_END"};

void AddRows(ctlResult& Result, int nPage, int nRow, bool bWanted, const TRowTokens& Tokens) {
  if (!bWanted) return;
  Result.ConfigValueInPage(nPage, nRow, AppModel().GetToken(Tokens.sStart));
  Result.ConfigValueInPage(nPage, nRow + 1, AppModel().GetToken(Tokens.sEnd));
}

void ListWarnings(const frmWizard& Window, TListBox& List) {
  List.Items.clear();
  for (const auto& sText : WarningsOf(Window)) List.Items.push_back({sText, 0, false});
  List.Visible = !List.Items.empty();
}

}  // namespace

void clsWizard::LayOutResultRows() {
  auto& Result = m_Window.ctlResult;
  ListWarnings(m_Window, Result.lstWarnings);
  const auto& Files = m_Window.ctlFiles;
  const int nJob = m_Window.ctlJobType.JobType();
  Result.DeleteAllPages();
  if (nJob != eRailDouble) {
    Result.AddPage(AppModel().GetToken("FR_SUMMARY"));
    AddRows(Result, 1, 1, Files.IsSelected(1, 1), PlanRows);
    AddRows(Result, 1, 3, Files.IsSelected(1, 2), ProfileRows);
    const bool bThird = Files.IsSelected(1, 3) || (nJob == eRailSingle && Files.IsSelected(1, 4));
    AddRows(Result, 1, 5, bThird, nJob == eRoad ? SectionRows : nJob == eTunnel ? TunnelRows : TrackRows);
    return;
  }
  constexpr const char* aTitles[] = {"FR_SUMMARY_CENTER", "FR_SUMMARY_LEFT", "FR_SUMMARY_RIGHT"};
  for (int nPage = 1; nPage <= 3; ++nPage) {
    Result.AddPage(AppModel().GetToken(aTitles[nPage - 1]));
    AddRows(Result, nPage, 1, Files.IsSelected(nPage, 1), PlanRows);
    AddRows(Result, nPage, 3, Files.IsSelected(nPage, 2) || Files.IsOptionSelected(1, 2), ProfileRows);
    const bool bOtherSide = nPage > 1 && Files.IsOptionSelected(5 - nPage, 2);
    AddRows(Result, nPage, 5, Files.IsSelected(nPage, 3) || Files.IsSelected(nPage, 4) || bOtherSide,
            TrackRows);
  }
}

bool clsWizard::IntroPageResult() {
  m_Window.frTitle.Visible = false;
  m_Window.SSTabWizard.WholeWindow = true;
  for (int nPage = 1; nPage <= 3; ++nPage) {
    if (m_Window.ctlResult.GetDescription(nPage, 1).empty()) continue;
    m_Window.ctlResult.ShowPage(nPage);
    break;
  }
  return true;
}

bool clsWizard::ExitPageResult() {
  m_Window.frTitle.Visible = true;
  m_Window.SSTabWizard.WholeWindow = false;
  return true;
}

}  // namespace vrek
