// The platform on a POSIX system: clock, surroundings, sibling programs, plain output files.
#pragma once

#include <string>
#include <vector>

#include "platform/Platform.h"

namespace vrek {

class SystemClock final : public IClock {
 public:
  std::tm Now() const override;
  /// Where SOURCE_DATE_EPOCH holds a number of seconds, that moment in the local time zone.
  std::tm DocumentTime() const override;
};

/// User, program directory and temporary directory ($TMPDIR, else /tmp) of this process.
class PosixEnvironment final : public IEnvironment {
 public:
  std::string UserName() const override;
  std::string ProgramDirectory() const override;
  std::string TempDirectory() const override;
};

/// Starts programs directly, never through a shell.
class PosixProcesses final : public IProcesses {
 public:
  void RunAndWait(std::string_view sCommand) override;
};

/// Output files where their path says, see CreateOutputFile.
class DirectOutput final : public IOutputFiles {
 public:
  std::unique_ptr<IOutputFile> Create(const std::string& sPath) override { return CreateOutputFile(sPath); }
};

/// The words of a command line: runs between blanks; double quotes hold blanks together and are dropped. An
/// open quote reaches to the end. No other character has a meaning.
std::vector<std::string> SplitCommand(std::string_view sCommand);

}  // namespace vrek
