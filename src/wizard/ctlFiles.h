// ctlFiles: the Files page: for each alignment of the job up to four file slots. The four controls show one
// page; the records hold all of them. Pages and slots are numbered from 1; a number out of range does nothing
// and gives an empty or false result.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "wizard/ctlJobType.h"
#include "wizard/ctlRails.h"
#include "wizard/ctlSelectFilename.h"

namespace vrek {

/// One input file.
struct TFileSlot {
  bool bChecked = false;
  std::string sDescription;  ///< label; empty hides the slot
  std::string sFilter;
  std::string sFilename;  ///< full path
  std::string sEditCmd;   ///< empty hides the button
  bool bShowOption = false;
  bool bOptionValue = false;
  std::string sOptionCaption;
};

struct TFilesPage {
  std::string sTitle;
  std::array<TFileSlot, 4> aFiles;
};

class ctlFiles {
 public:
  explicit ctlFiles(const ctlJobType& Job);
  ctlFiles(const ctlFiles&) = delete;

  void UpdateText();
  int PagesTot() const { return static_cast<int>(m_aPages.size()); }
  int Page() const { return m_nPage; }
  ctlRails& GetRailsCtrl() { return m_Rails; }
  const ctlRails& GetRailsCtrl() const { return m_Rails; }
  void ShowResume(bool bShow) { cmdResume.Visible = bShow; }

  void AddPage(std::string_view sTitle);
  void DeleteAllPages();
  /// All three texts are stored: those left out empty what was there.
  void ConfigFile(int nPage, int nFile, std::string_view sDescription, std::string_view sFilter = {},
                  std::string_view sEditCmd = {});
  void ConfigOption(int nPage, int nFile, std::string_view sCaption, bool bValue);
  void ConfigFilter(int nPage, int nFile, std::string_view sFilter);

  bool IsSelected(int nPage, int nFile) const;
  /// The slot is shown, checked, shows its option, and the option is set.
  bool IsOptionSelected(int nPage, int nFile) const;
  std::string GetFile(int nPage, int nFile) const;  ///< full path
  std::string GetName(int nPage, int nFile) const;  ///< without directory and extension

  /// Stores the controls; then whether every checked file can be opened. If not, where the first fault is.
  bool ExistAllFiles(int& nPage, int& nFile);
  void ShowPage(int nPage);
  /// Shows the page and puts the focus on the slot, if it can take it.
  void SetFocusTo(int nPage, int nFile);
  /// Saves the paths of the checked slots in the settings.
  void SaveFilenames() const;

  // What a person does.
  void cmdPage_Click(int nIndex);  ///< 0 forward, 1 back
  void cmdResume_Click();
  void LeaveFocus() { StoreControls(); }
  /// Files dropped on the page: each goes into the first free slot that takes its ending. Gives those that no
  /// slot takes.
  std::vector<std::string> DropFiles(const std::vector<std::string>& aFiles);

  /// Slot that was last given the focus by SetFocusTo, and its page; 0 for none.
  int FocusPage = 0, FocusFile = 0;

  TPart frFiles, LabelInfo, lblPage;
  TPart cmdResume{.Visible = false};
  std::array<TPart, 2> cmdPage;
  std::array<ctlSelectFilename, 4> ctlSelectFile;

 private:
  TFileSlot* Slot(int nPage, int nFile);
  const TFileSlot* Slot(int nPage, int nFile) const;
  void StoreControls();
  void LoadControls();
  void SlotUsed(int nIndex, ctlSelectFilename::EControl eControl);
  void ApplyCheckBoxRule();
  void ApplyOptionRule();
  void RebuildEditCommand(int nIndex);
  void MarkTrack();

  const ctlJobType& m_Job;
  ctlRails m_Rails;
  int m_nPage = 1;                   // on show
  std::vector<TFilesPage> m_aPages;  // from 0
  bool m_bLoading = false;           // the controls are being filled: their events don't count
};

}  // namespace vrek
