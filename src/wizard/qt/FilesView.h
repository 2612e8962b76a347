// The Files page.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "wizard/ctlFiles.h"
#include "wizard/qt/PageView.h"
#include "wizard/qt/Paging.h"
#include "wizard/qt/RailsView.h"
#include "wizard/qt/SlotView.h"

namespace vrek::qt {

class FilesView final : public PageView {
  Q_OBJECT
 public:
  explicit FilesView(ctlFiles& Control, QWidget* pParent = nullptr);
  void Render() override;
  /// Puts the focus where the validation wants it.
  void FocusFault();
  /// Files dropped on the page, not on a box.
  void DropFiles(const QStringList& aFiles);

 private:
  void LayOut();
  void FocusMoved(const QWidget* pOld, const QWidget* pNow);

  ctlFiles& m_Control;
  QGroupBox* m_pFrame;
  std::array<SlotView*, 4> m_aSlots{};
  RailsView* m_pRails;
  QPushButton* m_pResume;
  QLabel* m_pInfo;
  Paging* m_pPaging;
};

}  // namespace vrek::qt
