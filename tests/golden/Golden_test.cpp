// Whole conversions against their expected documents and outcomes. Each case is a folder: input files,
// job.toml, expected.xml (where a document is written) and expected.json. Runs the project's own cases, or
// those in the folders named on the command line.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "batch/Batch.h"
#include "support/UsersLocale.h"

namespace fs = std::filesystem;
using nlohmann::json;

namespace {

std::string ReadBytes(const fs::path& Path) {
  std::ifstream Stream(Path, std::ios::binary);
  return {std::istreambuf_iterator<char>(Stream), {}};
}

std::string Visible(std::string_view sText) {
  std::ostringstream Out;
  for (const char c : sText.substr(0, 300)) {
    const auto n = static_cast<unsigned char>(c);
    if (n < 32 || n > 126) {
      Out << "\\x" << std::hex << int{n} << std::dec;
    } else {
      Out << c;
    }
  }
  return Out.str();
}

// "" when equal; else where the texts part, with both lines.
std::string Difference(const std::string& sExpected, const std::string& sActual) {
  if (sExpected == sActual) return {};
  const auto Parting = std::mismatch(sExpected.begin(), sExpected.end(), sActual.begin(), sActual.end());
  const auto nAt = static_cast<std::size_t>(Parting.first - sExpected.begin());
  const auto Line = [nAt](const std::string& sText) {
    const auto nFirst = nAt == 0 ? 0 : sText.rfind('\n', nAt - 1) + 1;
    return Visible(std::string_view(sText).substr(nFirst, sText.find('\n', nAt) - nFirst));
  };
  std::ostringstream Out;
  Out << "differs at byte " << nAt << ", line " << 1 + std::count(sExpected.begin(), Parting.first, '\n')
      << " (" << sExpected.size() << " bytes expected, " << sActual.size()
      << " written)\n  expected: " << Line(sExpected) << "\n  written:  " << Line(sActual);
  return Out.str();
}

// The outcome in the form of the expected files.
json Digest(const json& Outcome) {
  json Out{{"valid", Outcome["valid"]},       {"fault", Outcome["fault"]}, {"imported", Outcome["imported"]},
           {"exported", Outcome["exported"]}, {"marks", json::object()},   {"names", json::object()},
           {"reports", json::object()},       {"rows", json::object()}};
  for (const auto& File : Outcome["files"]) {
    const std::string sKey = File["key"];
    Out["marks"][sKey] = File["mark"];
    Out["names"][sKey] = File["name"];
    if (File["mark"] == 2) Out["reports"][sKey] = File["report"];
  }
  for (const auto& Page : Outcome["summary"]) {
    Out["rows"][std::to_string(int{Page["page"]})] = json::object();
    for (const auto& Row : Page["rows"]) {
      Out["rows"][std::to_string(int{Page["page"]})][std::to_string(int{Row["row"]})] = Row["value"];
    }
  }
  return Out;
}

class GoldenCase : public ::testing::Test {
 public:
  explicit GoldenCase(fs::path Case) : m_Case(std::move(Case)) {}

  void TestBody() override {
    const auto Work = fs::temp_directory_path() / ("vrek.golden." + std::to_string(::getpid()));
    fs::remove_all(Work);
    fs::create_directories(Work / "program");
    fs::copy(m_Case, Work / "case");
    fs::permissions(Work / "case", fs::perms::owner_all);
    // Without a language file's texts, tokens stand in their place.
    std::ofstream(Work / "program" / "QuennelV2.lng") << "#\r\n";
    const auto sJob = (Work / "case" / "job.toml").string();
    const char* aArguments[] = {"vrek-batch", "run", sJob.c_str(), "--json", "--quiet"};
    std::ostringstream Out, Err;
    const int nStatus = vrek::batch::RunBatch(5, aArguments, Out, Err, (Work / "program").string());
    const auto Outcome = json::parse(Out.str(), nullptr, false);
    ASSERT_FALSE(Outcome.is_discarded()) << Out.str() << Err.str();
    const auto Expected = json::parse(ReadBytes(m_Case / "expected.json"));
    EXPECT_EQ(Digest(Outcome).dump(1), Expected.dump(1)) << Outcome["messages"].dump(1);
    const bool bDocument = fs::exists(m_Case / "expected.xml");
    EXPECT_EQ(nStatus, bDocument ? 0 : 1);
    const fs::path Written = std::string(Outcome["output"]);
    EXPECT_EQ(fs::exists(Written), bDocument);
    if (bDocument) {
      const auto sDifference = Difference(ReadBytes(m_Case / "expected.xml"), ReadBytes(Written));
      EXPECT_TRUE(sDifference.empty()) << sDifference;
    }
    if (!HasFailure()) fs::remove_all(Work);
  }

 private:
  fs::path m_Case;
};

// False when the folder holds no case: a suite of nothing would pass.
bool RegisterFolder(const fs::path& Folder) {
  std::vector<fs::path> aCases;
  std::error_code Ignored;
  for (const auto& Entry : fs::directory_iterator(Folder, Ignored)) {
    if (fs::exists(Entry.path() / "job.toml")) aCases.push_back(Entry.path());
  }
  std::sort(aCases.begin(), aCases.end());
  for (const auto& Case : aCases) {
    ::testing::RegisterTest("Golden", Case.filename().c_str(), nullptr, nullptr, __FILE__, __LINE__,
                            [Case]() -> ::testing::Test* { return new GoldenCase(Case); });
  }
  return !aCases.empty();
}

}  // namespace

int main(int argc, char** argv) {
  vrek::test::TakeUsersLocale();
  ::testing::InitGoogleTest(&argc, argv);
  ::setenv("SOURCE_DATE_EPOCH", "1767323045", 1);
  ::setenv("TZ", "UTC", 1);
  std::vector<fs::path> aFolders(argv + 1, argv + argc);
  if (aFolders.empty()) aFolders = {VREK_GOLDEN_CASES};
  for (const auto& Folder : aFolders) {
    if (RegisterFolder(Folder)) continue;
    std::cerr << "No golden case in " << Folder.string() << "\n";
    return 1;
  }
  return RUN_ALL_TESTS();
}
