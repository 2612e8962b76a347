#include "platform/StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

#include <initializer_list>

namespace vrek {

void OpenClosedStandardStreams() noexcept {
  for (const int nStream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    // The lowest free number is the one wanted, since those before it are open by now.
    if (::fcntl(nStream, F_GETFD) < 0) ::open("/dev/null", O_RDWR);
  }
}

}  // namespace vrek
