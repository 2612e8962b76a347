// ctlImporting: the Importing page: a tree with one root for each alignment, one node for each input file and
// a mark on each that says whether the file was read and passed its checks. frmReport shows what the checks
// found.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "wizard/Parts.h"

namespace vrek {

enum class EImage { eNone = 0, eSuccess = 1, eFailure = 2 };

struct TNode {
  std::string sKey;  ///< "PAGE1", "PAGE1@Hz"
  std::string sText;
  EImage eImage = EImage::eNone;
  bool bRoot = false;
};

/// The report window. It stays usable beside the wizard; a further click refills it.
struct frmReport {
  std::string Title;
  std::string txtReport;  ///< lines in CR LF, for a fixed-pitch font
  bool Visible = false;
};

class ctlImporting {
 public:
  void UpdateText();

  void DeleteAllNodes() { trFiles.clear(); }
  /// The node, or nullptr when the key is taken. Pointers hold until the next change of the tree.
  TNode* AddRoot(std::string_view sKey, std::string_view sText);
  /// Behind the last child of its root; nullptr when the key is taken or the root isn't there.
  TNode* AddNode(std::string_view sKeyRoot, std::string_view sKey, std::string_view sText, EImage eImage);
  /// Text of a root; empty when there is none.
  std::string GetText(std::string_view sKeyRoot) const;
  /// Marks the child of that key; a missing one, or a missing root, is passed over.
  void SetImage(std::string_view sKeyRoot, std::string_view sKey, EImage eImage);
  /// False as soon as a node has the failure mark.
  bool IsAllOk() const;

  /// A click on a node: a failed one shows its report.
  void trFiles_NodeClick(std::string_view sKey);

  TPart frImporting;
  std::vector<TNode> trFiles;  ///< in the order of show: each root, then its children
  frmReport Report;

 private:
  TNode* Find(std::string_view sKey);
};

}  // namespace vrek
