#include "wizard/ctlSelectStrLns.h"

#include <algorithm>

#include "base/Checked.h"
#include "shell/ErrHandler.h"

namespace vrek {

ctlSelectStrLns::ctlSelectStrLns() {
  for (int n = 0; n < 3; ++n) {
    cString[static_cast<std::size_t>(n)].OnFocus = [this, n] { MarkRails(n); };
  }
  DeleteAllPages();
}

void ctlSelectStrLns::DeleteAllPages() {
  m_nPage = 1;
  m_nPagesTot = 0;
  m_aPages.assign(1, {});
  for (auto& Selector : cString) Selector.Aligment = 0;
  cmdPage[0].Visible = cmdPage[1].Visible = lblPage.Visible = false;
}

void ctlSelectStrLns::AddPage(std::string_view sTitle, int nNumStrLnsToSelect) {
  if (m_nPagesTot > 0) m_aPages.emplace_back();
  auto& Page = m_aPages.back();
  Page.sTittle = sTitle;
  Page.nNumStrLnsToSelect = nNumStrLnsToSelect;
  Page.Items.assign(static_cast<std::size_t>(std::max(1, nNumStrLnsToSelect)), {});
  ++m_nPagesTot;
  if (m_nPagesTot >= 2) cmdPage[0].Visible = cmdPage[1].Visible = lblPage.Visible = true;
}

bool ctlSelectStrLns::IsOk(int nPage, int nFile) const {
  return Guard("ctlSelectStrLns.IsOk", false, [&] {
    if (nPage < 1 || nPage > m_nPagesTot) Raise(Error::nAssertion, "No valid page");
    const int nCount = m_aPages[static_cast<std::size_t>(nPage - 1)].nNumStrLnsToSelect;
    if (nFile != nNoElement && (nFile < 1 || nFile > nCount)) Raise(Error::nAssertion, "No valid element");
    return true;
  });
}

const TSelectItem& ctlSelectStrLns::Item(int nPage, int nFile) const {
  return Checked::At(m_aPages[static_cast<std::size_t>(nPage - 1)].Items, nFile - 1);
}

void ctlSelectStrLns::ConfigCtrl(int nPage, int nFile, std::string_view sTittle, bool bWithEmptyItem) {
  if (!IsOk(nPage, nFile)) return;
  auto& Selector = const_cast<TSelectItem&>(Item(nPage, nFile));
  Selector.sTittle = sTittle;
  Selector.bWithEmptyItem = bWithEmptyItem;
}

std::string ctlSelectStrLns::GetTotalToSelect(int nPage) const {
  if (!IsOk(nPage, nNoElement)) return {};
  return std::to_string(m_aPages[static_cast<std::size_t>(nPage - 1)].nNumStrLnsToSelect);
}

std::string ctlSelectStrLns::GetSelected(int nPage, int nFile) const {
  return IsOk(nPage, nFile) ? Item(nPage, nFile).sSelected : std::string();
}

int ctlSelectStrLns::GetSelectedItemData(int nPage, int nFile) const {
  return IsOk(nPage, nFile) ? Item(nPage, nFile).lItemData : -1;
}

std::string ctlSelectStrLns::GetSelectedStrLnsIdx(int nPage) const {
  if (!IsOk(nPage, nNoElement)) return {};
  std::string sOut;
  const auto& Page = m_aPages[static_cast<std::size_t>(nPage - 1)];
  for (int n = 0; n < Page.nNumStrLnsToSelect; ++n) {
    const int nNumber = Page.Items[static_cast<std::size_t>(n)].lItemData;
    if (nNumber != -1) sOut += "$" + std::to_string(nNumber);
  }
  return sOut.empty() ? sOut : sOut + "$";
}

void ctlSelectStrLns::SaveSelectors() {
  if (m_nPage < 1 || m_nPage > m_nPagesTot) return;
  auto& Page = m_aPages[static_cast<std::size_t>(m_nPage - 1)];
  for (int n = 0; n < Page.nNumStrLnsToSelect; ++n) {
    const auto& Selector = cString[static_cast<std::size_t>(n)];
    // A selector that was never filled for this page has nothing to say about it.
    if (Selector.Aligment != m_nPage) continue;
    Page.Items[static_cast<std::size_t>(n)].sSelected = Selector.SelectedString();
    Page.Items[static_cast<std::size_t>(n)].lItemData = Selector.SelectedItemData();
  }
}

void ctlSelectStrLns::ShowPage(int nPage) {
  if (!IsOk(nPage, nNoElement)) return;
  SaveSelectors();
  m_nPage = nPage;
  auto& Page = m_aPages[static_cast<std::size_t>(nPage - 1)];
  frSelectStrLn.Caption = Page.sTittle;
  for (int n = 0; n < 3; ++n) {
    cString[static_cast<std::size_t>(n)].Visible = Page.nNumStrLnsToSelect > (n == 0 ? 0 : 1);
  }
  for (int n = 0; n < Page.nNumStrLnsToSelect; ++n) {
    auto& Selector = cString[static_cast<std::size_t>(n)];
    auto& Chosen = Page.Items[static_cast<std::size_t>(n)];
    Selector.Aligment = nPage;
    Selector.FillCombo(Chosen.bWithEmptyItem);
    if (!Chosen.sSelected.empty()) {
      Selector.SetSelectedString(Chosen.sSelected);
    } else {
      Chosen.sSelected = Selector.SelectedString();
      Chosen.lItemData = Selector.SelectedItemData();
    }
    Selector.SetTittle(Chosen.sTittle);
    m_Rails.SetTracksOn(nPage == 1 ? (m_nPagesTot == 1 ? 1 : 0) : nPage - 1);
  }
  if (Page.nNumStrLnsToSelect > 0) cString[0].cmbStringline_GotFocus();
  cmdPage[1].Enabled = nPage > 1;
  cmdPage[0].Enabled = nPage < m_nPagesTot;
  lblPage.Caption = std::to_string(nPage) + " / " + std::to_string(m_nPagesTot);
}

void ctlSelectStrLns::cmdPage_Click(int nIndex) {
  const int nStep = nIndex == 0 ? 1 : -1;
  for (int nPage = m_nPage + nStep; nPage >= 1 && nPage <= m_nPagesTot; nPage += nStep) {
    if (m_aPages[static_cast<std::size_t>(nPage - 1)].nNumStrLnsToSelect > 0) return ShowPage(nPage);
  }
}

void ctlSelectStrLns::MarkRails(int nSelector) {
  constexpr int aOnPage3[] = {32, 16, 64}, aElsewhere[] = {2, 1, 4};
  const bool bAxis = nSelector == 0 && m_nPagesTot > 1 && m_nPage == 1;
  m_Rails.SetRailsOn(bAxis ? 8 : m_nPage == 3 ? aOnPage3[nSelector] : aElsewhere[nSelector]);
}

}  // namespace vrek
