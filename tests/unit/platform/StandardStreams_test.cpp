#include "platform/StandardStreams.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>

namespace vrek {
namespace {

TEST(StandardStreams, AreOpenWhateverTheCallerClosed) {
  EXPECT_EXIT(
      {
        ::close(STDIN_FILENO);
        ::close(STDERR_FILENO);
        OpenClosedStandardStreams();
        std::_Exit(::open("/dev/null", O_RDONLY) > STDERR_FILENO && ::isatty(STDERR_FILENO) == 0 ? 0 : 1);
      },
      ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace vrek
