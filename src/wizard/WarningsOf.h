// What the Result page and the batch command warn of.
#pragma once

#include <string>
#include <vector>

namespace vrek {

class frmWizard;

/// The warnings for what an export with the present choices of the pages writes, from the data in the store:
/// call it before the export, which may use up the cross-sections. Never fails; without data none.
std::vector<std::string> WarningsOf(const frmWizard& Wizard);

}  // namespace vrek
