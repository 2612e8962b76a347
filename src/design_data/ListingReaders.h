// The readers of the three listings, one for each form: marked (commas), printed (columns), tab (RTF table).
// Each gives True for a usable result. A failure is reported with the reader's name as its source and gives
// False; what was read up to then stays in the out argument.
// The plain text readers take their listing unread, from its first line on.
#pragma once

#include <string>

#include "design_data/Listing.h"
#include "records/CrossSections.h"
#include "records/Elements.h"

namespace vrek::Entry {

bool ImportHzMarked(THzElements& aHz, const std::string& sFilename);
bool ImportHzTabbed(THzElements& aHz, const std::string& sFilename);

bool ImportVtMarked(TVtElements& aVt, CListing& Listing);
bool ImportVtPrinted(TVtElements& aVt, CListing& Listing);
bool ImportVtTabbed(TVtElements& aVt, const std::string& sFilename);

bool ImportCrMarked(TCrData& Cr, CListing& Listing);
bool ImportCrPrinted(TCrData& Cr, CListing& Listing);
bool ImportCrTabbed(TCrData& Cr, const std::string& sFilename);

}  // namespace vrek::Entry
