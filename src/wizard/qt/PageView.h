// A view of one page: shows the state of its control and forwards what the user does. Decides nothing.
#pragma once

#include <QWidget>

namespace vrek::qt {

class PageView : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;
  /// Shows the control's present state.
  virtual void Render() = 0;

 signals:
  /// A handler of the control has run: the window renders again.
  void Used();
  /// A word for the status line.
  void Told(const QString& sText);
};

}  // namespace vrek::qt
