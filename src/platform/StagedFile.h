// A file that takes its place at once or not at all: written under a name of its own beside the target and
// renamed when it is whole. A crash leaves the target as it was.
#pragma once

#include <csignal>
#include <string>

namespace vrek {

/// The signals by which people, shells and batch queues end a program that may still tidy up.
inline constexpr int aEndingSignals[] = {SIGTERM, SIGINT,  SIGHUP,  SIGQUIT, SIGPIPE,
                                         SIGXCPU, SIGALRM, SIGUSR1, SIGUSR2};

/// Where a file written under a path comes to lie: links are followed, also one that leads to nothing yet.
std::string ResolvedTarget(const std::string& sPath);

class StagedFile {
 public:
  /// Creates ".<name>.vrek-XXXXXX", empty, in the folder of the target, with the permissions that the target
  /// has (or a new file would get). A link is followed. Failures: 70, 75 (a folder, an empty name), 76, 61.
  explicit StagedFile(const std::string& sTarget);
  ~StagedFile();  ///< removes what wasn't committed
  StagedFile(const StagedFile&) = delete;
  StagedFile& operator=(const StagedFile&) = delete;

  /// Where to write until Commit.
  const std::string& Path() const { return m_sPath; }

  /// Brings the bytes to the disk and the file into place, replacing the target. Failures: 70, 75, 76, 61;
  /// then the target is untouched.
  void Commit();

 private:
  std::string m_sTarget;
  std::string m_sPath;
  int m_nSlot = -1;  // in the table of RemoveLeftovers
};

/// Removes the files of all StagedFile objects that aren't committed. Safe in a signal handler; the process
/// is expected to end right behind it.
void RemoveLeftovers() noexcept;

}  // namespace vrek
