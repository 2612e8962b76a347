#include "platform/IniSettings.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdlib>

#include "base/Failure.h"
#include "platform/Descriptor.h"
#include "platform/IniText.h"
#include "platform/StagedFile.h"
#include "platform/TextFile.h"

namespace vrek {
namespace {

namespace fs = std::filesystem;

/// One writer at a time, across processes. The lock has a file of its own: the settings file is replaced.
class WriterLock {
 public:
  explicit WriterLock(const fs::path& Path)
      : m_File(::open(Path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
    if (m_File.Get() < 0) Raise(FailureNumber(errno));
    // A file system without locks fails otherwise, and is written to without one.
    while (::flock(m_File.Get(), LOCK_EX) != 0 && errno == EINTR) {
    }
  }

 private:
  Descriptor m_File;
};

/// The bytes of the file; "" when there is none. One that is there but can't be read is a failure.
std::string PresentText(const fs::path& Path) {
  std::error_code Ignored;
  return fs::exists(Path, Ignored) ? ReadWholeFile(Path.string()) : std::string();
}

fs::path HomeFolder() {
  if (const char* pHome = std::getenv("HOME"); pHome != nullptr && *pHome != '\0') return pHome;
  const passwd* pEntry = ::getpwuid(::getuid());
  return pEntry == nullptr ? fs::path() : fs::path(pEntry->pw_dir);
}

}  // namespace

std::string IniSettings::Read(std::string_view sApplication, std::string_view sSection, std::string_view sKey,
                              std::string_view sDefault) {
  try {
    const std::string sText = PresentText(FileOf(sApplication));
    return IniText(sText).Find(sSection, sKey).value_or(std::string(sDefault));
  } catch (const Failure&) {
    return std::string(sDefault);
  }
}

void IniSettings::Write(std::string_view sApplication, std::string_view sSection, std::string_view sKey,
                        std::string_view sText) {
  if (m_Folder.empty()) Raise(Error::nPathNotFound);
  const fs::path File = FileOf(sApplication);
  std::error_code Trouble;
  fs::create_directories(File.parent_path(), Trouble);
  if (Trouble) Raise(FailureNumber(Trouble.value()));

  const WriterLock Lock(File.parent_path() / "settings.lock");
  IniText Settings(PresentText(File));
  Settings.Set(sSection, sKey, sText);
  StagedFile Staged(File.string());
  const auto Output = CreateOutputFile(Staged.Path());
  Output->Write(Settings.Text());
  Output->Close();
  Staged.Commit();
}

fs::path IniSettings::UserFolder() {
  const char* pConfig = std::getenv("XDG_CONFIG_HOME");
  if (pConfig != nullptr && *pConfig == '/') return pConfig;
  const fs::path Home = HomeFolder();
  return Home.empty() ? fs::path() : Home / ".config";
}

fs::path IniSettings::FileOf(std::string_view sApplication) const {
  return m_Folder / sApplication / "settings.ini";
}

}  // namespace vrek
