#include "preview/Canvas.h"

#include <algorithm>
#include <cmath>

namespace vrek {
namespace {

constexpr double dOverhang = 20;    // device units beyond the edge that strokes are cut at
constexpr double dSamePlace = 0.3;  // device units within which two points of a stroke are one

// Cuts a chord to a box (Liang-Barsky); false when nothing of it is left.
bool Clip(TPlotPoint& A, TPlotPoint& B, double dRight, double dBottom) {
  const double dx = B.dX - A.dX, dy = B.dY - A.dY;
  double t0 = 0, t1 = 1;
  const auto Edge = [&](double p, double q) {
    if (p == 0) return q >= 0;
    const double t = q / p;
    if (p < 0) t0 = std::max(t0, t);
    if (p > 0) t1 = std::min(t1, t);
    return t0 <= t1;
  };
  const bool bInside = Edge(-dx, A.dX + dOverhang) && Edge(dx, dRight + dOverhang - A.dX) &&
                       Edge(-dy, A.dY + dOverhang) && Edge(dy, dBottom + dOverhang - A.dY);
  if (!bInside) return false;
  const TPlotPoint From = A;
  A = {From.dX + t0 * dx, From.dY + t0 * dy};
  B = {From.dX + t1 * dx, From.dY + t1 * dy};
  return true;
}

bool SamePlace(const TPlotPoint& A, const TPlotPoint& B) {
  return std::fabs(A.dX - B.dX) < dSamePlace && std::fabs(A.dY - B.dY) < dSamePlace;
}

// At least as wide as most texts come out in a plain font, whose digits are its widest common characters.
double TextWidth(const std::string& sText) {
  const auto nCharacters =
      std::count_if(sText.begin(), sText.end(), [](char c) { return (c & 0xC0) != 0x80; });
  return 0.64 * Drawing::dTextHeight * static_cast<double>(nCharacters);
}

double LeftOf(const TLabel& Label) {
  const double dWidth = TextWidth(Label.sText);
  return Label.At.dX - (Label.eAnchor == EAnchor::eStart    ? 0
                        : Label.eAnchor == EAnchor::eMiddle ? dWidth / 2
                                                            : dWidth);
}

}  // namespace

void CCanvas::Flush(TStroke& Open) {
  if (Open.aPoints.size() >= 2) m_Drawing.aStrokes.push_back(Open);
  Open.aPoints.clear();
}

void CCanvas::Line(const std::vector<TPlotPoint>& aPoints, const TStroke& Style) {
  TStroke Open = Style;
  for (std::size_t n = 1; n < aPoints.size(); ++n) {
    auto A = aPoints[n - 1], B = aPoints[n];
    if (!Clip(A, B, m_View.dWidth, m_View.dHeight)) {
      Flush(Open);
      continue;
    }
    if (Open.aPoints.empty() || !SamePlace(Open.aPoints.back(), A)) {
      Flush(Open);
      Open.aPoints.push_back(A);
    }
    const bool bLast = n + 1 == aPoints.size();
    if (bLast || !SamePlace(Open.aPoints.back(), B)) Open.aPoints.push_back(B);
  }
  Flush(Open);
}

void CCanvas::LineInMetres(const std::vector<TPlotPoint>& aPoints, const TStroke& Style) {
  std::vector<TPlotPoint> aDevice;
  aDevice.reserve(aPoints.size());
  for (const auto& Point : aPoints) aDevice.push_back(m_View.ToDevice(Point.dX, Point.dY));
  Line(aDevice, Style);
}

bool CCanvas::Label(const TLabel& Label) {
  const double dLeft = LeftOf(Label);
  return dLeft >= 0 && dLeft + TextWidth(Label.sText) <= m_View.dWidth && Place(Label);
}

bool CCanvas::Place(const TLabel& Label) {
  const double dLeft = LeftOf(Label), dWidth = TextWidth(Label.sText);
  const TBox Box{dLeft - 2, Label.At.dY - Drawing::dTextHeight, dLeft + dWidth + 2, Label.At.dY + 3};
  const bool bTaken = std::any_of(m_aTaken.begin(), m_aTaken.end(), [&](const TBox& Other) {
    return Box.dLeft < Other.dRight && Other.dLeft < Box.dRight && Box.dTop < Other.dBottom &&
           Other.dTop < Box.dBottom;
  });
  if (bTaken) return false;
  m_aTaken.push_back(Box);
  m_Drawing.aLabels.push_back(Label);
  return true;
}

// The next entry of the legend, with room before its text; gives where the entry begins.
TPlotPoint CCanvas::LegendText(const std::string& sText, double dBefore) {
  constexpr double dGap = 6, dMargin = 8;
  const double dWidth = dBefore + TextWidth(sText) + 2 * dGap;
  if (m_NextLegend.dX > dMargin && m_NextLegend.dX + dWidth > m_View.dWidth) {
    m_NextLegend = {dMargin, m_NextLegend.dY + Drawing::dTextHeight + dGap};
  }
  const auto At = m_NextLegend;
  Place({{At.dX + dBefore, At.dY}, sText, EAnchor::eStart, EInk::eText});
  m_NextLegend.dX += dWidth;
  return At;
}

void CCanvas::Legend(const TStroke& Style, const std::string& sText) {
  constexpr double dSample = 24, dGap = 6;
  const auto At = LegendText(sText, dSample + dGap);
  Line({{At.dX, At.dY - 4}, {At.dX + dSample, At.dY - 4}}, Style);
}

bool CCanvas::IsInside(const TPlotPoint& Point) const {
  return Point.dX >= 0 && Point.dX <= m_View.dWidth && Point.dY >= 0 && Point.dY <= m_View.dHeight;
}

}  // namespace vrek
