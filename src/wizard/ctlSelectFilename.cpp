#include "wizard/ctlSelectFilename.h"

#include "base/ST.h"
#include "shell/AppModel.h"
#include "shell/Services.h"

namespace vrek {

void ctlSelectFilename::SetChecked(bool bChecked) {
  if (chkFile.Value == bChecked) return;
  chkFile.Value = bChecked;
  txtFileName.Enabled = bChecked && chkFile.Enabled;
  if (!bChecked && chkOption.Value) chkOption_Click(false);
  Raise(eCheckBox);
}

void ctlSelectFilename::SetEnabled(bool bEnabled) {
  chkFile.Enabled = txtFileName.Enabled = cmdBrowse.Enabled = chkOption.Enabled = cmdEdit.Enabled = bEnabled;
}

void ctlSelectFilename::SetEditCmd(const std::string& sCommand) {
  m_sEditCmd = sCommand;
  cmdEdit.Visible = !sCommand.empty();
}

void ctlSelectFilename::SetOption(bool bShow, bool bValue, const std::string& sCaption) {
  chkOption.Visible = bShow;
  chkOption.Value = bValue;
  chkOption.Caption = sCaption;
}

std::string ctlSelectFilename::GetName() const {
  return std::string(ST::GetFileBaseName(Filename()));
}

std::string ctlSelectFilename::GetFilename() const {
  return std::string(ST::GetFileName(Filename()));
}

void ctlSelectFilename::txtFileName_Change(const std::string& sText) {
  txtFileName.Text = sText;
  SetChecked(!sText.empty());
}

void ctlSelectFilename::txtFileName_LostFocus() {
  if (txtFileName.Text.empty()) SetChecked(false);
}

void ctlSelectFilename::cmdBrowse_Click() {
  const auto sChosen = AppModel().Platform().pDialogs->OpenFile(Filter);
  if (!sChosen.empty()) txtFileName_Change(sChosen);
  Raise(eBrowse);
}

void ctlSelectFilename::cmdEdit_Click() {
  Raise(eEdit);  // the page rebuilds the command first
  ShellAndWait(m_sEditCmd + " " + txtFileName.Text);
}

void ctlSelectFilename::chkOption_Click(bool bValue) {
  chkOption.Value = bValue;
  Raise(eOption);
}

void ctlSelectFilename::DropFiles(const std::vector<std::string>& aFiles) {
  if (!aFiles.empty() && Enabled()) txtFileName_Change(aFiles.front());
}

void ctlSelectFilename::LeaveFocus() {
  txtFileName.FileMissing = chkFile.Value && !ExistFile(txtFileName.Text);
}

}  // namespace vrek
