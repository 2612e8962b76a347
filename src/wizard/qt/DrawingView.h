// Shows a drawing: pan by dragging or the arrow keys, zoom by the wheel or + and -, the whole by 0 or Home.
// It is enlarged until its labels are as high as the widget's font: then a device unit is more than a pixel.
#pragma once

#include <QPointF>
#include <QWidget>

#include "preview/Drawing.h"

class QPainter;

namespace vrek::qt {

class DrawingView final : public QWidget {
  Q_OBJECT
 public:
  explicit DrawingView(QWidget* pParent = nullptr);

  /// Shows another drawing, whole; or the present one again where bKeepPlace is set.
  void SetContent(TDrawingContent Content, bool bKeepPlace = false);
  void Fit();
  const TViewport& View() const { return m_View; }
  TDrawing Drawing() const;

  /// From pixels of the widget to metres, and back.
  TPlotPoint ToMetres(const QPointF& At) const;
  QPointF ToPixels(const TPlotPoint& Place) const;

  /// Paints a drawing in the colours for a light or a dark background.
  static void Paint(QPainter& Painter, const TDrawing& Drawing, bool bDark);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// A click that was no drag, in pixels.
  void Clicked(const QPointF& At);

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
  void resizeEvent(QResizeEvent* pEvent) override;
  void wheelEvent(QWheelEvent* pEvent) override;
  void mousePressEvent(QMouseEvent* pEvent) override;
  void mouseMoveEvent(QMouseEvent* pEvent) override;
  void mouseReleaseEvent(QMouseEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;

 private:
  double PixelsToUnit() const;
  void Pan(double dRight, double dDown);
  void Zoom(double dFactor, const QPointF& Around);

  TDrawingContent m_Content;
  TViewport m_View;
  bool m_bWhole = true;  // nobody has moved the drawing: it follows the size of the window
  QPointF m_Pressed, m_DraggedTo;
  bool m_bDragging = false;
};

}  // namespace vrek::qt
