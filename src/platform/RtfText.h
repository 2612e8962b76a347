// RTF to plain text: one text for a whole file. A paragraph or a row of a table ends in CR LF, a cell in a
// Tab; a tab stop is a Tab.
#pragma once

#include <string>
#include <string_view>

namespace vrek {

/// The text of an RTF document, UTF-8. What doesn't begin with "{\rtf" is plain text in the code page, its
/// line ends becoming CR LF. Broken input gives what could be read, never a failure.
std::string RtfToText(std::string_view sBytes);

/// What RtfToText takes for RTF.
bool IsRtf(std::string_view sBytes);

/// Whether an RTF document closes its outermost group: one that was cut off doesn't.
bool IsWholeRtf(std::string_view sBytes);

/// RtfToText of a file. Failures as CTextFile.
std::string ReadRtfFile(const std::string& sPath);

}  // namespace vrek
