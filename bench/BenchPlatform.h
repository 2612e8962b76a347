// The surroundings of a benchmark that runs the core by itself: failures to stdout, files where they say.
#pragma once

#include <cstdio>

#include "platform/Headless.h"
#include "platform/MemorySettings.h"
#include "platform/PosixPlatform.h"
#include "shell/AppModel.h"

namespace vrek {

struct BenchPlatform {
  BenchPlatform() { SetAppModel(&Model); }
  ~BenchPlatform() { SetAppModel(nullptr); }
  BenchPlatform(const BenchPlatform&) = delete;

  HeadlessDialogs Dialogs{[](std::string_view sText, EIcon) {
    std::printf("%.*s\n", static_cast<int>(sText.size()), sText.data());
  }};
  SystemClock Clock;
  PosixEnvironment Environment;
  MemorySettings Settings;
  PosixProcesses Processes;
  NoEvents Events;
  DirectOutput Output;
  clsAppModel Model{{&Dialogs, &Clock, &Environment, &Settings, &Processes, &Events, &Output}};
};

}  // namespace vrek
