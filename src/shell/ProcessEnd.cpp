#include "shell/ProcessEnd.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "shell/AppModel.h"

namespace vrek {
namespace {

std::function<void(int)> StopInstead;

}  // namespace

void EndProcess(int nCode) {
  const int nExit = AppModel().DebugMode ? 0 : nCode;
  if (StopInstead) return StopInstead(nExit);
  std::fflush(nullptr);
  std::_Exit(nExit);
}

std::function<void(int)> SetProcessStop(std::function<void(int)> Stop) {
  return std::exchange(StopInstead, std::move(Stop));
}

}  // namespace vrek
