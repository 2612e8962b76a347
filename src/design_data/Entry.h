// Entry: from a listing's path to its data. The extension and the first line decide which reader a file goes
// to. True when the reader got a usable result. A failure is reported and gives false; what was read up to
// then stays in the out argument, which the caller gives empty.
#pragma once

#include <string>

#include "records/CrossSections.h"
#include "records/Elements.h"
#include "records/StringLines.h"

namespace vrek::Entry {

bool ImportHzAligment(THzElements& aHz, const std::string& sFilename);
bool ImportVtAligment(TVtElements& aVt, const std::string& sFilename);
bool ImportCrAligment(TCrData& Cr, const std::string& sFilename);
/// There is no reader of stringline files: reports failure 20000 and gives false.
bool ImportStrLnAligment(TStringLines& StrLn, const std::string& sFilename);

}  // namespace vrek::Entry
