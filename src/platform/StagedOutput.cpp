#include "platform/StagedOutput.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <utility>

#include "base/Failure.h"

namespace vrek {
namespace {

namespace fs = std::filesystem;

/// Whether a path names something that a rename would destroy rather than fill. /dev/stdout and its like may
/// lead to a regular file and are filled all the same; what lies in /dev/shm is a file like any other.
bool IsWrittenDirectly(const std::string& sPath) {
  std::error_code Ignored;
  const fs::file_status Status = fs::status(sPath, Ignored);
  if (!fs::exists(Status) || fs::is_directory(Status)) return false;
  return !fs::is_regular_file(Status) || (sPath.starts_with("/dev/") && !sPath.starts_with("/dev/shm/"));
}

}  // namespace

/// One file on its way: beside its target, or at it.
struct StagedOutput::TStage {
  std::string sTarget;
  std::optional<StagedFile> Staged;  // none when written directly
  bool bClosed = false;              // written whole and closed
  Failure Trouble{Error::nPathFileAccess, std::string(StandardDescription(Error::nPathFileAccess)), {}};
};

/// Passes everything on and notes in the stage how it went.
class StagedOutput::StageFile final : public IOutputFile {
 public:
  explicit StageFile(std::shared_ptr<TStage> pStage)
      : m_pStage(std::move(pStage)),
        m_pFile(CreateOutputFile(m_pStage->Staged ? m_pStage->Staged->Path() : m_pStage->sTarget)) {}

  void Write(std::string_view sBytes) override {
    Noted([&] { m_pFile->Write(sBytes); });
  }
  void Flush() override {
    Noted([&] { m_pFile->Flush(); });
  }
  void Close() override {
    Noted([&] { m_pFile->Close(); });
    m_pStage->bClosed = !m_bFailed;
  }

 private:
  template <class TBody>
  void Noted(TBody&& Body) {
    try {
      Body();
    } catch (const Failure& Caught) {
      m_pStage->Trouble = Caught;
      m_bFailed = true;
      throw;
    }
  }

  std::shared_ptr<TStage> m_pStage;
  std::unique_ptr<IOutputFile> m_pFile;
  bool m_bFailed = false;
};

StagedOutput::StagedOutput() = default;
StagedOutput::~StagedOutput() = default;

std::unique_ptr<IOutputFile> StagedOutput::Create(const std::string& sPath) {
  std::erase_if(m_aStages, [&](const auto& pStage) { return pStage->sTarget == sPath; });
  auto pStage = std::make_shared<TStage>();
  pStage->sTarget = sPath;
  if (!IsWrittenDirectly(sPath)) pStage->Staged.emplace(sPath);
  auto pFile = std::make_unique<StageFile>(pStage);
  m_aStages.push_back(std::move(pStage));
  return pFile;
}

void StagedOutput::Commit() {
  const auto aStages = std::exchange(m_aStages, {});
  for (const auto& pStage : aStages) {
    if (!pStage->bClosed) throw Failure(pStage->Trouble);
    if (pStage->Staged) pStage->Staged->Commit();
  }
}

void StagedOutput::Discard() noexcept {
  m_aStages.clear();
}

}  // namespace vrek
