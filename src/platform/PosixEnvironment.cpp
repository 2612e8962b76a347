#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>

#include "platform/PosixPlatform.h"

namespace vrek {
namespace {

std::string Variable(const char* pName) {
  const char* pText = std::getenv(pName);
  return pText == nullptr ? std::string() : std::string(pText);
}

}  // namespace

std::string PosixEnvironment::UserName() const {
  std::array<char, 16384> aBuffer;
  passwd Entry{};
  passwd* pFound = nullptr;
  if (::getpwuid_r(::getuid(), &Entry, aBuffer.data(), aBuffer.size(), &pFound) == 0 && pFound != nullptr) {
    return pFound->pw_name;
  }
  return Variable("USER");
}

std::string PosixEnvironment::ProgramDirectory() const {
  std::error_code Ignored;
  return std::filesystem::read_symlink("/proc/self/exe", Ignored).parent_path().string();
}

std::string PosixEnvironment::TempDirectory() const {
  std::string sDirectory = Variable("TMPDIR");
  if (sDirectory.empty()) sDirectory = "/tmp";
  if (sDirectory.back() != '/') sDirectory += '/';
  return sDirectory;
}

}  // namespace vrek
