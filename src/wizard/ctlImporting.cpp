#include "wizard/ctlImporting.h"

#include <algorithm>

#include "checks/CAligmentCheck.h"
#include "shell/AppModel.h"

namespace vrek {

void ctlImporting::UpdateText() {
  frImporting.Caption = AppModel().GetToken("FR_IMPORTING");
}

TNode* ctlImporting::Find(std::string_view sKey) {
  const auto it =
      std::find_if(trFiles.begin(), trFiles.end(), [&](const TNode& Node) { return Node.sKey == sKey; });
  return it == trFiles.end() ? nullptr : &*it;
}

TNode* ctlImporting::AddRoot(std::string_view sKey, std::string_view sText) {
  if (Find(sKey)) return nullptr;
  return &trFiles.emplace_back(TNode{std::string(sKey), std::string(sText), EImage::eNone, true});
}

TNode* ctlImporting::AddNode(std::string_view sKeyRoot, std::string_view sKey, std::string_view sText,
                             EImage eImage) {
  const auto sWholeKey = std::string(sKeyRoot) + "@" + std::string(sKey);
  auto it =
      std::find_if(trFiles.begin(), trFiles.end(), [&](const TNode& Node) { return Node.sKey == sKeyRoot; });
  if (it == trFiles.end() || Find(sWholeKey)) return nullptr;
  it = std::find_if(it + 1, trFiles.end(), [](const TNode& Node) { return Node.bRoot; });
  return &*trFiles.insert(it, TNode{sWholeKey, std::string(sText), eImage, false});
}

std::string ctlImporting::GetText(std::string_view sKeyRoot) const {
  const auto* pNode = const_cast<ctlImporting*>(this)->Find(sKeyRoot);
  return pNode ? pNode->sText : std::string();
}

void ctlImporting::SetImage(std::string_view sKeyRoot, std::string_view sKey, EImage eImage) {
  if (auto* pNode = Find(std::string(sKeyRoot) + "@" + std::string(sKey))) pNode->eImage = eImage;
}

bool ctlImporting::IsAllOk() const {
  return std::none_of(trFiles.begin(), trFiles.end(),
                      [](const TNode& Node) { return Node.eImage == EImage::eFailure; });
}

void ctlImporting::trFiles_NodeClick(std::string_view sKey) {
  const auto* pNode = Find(sKey);
  if (!pNode || pNode->eImage != EImage::eFailure) return;
  Report.txtReport = CAligmentCheck::GetReportText(pNode->sText, pNode->sKey);
  Report.Title = pNode->sText;
  Report.Visible = true;
}

}  // namespace vrek
