// What the tests of pages and examples share: a folder of the test's own, the batch command, blocks of a
// page.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "batch/Batch.h"

namespace vrek::test {

namespace fs = std::filesystem;

inline std::string ReadBytes(const fs::path& Path) {
  std::ifstream Stream(Path, std::ios::binary);
  return {std::istreambuf_iterator<char>(Stream), {}};
}

/// The fenced blocks of a page below "<!-- sample: NAME -->", by name.
inline std::map<std::string, std::string> Samples(const fs::path& Page) {
  static const std::string sMark = "<!-- sample: ";
  const auto sText = ReadBytes(Page);
  std::map<std::string, std::string> aOut;
  for (auto n = sText.find(sMark); n != std::string::npos; n = sText.find(sMark, n + 1)) {
    const auto nName = n + sMark.size();
    const auto nFirst = sText.find('\n', sText.find("```", nName)) + 1;
    aOut[sText.substr(nName, sText.find(" -->", nName) - nName)] =
        sText.substr(nFirst, sText.find("```", nFirst) - nFirst);
  }
  return aOut;
}

class DocsTest : public ::testing::Test {
 protected:
  DocsTest() {
    ::setenv("SOURCE_DATE_EPOCH", "1767323045", 1);
    ::setenv("TZ", "UTC", 1);
    const auto* pInfo = ::testing::UnitTest::GetInstance()->current_test_info();
    Folder = fs::temp_directory_path() / ("vrek.docs." + std::to_string(::getpid()) + "." + pInfo->name());
    fs::remove_all(Folder);
    fs::create_directories(Folder);
  }
  ~DocsTest() override {
    std::error_code Ignored;
    fs::remove_all(Folder, Ignored);
  }

  /// Runs the batch command with a language file, that of the sources unless told otherwise; keeps what it
  /// said.
  int Run(const std::vector<std::string>& aArguments, const fs::path& Language = VREK_ROOT "/lang") {
    std::vector<const char*> aPointers{"vrek-batch"};
    for (const auto& sArgument : aArguments) aPointers.push_back(sArgument.c_str());
    std::ostringstream Out, Err;
    const int nStatus =
        batch::RunBatch(static_cast<int>(aPointers.size()), aPointers.data(), Out, Err, Language.string());
    sOut = Out.str();
    sErr = Err.str();
    return nStatus;
  }

  fs::path Folder;
  std::string sOut, sErr;
};

}  // namespace vrek::test
