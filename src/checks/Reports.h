// The reports that the checks fill, one for each file in the order of reading.
#pragma once

#include "checks/CAligmentCheck.h"

namespace vrek::CAligmentCheck {

/// That of the file noted last. Before the first one: failure 9.
TFileReport& CurrentReport();

}  // namespace vrek::CAligmentCheck
