// SvgPlot: drawings as an SVG document, on a white ground.
#pragma once

#include <string>
#include <vector>

#include "preview/Drawing.h"

namespace vrek::SvgPlot {

/// Drawings below each other in one document.
std::string AsSvg(const std::vector<TDrawing>& aDrawings);

/// The whole plan over the whole profile; the plan alone where there is no profile.
std::string PlotAsSvg(const TPreview& Shown, const TPlotWords& Words = {});

}  // namespace vrek::SvgPlot
