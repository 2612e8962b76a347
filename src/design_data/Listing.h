// CListing: a plain text listing in a reader's hands, handed out line by line as bytes of the code page.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/TextFile.h"

namespace vrek {

/// A line of a listing and its number, from 1.
struct TLine {
  std::string_view sText;
  int nNumber = 0;
};

class CListing {
 public:
  /// Opens the file. Failures as CTextFile.
  explicit CListing(const std::string& sPath);

  bool AtEnd() const { return m_File.AtEnd(); }

  /// Whether the first line begins with a mark, itself without line ends. Reads nothing.
  bool BeginsWith(std::string_view sMark) const { return m_File.Bytes().starts_with(sMark); }

  /// The next line, valid as long as this object. At the end: failure 62.
  std::string_view NextLine() {
    m_Line = {m_File.NextLine(), m_Line.nNumber + 1};
    return m_Line.sText;
  }

  /// The next line that has a character; the file's last line, whatever it is, where none has.
  std::string_view NextFilledLine();

  /// The same, a line of blanks counting as empty.
  std::string_view NextLineNotBlank();

  /// The line in hand, the last one read.
  const TLine& Line() const { return m_Line; }

  /// Fails on a line, which the log gets to see with file and number.
  [[noreturn]] void Refuse(std::int32_t nNumber, const TLine& Line) const;

  /// Fails on the line in hand.
  [[noreturn]] void Refuse(std::int32_t nNumber) const { Refuse(nNumber, m_Line); }

 private:
  std::string m_sPath;
  CTextFile m_File;
  TLine m_Line;
};

}  // namespace vrek
