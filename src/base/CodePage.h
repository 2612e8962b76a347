// CodePage: text is UTF-8 inside and Windows-1252 in files. The five bytes that Windows-1252 leaves
// undefined (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the code points of the same value, both ways.
#pragma once

#include <string>
#include <string_view>

namespace vrek::CodePage {

/// Bytes of a file to UTF-8. Every byte has a character: this never fails.
std::string ToUtf8(std::string_view sBytes);

/// UTF-8 to the bytes of a file. A character without a code-page value becomes "?", one beyond 16 bits "??";
/// a byte that is no UTF-8 becomes "?".
std::string FromUtf8(std::string_view sText);

/// True when every byte is below 128: then both conversions change nothing.
bool IsAscii(std::string_view sText);

}  // namespace vrek::CodePage
