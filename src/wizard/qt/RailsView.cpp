#include "wizard/qt/RailsView.h"

#include <QPainter>

namespace vrek::qt {
namespace {

// The drawing is laid out in units of which 15 make a pixel on a screen of 96 dots to the inch.
constexpr double dUnitsPerPixel = 15;

QColor Color(int nBgr) {
  return {nBgr & 255, (nBgr >> 8) & 255, (nBgr >> 16) & 255};
}

}  // namespace

RailsView::RailsView(const ctlRails& Control, QWidget* pParent) : QWidget(pParent), m_Control(Control) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize RailsView::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 20, fontMetrics().height() * 3};
}

void RailsView::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  Painter.fillRect(rect(), Qt::lightGray);  // black, white and red must all show, in a dark theme too
  Painter.scale(1 / dUnitsPerPixel, 1 / dUnitsPerPixel);
  for (const auto& Shape : m_Control.Draw(width() * dUnitsPerPixel, height() * dUnitsPerPixel)) {
    if (Shape.bLine) {
      Painter.setPen(QPen(Color(Shape.nColor), 2 * dUnitsPerPixel));
      Painter.drawLine(QPointF(Shape.dX1, Shape.dY1), QPointF(Shape.dX2, Shape.dY2));
    } else {
      Painter.fillRect(QRectF(QPointF(Shape.dX1, Shape.dY1), QPointF(Shape.dX2, Shape.dY2)),
                       Color(Shape.nColor));
    }
  }
}

}  // namespace vrek::qt
