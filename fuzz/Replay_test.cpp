// Runs every target over its seeds and over what fuzzing once found, in every build.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "Targets.h"

namespace vrek::fuzz {
namespace {

namespace fs = std::filesystem;

class Seeds : public ::testing::TestWithParam<TTarget> {};

TEST_P(Seeds, AreReadToTheEnd) {
  int nSeeds = 0;
  for (const auto& File : fs::directory_iterator(fs::path(VREK_FUZZ_SEEDS) / GetParam().sName)) {
    SCOPED_TRACE(File.path().string());
    std::ifstream Stream(File.path(), std::ios::binary);
    const std::string sBytes{std::istreambuf_iterator<char>(Stream), {}};
    GetParam().Run(sBytes);
    GetParam().Run(std::string_view(sBytes).substr(0, sBytes.size() / 2));
    ++nSeeds;
  }
  EXPECT_GE(nSeeds, 1);
}

INSTANTIATE_TEST_SUITE_P(Fuzz, Seeds, ::testing::ValuesIn(aTargets),
                         [](const auto& Info) { return std::string(Info.param.sName); });

}  // namespace
}  // namespace vrek::fuzz
