// The wizard's window: title band, page area with the progress panel over it, the band with the buttons.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>
#include <array>

#include "wizard/frmWizard.h"
#include "wizard/qt/FilesView.h"
#include "wizard/qt/PageView.h"
#include "wizard/qt/ProgressPanel.h"
#include "wizard/qt/QtPlatform.h"
#include "wizard/qt/ReportWindow.h"

namespace vrek::qt {

class WizardWindow final : public QWidget {
  Q_OBJECT
 public:
  /// Both outlive the window.
  WizardWindow(frmWizard& Wizard, QtEvents& Events);
  ~WizardWindow() override;

  /// Loads the pages and shows the first.
  void Load();
  void Render();

 protected:
  void closeEvent(QCloseEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;
  void dragEnterEvent(QDragEnterEvent* pEvent) override;
  void dragMoveEvent(QDragMoveEvent* pEvent) override;
  void dropEvent(QDropEvent* pEvent) override;
  bool eventFilter(QObject* pObject, QEvent* pEvent) override;

 private:
  template <class TBody>
  void Act(TBody&& Body);
  void MakePages();
  QWidget* MakeTitleBand();
  QWidget* MakeButtons();
  QPushButton* MakeButton(const char* sName, void (WizardWindow::*pPressed)());
  void LayOut();
  void Next();
  void Back();
  void Cancel();
  void OpenFolder();
  bool RenderTurn();
  void RenderTitle();
  void RenderButtons();
  void ShowPage();
  void Freeze(bool bBusy);
  bool TakesDrop(const QDropEvent& Event) const;
  void ShowStatus(const QString& sText);

  frmWizard& m_Wizard;
  QtEvents& m_Events;
  std::array<PageView*, 8> m_aPages{};
  FilesView* m_pFiles = nullptr;
  ReportWindow* m_pReport = nullptr;
  QFrame* m_pTitleBand = nullptr;
  QLabel *m_pTitle = nullptr, *m_pSubTitle = nullptr;
  QStackedWidget* m_pStack = nullptr;
  ProgressPanel* m_pProgress = nullptr;
  QWidget* m_pBand = nullptr;
  QLabel *m_pVersion = nullptr, *m_pStatus = nullptr;
  QPushButton *m_pOpenFolder = nullptr, *m_pBack = nullptr, *m_pNext = nullptr, *m_pCancel = nullptr;
  QPointer<QWidget> m_pFocusBefore;  // had the focus when the run began
  bool m_bFrozen = false;
  int m_nShown = -1;  // the page on show
};

}  // namespace vrek::qt
