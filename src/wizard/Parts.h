// The visible parts of a page as plain records: what a control shows, without a toolkit. A view renders them
// and forwards what a person does to the handlers of the page control that owns them.
#pragma once

#include <string>
#include <vector>

namespace vrek {

/// Label, frame or button.
struct TPart {
  std::string Caption = {};
  bool Visible = true;
  bool Enabled = true;
  std::string ToolTip = {};
};

/// Check box or option button.
struct TCheckBox : TPart {
  bool Value = false;
};

struct TTextBox {
  std::string Text;
  bool Visible = true;
  bool Enabled = true;
  bool FileMissing = false;  ///< red background: the file named can't be opened
};

struct TListItem {
  std::string Text;
  int ItemData = 0;
  bool Checked = false;
};

/// List, with or without check boxes.
struct TListBox {
  std::vector<TListItem> Items;
  int Selected = -1;  ///< index, -1 for none
  bool Visible = true;
};

}  // namespace vrek
