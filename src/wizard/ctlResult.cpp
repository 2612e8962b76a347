#include "wizard/ctlResult.h"

#include "base/FormatReal.h"

namespace vrek {

ctlResult::ctlResult() {
  DeleteAllPages();
  AddPage("Summary of imported data");
  ShowPage(1);
}

void ctlResult::AddPage(std::string_view sTitle) {
  m_aPages.push_back({std::string(sTitle), {}});
  cmdPage[0].Visible = cmdPage[1].Visible = lblPage.Visible = PagesTot() >= 2;
}

void ctlResult::DeleteAllPages() {
  m_aPages.clear();
  m_nPage = 1;
  cmdPage[0].Visible = cmdPage[1].Visible = lblPage.Visible = false;
}

const TResultRow* ctlResult::Row(int nPage, int nFile) const {
  if (nPage < 1 || nPage > PagesTot() || nFile < 1 || nFile > 6) return nullptr;
  return &m_aPages[static_cast<std::size_t>(nPage - 1)].aRows[static_cast<std::size_t>(nFile - 1)];
}

TResultRow* ctlResult::Row(int nPage, int nFile) {
  return const_cast<TResultRow*>(static_cast<const ctlResult*>(this)->Row(nPage, nFile));
}

void ctlResult::ConfigValueInPage(int nPage, int nFile, std::string_view sDescription, double dValue) {
  auto* pRow = Row(nPage, nFile);
  if (!pRow) return;
  if (!sDescription.empty()) pRow->sDescription = sDescription;
  if (IsGiven(dValue)) pRow->dValue = dValue;
  pRow->sUnit = "m.";
}

void ctlResult::SetValueInPage(int nPage, int nFile, double dValue) {
  if (auto* pRow = Row(nPage, nFile)) pRow->dValue = dValue;
}

std::string ctlResult::GetValue(int nPage, int nFile) const {
  const auto* pRow = Row(nPage, nFile);
  return pRow ? FormatReal(pRow->dValue, 6) : std::string();
}

std::string ctlResult::GetDescription(int nPage, int nFile) const {
  const auto* pRow = Row(nPage, nFile);
  return pRow ? pRow->sDescription : std::string();
}

std::string ctlResult::GetUnit(int nPage, int nFile) const {
  const auto* pRow = Row(nPage, nFile);
  return pRow ? pRow->sUnit : std::string();
}

std::string ctlResult::GetTitle(int nPage) const {
  return Row(nPage, 1) ? m_aPages[static_cast<std::size_t>(nPage - 1)].sTitle : std::string();
}

void ctlResult::ShowPage(int nPage) {
  if (nPage < 1 || nPage > PagesTot()) return;
  m_nPage = nPage;
  frResult.Caption = GetTitle(nPage);
  for (int nRow = 1; nRow <= 6; ++nRow) {
    const auto n = static_cast<std::size_t>(nRow - 1);
    const auto* pRow = Row(nPage, nRow);
    lblDescription[n].Visible = lblData[n].Visible = lblUnit[n].Visible = !pRow->sDescription.empty();
    if (pRow->sDescription.empty()) continue;
    lblDescription[n].Caption = pRow->sDescription;
    lblData[n].Caption = FormatReal(pRow->dValue, 6);
    lblUnit[n].Caption = pRow->sUnit;
  }
  cmdPage[1].Enabled = nPage > 1;
  cmdPage[0].Enabled = nPage < PagesTot();
  lblPage.Caption = std::to_string(nPage) + " / " + std::to_string(PagesTot());
}

void ctlResult::cmdPage_Click(int nIndex) {
  const int nStep = nIndex == 0 ? 1 : -1;
  for (int nPage = m_nPage + nStep; nPage >= 1 && nPage <= PagesTot(); nPage += nStep) {
    if (!GetDescription(nPage, 1).empty()) return ShowPage(nPage);
  }
  if (nIndex != 0) ShowPage(m_nPage);
}

}  // namespace vrek
