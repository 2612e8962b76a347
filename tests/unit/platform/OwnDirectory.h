// For tests of files: a directory of the test's own that goes with it, and failures by number.
#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "base/Failure.h"

namespace vrek::test {

/// Number of the failure that a routine raises; 0 when it raises none.
template <class TBody>
std::int32_t FailureOf(TBody Body) {
  try {
    Body();
  } catch (const Failure& F) {
    return F.nNumber;
  }
  return 0;
}

class OwnDirectory : public ::testing::Test {
 protected:
  OwnDirectory() {
    std::string sPattern = (std::filesystem::temp_directory_path() / "vrek.XXXXXX").string();
    if (::mkdtemp(sPattern.data()) == nullptr) std::abort();
    m_sDirectory = sPattern;
  }
  ~OwnDirectory() override {
    std::error_code Ignored;
    std::filesystem::remove_all(m_sDirectory, Ignored);
  }

  std::string Path(std::string_view sName) const { return m_sDirectory + "/" + std::string(sName); }

  /// Writes a file as the bytes stand; gives its path.
  std::string Write(std::string_view sName, std::string_view sBytes) const {
    std::ofstream(Path(sName), std::ios::binary) << sBytes;
    return Path(sName);
  }

  std::string Read(std::string_view sName) const {
    std::ifstream Stream(Path(sName), std::ios::binary);
    return {std::istreambuf_iterator<char>(Stream), {}};
  }

 private:
  std::string m_sDirectory;
};

}  // namespace vrek::test
