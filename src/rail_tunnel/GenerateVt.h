// The vertical alignment of a track, generated from the centre line's or from the other track's.
#pragma once

#include "platform/Progress.h"

namespace vrek::CAligmentsDatas {

/// Samples the source every dStep metres, projects each sample on the target, moves its height over the cant
/// plane of nSup where that track is coplanar, and stores the result as the target's Vt. False when
/// cancelled: nothing is stored then. A step that doesn't move the chainage, or more than 20 million samples:
/// failure 6 before it begins. Other failures rise to the caller.
bool GenerateVtAligment(int nTarget, int nSource, int nSup, double dStep, IProgress& Progress,
                        bool bIsVtAligmentSourceChainageCL);

}  // namespace vrek::CAligmentsDatas
