// ctlSelectFilename: one file slot: check box, path, browse button and, in some slots, an option and an Edit
// button.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "wizard/Parts.h"

namespace vrek {

class ctlSelectFilename {
 public:
  /// What was used, told to the page.
  enum EControl { eCheckBox = 1, eTextBox = 2, eBrowse = 3, eEdit = 4, eOption = 5 };
  std::function<void(EControl)> OnUsed;

  const std::string& Filename() const { return txtFileName.Text; }
  /// As typed: a non-empty text checks the box, an empty one clears it.
  void SetFilename(const std::string& sFilename) { txtFileName_Change(sFilename); }
  /// The check box is set and enabled.
  bool Checked() const { return chkFile.Value && chkFile.Enabled; }
  void SetChecked(bool bChecked);
  /// Check box, text box, browse button, option and Edit button together.
  void SetEnabled(bool bEnabled);
  bool Enabled() const { return chkFile.Enabled; }
  const std::string& EditCmd() const { return m_sEditCmd; }
  /// Shows the Edit button when the command isn't empty.
  void SetEditCmd(const std::string& sCommand);
  void SetFileTitle(const std::string& sTitle) { chkFile.Caption = sTitle; }
  bool OptionValue() const { return chkOption.Value; }
  void SetOption(bool bShow, bool bValue, const std::string& sCaption);
  std::string GetName() const;
  std::string GetFilename() const;

  // What a person does.
  void chkFile_Click(bool bValue) { SetChecked(bValue); }
  void txtFileName_Change(const std::string& sText);
  void txtFileName_Click() { Raise(eTextBox); }
  void txtFileName_LostFocus();
  void cmdBrowse_Click();
  void cmdEdit_Click();
  void chkOption_Click(bool bValue);
  /// Files dropped on the text box: the first goes into it.
  void DropFiles(const std::vector<std::string>& aFiles);
  /// Focus enters or leaves the control: the red background goes or, for a missing file, comes.
  void EnterFocus() { txtFileName.FileMissing = false; }
  void LeaveFocus();

  bool Visible = true;
  std::string Filter;  ///< of the browse dialog
  TCheckBox chkFile, chkOption;
  TTextBox txtFileName;
  TPart cmdBrowse, cmdEdit;

 private:
  void Raise(EControl eControl) const {
    if (OnUsed) OnUsed(eControl);
  }

  std::string m_sEditCmd;
};

}  // namespace vrek
