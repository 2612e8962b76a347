// The cross-sections of one alignment: the chosen layers of a road, or the two rails of a track.
#pragma once

#include <vector>

#include "preview/Preview.h"

namespace vrek::Preview {

/// Those within the chainage limits of the choice (both limits 0: all).
std::vector<TPreviewSection> MakeSections(int nAligment, const TPreviewChoice& Choice);

}  // namespace vrek::Preview
