// The start of a run: which jobs the converter offers, and what the command line asks for. A host runs
//   -o "C:\t\road.xml" -n "Road1"     the wizard, output file and job name given
//   -reg -o "C:\t\info.txt"           a description of the converter into the file, no wizard
// and no or one token is a run started by hand, which asks for the output file.
#pragma once

#include <string>
#include <string_view>

#include "base/Configuration.h"

namespace vrek {

/// Fixes the jobs on offer for the run, a set of bits: 1 road, 2 tunnel, 4 rail, 8 PLA, 16 DTM. Gives true.
bool InitFormats(int nMask = Configuration::nFormatsSupport);

/// The jobs on offer; 0 before InitFormats.
int FormatsSupport();

/// Reads the text behind the program's name into XmlFileToExport, sJobName and DebugMode of the application
/// object. Values stand between double quotes; the text is cut at every single blank, inside quotes too.
/// True: the wizard is to run. False: the process is to stop with code 1 (a registration run that is done, a
/// dismissed dialog, or a failure, which is reported with the source "ReadLineCommand").
bool ReadLineCommand(std::string_view sCommandLine);

/// The text between the first sOpen at or behind position nStart (from 1) and the next sClose; "" without
/// one. A missing sOpen counts as found at position 0. Positions beyond 32767: failure 6; nStart below 1:
/// failure 5.
std::string GetBetween(std::string_view sText, std::string_view sOpen, std::string_view sClose, int nStart);

}  // namespace vrek
