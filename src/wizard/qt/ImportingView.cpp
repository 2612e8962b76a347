#include "wizard/qt/ImportingView.h"

#include <QHeaderView>
#include <QVBoxLayout>
#include <algorithm>

#include "wizard/qt/Marks.h"
#include "wizard/qt/View.h"

namespace vrek::qt {
namespace {

constexpr int nKeyRole = Qt::UserRole;

bool Same(const TNode& One, const TNode& Other) {
  return One.sKey == Other.sKey && One.sText == Other.sText && One.eImage == Other.eImage;
}

QString MarkName(EImage eImage) {
  if (eImage == EImage::eSuccess) return Word("WIN_MARK_SUCCESS", "read and checked");
  if (eImage == EImage::eFailure) return Word("WIN_MARK_FAILURE", "refused");
  return Word("WIN_MARK_NONE", "not read");
}

}  // namespace

ImportingView::ImportingView(ctlImporting& Control, QWidget* pParent)
    : PageView(pParent),
      m_Control(Control),
      m_pFrame(new QGroupBox(this)),
      m_pTree(new QTreeWidget(m_pFrame)) {
  m_pTree->setObjectName("trFiles");
  m_pTree->setHeaderHidden(true);
  m_pTree->setUniformRowHeights(true);
  m_pTree->setExpandsOnDoubleClick(false);
  connect(m_pTree, &QTreeWidget::itemClicked, this, &ImportingView::NodeUsed);
  connect(m_pTree, &QTreeWidget::itemActivated, this, &ImportingView::NodeUsed);
  (new QVBoxLayout(m_pFrame))->addWidget(m_pTree);
  (new QVBoxLayout(this))->addWidget(m_pFrame);
}

void ImportingView::Render() {
  qt::Render(*m_pFrame, m_Control.frImporting);
  m_pTree->setAccessibleName(m_pFrame->title());
  const auto& aNodes = m_Control.trFiles;
  if (!std::equal(aNodes.begin(), aNodes.end(), m_aShown.begin(), m_aShown.end(), Same)) FillTree();
}

void ImportingView::FillTree() {
  m_aShown = m_Control.trFiles;
  m_pTree->clear();
  QTreeWidgetItem* pRoot = nullptr;
  for (const auto& Node : m_aShown) {
    auto* pItem = MakeItem(Node);
    if (Node.bRoot || !pRoot) {
      m_pTree->addTopLevelItem(pRoot = pItem);
    } else {
      pRoot->addChild(pItem);
    }
  }
  m_pTree->expandAll();
  if (auto* pFirst = m_pTree->topLevelItem(0)) m_pTree->setCurrentItem(pFirst);
}

QTreeWidgetItem* ImportingView::MakeItem(const TNode& Node) const {
  auto* pItem = new QTreeWidgetItem({Text(Node.sText)});
  pItem->setData(0, nKeyRole, Text(Node.sKey));
  if (Node.bRoot) return pItem;
  pItem->setIcon(0, MarkIcon(Node.eImage));
  pItem->setData(0, Qt::AccessibleTextRole, Text(Node.sText) + ", " + MarkName(Node.eImage));
  pItem->setToolTip(0, Node.eImage == EImage::eFailure
                           ? Word("WIN_CLICK_FOR_REPORT", "Click to see what was found in this file")
                           : MarkName(Node.eImage));
  return pItem;
}

void ImportingView::NodeUsed(const QTreeWidgetItem* pItem) {
  m_Control.trFiles_NodeClick(Text(pItem->data(0, nKeyRole).toString()));
  emit Used();
}

}  // namespace vrek::qt
