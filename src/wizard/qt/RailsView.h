// The small plan of the tracks.
#pragma once

#include <QWidget>

#include "wizard/ctlRails.h"

namespace vrek::qt {

class RailsView final : public QWidget {
  Q_OBJECT
 public:
  explicit RailsView(const ctlRails& Control, QWidget* pParent = nullptr);

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
  QSize sizeHint() const override { return {120, 90}; }

 private:
  const ctlRails& m_Control;
};

}  // namespace vrek::qt
