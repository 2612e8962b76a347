// vrek-batch: converts without a window.
#include <csignal>
#include <iostream>

#include "batch/Batch.h"
#include "platform/StagedFile.h"
#include "platform/StandardStreams.h"

namespace {

// Half a document is worth nothing: it goes, an earlier one stays, and the program ends by the signal.
extern "C" void EndBySignal(int nSignal) {
  vrek::RemoveLeftovers();
  ::raise(nSignal);
}

void CatchSignals() {
  struct sigaction Action {};
  Action.sa_handler = EndBySignal;
  Action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
  for (const int nSignal : {SIGTERM, SIGINT, SIGHUP}) {
    struct sigaction Before {};
    // nohup and the like have a signal ignored on purpose.
    if (::sigaction(nSignal, nullptr, &Before) == 0 && Before.sa_handler == SIG_IGN) continue;
    ::sigaction(nSignal, &Action, nullptr);
  }
}

}  // namespace

int main(int argc, char** argv) {
  vrek::OpenClosedStandardStreams();
  CatchSignals();
  return vrek::batch::RunBatch(argc, argv, std::cout, std::cerr);
}
