// An open file of the system, closed by scope, and what its error codes mean as failures.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <cstdint>

#include "base/Failure.h"

namespace vrek {

/// Owns a file descriptor; below 0 when there is none.
class Descriptor {
 public:
  explicit Descriptor(int nFile) : m_nFile(nFile) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { Close(); }

  int Get() const { return m_nFile; }

  /// False, with errno, when the system reports a trouble that it had kept back until now.
  bool Close() {
    const int nFile = m_nFile;
    m_nFile = -1;
    return nFile < 0 || ::close(nFile) == 0 || errno == EINTR;
  }

 private:
  int m_nFile;
};

/// Number of the failure that an errno value stands for; a path that isn't there counts as a missing folder.
inline std::int32_t FailureNumber(int nErrno) {
  switch (nErrno) {
    case ENOENT:
    case ENOTDIR:
      return Error::nPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
      return Error::nPermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return Error::nDiskFull;
    case ENOMEM:
      return Error::nOutOfMemory;
    default:
      return Error::nPathFileAccess;
  }
}

}  // namespace vrek
