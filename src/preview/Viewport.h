// Viewport: the part of a drawing that is on show, and how metres become device units (pixels; y downwards).
#pragma once

namespace vrek {

struct TPlotPoint {
  double dX = 0, dY = 0;
};

/// What a drawing covers, in metres. Empty until something is added.
struct TExtent {
  double dLeft = 0, dRight = 0, dBottom = 0, dTop = 0;
  bool bEmpty = true;
  void Add(double dX, double dY);
};

struct TViewport {
  double dWidth = 0, dHeight = 0;     ///< of the device
  double dCentreX = 0, dCentreY = 0;  ///< metres in the middle of it
  double dScaleX = 1, dScaleY = 1;    ///< device units to the metre, above 0

  TPlotPoint ToDevice(double dX, double dY) const {
    return {dWidth / 2 + (dX - dCentreX) * dScaleX, dHeight / 2 - (dY - dCentreY) * dScaleY};
  }
  TPlotPoint ToMetres(double dX, double dY) const {
    return {dCentreX + (dX - dWidth / 2) / dScaleX, dCentreY - (dY - dHeight / 2) / dScaleY};
  }
};

/// What stays free at the edges, device units.
struct TMargins {
  double dSides = 0, dTop = 0, dBottom = 0;
};

namespace Viewport {

/// The whole extent inside the margins, which in a small device give way until two fifths of it are left.
/// bSameScale: a metre is as long upwards as across.
TViewport Fit(const TExtent& Extent, double dWidth, double dHeight, const TMargins& Margins, bool bSameScale);

/// Moves what is shown by device units: positive to the right and downwards.
void Pan(TViewport& View, double dRight, double dDown);

/// Enlarges by a factor around a point of the device that stays where it is. Scales stay within 1e-6 to 1e6.
void Zoom(TViewport& View, double dFactor, double dX, double dY);

/// The smallest of 1, 2, 5, 10, 20, 50 ... (or 0.5, 0.2, 0.1 ...) that isn't below dLeast, which is above 0.
double NiceStep(double dLeast);

/// How many decimals a multiple of such a step needs.
int StepDecimals(double dStep);

}  // namespace Viewport
}  // namespace vrek
