// Job files: TOML. Paths are relative to the job file.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "batch/Job.h"

namespace vrek::batch {

/// What is wrong with a job file or the options, in words for the person who wrote them.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads a job file. A file that can't be read, a line that isn't TOML, an unknown or missing key or a value
/// of the wrong kind: UsageError that names file, line and key.
TJob ReadJobFile(const std::string& sPath);

/// A job file and what came of reading it.
struct TJobFile {
  std::string sPath;
  std::optional<TJob> Job;
  std::string sFault;  ///< without a job: what is wrong, in words
};

/// Reads job files; one that is wrong doesn't keep the others from being read. bNeedsOutput: one without an output
/// is wrong.
std::vector<TJobFile> ReadJobFiles(const std::vector<std::string>& aPaths, bool bNeedsOutput);

}  // namespace vrek::batch
