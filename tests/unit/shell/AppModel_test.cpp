#include "shell/AppModel.h"

#include "shell/ProcessEnd.h"
#include "shell/Services.h"
#include "support/TestApp.h"

namespace vrek {
namespace {

using AppModelTest = test::AppTest;

TEST_F(AppModelTest, CountsTheJobTypesOfAMask) {
  // clang-format off
  const int aMaskAndNumber[][2] = {{0, 0}, {1, 1}, {2, 1}, {3, 2}, {4, 2}, {5, 3}, {7, 4}, {8, 0}, {31, 4}};
  // clang-format on
  for (const auto& [nMask, nNumber] : aMaskAndNumber) {
    EXPECT_EQ(MakeConverterInfo(nMask).nJobTypesNumber, nNumber) << nMask;
    EXPECT_EQ(MakeConverterInfo(nMask).nFormatsSupport, nMask);
  }
}

TEST_F(AppModelTest, NamesTheDataAfterTheJobOrTheOutputFile) {
  // clang-format off
  const char* const aCases[][3] = {
      {"Obra 1", R"(C:\t\Road.v2.xml)",   "Obra 1"},
      {"",       R"(C:\t\Road.v2.xml)",   "Road.v2"},
      {"",       "/home/p.q/road",        "road"},
      {"",       "/home/t/Vía única.xml", "Vía única"},
      {"",       "",                      ""}};
  // clang-format on
  for (const auto& [pJob, pFile, pName] : aCases) {
    Model.ConversionInfo.sJobName = pJob;
    Model.XmlFileToExport = pFile;
    EXPECT_EQ(Model.ConversionInfo.GetRoadDataName(), pName);
  }
}

TEST_F(AppModelTest, NamesTheUserWhereNoCreatorIsGiven) {
  EXPECT_EQ(Model.ConversionInfo.GetCreator(), "tester");
  Model.ConversionInfo.sCreator = "survey office";
  EXPECT_EQ(Model.ConversionInfo.GetCreator(), "survey office");
}

TEST_F(AppModelTest, KnowsWhichFilesCanBeRead) {
  EXPECT_TRUE(ExistFile(WriteFile("eje.plt", "x")));
  EXPECT_TRUE(ExistFile(WriteFile("empty.plt", "")));
  EXPECT_FALSE(ExistFile((Directory / "other.plt").string()));
  EXPECT_FALSE(ExistFile(Directory.string()));
  EXPECT_FALSE(ExistFile(""));
  EXPECT_TRUE(Platform.aBoxes.empty());
  EXPECT_EQ(Log(), "");
}

TEST_F(AppModelTest, NotesAListingWithBareLineFeedsAndReadsItEvenWithoutALog) {
  const std::string sPath = WriteFile("eje.plt", "one\ntwo\n");
  EXPECT_EQ(OpenTextFile(sPath).NextLine(), "one");
  EXPECT_EQ(Log(), "Msg " + sPath + " ends its lines with LF; they are read as such.\r\n");

  Platform.sTempDirectory = (Directory / "missing/").string();
  EXPECT_EQ(OpenTextFile(sPath).NextLine(), "one");
}

TEST_F(AppModelTest, EndsTheProcessWithACodeOnlyInAHostedRun) {
  EXPECT_EXIT(EndProcess(1), ::testing::ExitedWithCode(1), "");
  Model.DebugMode = true;
  EXPECT_EXIT(EndProcess(1), ::testing::ExitedWithCode(0), "");
}

TEST_F(AppModelTest, LetsACallerLiveOnAtTheProcessEnd) {
  std::vector<int> aCodes;
  SetProcessStop([&](int nCode) { aCodes.push_back(nCode); });
  EndProcess(1);
  Model.DebugMode = true;
  EndProcess(1);
  SetProcessStop({});
  EXPECT_EQ(aCodes, (std::vector<int>{1, 0}));
}

}  // namespace
}  // namespace vrek
