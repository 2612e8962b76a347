// The surroundings of a fuzzed routine: an application object that shows, saves and starts nothing, files in
// memory, and a folder of the process's own in which the log leads nowhere.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/Headless.h"
#include "platform/MemorySettings.h"
#include "shell/AppModel.h"

namespace vrek::fuzz {

/// A promise that a routine must keep whatever its input.
inline void Require(bool bKept) {
  if (!bKept) std::abort();
}

/// The folder of this process, with $TMPDIR leading to it; goes with the process.
const std::filesystem::path& OwnFolder();

/// A file without a name on any disk. One at a time: the next one takes its place.
class MemoryFile {
 public:
  explicit MemoryFile(std::string_view sBytes);
  /// Folder and name, and both together.
  static std::string Folder() { return "/proc/self/fd"; }
  std::string Name() const;
  std::string Path() const { return Folder() + "/" + Name(); }
};

/// Puts an application object in place for as long as it lives.
class Surroundings final : public IEnvironment, public IClock, public IProcesses, public IOutputFiles {
 public:
  Surroundings();
  ~Surroundings() override { SetAppModel(m_pBefore); }
  Surroundings(const Surroundings&) = delete;

  std::string UserName() const override { return "fuzz"; }
  std::string ProgramDirectory() const override { return MemoryFile::Folder(); }
  std::string TempDirectory() const override { return OwnFolder().string() + "/"; }
  std::tm Now() const override;
  void RunAndWait(std::string_view) override {}
  /// Whatever the path, the bytes go nowhere.
  std::unique_ptr<IOutputFile> Create(const std::string&) override { return CreateOutputFile("/dev/null"); }

  clsAppModel& Model() { return m_Model; }

 private:
  HeadlessDialogs m_Dialogs{nullptr};
  MemorySettings m_Settings;
  NoEvents m_Events;
  clsAppModel m_Model;
  clsAppModel* m_pBefore;
};

}  // namespace vrek::fuzz
