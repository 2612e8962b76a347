// Canvas: puts strokes and labels into a drawing: cuts strokes at the edges, leaves out points that lie on
// top of each other, and labels that would cover one another.
#pragma once

#include <vector>

#include "preview/Drawing.h"

namespace vrek {

class CCanvas {
 public:
  explicit CCanvas(const TViewport& View) : m_View(View) {
    m_Drawing.dWidth = View.dWidth;
    m_Drawing.dHeight = View.dHeight;
  }

  const TViewport& View() const { return m_View; }
  /// A line in device units. Style: all but the points.
  void Line(const std::vector<TPlotPoint>& aPoints, const TStroke& Style);
  /// A line in metres.
  void LineInMetres(const std::vector<TPlotPoint>& aPoints, const TStroke& Style);
  /// True when there was room for it.
  bool Label(const TLabel& Label);
  bool IsInside(const TPlotPoint& Point) const;
  /// A sample of a stroke and what it stands for, in rows from the upper left on.
  void Legend(const TStroke& Style, const std::string& sText);
  /// A text without a sample among them.
  void Caption(const std::string& sText) { LegendText(sText, 0); }
  /// The lower edge of these rows.
  double LegendBottom() const { return m_NextLegend.dY + 4; }

  TDrawing Take() {
    m_Drawing.dLegendBottom = LegendBottom();
    return std::move(m_Drawing);
  }

 private:
  struct TBox {
    double dLeft, dTop, dRight, dBottom;
  };
  void Flush(TStroke& Open);
  bool Place(const TLabel& Label);
  TPlotPoint LegendText(const std::string& sText, double dBefore);

  TViewport m_View;
  TDrawing m_Drawing;
  std::vector<TBox> m_aTaken;      // by labels
  TPlotPoint m_NextLegend{8, 14};  // where the next entry of the legend goes
};

}  // namespace vrek
