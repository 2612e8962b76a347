#include "platform/WriteFailure.h"

#include <cerrno>

#include "base/Failure.h"

namespace vrek {

std::int32_t WriteFailureNumber(int nErrno) {
  switch (nErrno) {
    case EACCES:
    case EPERM:
    case EROFS:
      return Error::nPermissionDenied;
    case ENOENT:
    case ENOTDIR:
      return Error::nPathNotFound;
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

void RaiseWriteFailure(int nErrno) {
  Raise(WriteFailureNumber(nErrno));
}

}  // namespace vrek
