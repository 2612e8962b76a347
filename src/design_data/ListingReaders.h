// The readers of the three listings, one for each form: marked (commas), printed (columns), tab (RTF table).
// Each gives True for a usable result. A failure is reported with the reader's name as its source and gives
// False; what was read up to then stays in the out argument.
// A file whose first line decides on the reader comes opened: a listing unread, from its first line on, or
// the bytes of an RTF file.
#pragma once

#include <string>
#include <string_view>

#include "design_data/Listing.h"
#include "records/CrossSections.h"
#include "records/Elements.h"

namespace vrek::Entry {

bool ImportHzMarked(THzElements& aHz, const std::string& sFilename);
bool ImportHzTabbed(THzElements& aHz, const std::string& sFilename);

bool ImportVtMarked(TVtElements& aVt, CListing& Listing);
bool ImportVtPrinted(TVtElements& aVt, CListing& Listing);
bool ImportVtTabbed(TVtElements& aVt, std::string_view sRtf);

bool ImportCrMarked(TCrData& Cr, CListing& Listing);
bool ImportCrPrinted(TCrData& Cr, CListing& Listing);
bool ImportCrTabbed(TCrData& Cr, std::string_view sRtf);

}  // namespace vrek::Entry
