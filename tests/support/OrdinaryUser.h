// Permissions bind everybody but root, and builds in containers run as root: such a test lays root down for a
// while.
#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace vrek::test {

/// While it lives, the process acts as a user without rights of its own; nothing changes for an ordinary
/// user. The folder is handed to that user first, so that the test may go on writing there. Ends the test
/// program where root can't be laid down.
class OrdinaryUser {
 public:
  explicit OrdinaryUser(const std::filesystem::path& Folder) : m_Folder(Folder), m_bRoot(::geteuid() == 0) {
    if (m_bRoot && (::chown(Folder.c_str(), nNobody, -1u) != 0 || ::setresuid(nNobody, nNobody, 0) != 0))
      std::abort();
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() {
    if (m_bRoot && ::setresuid(0, 0, 0) != 0) std::abort();
  }

  /// False where the folder lies below one that only root may enter: then the test can't tell anything.
  bool ReachesFolder() const { return ::access(m_Folder.c_str(), W_OK | X_OK) == 0; }

 private:
  static constexpr uid_t nNobody = 65534;
  std::filesystem::path m_Folder;
  bool m_bRoot;
};

}  // namespace vrek::test
