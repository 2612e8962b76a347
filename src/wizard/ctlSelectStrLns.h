// ctlSelectStrLns: which imported stringline plays which part: sub-pages, one for each alignment, with up to
// three selectors. No job puts this page into its sequence; configurations that read stringlines do. A bad
// page or element number reports failure 20000 with the source "ctlSelectStrLns.IsOk", and the operation does
// nothing.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "wizard/Parts.h"
#include "wizard/ctlRails.h"
#include "wizard/ctlSelectString.h"

namespace vrek {

struct TSelectItem {
  std::string sTittle;
  bool bWithEmptyItem = false;  ///< the selector offers "----" first
  std::string sSelected;        ///< stringline last chosen
  int lItemData = -1;           ///< its number, -1 for none
};

struct TSelectPage {
  std::string sTittle;
  int nNumStrLnsToSelect = 0;         ///< selectors on show, 0 to 3
  std::vector<TSelectItem> Items{1};  ///< from 0; at least one
};

class ctlSelectStrLns {
 public:
  ctlSelectStrLns();
  ctlSelectStrLns(const ctlSelectStrLns&) = delete;

  int PagesTot() const { return m_nPagesTot; }
  int Page() const { return m_nPage; }
  void AddPage(std::string_view sTitle, int nNumStrLnsToSelect = 1);
  void DeleteAllPages();
  void ConfigCtrl(int nPage, int nFile, std::string_view sTittle, bool bWithEmptyItem = false);
  ctlRails& GetRailsCtrl() { return m_Rails; }
  void ShowPage(int nPage);
  std::string GetTotalToSelect(int nPage) const;
  std::string GetSelected(int nPage, int nFile) const;
  int GetSelectedItemData(int nPage, int nFile) const;
  /// Numbers of the stringlines chosen on a page, as "$3$7$"; empty for none.
  std::string GetSelectedStrLnsIdx(int nPage) const;

  // What a person does.
  void cmdPage_Click(int nIndex);  ///< 0: next page with selectors; 1: the one before
  void LeaveFocus() { SaveSelectors(); }

  TPart frSelectStrLn, lblPage;
  std::array<TPart, 2> cmdPage;
  std::array<ctlSelectString, 3> cString;

 private:
  static constexpr int nNoElement = 255;
  bool IsOk(int nPage, int nFile) const;
  const TSelectItem& Item(int nPage, int nFile) const;
  void SaveSelectors();
  void MarkRails(int nSelector);

  ctlRails m_Rails;
  int m_nPage = 1;
  int m_nPagesTot = 0;
  std::vector<TSelectPage> m_aPages{1};
};

}  // namespace vrek
