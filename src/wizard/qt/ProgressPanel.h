// The progress panel, laid over the page area while long work runs.
#pragma once

#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "wizard/ctlProgress.h"

namespace vrek::qt {

class ProgressPanel final : public QWidget {
  Q_OBJECT
 public:
  explicit ProgressPanel(ctlProgress& Control, QWidget* pParent = nullptr);

  /// Shows the present state. False: nothing but the bar moved, and that only just now, so that the window
  /// needn't look at its messages yet.
  bool Render();

 private:
  ctlProgress& m_Control;
  QGroupBox* m_pFrame;
  QLabel* m_pInfo;
  QProgressBar* m_pBar;
  QPushButton* m_pCancel;
  QElapsedTimer m_LastTurn;
};

}  // namespace vrek::qt
