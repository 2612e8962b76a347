// How the process ends before its window is closed: at once, without any unload step.
#pragma once

#include <functional>

namespace vrek {

/// Stops the process with a code: nCode in a hosted run; in a stand-alone run no code is chosen, which is 0.
/// Nothing is unloaded or saved. Returns only when SetProcessStop put something else in its place.
void EndProcess(int nCode);

/// Puts another way of stopping in place, for callers that must live on (an empty one restores the real one);
/// gives the one before. It is told the code that the process would end with.
std::function<void(int)> SetProcessStop(std::function<void(int)> Stop);

}  // namespace vrek
