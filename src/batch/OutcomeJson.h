// The outcome of jobs as JSON for programs.
#pragma once

#include <string>
#include <vector>

#include "batch/Conversion.h"

namespace vrek::batch {

/// One object for one job, an array for several; UTF-8, ends with a line end.
std::string OutcomesAsJson(const std::vector<TOutcome>& aOutcomes, bool bArray);

}  // namespace vrek::batch
