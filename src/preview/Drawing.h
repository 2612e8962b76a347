// Drawing: a picture as strokes and labels in device units, which a window paints and SvgPlot writes.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "preview/Preview.h"
#include "preview/Viewport.h"

namespace vrek {

/// What a stroke or label stands for; whoever paints it chooses the colour. eSeries and those behind it: the
/// first alignment or layer and the following ones.
enum class EInk { eText, eGrid, eAxis, eSelected, eSeries };
inline constexpr int nSeriesInks = 6;

/// A colour as 0xRRGGBB that can be read on a light, or on a dark background.
int InkColor(EInk eInk, int nSeries, bool bDark);

enum class EAnchor { eStart, eMiddle, eEnd };

struct TStroke {
  std::vector<TPlotPoint> aPoints;
  EInk eInk = EInk::eText;
  int nSeries = 0;  ///< 0 to nSeriesInks - 1, for eSeries
  double dWidth = 1;
  bool bDashed = false;
};

/// At: the base line's start, middle or end.
struct TLabel {
  TPlotPoint At;
  std::string sText;
  EAnchor eAnchor = EAnchor::eStart;
  EInk eInk = EInk::eText;
};

struct TDrawing {
  double dWidth = 0, dHeight = 0;
  std::vector<TStroke> aStrokes;
  std::vector<TLabel> aLabels;
  double dLegendBottom = 0;  ///< lower edge of the legend
};

/// What is drawn, and how far it reaches.
struct TDrawingContent {
  std::function<TDrawing(const TViewport&)> Draw = [](const TViewport&) { return TDrawing{}; };
  TExtent Extent;
  bool bSameScale = true;  ///< a metre is as long upwards as across
};

/// The words of a drawing.
struct TPlotWords {
  std::string sStraight = "straight", sArc = "arc", sSpiral = "spiral";
  std::string sChainage = "chainage", sLength = "length", sRadius = "radius", sParameter = "parameter";
  std::string sLeft = "left", sRight = "right", sRail = "rails", sNothing = "Nothing to show";
  std::string sHeights = "heights enlarged";
};

namespace Drawing {

/// Font size of the labels in device units. All else is laid out for it: who wants another size enlarges the
/// whole drawing. In an SVG document, and at scale 1, a device unit is a pixel.
inline constexpr double dTextHeight = 11;

TExtent ExtentOfPlan(const TPreview& Shown);
TExtent ExtentOfProfile(const TPreview& Shown);
TExtent ExtentOfSection(const TPreviewSection& Section);

/// The plan: straights thin, arcs thick, spirals dashed; chainage marks as close as the scale allows.
TDrawing DrawPlan(const TPreview& Shown, const TViewport& View, const Preview::TElementIndex& Selected,
                  const TPlotWords& Words);
/// The profile over a grid of chainages and heights: grades thin, curves thick. Says how much longer a metre
/// is upwards than across.
TDrawing DrawProfile(const TPreview& Shown, const TViewport& View, const TPlotWords& Words);
TDrawing DrawSection(const TPreviewSection& Section, const TViewport& View, const TPlotWords& Words);

/// The view of the whole, free of the legend above it and of the labels at the other edges.
TViewport Whole(const TDrawingContent& Content, double dWidth, double dHeight);

/// "1+234.500", with a minus in front of a negative chainage.
std::string ChainageText(double dChainage, int nDecimals);

/// "arc, chainage 1+234.500, length 100.000 m, radius 300.000 m (right)".
std::string DescribeElement(const TPlanElement& Element, const TPlotWords& Words);

}  // namespace Drawing
}  // namespace vrek
