// A text file, read whole, handed out line by line as bytes of the code page. A line ends at CR or CR LF, and
// neither is part of it; a lone LF ends nothing. A file that holds LF but no CR at all ends its lines with
// LF.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vrek {

class CTextFile {
 public:
  /// Reads the file. Failures: 53 not found, 70 no permission, 76 no such folder, 7 larger than 2 GiB, 75 any
  /// other (a folder or a device, say).
  explicit CTextFile(const std::string& sPath);

  /// True as soon as the last line has been read, with or without a line end behind it; of an empty file, at
  /// once.
  bool AtEnd() const { return m_nPos >= m_sBytes.size(); }

  /// The next line; the view lives as long as this object. At the end: failure 62.
  std::string_view NextLine();

  /// Whether lines end with LF alone, which the caller notes in the log.
  bool EndsLinesWithLf() const { return m_cLineEnd == '\n'; }

  /// All bytes of the file.
  std::string_view Bytes() const { return m_sBytes; }

 private:
  std::string m_sBytes;
  std::size_t m_nPos = 0;
  char m_cLineEnd = '\r';
};

/// All bytes of a file. Failures as CTextFile.
std::string ReadWholeFile(const std::string& sPath);

/// How many LF of a file that holds CR have none in front: they end no line. 0 where it holds no CR. Failures
/// as CTextFile.
std::size_t CountStrayLfs(const std::string& sPath);

/// True when the path names a file that can be opened for reading (no folder, no empty name).
bool CanOpenForReading(const std::string& sPath);

}  // namespace vrek
