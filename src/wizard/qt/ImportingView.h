// The Importing page: the tree of files with their marks.
#pragma once

#include <QGroupBox>
#include <QTreeWidget>
#include <vector>

#include "wizard/ctlImporting.h"
#include "wizard/qt/PageView.h"

namespace vrek::qt {

class ImportingView final : public PageView {
  Q_OBJECT
 public:
  explicit ImportingView(ctlImporting& Control, QWidget* pParent = nullptr);
  void Render() override;

 private:
  void FillTree();
  QTreeWidgetItem* MakeItem(const TNode& Node) const;
  void NodeUsed(const QTreeWidgetItem* pItem);

  ctlImporting& m_Control;
  QGroupBox* m_pFrame;
  QTreeWidget* m_pTree;
  std::vector<TNode> m_aShown;  // what the tree holds
};

}  // namespace vrek::qt
