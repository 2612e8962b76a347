// An output file: bytes gathered in a large buffer and written in large pieces.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace vrek {

class IOutputFile {
 public:
  virtual ~IOutputFile() = default;  ///< closes quietly what is still open
  /// Appends bytes. A failure (61 disk full, 75 and the like) may show here or only at Flush.
  virtual void Write(std::string_view sBytes) = 0;
  /// Everything written so far is on its way to the file when this returns. Failures as Write.
  virtual void Flush() = 0;
  /// Flushes and closes. Failures as Write.
  virtual void Close() = 0;
};

/// The file itself, created or truncated. Failures: 70 permission, 76 no such folder, 61 disk full, 75 any
/// other.
std::unique_ptr<IOutputFile> CreateOutputFile(const std::string& sPath);

}  // namespace vrek
