// The lines of one element, put together before the first of them goes out: a failure on the way leaves no
// half element behind. Numbers go straight into the one text that all lines share.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "geometry/GM.h"

namespace vrek::CLandXML {

/// What stands between the quotes of a number's attribute or in a pair: six decimals throughout the document.
inline constexpr int nDecimals = 6;

class CElementLines {
 public:
  /// One line of parts, nDeeper tabs behind those of the current depth. A part is a text, a number or a
  /// point; a point shows as "{Y} {X}", northing first.
  template <class... TPart>
  void Add(int nDeeper, const TPart&... Part) {
    Begin(nDeeper);
    (Append(Part), ...);
    End();
  }

  /// The same in steps, for lists.
  void Begin(int nDeeper);
  void Append(std::string_view sText) { m_sText += sText; }
  void Append(double dValue);
  void Append(const THzPoint& Point);
  void End() { m_aEnds.push_back(m_sText.size()); }

  /// Sends each line through WriteLn, also behind one that could not be written, and starts afresh. Gives
  /// whether the last one was written.
  bool Write();

 private:
  std::string m_sText;               // all lines, one behind the other
  std::vector<std::size_t> m_aEnds;  // where each line ends in it
};

}  // namespace vrek::CLandXML
