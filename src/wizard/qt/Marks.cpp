#include "wizard/qt/Marks.h"

#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

namespace vrek::qt {
namespace {

// Drawn on a square of 16 units.
void DrawMark(QPainter& Painter, EImage eImage) {
  const bool bSuccess = eImage == EImage::eSuccess;
  Painter.setRenderHint(QPainter::Antialiasing);
  Painter.setPen(Qt::NoPen);
  Painter.setBrush(bSuccess ? QColor(0x2e, 0x7d, 0x32) : QColor(0xb0, 0x00, 0x20));
  if (bSuccess) {
    Painter.drawEllipse(QRectF(1, 1, 14, 14));
  } else {
    Painter.drawRoundedRect(QRectF(1, 1, 14, 14), 2, 2);
  }
  Painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  if (bSuccess) {
    Painter.drawPolyline(QPolygonF({{4.5, 8.5}, {7, 11}, {11.5, 5.5}}));
  } else {
    Painter.drawLine(QPointF(5, 5), QPointF(11, 11));
    Painter.drawLine(QPointF(11, 5), QPointF(5, 11));
  }
}

}  // namespace

QIcon MarkIcon(EImage eImage) {
  QIcon Icon;
  if (eImage == EImage::eNone) return Icon;
  for (const int nSize : {16, 24, 32, 48, 64}) {
    QPixmap Pixmap(nSize, nSize);
    Pixmap.fill(Qt::transparent);
    QPainter Painter(&Pixmap);
    Painter.scale(nSize / 16.0, nSize / 16.0);
    DrawMark(Painter, eImage);
    Painter.end();
    Icon.addPixmap(Pixmap);
  }
  return Icon;
}

}  // namespace vrek::qt
