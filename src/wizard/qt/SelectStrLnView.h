// The Select stringlines page, which no job puts into its sequence.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <array>

#include "wizard/ctlSelectStrLns.h"
#include "wizard/qt/PageView.h"
#include "wizard/qt/Paging.h"
#include "wizard/qt/RailsView.h"

namespace vrek::qt {

class SelectStrLnView final : public PageView {
  Q_OBJECT
 public:
  explicit SelectStrLnView(ctlSelectStrLns& Control, QWidget* pParent = nullptr);
  void Render() override;

 protected:
  bool eventFilter(QObject* pObject, QEvent* pEvent) override;

 private:
  struct TSelector {
    QGroupBox* pFrame = nullptr;
    QComboBox* pList = nullptr;
    std::array<QLabel*, 2> aInfo{};
  };
  TSelector MakeSelector(std::size_t nSelector);

  ctlSelectStrLns& m_Control;
  QGroupBox* m_pFrame;
  std::array<TSelector, 3> m_aSelectors;
  RailsView* m_pRails;
  Paging* m_pPaging;
};

}  // namespace vrek::qt
