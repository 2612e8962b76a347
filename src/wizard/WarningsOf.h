// What the Result page and the batch command warn of.
#pragma once

#include <string>
#include <vector>

namespace vrek {

class frmWizard;

/// The warnings for what an export with the present choices of the pages writes, from the imported files and
/// the data in the store. The range is the Exporting page's, which must have been entered. Call it before the
/// export, which may use up the cross-sections. Never fails: a warning that can't be worked out is logged.
std::vector<std::string> WarningsOf(const frmWizard& Wizard);

}  // namespace vrek
