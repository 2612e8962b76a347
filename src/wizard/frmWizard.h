// frmWizard: the wizard's window without a toolkit: title, a stack of pages and three buttons. It owns the
// order of the pages and knows nothing of what a page does.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "wizard/PageLogic.h"
#include "wizard/Parts.h"
#include "wizard/ctlDetails.h"
#include "wizard/ctlExporting.h"
#include "wizard/ctlFiles.h"
#include "wizard/ctlImporting.h"
#include "wizard/ctlJobType.h"
#include "wizard/ctlPreferences.h"
#include "wizard/ctlProgress.h"
#include "wizard/ctlResult.h"
#include "wizard/ctlSelectStrLns.h"

namespace vrek {

class frmWizard {
 public:
  using TMakeLogic = std::function<std::unique_ptr<IPageLogic>(frmWizard&)>;

  frmWizard() : ctlFiles(ctlJobType) {}
  frmWizard(const frmWizard&) = delete;

  /// Load step: makes the page logic (the program's own unless another is given) and shows the first page.
  void Load(const TMakeLogic& MakeLogic = {});
  /// Unload step: releases the page logic, which saves the settings, and saves the file names.
  void Unload();

  void AddPage(int ePage) { m_aPages.push_back(ePage); }
  void DeleteLastPage() { m_aPages.pop_back(); }
  void DeletePage(int ePage) { std::erase(m_aPages, ePage); }
  const std::vector<int>& Pages() const { return m_aPages; }
  /// Number of the page on show.
  int CurrentPage() const { return m_aPages[m_nCurrent]; }
  bool OnLastPage() const { return m_nCurrent + 1 == m_aPages.size(); }
  /// While a page's work runs, presses of the three buttons are ignored.
  bool Busy() const { return m_bBusy; }

  void cmdNext_Click();
  void cmdBack_Click();
  void cmdCancel_Click();
  /// The title bar's close box. While work runs it presses the panel's Cancel, also for what the same run
  /// starts later, and gives false: the window stays for now, and CloseWanted says so.
  bool QueryClose();
  bool CloseWanted() const { return m_bCloseWanted; }

  std::string Caption;
  TPart frTitle, lblTitle, lblSubTitle, frButtons, cmdBack, cmdNext, cmdCancel;
  TPart cmdOpenFolder{.Visible = false};  ///< beside Finish: shows where the document lies
  struct {
    int Tab = ePageJob;
    bool WholeWindow = false;  ///< the page also takes the room of the title band
  } SSTabWizard;

  // The pages. Each bears the name of its class.
  vrek::ctlProgress ctlProgress;
  vrek::ctlJobType ctlJobType;
  vrek::ctlFiles ctlFiles;
  vrek::ctlDetails ctlDetails;
  vrek::ctlPreferences ctlPreferences;
  vrek::ctlImporting ctlImporting;
  vrek::ctlExporting ctlExporting;
  vrek::ctlResult ctlResult;
  vrek::ctlSelectStrLns ctlSelectStrLn;

 private:
  class CWork;
  void UpdateText();
  void ShowFirstPage();
  void NextPage();
  void BackPage();
  void ShowCurrent();
  void UpdateButtons();
  void KeepTitles();
  void RestoreTitles();
  bool Enter(int nPage);
  bool Leave(int nPage);
  int FirstPage() const;

  std::unique_ptr<IPageLogic> m_oWizard;
  std::vector<int> m_aPages;
  std::size_t m_nCurrent = 0;
  bool m_bBusy = false;
  bool m_bCloseWanted = false;
  std::map<int, std::array<std::string, 2>> m_aTitles;  // title and subtitle under which a page was shown
};

}  // namespace vrek
