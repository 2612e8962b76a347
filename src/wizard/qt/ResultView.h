// The Result page: the summary and the drawing of what was written.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <array>
#include <functional>

#include "wizard/ctlResult.h"
#include "wizard/qt/PageView.h"
#include "wizard/qt/Paging.h"
#include "wizard/qt/PreviewView.h"

namespace vrek::qt {

class ResultView final : public PageView {
  Q_OBJECT
 public:
  /// MakePreview works out the drawing of what was written; called each time the page comes into view.
  ResultView(ctlResult& Control, std::function<TPreview()> MakePreview, QWidget* pParent = nullptr);
  void Render() override;

 protected:
  void showEvent(QShowEvent* pEvent) override;

 private:
  QWidget* MakeRows();

  ctlResult& m_Control;
  std::function<TPreview()> m_MakePreview;
  QGroupBox* m_pFrame;
  QListWidget* m_pWarnings = nullptr;
  std::array<std::array<QLabel*, 3>, 6> m_aRows{};  // description, value, unit
  Paging* m_pPaging = nullptr;
  PreviewView* m_pPreview = nullptr;
};

}  // namespace vrek::qt
