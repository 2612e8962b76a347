// The command-line text that a host hands over, made again from the arguments of main.
#pragma once

#include <string>

namespace vrek {

/// The arguments behind the program's name, joined by single blanks. The shell has taken the double quotes
/// away that the value behind -o or -n needs: they are put back, unless the value brings quotes of its own.
std::string CommandLineText(int nArguments, const char* const* aArguments);

}  // namespace vrek
