// The plan as a drawing.
#include <algorithm>
#include <cmath>

#include "base/FormatReal.h"
#include "preview/Canvas.h"

namespace vrek::Drawing {
namespace {

constexpr double dMarkDistance = 75;  // device units between chainage marks, at least
constexpr double dTickLength = 5;
constexpr int nMostMarks = 100000;

TStroke ElementStyle(const TPlanElement& Element, int nSeries) {
  TStroke Style{{}, EInk::eSeries, nSeries, 1.4, false};
  if (Element.eKind == Alg::eArc) Style.dWidth = 3;
  if (Element.eKind == Alg::eClothoid || Element.eKind == Alg::eCubicSpiral) {
    Style.dWidth = 2.2;
    Style.bDashed = true;
  }
  return Style;
}

void DrawElement(CCanvas& Canvas, const TPlanElement& Element, int nSeries, bool bSelected) {
  std::vector<TPlotPoint> aPoints;
  aPoints.reserve(Element.aPoints.size());
  for (const auto& Point : Element.aPoints) aPoints.push_back({Point.dX, Point.dY});
  if (bSelected) Canvas.LineInMetres(aPoints, {{}, EInk::eSelected, 0, 8, false});
  Canvas.LineInMetres(aPoints, ElementStyle(Element, nSeries));
}

// A short line across the alignment.
void Tick(CCanvas& Canvas, const Preview::TPlanPlace& Place, double dLength, const TStroke& Style) {
  const auto At = Canvas.View().ToDevice(Place.Point.dX, Place.Point.dY);
  const double dx = Place.dAlongY * dLength, dy = Place.dAlongX * dLength;
  Canvas.Line({{At.dX - dx, At.dY - dy}, {At.dX + dx, At.dY + dy}}, Style);
}

void DrawChainages(CCanvas& Canvas, const TPreviewAligment& Aligment, int nSeries) {
  const double dStep = std::max(Viewport::NiceStep(dMarkDistance / Canvas.View().dScaleX), 0.001);
  const double dFirst = std::ceil(Preview::FirstChainage(Aligment) / dStep);
  const double dCount = Preview::LastChainage(Aligment) / dStep - dFirst;
  if (!(dCount < nMostMarks)) return;
  for (int n = 0; n <= dCount; ++n) {
    const double dChainage = (dFirst + n) * dStep;
    const auto Place = Preview::PlaceAt(Aligment, dChainage);
    const auto At = Canvas.View().ToDevice(Place.Point.dX, Place.Point.dY);
    if (!Canvas.IsInside(At)) continue;
    Tick(Canvas, Place, dTickLength, {{}, EInk::eSeries, nSeries, 1, false});
    const double dSide = dTickLength + 3;
    const EAnchor eAnchor = Place.dAlongY < -0.3  ? EAnchor::eEnd
                            : Place.dAlongY > 0.3 ? EAnchor::eStart
                                                  : EAnchor::eMiddle;
    Canvas.Label({{At.dX + Place.dAlongY * dSide, At.dY + Place.dAlongX * (dSide + dTextHeight / 2) + 4},
                  ChainageText(dChainage, Viewport::StepDecimals(dStep)),
                  eAnchor,
                  EInk::eText});
  }
}

void DrawLegend(CCanvas& Canvas, const TPreview& Shown, const TPlotWords& Words) {
  for (std::size_t n = 0; n < Shown.aAligments.size(); ++n) {
    Canvas.Legend({{}, EInk::eSeries, static_cast<int>(n), 3, false}, Shown.aAligments[n].sName);
  }
  TPlanElement Sample;
  for (const auto& [eKind, sWord] : {std::pair{Alg::eStraight, Words.sStraight},
                                     {Alg::eArc, Words.sArc},
                                     {Alg::eClothoid, Words.sSpiral}}) {
    Sample.eKind = eKind;
    TStroke Style = ElementStyle(Sample, 0);
    Style.eInk = EInk::eText;
    Canvas.Legend(Style, sWord);
  }
}

void DrawScaleBar(CCanvas& Canvas) {
  constexpr double dLongest = 130, dGap = 10;
  const double dScale = Canvas.View().dScaleX;
  const double dMetres = Viewport::NiceStep(dLongest / 2.5 / dScale);
  const double dRight = Canvas.View().dWidth - dGap, dLeft = dRight - dMetres * dScale;
  const double dBottom = Canvas.View().dHeight - dGap;
  Canvas.Line({{dLeft, dBottom - 4}, {dLeft, dBottom}, {dRight, dBottom}, {dRight, dBottom - 4}},
              {{}, EInk::eText, 0, 1.5, false});
  Canvas.Label({{(dLeft + dRight) / 2, dBottom - 6},
                FormatReal(dMetres, Viewport::StepDecimals(dMetres)) + " m",
                EAnchor::eMiddle,
                EInk::eText});
}

}  // namespace

TDrawing DrawPlan(const TPreview& Shown, const TViewport& View, const Preview::TElementIndex& Selected,
                  const TPlotWords& Words) {
  CCanvas Canvas(View);
  if (ExtentOfPlan(Shown).bEmpty) {
    Canvas.Label({{View.dWidth / 2, View.dHeight / 2}, Words.sNothing, EAnchor::eMiddle, EInk::eText});
    return Canvas.Take();
  }
  DrawLegend(Canvas, Shown, Words);
  DrawScaleBar(Canvas);
  for (std::size_t a = 0; a < Shown.aAligments.size(); ++a) {
    const auto& Aligment = Shown.aAligments[a];
    const int nAligment = static_cast<int>(a);
    for (std::size_t e = 0; e < Aligment.aElements.size(); ++e) {
      const bool bSelected = Selected == Preview::TElementIndex{nAligment, static_cast<int>(e)};
      DrawElement(Canvas, Aligment.aElements[e], nAligment, bSelected);
    }
    DrawChainages(Canvas, Aligment, nAligment);
  }
  return Canvas.Take();
}

}  // namespace vrek::Drawing
