// CListing: a plain text listing in a reader's hands, handed out line by line as bytes of the code page.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/TextFile.h"

namespace vrek {

class CListing {
 public:
  /// Opens the file. Failures as CTextFile.
  explicit CListing(const std::string& sPath);

  bool AtEnd() const { return m_File.AtEnd(); }

  /// Whether the first line begins with a mark, itself without line ends. Reads nothing.
  bool BeginsWith(std::string_view sMark) const { return m_File.Bytes().starts_with(sMark); }

  /// The next line, valid as long as this object. At the end: failure 62.
  std::string_view NextLine() {
    m_sLine = m_File.NextLine();
    ++m_nLine;
    return m_sLine;
  }

  /// The next line that has a character; the file's last line, whatever it is, where none has.
  std::string_view NextFilledLine();

  /// The same, a line of blanks counting as empty.
  std::string_view NextLineNotBlank();

  /// Fails on the line in hand, which the log gets to see with its file and number (from 1).
  [[noreturn]] void Refuse(std::int32_t nNumber) const;

 private:
  std::string m_sPath;
  CTextFile m_File;
  std::string_view m_sLine;
  int m_nLine = 0;
};

}  // namespace vrek
