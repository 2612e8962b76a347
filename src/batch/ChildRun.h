// One run of this program in a process of its own, its output caught.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <list>
#include <string>
#include <vector>

#include "platform/Descriptor.h"

namespace vrek::batch {

struct TRunResult {
  bool bRan = false;  ///< came to an end of its own
  int nStatus = -1;   ///< exit status; 3 for a run that was killed or couldn't be started
  int nSignal = 0;    ///< that killed it; 0 for none
  std::string sOut, sErr;
};

class CChildRun {
 public:
  /// Starts the program with the arguments behind its name. The run ends with this process, also when this
  /// one is killed. nNumber is the caller's own.
  CChildRun(std::size_t nNumber, const std::vector<std::string>& aArguments);

  std::size_t Number() const { return m_nNumber; }
  pid_t Process() const { return m_nProcess; }
  /// Notes how the process ended, as waitpid tells it.
  void SetEnded(int nWaitStatus) { m_nWaitStatus = nWaitStatus; }
  /// What came of it; call once it has ended.
  TRunResult Result() const;

 private:
  [[noreturn]] void Become(char* const* aArgv, pid_t nParent) const;

  std::size_t m_nNumber;
  Descriptor m_Out, m_Err;
  pid_t m_nProcess = -1;
  int m_nWaitStatus = 0;
};

/// Waits until one of them has ended; the list isn't empty.
std::list<CChildRun>::iterator WaitForOne(std::list<CChildRun>& aRunning);

}  // namespace vrek::batch
