#include "base/Failure.h"

namespace vrek {

std::string_view StandardDescription(std::int32_t nNumber) {
  switch (nNumber) {
    case Error::nOverflow:
      return "Overflow";
    case Error::nOutOfMemory:
      return "Out of memory";
    case Error::nSubscript:
      return "Subscript out of range";
    case Error::nDivisionByZero:
      return "Division by zero";
    case Error::nTypeMismatch:
      return "Type mismatch";
    case Error::nFileNotFound:
      return "File not found";
    case Error::nDiskFull:
      return "Disk full";
    case Error::nInputPastEnd:
      return "Input past end of file";
    case Error::nPermissionDenied:
      return "Permission denied";
    case Error::nPathFileAccess:
      return "Path/File access error";
    case Error::nPathNotFound:
      return "Path not found";
    case Error::nObjectNotSet:
      return "Object variable or With block variable not set";
    default:
      return "Invalid procedure call or argument";
  }
}

void Raise(std::int32_t nNumber) {
  throw Failure{nNumber, std::string(StandardDescription(nNumber)), {}};
}

void Raise(std::int32_t nNumber, std::string_view sDescription, std::string_view sSource) {
  throw Failure{nNumber, std::string(sDescription), std::string(sSource)};
}

}  // namespace vrek
