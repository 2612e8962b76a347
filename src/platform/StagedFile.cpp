#include "platform/StagedFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <atomic>
#include <climits>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <random>
#include <string_view>

#include "base/Failure.h"
#include "platform/Descriptor.h"

namespace vrek {
namespace {

namespace fs = std::filesystem;

enum ESlot : int { eFree, eTaken, eLive };

/// Paths that a signal handler can remove: fixed memory, no locks.
struct TSlot {
  std::atomic<int> eState{eFree};
  std::array<char, PATH_MAX> aPath{};
};
std::array<TSlot, 16> aSlots;
static_assert(std::atomic<int>::is_always_lock_free);

/// The number of the slot that holds the path now, or -1 when there is no room; the destructor removes the
/// file all the same.
int Register(const std::string& sPath) {
  if (sPath.size() >= PATH_MAX) return -1;
  for (std::size_t i = 0; i < aSlots.size(); ++i) {
    int eExpected = eFree;
    if (!aSlots[i].eState.compare_exchange_strong(eExpected, eTaken)) continue;
    std::memcpy(aSlots[i].aPath.data(), sPath.c_str(), sPath.size() + 1);
    aSlots[i].eState = eLive;
    return static_cast<int>(i);
  }
  return -1;
}

void Unregister(int nSlot) {
  if (nSlot >= 0) aSlots[static_cast<std::size_t>(nSlot)].eState = eFree;
}

/// Of the target's name, so that a name of the greatest length leaves room for what is put round it.
constexpr std::size_t nNameBytes = 200;

std::string RandomLetters() {
  constexpr std::string_view sLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
  std::random_device Random;
  std::string sOut(6, ' ');
  for (char& c : sOut) c = sLetters[Random() % sLetters.size()];
  return sOut;
}

/// The permissions of a target that is there already, which must be a file that may be written; else 0.
mode_t PermissionsOf(const std::string& sTarget) {
  struct stat Status {};
  if (::stat(sTarget.c_str(), &Status) != 0) return 0;
  if (!S_ISREG(Status.st_mode)) Raise(Error::nPathFileAccess);
  if (::access(sTarget.c_str(), W_OK) != 0) Raise(FailureNumber(errno));
  return Status.st_mode & 07777;
}

/// Creates an empty file of a new name beside the target; gives its path.
std::string CreateBeside(const fs::path& Target, mode_t nMode) {
  for (int nTry = 0; nTry < 100; ++nTry) {
    const std::string sName =
        "." + Target.filename().string().substr(0, nNameBytes) + ".vrek-" + RandomLetters();
    std::string sPath = (Target.parent_path() / sName).string();
    const Descriptor File(::open(sPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (File.Get() < 0 && errno == EEXIST) continue;
    if (File.Get() < 0) Raise(FailureNumber(errno));
    if (nMode != 0) ::fchmod(File.Get(), nMode);
    return sPath;
  }
  Raise(Error::nPathFileAccess);
}

/// Holds back the signals that end the program: a file must not be there before its path is registered.
class SignalsHeld {
 public:
  SignalsHeld() {
    sigset_t Ending;
    ::sigemptyset(&Ending);
    for (const int nSignal : aEndingSignals) ::sigaddset(&Ending, nSignal);
    ::pthread_sigmask(SIG_BLOCK, &Ending, &m_Before);
  }
  SignalsHeld(const SignalsHeld&) = delete;
  ~SignalsHeld() { ::pthread_sigmask(SIG_SETMASK, &m_Before, nullptr); }

 private:
  sigset_t m_Before{};
};

/// Waits until the disk has what was written to a path. A folder that can't be synchronised is no failure.
void Synchronise(const std::string& sPath, bool bMustWork) {
  const Descriptor File(::open(sPath.c_str(), O_RDONLY | O_CLOEXEC));
  const bool bWell = File.Get() >= 0 && ::fsync(File.Get()) == 0;
  if (!bWell && bMustWork) Raise(FailureNumber(errno));
}

}  // namespace

std::string ResolvedTarget(const std::string& sPath) {
  constexpr int nMostLinks = 40;
  fs::path Path = sPath;
  std::error_code Error;
  for (int n = 0; n < nMostLinks; ++n) {
    const auto Resolved = fs::canonical(Path, Error);
    if (!Error) return Resolved.string();
    const auto Link = fs::read_symlink(Path, Error);
    if (Error) break;
    Path = Path.parent_path() / Link;
  }
  const auto Folder = fs::canonical(Path.has_parent_path() ? Path.parent_path() : fs::path("."), Error);
  return Error ? Path.string() : (Folder / Path.filename()).string();
}

StagedFile::StagedFile(const std::string& sTarget) {
  if (sTarget.empty()) Raise(Error::nPathFileAccess);
  m_sTarget = ResolvedTarget(sTarget);
  const fs::path Target = m_sTarget;
  const mode_t nMode = PermissionsOf(m_sTarget);
  const SignalsHeld Held;
  m_sPath = CreateBeside(Target, nMode);
  m_nSlot = Register(m_sPath);
}

StagedFile::~StagedFile() {
  if (!m_sPath.empty()) ::unlink(m_sPath.c_str());
  Unregister(m_nSlot);
}

void StagedFile::Commit() {
  Synchronise(m_sPath, true);
  if (::rename(m_sPath.c_str(), m_sTarget.c_str()) != 0) Raise(FailureNumber(errno));
  m_sPath.clear();
  const fs::path Folder = fs::path(m_sTarget).parent_path();
  Synchronise(Folder.empty() ? "." : Folder.string(), false);
}

void RemoveLeftovers() noexcept {
  for (TSlot& Slot : aSlots) {
    if (Slot.eState == eLive) ::unlink(Slot.aPath.data());
  }
}

}  // namespace vrek
