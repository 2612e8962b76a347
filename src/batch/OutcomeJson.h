// The outcome of jobs as JSON for programs.
#pragma once

#include <string>
#include <vector>

#include "batch/Conversion.h"

namespace vrek::batch {

/// One object for one job, an array for several; UTF-8, ends with a line end.
std::string OutcomesAsJson(const std::vector<TOutcome>& aOutcomes);

/// The objects that single runs printed, as one array in their order.
std::string JoinOutcomes(const std::vector<std::string>& aOutcomes);

/// The object for a run that printed none: what it said instead stands in its messages.
std::string OutcomeOfBrokenRun(const std::string& sJobFile, const std::string& sWords,
                               const std::string& sSaid);

}  // namespace vrek::batch
