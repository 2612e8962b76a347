// Output documents for scripts: nothing of a document is seen under its name until it is whole.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "platform/StagedFile.h"

namespace vrek {

class StagedOutput final : public IOutputFiles {
 public:
  StagedOutput();
  ~StagedOutput() override;  ///< discards what wasn't committed

  /// A file that Commit brings to its path. What is there already and is no regular file (a pipe, a device,
  /// all below /dev but the files of /dev/shm) is written at once. A second file for the same path takes the
  /// place of the first. Failures: 70, 75 (a folder), 76, 61.
  std::unique_ptr<IOutputFile> Create(const std::string& sPath) override;

  /// Brings the files into place, in the order of their creation. One that couldn't be written, or was never
  /// closed, is a failure, and neither it nor those behind it come into place.
  void Commit();

  /// Removes all files that aren't committed.
  void Discard() noexcept;

 private:
  struct TStage;
  class StageFile;
  std::vector<std::shared_ptr<TStage>> m_aStages;
};

}  // namespace vrek
