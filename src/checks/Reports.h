// The reports of all files noted since the last InitReports; for this folder alone.
#pragma once

#include <vector>

#include "checks/CAligmentCheck.h"

namespace vrek::CAligmentCheck {

/// In the order of AddReportFile; the last one is the current file's.
std::vector<TFileReport>& Reports();

}  // namespace vrek::CAligmentCheck
