// Trouble that the system reports through errno while a file is written, as a failure of this program.
#pragma once

#include <cstdint>

namespace vrek {

/// The failure number of an errno value: 70 no permission, 76 a folder of the path is missing, 61 no room
/// left, 7 out of memory, 75 any other.
std::int32_t WriteFailureNumber(int nErrno);

/// Raises it.
[[noreturn]] void RaiseWriteFailure(int nErrno);

}  // namespace vrek
