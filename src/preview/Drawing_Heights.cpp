// Drawings over a grid of metres: the profile and a cross-section.
#include <algorithm>
#include <cmath>

#include "base/FormatReal.h"
#include "preview/Canvas.h"

namespace vrek::Drawing {
namespace {

constexpr double dGridAcross = 90, dGridUp = 35;  // device units between grid lines, at least
constexpr int nMostLines = 1000;

// The grid stands between the legend and the row of the labels below it.
double GridBottom(const CCanvas& Canvas) {
  return Canvas.View().dHeight - dTextHeight - 8;
}

std::string Metres(double dValue, double dStep) {
  return FormatReal(dValue, Viewport::StepDecimals(dStep)) + " m";
}

// Heights at the left edge; chainages or offsets at the lower one.
void DrawGrid(CCanvas& Canvas, bool bChainages) {
  const auto& View = Canvas.View();
  const TStroke Style{{}, EInk::eGrid, 0, 1, false};
  const double dTop = Canvas.LegendBottom(), dBottom = GridBottom(Canvas);
  const auto LowerLeft = View.ToMetres(0, dBottom);
  const auto UpperRight = View.ToMetres(View.dWidth, dTop + dTextHeight + 2);
  const double dUp = Viewport::NiceStep(dGridUp / View.dScaleY);
  const double dAcross = Viewport::NiceStep(dGridAcross / View.dScaleX);
  int nLines = 0;
  for (double n = std::ceil(LowerLeft.dY / dUp); n * dUp <= UpperRight.dY && nLines < nMostLines; ++n) {
    const double dY = View.ToDevice(0, n * dUp).dY;
    Canvas.Line({{0, dY}, {View.dWidth, dY}}, Style);
    Canvas.Label({{4, dY - 2}, Metres(n * dUp, dUp), EAnchor::eStart, EInk::eText});
    ++nLines;
  }
  nLines = 0;
  for (double n = std::ceil(LowerLeft.dX / dAcross); n * dAcross <= UpperRight.dX && nLines < nMostLines;
       ++n) {
    const double dX = View.ToDevice(n * dAcross, 0).dX;
    Canvas.Line({{dX, dTop}, {dX, dBottom}}, Style);
    Canvas.Label({{dX, View.dHeight - 4},
                  bChainages ? ChainageText(n * dAcross, Viewport::StepDecimals(dAcross))
                             : Metres(n * dAcross, dAcross),
                  EAnchor::eMiddle,
                  EInk::eText});
    ++nLines;
  }
}

void DrawNothing(CCanvas& Canvas, const TPlotWords& Words) {
  const auto& View = Canvas.View();
  Canvas.Label({{View.dWidth / 2, View.dHeight / 2}, Words.sNothing, EAnchor::eMiddle, EInk::eText});
}

}  // namespace

TDrawing DrawProfile(const TPreview& Shown, const TViewport& View, const TPlotWords& Words) {
  CCanvas Canvas(View);
  if (ExtentOfProfile(Shown).bEmpty) {
    DrawNothing(Canvas, Words);
    return Canvas.Take();
  }
  for (std::size_t a = 0; a < Shown.aAligments.size(); ++a) {
    const auto& Aligment = Shown.aAligments[a];
    if (Aligment.aProfile.empty()) continue;
    Canvas.Legend({{}, EInk::eSeries, static_cast<int>(a), 3, false}, Aligment.sName);
  }
  const double dEnlarged = View.dScaleY / View.dScaleX;
  Canvas.Caption(Words.sHeights + " × " + FormatReal(dEnlarged, dEnlarged < 10 ? 1 : 0));
  DrawGrid(Canvas, true);
  for (std::size_t a = 0; a < Shown.aAligments.size(); ++a) {
    for (const auto& Run : Shown.aAligments[a].aProfile) {
      std::vector<TPlotPoint> aPoints;
      aPoints.reserve(Run.aPoints.size());
      for (const auto& Point : Run.aPoints) aPoints.push_back({Point.dChainage, Point.dHeight});
      Canvas.LineInMetres(aPoints, {{}, EInk::eSeries, static_cast<int>(a), Run.bCurve ? 3.0 : 1.4, false});
    }
  }
  return Canvas.Take();
}

TDrawing DrawSection(const TPreviewSection& Section, const TViewport& View, const TPlotWords& Words) {
  CCanvas Canvas(View);
  Canvas.Caption(Words.sChainage + " " + ChainageText(Section.dChainage, 3));
  for (std::size_t n = 0; n < Section.aLines.size(); ++n) {
    const auto& sName = Section.aLines[n].sName;
    Canvas.Legend({{}, EInk::eSeries, static_cast<int>(n), 3, false}, sName.empty() ? Words.sRail : sName);
  }
  DrawGrid(Canvas, false);
  const double dAxis = View.ToDevice(0, 0).dX;
  Canvas.Line({{dAxis, Canvas.LegendBottom()}, {dAxis, GridBottom(Canvas)}}, {{}, EInk::eAxis, 0, 1, true});
  for (std::size_t n = 0; n < Section.aLines.size(); ++n) {
    std::vector<TPlotPoint> aPoints;
    for (const auto& Point : Section.aLines[n].aPoints) aPoints.push_back({Point.dOffset, Point.dHeight});
    const TStroke Style{{}, EInk::eSeries, static_cast<int>(n), 2, false};
    Canvas.LineInMetres(aPoints, Style);
    for (const auto& Point : aPoints) {
      const auto At = View.ToDevice(Point.dX, Point.dY);
      Canvas.Line({{At.dX - 3, At.dY}, {At.dX + 3, At.dY}}, Style);
      Canvas.Line({{At.dX, At.dY - 3}, {At.dX, At.dY + 3}}, Style);
    }
  }
  return Canvas.Take();
}

}  // namespace vrek::Drawing
