// What the Result page draws, and the batch command plots.
#pragma once

#include "preview/Preview.h"

namespace vrek {

class frmWizard;

/// The drawing of what an export with the present choices of the pages writes.
TPreview PreviewOf(const frmWizard& Wizard);

}  // namespace vrek
