// The text of a settings file. Sections and keys keep their order, and lines that aren't ours, comments too,
// stay as they stand:
//   [Preferences]
//   ToleranceHz=0.010
// In a name or a value stand \\ for a backslash, \n and \r for line ends, \xHH for any other character that
// would be read as something else (a blank at either end, "=" in a key, "[" or "#" before it).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vrek {

class IniText {
 public:
  explicit IniText(std::string_view sText);

  /// The value of a key; nothing where section or key aren't there. Of two, the first counts.
  std::optional<std::string> Find(std::string_view sSection, std::string_view sKey) const;

  /// Replaces a value or adds it, with its section, where there was none.
  void Set(std::string_view sSection, std::string_view sKey, std::string_view sValue);

  /// The whole text, lines ended by LF.
  std::string Text() const;

 private:
  std::size_t FindSection(std::string_view sSection) const;  // index of its head line, or the number of lines
  std::size_t EndOfSection(std::size_t nHead) const;  // index of the next head line, or the number of lines
  std::size_t FindKey(std::size_t nHead, std::string_view sKey) const;  // or EndOfSection

  std::vector<std::string> m_aLines;
};

}  // namespace vrek
