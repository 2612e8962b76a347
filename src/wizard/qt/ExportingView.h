// The Exporting page: range of chainage and layers.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <array>

#include "wizard/ctlExporting.h"
#include "wizard/qt/PageView.h"

namespace vrek::qt {

class ExportingView final : public PageView {
  Q_OBJECT
 public:
  explicit ExportingView(ctlExporting& Control, QWidget* pParent = nullptr);
  void Render() override;

 private:
  void MakeRange();
  void MakeLayers();
  void RenderLayers();

  ctlExporting& m_Control;
  QGroupBox* m_pFrame;
  QGroupBox* m_pRange;
  QGroupBox* m_pLayers;
  std::array<QLabel*, 2> m_aLabels{};
  std::array<QLineEdit*, 2> m_aChainages{};
  QListWidget* m_pList = nullptr;
  std::array<QPushButton*, 2> m_aSelect{};
};

}  // namespace vrek::qt
