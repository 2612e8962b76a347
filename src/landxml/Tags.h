// How the routines of CLandXML write an element of one line and keep the depth.
#pragma once

#include <initializer_list>
#include <string_view>

namespace vrek::CLandXML {

/// One line at the current depth, its parts joined.
bool WriteParts(std::initializer_list<std::string_view> aParts);

/// Writes, then goes one level down, whether or not the line could be written.
bool WriteOpening(std::initializer_list<std::string_view> aParts);

/// Goes one level up, then writes.
bool WriteClosing(std::string_view sText);

}  // namespace vrek::CLandXML
