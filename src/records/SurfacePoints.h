// SurfacePoints: what a listing reader and the stringline engine both do to the points of one surface.
#pragma once

#include <vector>

#include "records/CrossSections.h"

namespace vrek::CCrSec {

/// Removes each point that equals the one just before it in the list as given, kept or not (offset and height
/// both within 0.0001). Gives how many. Values beyond the doubles: failure 6.
int DeleteDuplicatedpoints(std::vector<TCrPoint>& aPoints);

/// A fresh code for a point, registered with the layer: its offset with three decimals ("12.350"), from the
/// second of that text on with a number behind it ("12.350_2").
TCode NewCode(TCrLayer& Layer, const TCrPoint& Point);

/// The layer's code that is the point's offset text itself; NewCode when no code begins with that text.
TCode FindOrNewCode(TCrLayer& Layer, const TCrPoint& Point);

/// Gives each point a fresh code, in order.
void NameSurface(TCrSurface& Surface, TCrLayer& Layer);

}  // namespace vrek::CCrSec
