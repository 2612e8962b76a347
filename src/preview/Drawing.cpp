#include "preview/Drawing.h"

#include <array>
#include <cmath>

#include "base/FormatReal.h"

namespace vrek {
namespace {

struct TInkPair {
  int nLight, nDark;  // on a light and on a dark background
};

TInkPair Inks(EInk eInk, int nSeries) {
  constexpr std::array<TInkPair, nSeriesInks> aSeries = {{{0x1f5fa8, 0x6ab0ff},
                                                          {0xb3261e, 0xff8a80},
                                                          {0x1b7a3d, 0x6fd08c},
                                                          {0x8a5a00, 0xf2b632},
                                                          {0x6a3fa0, 0xc79bff},
                                                          {0x00747a, 0x5fd3d9}}};
  switch (eInk) {
    case EInk::eText:
      return {0x303030, 0xe0e0e0};
    case EInk::eGrid:
      return {0xd8d8d8, 0x4a4a4a};
    case EInk::eAxis:
      return {0x808080, 0x909090};
    case EInk::eSelected:
      return {0xf29900, 0xffd54f};
    default:
      return aSeries[static_cast<std::size_t>(nSeries) % aSeries.size()];
  }
}

// With three digits before the point.
std::string Padded(double dMetres, int nDecimals) {
  auto sText = FormatReal(dMetres, nDecimals);
  const auto nWhole = std::min(sText.find('.'), sText.size());
  return nWhole < 3 ? std::string(3 - nWhole, '0') + sText : sText;
}

std::string RadiusText(double dRadius, const TPlotWords& Words) {
  return FormatReal(std::fabs(dRadius), 3) + " m (" + (dRadius > 0 ? Words.sRight : Words.sLeft) + ")";
}

std::string RadiiText(const TPlanElement& Element, const TPlotWords& Words) {
  if (Element.eKind == Alg::eArc) return RadiusText(Element.dRadiusStart, Words);
  const auto Text = [&](double dRadius) { return dRadius == 0 ? "∞" : RadiusText(dRadius, Words); };
  return Text(Element.dRadiusStart) + " - " + Text(Element.dRadiusEnd);
}

}  // namespace

int InkColor(EInk eInk, int nSeries, bool bDark) {
  const auto Pair = Inks(eInk, nSeries);
  return bDark ? Pair.nDark : Pair.nLight;
}

namespace Drawing {

TExtent ExtentOfPlan(const TPreview& Shown) {
  TExtent Extent;
  for (const auto& Aligment : Shown.aAligments) {
    for (const auto& Element : Aligment.aElements) {
      for (const auto& Point : Element.aPoints) Extent.Add(Point.dX, Point.dY);
    }
  }
  return Extent;
}

TExtent ExtentOfProfile(const TPreview& Shown) {
  TExtent Extent;
  for (const auto& Aligment : Shown.aAligments) {
    for (const auto& Run : Aligment.aProfile) {
      for (const auto& Point : Run.aPoints) Extent.Add(Point.dChainage, Point.dHeight);
    }
  }
  return Extent;
}

TExtent ExtentOfSection(const TPreviewSection& Section) {
  TExtent Extent;
  for (const auto& Line : Section.aLines) {
    for (const auto& Point : Line.aPoints) Extent.Add(Point.dOffset, Point.dHeight);
  }
  return Extent;
}

TViewport Whole(const TDrawingContent& Content, double dWidth, double dHeight) {
  const auto Fit = [&](double dLegend) {
    // At the sides a height or half a chainage, above a chainage, below the row of the grid or the scale bar.
    const TMargins Margins{60, dLegend + 20, 30};
    return Viewport::Fit(Content.Extent, dWidth, dHeight, Margins, Content.bSameScale);
  };
  return Fit(Content.Draw(Fit(0)).dLegendBottom);
}

std::string ChainageText(double dChainage, int nDecimals) {
  // Rounded first, so that 999.9996 becomes the next kilometre.
  const double dUnit = std::pow(10, nDecimals);
  const double dRounded = std::round(std::fabs(dChainage) * dUnit) / dUnit;
  const double dKilometres = std::floor(dRounded / 1000);
  const std::string sSign = dChainage < 0 && dRounded > 0 ? "-" : "";
  return sSign + FormatReal(dKilometres, 0) + "+" + Padded(dRounded - 1000 * dKilometres, nDecimals);
}

std::string DescribeElement(const TPlanElement& Element, const TPlotWords& Words) {
  const bool bArc = Element.eKind == Alg::eArc, bStraight = Element.eKind == Alg::eStraight;
  std::string sText = bStraight ? Words.sStraight : bArc ? Words.sArc : Words.sSpiral;
  sText += ", " + Words.sChainage + " " + ChainageText(Element.dChainage, 3);
  sText += ", " + Words.sLength + " " + FormatReal(Element.dLength, 3) + " m";
  if (!bStraight) sText += ", " + Words.sRadius + " " + RadiiText(Element, Words);
  if (Element.dParameter > 0) sText += ", " + Words.sParameter + " " + FormatReal(Element.dParameter, 3);
  return sText;
}

}  // namespace Drawing
}  // namespace vrek
