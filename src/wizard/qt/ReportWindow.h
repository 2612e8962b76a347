// The report window: what the checks found, in a fixed-pitch font. It stays beside the wizard; Esc closes it.
#pragma once

#include <QDialog>
#include <QPlainTextEdit>

#include "wizard/ctlImporting.h"

namespace vrek::qt {

class ReportWindow final : public QDialog {
  Q_OBJECT
 public:
  explicit ReportWindow(frmReport& Report, QWidget* pParent = nullptr);
  /// Shows, fills or hides the window as its state says.
  void Render();

 protected:
  void hideEvent(QHideEvent* pEvent) override;

 private:
  void Copy();
  void Save();

  frmReport& m_Report;
  QPlainTextEdit* m_pText;
};

}  // namespace vrek::qt
