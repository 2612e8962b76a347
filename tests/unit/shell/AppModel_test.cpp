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
  }
}

TEST_F(AppModelTest, NamesTheDataAfterTheJobOrTheOutputFile) {
  Model.XmlFileToExport = "/home/p.q/Vía única.v2.xml";
  EXPECT_EQ(Model.ConversionInfo.GetRoadDataName(), "Vía única.v2");
  Model.ConversionInfo.sJobName = "Obra 1";
  EXPECT_EQ(Model.ConversionInfo.GetRoadDataName(), "Obra 1");
}

TEST_F(AppModelTest, NotesAListingWithBareLineFeedsAndReadsItEvenWithoutALog) {
  const std::string sPath = WriteFile("eje.plt", "one\ntwo\n");
  EXPECT_EQ(OpenTextFile(sPath).NextLine(), "one");
  EXPECT_EQ(Log(), "Msg " + sPath + " ends its lines with LF; they are read as such.\r\n");

  Platform.sTempDirectory = (Directory / "missing/").string();
  EXPECT_EQ(OpenTextFile(sPath).NextLine(), "one");
}

TEST_F(AppModelTest, EndsTheProcessWithACodeOnlyInAHostedRunUnlessACallerLivesOn) {
  std::vector<int> aCodes;
  for (const bool bByHand : {false, true}) {
    Model.DebugMode = bByHand;
    EXPECT_EXIT(EndProcess(1), ::testing::ExitedWithCode(bByHand ? 0 : 1), "");
    SetProcessStop([&](int nCode) { aCodes.push_back(nCode); });
    EndProcess(1);
    SetProcessStop({});
  }
  EXPECT_EQ(aCodes, (std::vector<int>{1, 0}));
}

}  // namespace
}  // namespace vrek
