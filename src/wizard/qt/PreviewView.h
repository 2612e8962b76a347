// The picture of the Result page: plan, profile or one cross-section of what was written.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTabBar>

#include "preview/Drawing.h"
#include "wizard/qt/DrawingView.h"

namespace vrek::qt {

class PreviewView final : public QWidget {
  Q_OBJECT
 public:
  explicit PreviewView(QWidget* pParent = nullptr);
  void Show(TPreview Shown);
  DrawingView* Picture() const { return m_pPicture; }

 private:
  enum EPicture { ePlan, eProfile, eSection };

  void SetTexts();
  void SetNames();
  void LayOut();
  void ShowPicture(bool bKeepPlace);
  void ShowSectionControls();
  void FillAligments();
  TDrawingContent Content() const;
  const TPreviewSection* Section() const;
  void Select(const QPointF& At);
  void SavePicture();

  TPreview m_Shown;
  TPlotWords m_Words;
  Preview::TElementIndex m_Selected;
  QTabBar* m_pTabs;
  QPushButton* m_pFit;
  QPushButton* m_pSave;
  DrawingView* m_pPicture;
  QComboBox* m_pAligment;  // those with sections
  QSlider* m_pSection;
  QLabel* m_pInfo;
};

}  // namespace vrek::qt
