// ctlResult: the Result page: for each alignment the first and last chainage of what went into the output.
// Pages and rows are numbered from 1; a number out of range does nothing and gives an empty text.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/NotGiven.h"
#include "wizard/Parts.h"

namespace vrek {

struct TResultRow {
  std::string sDescription;  ///< label; empty hides the row
  double dValue = 0;
  std::string sUnit;
};

struct TResultPage {
  std::string sTitle;
  std::array<TResultRow, 6> aRows;  ///< start and end of plan, profile, third kind of data
};

class ctlResult {
 public:
  ctlResult();

  int PagesTot() const { return static_cast<int>(m_aPages.size()); }
  int Page() const { return m_nPage; }
  void AddPage(std::string_view sTitle);
  void DeleteAllPages();
  /// An empty description and a value that isn't given leave what is there.
  void ConfigValueInPage(int nPage, int nFile, std::string_view sDescription, double dValue = dNotGiven);
  void SetValueInPage(int nPage, int nFile, double dValue);
  std::string GetValue(int nPage, int nFile) const;
  std::string GetDescription(int nPage, int nFile) const;
  std::string GetUnit(int nPage, int nFile) const;
  std::string GetTitle(int nPage) const;
  void ShowPage(int nPage);

  /// 0: the next page above that has rows; 1: the next below.
  void cmdPage_Click(int nIndex);

  TPart frResult, lblPage;
  std::array<TPart, 2> cmdPage;
  std::array<TPart, 6> lblDescription, lblData, lblUnit;
  TListBox lstWarnings{.Items = {}, .Selected = -1, .Visible = false};  ///< shown while it has items

 private:
  const TResultRow* Row(int nPage, int nFile) const;
  TResultRow* Row(int nPage, int nFile);

  int m_nPage = 1;
  std::vector<TResultPage> m_aPages;  // from 0
};

}  // namespace vrek
