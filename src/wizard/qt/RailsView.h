// The small plan of the tracks.
#pragma once

#include <QWidget>

#include "wizard/ctlRails.h"

namespace vrek::qt {

class RailsView final : public QWidget {
  Q_OBJECT
 public:
  explicit RailsView(const ctlRails& Control, QWidget* pParent = nullptr);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* pEvent) override;

 private:
  const ctlRails& m_Control;
};

}  // namespace vrek::qt
