#include "wizard/qt/DrawingView.h"

#include <QApplication>
#include <QFontInfo>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>

#include "wizard/qt/View.h"

namespace vrek::qt {
namespace {

constexpr double dKeyStep = 40, dKeyZoom = 1.25;

QColor Color(EInk eInk, int nSeries, bool bDark) {
  return QColor::fromRgb(static_cast<QRgb>(InkColor(eInk, nSeries, bDark)));
}

void PaintStroke(QPainter& Painter, const TStroke& Stroke, bool bDark) {
  QPen Pen(Color(Stroke.eInk, Stroke.nSeries, bDark), Stroke.dWidth);
  Pen.setJoinStyle(Qt::RoundJoin);
  if (Stroke.bDashed) Pen.setDashPattern({6 / Stroke.dWidth, 4 / Stroke.dWidth});
  Painter.setPen(Pen);
  QPolygonF Line;
  Line.reserve(static_cast<qsizetype>(Stroke.aPoints.size()));
  for (const auto& Point : Stroke.aPoints) Line << QPointF(Point.dX, Point.dY);
  Painter.drawPolyline(Line);
}

void PaintLabel(QPainter& Painter, const TLabel& Label, bool bDark) {
  Painter.setPen(Color(Label.eInk, 0, bDark));
  const auto sText = Text(Label.sText);
  const double dWidth = QFontMetricsF(Painter.font()).horizontalAdvance(sText);
  const double dBack = Label.eAnchor == EAnchor::eStart    ? 0
                       : Label.eAnchor == EAnchor::eMiddle ? dWidth / 2
                                                           : dWidth;
  Painter.drawText(QPointF(Label.At.dX - dBack, Label.At.dY), sText);
}

}  // namespace

DrawingView::DrawingView(QWidget* pParent) : QWidget(pParent) {
  setFocusPolicy(Qt::StrongFocus);
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  setCursor(Qt::OpenHandCursor);
}

QSize DrawingView::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 80, fontMetrics().height() * 14};
}

QSize DrawingView::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 20, fontMetrics().height() * 8};
}

double DrawingView::PixelsToUnit() const {
  return QFontInfo(font()).pixelSize() / Drawing::dTextHeight;
}

TPlotPoint DrawingView::ToMetres(const QPointF& At) const {
  return m_View.ToMetres(At.x() / PixelsToUnit(), At.y() / PixelsToUnit());
}

QPointF DrawingView::ToPixels(const TPlotPoint& Place) const {
  const auto At = m_View.ToDevice(Place.dX, Place.dY);
  return QPointF(At.dX, At.dY) * PixelsToUnit();
}

void DrawingView::SetContent(TDrawingContent Content, bool bKeepPlace) {
  m_Content = std::move(Content);
  if (!bKeepPlace) return Fit();
  update();
}

void DrawingView::Fit() {
  m_bWhole = true;
  m_View = Drawing::Whole(m_Content, width() / PixelsToUnit(), height() / PixelsToUnit());
  update();
}

TDrawing DrawingView::Drawing() const {
  return m_Content.Draw(m_View);
}

void DrawingView::Paint(QPainter& Painter, const TDrawing& Drawing, bool bDark) {
  Painter.setRenderHint(QPainter::Antialiasing);
  auto Font = Painter.font();
  Font.setPixelSize(static_cast<int>(Drawing::dTextHeight));
  Painter.setFont(Font);
  for (const auto& Stroke : Drawing.aStrokes) PaintStroke(Painter, Stroke, bDark);
  for (const auto& Label : Drawing.aLabels) PaintLabel(Painter, Label, bDark);
}

void DrawingView::paintEvent(QPaintEvent*) {
  QPainter Painter(this);
  Painter.scale(PixelsToUnit(), PixelsToUnit());
  Paint(Painter, Drawing(), palette().color(QPalette::Base).lightness() < 128);
  if (!hasFocus()) return;
  Painter.resetTransform();
  Painter.setPen(palette().color(QPalette::Highlight));
  Painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void DrawingView::resizeEvent(QResizeEvent*) {
  m_View.dWidth = width() / PixelsToUnit();
  m_View.dHeight = height() / PixelsToUnit();
  if (m_bWhole) Fit();
}

void DrawingView::Pan(double dRight, double dDown) {
  m_bWhole = false;
  Viewport::Pan(m_View, dRight / PixelsToUnit(), dDown / PixelsToUnit());
  update();
}

void DrawingView::Zoom(double dFactor, const QPointF& Around) {
  m_bWhole = false;
  Viewport::Zoom(m_View, dFactor, Around.x() / PixelsToUnit(), Around.y() / PixelsToUnit());
  update();
}

void DrawingView::wheelEvent(QWheelEvent* pEvent) {
  Zoom(std::pow(dKeyZoom, pEvent->angleDelta().y() / 120.0), pEvent->position());
  pEvent->accept();
}

void DrawingView::mousePressEvent(QMouseEvent* pEvent) {
  if (pEvent->button() != Qt::LeftButton) return;
  m_Pressed = m_DraggedTo = pEvent->position();
  m_bDragging = false;
}

void DrawingView::mouseMoveEvent(QMouseEvent* pEvent) {
  if (!(pEvent->buttons() & Qt::LeftButton)) return;
  const auto FromPress = pEvent->position() - m_Pressed;
  if (FromPress.manhattanLength() >= QApplication::startDragDistance()) m_bDragging = true;
  if (!m_bDragging) return;
  const auto Step = pEvent->position() - m_DraggedTo;
  m_DraggedTo = pEvent->position();
  Pan(Step.x(), Step.y());
}

void DrawingView::mouseReleaseEvent(QMouseEvent* pEvent) {
  if (pEvent->button() == Qt::LeftButton && !m_bDragging) emit Clicked(pEvent->position());
}

void DrawingView::keyPressEvent(QKeyEvent* pEvent) {
  const QPointF Middle(width() / 2.0, height() / 2.0);
  switch (pEvent->key()) {
    case Qt::Key_Left:
      return Pan(dKeyStep, 0);
    case Qt::Key_Right:
      return Pan(-dKeyStep, 0);
    case Qt::Key_Up:
      return Pan(0, dKeyStep);
    case Qt::Key_Down:
      return Pan(0, -dKeyStep);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return Zoom(dKeyZoom, Middle);
    case Qt::Key_Minus:
      return Zoom(1 / dKeyZoom, Middle);
    case Qt::Key_0:
    case Qt::Key_Home:
      return Fit();
    default:
      QWidget::keyPressEvent(pEvent);
  }
}

}  // namespace vrek::qt
