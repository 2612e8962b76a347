// docs/batch.md: the commands of the page run over the examples, and the page knows every key of the JSON.
#include "DocsTest.h"

#include <nlohmann/json.hpp>

namespace vrek::test {
namespace {

using BatchPage = DocsTest;

// Words of a command line, "..." being one word.
std::vector<std::string> Words(const std::string& sLine) {
  std::vector<std::string> aOut;
  std::istringstream Stream(sLine);
  for (std::string sWord; Stream >> std::quoted(sWord);) aOut.push_back(sWord);
  return aOut;
}

TEST_F(BatchPage, ItsCommandsConvertTheExamples) {
  const auto aSamples = Samples(VREK_ROOT "/docs/batch.md");
  ASSERT_EQ(aSamples.count("commands"), 1U);
  fs::copy(VREK_ROOT "/examples", Folder / "examples", fs::copy_options::recursive);
  const auto Before = fs::current_path();
  fs::current_path(Folder);
  std::istringstream Lines(aSamples.at("commands"));
  int nRun = 0;
  for (std::string sLine; std::getline(Lines, sLine); ++nRun) {
    auto aWords = Words(sLine);
    aWords.erase(aWords.begin());
    EXPECT_EQ(Run(aWords), 0) << sLine << "\n" << sErr;
  }
  fs::current_path(Before);
  EXPECT_GE(nRun, 5);
}

void CollectKeys(const nlohmann::json& Json, std::vector<std::string>& aKeys) {
  if (Json.is_object()) {
    for (const auto& [sKey, Value] : Json.items()) aKeys.push_back(sKey);
  }
  if (Json.is_structured()) {
    for (const auto& Value : Json) CollectKeys(Value, aKeys);
  }
}

TEST_F(BatchPage, NamesEveryKeyOfTheJson) {
  fs::copy(VREK_ROOT "/examples/road-rtf", Folder / "job");
  ASSERT_EQ(Run({"run", "--json", (Folder / "job/job.toml").string()}), 0);
  const auto Json = nlohmann::json::parse(sOut);
  EXPECT_EQ(Json["messages"][0]["kind"], "warning");
  std::vector<std::string> aKeys;
  CollectKeys(Json, aKeys);
  const auto sPage = ReadBytes(VREK_ROOT "/docs/batch.md");
  for (const auto& sKey : aKeys) EXPECT_NE(sPage.find("`" + sKey + "`"), std::string::npos) << sKey;
}

}  // namespace
}  // namespace vrek::test
