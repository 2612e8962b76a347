#include "preview/SvgPlot.h"

#include <algorithm>
#include <cstdio>

#include "base/FormatReal.h"

namespace vrek::SvgPlot {
namespace {

constexpr double dPlotWidth = 1200, dPlanHeight = 700, dProfileHeight = 400;

void AppendNumber(std::string& sOut, double dValue) {
  AppendReal(sOut, dValue, 2);
}

std::string ColorText(EInk eInk, int nSeries) {
  char aText[8];
  std::snprintf(aText, sizeof aText, "#%06x", static_cast<unsigned>(InkColor(eInk, nSeries, false)));
  return aText;
}

// How many bytes the character at a place takes; 0 where they are no UTF-8.
std::size_t CharacterLength(std::string_view sText, std::size_t n) {
  const auto c = static_cast<unsigned char>(sText[n]);
  const std::size_t nLength = c < 0x80                ? 1
                              : c >= 0xC2 && c < 0xE0 ? 2
                              : c >= 0xE0 && c < 0xF0 ? 3
                              : c >= 0xF0 && c < 0xF5 ? 4
                                                      : 0;
  if (nLength == 0 || n + nLength > sText.size()) return 0;
  for (std::size_t i = 1; i < nLength; ++i) {
    if ((static_cast<unsigned char>(sText[n + i]) & 0xC0) != 0x80) return 0;
  }
  return nLength;
}

// Text between tags. A name of a file may hold bytes that no XML document may: they become "?".
std::string Escaped(std::string_view sText) {
  std::string sOut;
  for (std::size_t n = 0; n < sText.size();) {
    const auto nLength = CharacterLength(sText, n);
    const char c = sText[n];
    if (nLength == 0 || (nLength == 1 && static_cast<unsigned char>(c) < 32)) {
      sOut += '?';
    } else if (c == '&') {
      sOut += "&amp;";
    } else if (c == '<') {
      sOut += "&lt;";
    } else {
      sOut += sText.substr(n, nLength);
    }
    n += std::max<std::size_t>(nLength, 1);
  }
  return sOut;
}

// <polyline points="1.00,2.00 3.00,4.00" stroke="#1f5fa8" stroke-width="1.40"/>
void AddStroke(std::string& sOut, const TStroke& Stroke) {
  sOut += "  <polyline points=\"";
  for (const auto& Point : Stroke.aPoints) {
    if (sOut.back() != '"') sOut += ' ';
    AppendNumber(sOut, Point.dX);
    sOut += ',';
    AppendNumber(sOut, Point.dY);
  }
  sOut += "\" stroke=\"" + ColorText(Stroke.eInk, Stroke.nSeries) + "\" stroke-width=\"";
  AppendNumber(sOut, Stroke.dWidth);
  sOut += Stroke.bDashed ? "\" stroke-dasharray=\"6,4\"/>\n" : "\"/>\n";
}

// <text x="1.00" y="2.00" fill="#303030" text-anchor="middle">1+200</text>
void AddLabel(std::string& sOut, const TLabel& Label) {
  sOut += "  <text x=\"";
  AppendNumber(sOut, Label.At.dX);
  sOut += "\" y=\"";
  AppendNumber(sOut, Label.At.dY);
  sOut += "\" fill=\"" + ColorText(Label.eInk, 0) + "\"";
  if (Label.eAnchor == EAnchor::eMiddle) sOut += " text-anchor=\"middle\"";
  if (Label.eAnchor == EAnchor::eEnd) sOut += " text-anchor=\"end\"";
  sOut += ">" + Escaped(Label.sText) + "</text>\n";
}

// A drawing has its own frame, which cuts what stands over its edge.
void AddDrawing(std::string& sOut, const TDrawing& Drawing, double dTop) {
  sOut += " <svg y=\"" + FormatReal(dTop, 0) + "\" width=\"" + FormatReal(Drawing.dWidth, 0) +
          "\" height=\"" + FormatReal(Drawing.dHeight, 0) + "\" fill=\"none\" stroke-linejoin=\"round\">\n";
  for (const auto& Stroke : Drawing.aStrokes) AddStroke(sOut, Stroke);
  sOut += "  <g font-family=\"sans-serif\" font-size=\"" + FormatReal(Drawing::dTextHeight, 0) + "\">\n";
  for (const auto& Label : Drawing.aLabels) AddLabel(sOut, Label);
  sOut += "  </g>\n </svg>\n";
}

}  // namespace

std::string AsSvg(const std::vector<TDrawing>& aDrawings) {
  double dWidth = 0, dHeight = 0;
  for (const auto& Drawing : aDrawings) {
    dWidth = std::max(dWidth, Drawing.dWidth);
    dHeight += Drawing.dHeight;
  }
  const auto sSize = FormatReal(dWidth, 0) + "\" height=\"" + FormatReal(dHeight, 0);
  std::string sOut =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
      sSize +
      "\">\n"
      " <rect width=\"" +
      sSize + "\" fill=\"#ffffff\"/>\n";
  double dTop = 0;
  for (const auto& Drawing : aDrawings) {
    AddDrawing(sOut, Drawing, dTop);
    dTop += Drawing.dHeight;
  }
  return sOut + "</svg>\n";
}

std::string PlotAsSvg(const TPreview& Shown, const TPlotWords& Words) {
  const TDrawingContent Plan{[&](const TViewport& View) { return Drawing::DrawPlan(Shown, View, {}, Words); },
                             Drawing::ExtentOfPlan(Shown), true};
  const TDrawingContent Profile{
      [&](const TViewport& View) { return Drawing::DrawProfile(Shown, View, Words); },
      Drawing::ExtentOfProfile(Shown), false};
  std::vector<TDrawing> aDrawings = {Plan.Draw(Drawing::Whole(Plan, dPlotWidth, dPlanHeight))};
  if (!Profile.Extent.bEmpty) {
    aDrawings.push_back(Profile.Draw(Drawing::Whole(Profile, dPlotWidth, dProfileHeight)));
  }
  return AsSvg(aDrawings);
}

}  // namespace vrek::SvgPlot
