#include "preview/Viewport.h"

#include <algorithm>
#include <cmath>

namespace vrek {

void TExtent::Add(double dX, double dY) {
  if (bEmpty) {
    dLeft = dRight = dX;
    dBottom = dTop = dY;
    bEmpty = false;
  }
  dLeft = std::min(dLeft, dX);
  dRight = std::max(dRight, dX);
  dBottom = std::min(dBottom, dY);
  dTop = std::max(dTop, dY);
}

namespace Viewport {
namespace {

constexpr double dLeastScale = 1e-6, dMostScale = 1e6;

// By how much two margins shrink, so that they leave enough of the device.
double Shrink(double dDevice, double dBoth) {
  return dBoth > 0 ? std::min(1.0, 0.6 * dDevice / dBoth) : 1;
}

// A drawing without width or height of its own is shown as if it had a metre.
double Span(double dFrom, double dTo) {
  return dTo > dFrom ? dTo - dFrom : 1;
}

}  // namespace

TViewport Fit(const TExtent& Extent, double dWidth, double dHeight, const TMargins& Margins,
              bool bSameScale) {
  TViewport View{dWidth, dHeight, (Extent.dLeft + Extent.dRight) / 2, (Extent.dBottom + Extent.dTop) / 2,
                 1,      1};
  const auto Scale = [&](double dDevice, double dBoth, double dMetres) {
    const double dInside = std::max(dDevice - Shrink(dDevice, dBoth) * dBoth, 1.0);
    return std::clamp(dInside / dMetres, dLeastScale, dMostScale);
  };
  const double dBoth = Margins.dTop + Margins.dBottom;
  View.dScaleX = Scale(dWidth, 2 * Margins.dSides, Span(Extent.dLeft, Extent.dRight));
  View.dScaleY = Scale(dHeight, dBoth, Span(Extent.dBottom, Extent.dTop));
  if (bSameScale) View.dScaleX = View.dScaleY = std::min(View.dScaleX, View.dScaleY);
  // The middle of what is left, not of the device.
  Pan(View, 0, Shrink(dHeight, dBoth) * (Margins.dTop - Margins.dBottom) / 2);
  return View;
}

void Pan(TViewport& View, double dRight, double dDown) {
  View.dCentreX -= dRight / View.dScaleX;
  View.dCentreY += dDown / View.dScaleY;
}

void Zoom(TViewport& View, double dFactor, double dX, double dY) {
  const double dLeast = dLeastScale / std::min(View.dScaleX, View.dScaleY);
  const double dMost = dMostScale / std::max(View.dScaleX, View.dScaleY);
  if (!(dLeast <= dMost)) return;
  const auto Before = View.ToMetres(dX, dY);
  View.dScaleX *= std::clamp(dFactor, dLeast, dMost);
  View.dScaleY *= std::clamp(dFactor, dLeast, dMost);
  const auto After = View.ToMetres(dX, dY);
  View.dCentreX += Before.dX - After.dX;
  View.dCentreY += Before.dY - After.dY;
}

double NiceStep(double dLeast) {
  const double dDecade = std::pow(10, std::floor(std::log10(dLeast)));
  for (const double dFactor : {1.0, 2.0, 5.0}) {
    if (dFactor * dDecade >= dLeast * (1 - 1e-9)) return dFactor * dDecade;
  }
  return 10 * dDecade;
}

int StepDecimals(double dStep) {
  return dStep >= 1 ? 0 : static_cast<int>(std::ceil(-std::log10(dStep) - 1e-9));
}

}  // namespace Viewport
}  // namespace vrek
