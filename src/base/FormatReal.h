// FormatReal: the one routine that turns a number into text.
#pragma once

#include <string>

namespace vrek {

/// The number with exactly nDigits decimals and a point, whatever the locale.
///
/// Rounds twice: first to 15 significant digits (of the exact binary value, half to even), then that decimal
/// form half away from zero: 2.675 with 2 digits gives "2.68". A value below zero keeps its minus even when
/// all digits shown are 0 ("-0.000000"); -0.0 has none. At least one digit stands before the point; without
/// decimals (nDigits 0 or less) there is no point. Not finite: failure 6.
std::string FormatReal(double dValue, int nDigits);

/// The same, appended to a text; for writers that build long lines.
void AppendReal(std::string& sOut, double dValue, int nDigits);

}  // namespace vrek
