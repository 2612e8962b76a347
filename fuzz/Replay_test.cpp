// Runs every target over its seeds and over what fuzzing once found, whole and damaged, in every build.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "Targets.h"
#include "robust/Damages.h"

namespace vrek::fuzz {

static void PrintTo(const TTarget& Target, std::ostream* pOut) {
  *pOut << Target.sName;
}

namespace {

namespace fs = std::filesystem;

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t nEvery = 5;  // under a sanitizer a part of the damages stands for all
#else
constexpr std::size_t nEvery = 1;
#endif

class Seeds : public ::testing::TestWithParam<TTarget> {
 protected:
  static std::vector<std::string> Texts() {
    std::vector<std::string> aTexts;
    for (const auto& File : fs::directory_iterator(fs::path(VREK_FUZZ_SEEDS) / GetParam().sName)) {
      std::ifstream Stream(File.path(), std::ios::binary);
      aTexts.emplace_back(std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>());
    }
    return aTexts;
  }
};

TEST_P(Seeds, AreReadToTheEnd) {
  const auto aTexts = Texts();
  EXPECT_FALSE(aTexts.empty());
  for (const auto& sText : aTexts) GetParam().Run(sText);
}

// But for the conversion: its files are damaged one by one in tests/robust.
class ReaderSeeds : public Seeds {};

TEST_P(ReaderSeeds, AreReadHoweverDamaged) {
  std::size_t nDamages = 0;
  const auto Try = [&](const std::string& sDamaged, const std::string&) {
    if (nDamages++ % nEvery == 0) GetParam().Run(sDamaged);
  };
  for (const auto& sText : Texts()) {
    test::CutOffAtEveryByte(sText, Try);
    test::LinesLostDoubledAndSwapped(sText, Try);
    test::FieldsThatAreNone(sText, Try);
  }
  EXPECT_GT(nDamages, 100u);
}

std::vector<TTarget> Readers() {
  std::vector<TTarget> aReaders;
  std::copy_if(std::begin(aTargets), std::end(aTargets), std::back_inserter(aReaders),
               [](const TTarget& Target) { return Target.sName != "conversion"; });
  return aReaders;
}

constexpr auto Name = [](const auto& Info) { return std::string(Info.param.sName); };
INSTANTIATE_TEST_SUITE_P(Fuzz, Seeds, ::testing::ValuesIn(aTargets), Name);
INSTANTIATE_TEST_SUITE_P(Fuzz, ReaderSeeds, ::testing::ValuesIn(Readers()), Name);

}  // namespace
}  // namespace vrek::fuzz
