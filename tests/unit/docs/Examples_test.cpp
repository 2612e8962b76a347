// The examples: the good ones become the documents that lie beside them, byte for byte; the faulty ones are
// refused with the words of their says.txt.
#include "DocsTest.h"

namespace vrek::test {
namespace {

// Folders below a folder that hold a job.
std::vector<std::string> Jobs(const std::string& sBelow) {
  std::vector<std::string> aOut;
  for (const auto& Entry : fs::directory_iterator(fs::path(VREK_ROOT "/examples") / sBelow)) {
    if (fs::exists(Entry.path() / "job.toml")) aOut.push_back(Entry.path().filename().string());
  }
  return aOut;
}

using Examples = DocsTest;

TEST_F(Examples, GoodOnesBecomeTheDocumentsBesideThem) {
  const auto aJobs = Jobs("");
  EXPECT_GE(aJobs.size(), 6U);
  for (const auto& sJob : aJobs) {
    SCOPED_TRACE(sJob);
    const auto Source = fs::path(VREK_ROOT "/examples") / sJob;
    fs::copy(Source, Folder / sJob);
    const auto Document = Folder / sJob / (sJob + ".xml");
    fs::remove(Document);
    EXPECT_EQ(Run({"run", (Folder / sJob / "job.toml").string()}), 0) << sErr;
    EXPECT_TRUE(ReadBytes(Document) == ReadBytes(Source / (sJob + ".xml")));
  }
}

TEST_F(Examples, FaultyOnesAreRefusedInTheWordsBesideThem) {
  const auto aJobs = Jobs("faulty");
  EXPECT_GE(aJobs.size(), 5U);
  for (const auto& sJob : aJobs) {
    SCOPED_TRACE(sJob);
    const auto Source = fs::path(VREK_ROOT "/examples/faulty") / sJob;
    fs::copy(Source, Folder / sJob);
    EXPECT_EQ(Run({"run", (Folder / sJob / "job.toml").string()}), 1);
    EXPECT_EQ(sErr, ReadBytes(Source / "says.txt"));
    EXPECT_FALSE(fs::exists(Folder / sJob / (sJob + ".xml")));
  }
}

}  // namespace
}  // namespace vrek::test
