// vrek-batch: converts without a window.
#include <csignal>
#include <iostream>

#include "batch/Batch.h"
#include "platform/StagedFile.h"
#include "platform/StandardStreams.h"

namespace {

// Half a document is worth nothing: it goes, an earlier one stays, and the program ends by the signal as soon
// as this is left.
extern "C" void EndBySignal(int nSignal) {
  vrek::RemoveLeftovers();
  ::signal(nSignal, SIG_DFL);
  ::raise(nSignal);
}

void CatchSignals() {
  // A limit of the file size is told like a full disk.
  ::signal(SIGXFSZ, SIG_IGN);
  struct sigaction Action {};
  Action.sa_handler = EndBySignal;
  // Whoever ends a program may do it twice (once to it, once to its group): the second waits for the first.
  for (const int nSignal : vrek::aEndingSignals) ::sigaddset(&Action.sa_mask, nSignal);
  for (const int nSignal : vrek::aEndingSignals) {
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
