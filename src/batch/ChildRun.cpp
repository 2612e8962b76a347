#include "batch/ChildRun.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

#include "batch/ExitStatus.h"

namespace vrek::batch {
namespace {

constexpr int nCouldNotRun = 127;

std::string Contents(const Descriptor& File) {
  std::string sOut;
  std::array<char, 65536> aPart{};
  for (;;) {
    const auto nRead = ::pread(File.Get(), aPart.data(), aPart.size(), static_cast<off_t>(sOut.size()));
    if (nRead < 0 && errno == EINTR) continue;
    if (nRead <= 0) return sOut;
    sOut.append(aPart.data(), static_cast<std::size_t>(nRead));
  }
}

}  // namespace

// The output goes to memory, not to a pipe: nobody need read it while the run lasts.
CChildRun::CChildRun(std::size_t nNumber, const std::vector<std::string>& aArguments)
    : m_nNumber(nNumber),
      m_Out(::memfd_create("out", MFD_CLOEXEC)),
      m_Err(::memfd_create("err", MFD_CLOEXEC)) {
  std::vector<std::string> aWords{"vrek-batch"};
  aWords.insert(aWords.end(), aArguments.begin(), aArguments.end());
  std::vector<char*> aArgv;
  for (auto& sWord : aWords) aArgv.push_back(sWord.data());
  aArgv.push_back(nullptr);
  const pid_t nParent = ::getpid();
  m_nProcess = ::fork();
  if (m_nProcess == 0) Become(aArgv.data(), nParent);
}

void CChildRun::Become(char* const* aArgv, pid_t nParent) const {
  // Stopped when the parent goes, also when it went before this was asked for.
  ::prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (::getppid() != nParent) ::_exit(nCouldNotRun);
  if (::dup2(m_Out.Get(), STDOUT_FILENO) < 0 || ::dup2(m_Err.Get(), STDERR_FILENO) < 0) {
    ::_exit(nCouldNotRun);
  }
  ::execv("/proc/self/exe", aArgv);
  ::_exit(nCouldNotRun);
}

TRunResult CChildRun::Result() const {
  TRunResult Result;
  Result.sOut = Contents(m_Out);
  Result.sErr = Contents(m_Err);
  if (m_nProcess > 0 && WIFEXITED(m_nWaitStatus)) {
    Result.nStatus = WEXITSTATUS(m_nWaitStatus);
  } else if (m_nProcess > 0 && WIFSIGNALED(m_nWaitStatus)) {
    Result.nSignal = WTERMSIG(m_nWaitStatus);
  }
  Result.bRan = Result.nSignal == 0 && Result.nStatus >= 0 && Result.nStatus <= eNotWritten;
  if (!Result.bRan) Result.nStatus = eNotWritten;
  return Result;
}

std::list<CChildRun>::iterator WaitForOne(std::list<CChildRun>& aRunning) {
  for (;;) {
    // One that couldn't be started has ended already.
    auto it =
        std::find_if(aRunning.begin(), aRunning.end(), [](const auto& Run) { return Run.Process() < 0; });
    if (it != aRunning.end()) return it;
    int nWaitStatus = 0;
    const pid_t nProcess = ::waitpid(-1, &nWaitStatus, 0);
    if (nProcess < 0 && errno != EINTR) return aRunning.begin();
    it = std::find_if(aRunning.begin(), aRunning.end(),
                      [nProcess](const auto& Run) { return Run.Process() == nProcess; });
    if (it == aRunning.end()) continue;
    it->SetEnded(nWaitStatus);
    return it;
  }
}

}  // namespace vrek::batch
