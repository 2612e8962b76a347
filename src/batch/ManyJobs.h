// Many job files, a few at a time, each in a process of its own: one that crashes takes nothing else down.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vrek::batch {

struct TManyJobs {
  std::vector<std::string> aJobFiles;
  int nAtOnce = 1;
  bool bCheckOnly = false;
  bool bJson = false;
  bool bQuiet = false;
  bool bProgress = false;  ///< draw a progress line on stderr
};

/// Runs this program once for each job file. What the runs say comes to Err as each one ends, at the end a
/// table of all; with JSON their outcomes come to Out as one array, in the order of the files. Gives the
/// worst exit status of all; a run that was killed counts as not written.
int RunManyJobs(const TManyJobs& Jobs, std::ostream& Out, std::ostream& Err);

}  // namespace vrek::batch
