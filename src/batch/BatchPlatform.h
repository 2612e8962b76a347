// The surroundings of a batch conversion: nothing of what a person's wizard saved is read or changed,
// messages are collected, and the document comes into its place only when it is whole.
#pragma once

#include <string>
#include <utility>

#include "platform/Headless.h"
#include "platform/MemorySettings.h"
#include "platform/PosixPlatform.h"
#include "platform/StagedOutput.h"

namespace vrek {
class ctlProgress;
}

namespace vrek::batch {

/// The environment of this process, with another program directory where one is given.
class BatchEnvironment final : public IEnvironment {
 public:
  explicit BatchEnvironment(std::string sProgramDirectory)
      : m_sProgramDirectory(std::move(sProgramDirectory)) {}
  std::string UserName() const override { return m_Posix.UserName(); }
  std::string ProgramDirectory() const override {
    return m_sProgramDirectory.empty() ? m_Posix.ProgramDirectory() : m_sProgramDirectory;
  }
  std::string TempDirectory() const override { return m_Posix.TempDirectory(); }

 private:
  PosixEnvironment m_Posix;
  std::string m_sProgramDirectory;
};

/// Draws the progress panel as one line on stderr, where asked for.
class ProgressLine final : public IEvents {
 public:
  explicit ProgressLine(bool bDraw) : m_bDraw(bDraw) {}
  ~ProgressLine() override;
  void Watch(const ctlProgress* pPanel) { m_pPanel = pPanel; }
  void ProcessMessages() override;
  void WaitPointer(bool) override {}

 private:
  void Draw(const std::string& sLine);

  bool m_bDraw;
  const ctlProgress* m_pPanel = nullptr;
  std::string m_sShown;
};

struct BatchPlatform {
  BatchPlatform(HeadlessDialogs::TOnMessage OnMessage, const std::string& sProgramDirectory, bool bProgress)
      : Dialogs(std::move(OnMessage)), Environment(sProgramDirectory), Events(bProgress) {}

  TPlatform Parts() { return {&Dialogs, &Clock, &Environment, &Settings, &Processes, &Events, &Output}; }

  HeadlessDialogs Dialogs;
  SystemClock Clock;
  BatchEnvironment Environment;
  MemorySettings Settings;
  PosixProcesses Processes;
  ProgressLine Events;
  StagedOutput Output;
};

}  // namespace vrek::batch
