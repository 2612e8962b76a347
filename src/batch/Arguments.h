// The options of the batch command.
#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "batch/Job.h"

namespace CLI {
class App;
}

namespace vrek::batch {

/// What the command line asks for.
struct TArguments {
  bool bCheckOnly = false;
  bool bJson = false;
  bool bQuiet = false;
  std::optional<TJob> Job;             ///< from the options; without it:
  std::vector<std::string> aJobFiles;  ///< job files to run
  int nProcesses = 0;                  ///< above 0: each in a process of its own, so many at a time
};

/// Reads the command line. No value: there is nothing to run, and nStatus is the exit status (help and
/// version were printed to Out, a usage fault was told on Err).
std::optional<TArguments> ReadArguments(int argc, const char* const* argv, std::ostream& Out,
                                        std::ostream& Err, int& nStatus);

}  // namespace vrek::batch
