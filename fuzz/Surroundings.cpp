#include "Surroundings.h"

#include <sys/mman.h>
#include <unistd.h>

#include "base/Configuration.h"

namespace vrek::fuzz {
namespace {

namespace fs = std::filesystem;

struct TFolder {
  TFolder() {
    const fs::path Memory = "/dev/shm";
    Path = (fs::is_directory(Memory) ? Memory : fs::temp_directory_path()) /
           ("vrek.fuzz." + std::to_string(::getpid()));
    fs::create_directories(Path);
    fs::create_symlink("/dev/null", Path / std::string(Configuration::sLogFile));
    ::setenv("TMPDIR", Path.c_str(), 1);
  }
  ~TFolder() {
    std::error_code Ignored;
    fs::remove_all(Path, Ignored);
  }
  fs::path Path;
};

int MemoryDescriptor() {
  static const int nFile = ::memfd_create("input", 0);
  return nFile;
}

}  // namespace

const fs::path& OwnFolder() {
  static const TFolder Folder;
  return Folder.Path;
}

MemoryFile::MemoryFile(std::string_view sBytes) {
  const int nFile = MemoryDescriptor();
  Require(::ftruncate(nFile, 0) == 0);
  Require(::pwrite(nFile, sBytes.data(), sBytes.size(), 0) == static_cast<ssize_t>(sBytes.size()));
}

std::string MemoryFile::Name() const {
  return std::to_string(MemoryDescriptor());
}

Surroundings::Surroundings()
    : m_Model({&m_Dialogs, this, this, &m_Settings, this, &m_Events, this}),
      m_pBefore(SetAppModel(&m_Model)) {}

std::tm Surroundings::Now() const {
  std::tm Time{};
  Time.tm_year = 126;
  Time.tm_mday = 1;
  return Time;
}

}  // namespace vrek::fuzz
