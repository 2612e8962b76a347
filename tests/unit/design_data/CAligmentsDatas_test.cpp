#include "design_data/CAligmentsDatas.h"

#include "support/TestApp.h"

namespace vrek::test {
namespace {

namespace Store = CAligmentsDatas;

class DataStore : public AppTest {
 protected:
  DataStore() {
    Store::InitAligments();
    Store::AddAligment();
  }
  ~DataStore() override { Store::InitAligments(); }
};

TEST_F(DataStore, ReportsAPartThatIsNotThereAndGivesAnEmptyOne) {
  EXPECT_EQ(Store::GetAligmentType(1), 0);
  EXPECT_EQ(UpperBound(Store::GetAligmentHz(1)), -1);
  EXPECT_EQ(UpperBound(Store::GetAligmentVt(1)), -1);
  EXPECT_TRUE(Store::GetAligmentCr(1).Layers.empty());
  EXPECT_EQ(Store::GetAligmentSup(1), nullptr);
  EXPECT_EQ(Store::GetAligmentTnl(1), nullptr);
  EXPECT_EQ(Store::GetAligmentStrLn(1).nCount, 0);
  EXPECT_EQ(Store::GetAligmentHzWithChainage(1, 5).dLength, 0);
  std::string sReported = Log();
  for (const auto& Box : Platform.aBoxes) sReported += Box.sText;
  for (const char* sOperation : {"GetAligmentHz", "GetAligmentVt", "GetAligmentCr", "GetAligmentSup",
                                 "GetAligmentTnl", "GetAligmentStrLn", "GetAligmentHzWithChainage"}) {
    EXPECT_NE(sReported.find(sOperation), std::string::npos) << sOperation;
  }
  EXPECT_NE(sReported.find("There are not tunnel aligment to return"), std::string::npos);
}

TEST_F(DataStore, KeepsWhatItIsGivenUntilTheNextInit) {
  Store::SetAligmentHz(1, THzElements(1));
  EXPECT_EQ(Store::GetAligmentType(1), AligmentType::nHz) << "stored, though without an element";
  Store::SetAligmentVt(1, TVtElements(3));
  Store::AddAligment();
  EXPECT_EQ(UpperBound(Store::GetAligmentVt(1)), 2) << "a longer table keeps what it holds";
  Store::SetAligmentSup(1, nullptr);
  Store::SetAligmentCr(2, {});
  Store::SetAligmentTnl(2, nullptr);
  EXPECT_EQ(Store::GetAligmentType(1), AligmentType::nHz | AligmentType::nVt | AligmentType::nSup);
  EXPECT_EQ(Store::GetAligmentType(2), AligmentType::nCr | AligmentType::nTnl);
  EXPECT_TRUE(Platform.aBoxes.empty());
  Store::InitAligments();
  Store::AddAligment();
  EXPECT_EQ(Store::GetAligmentType(1), 0);
}

TEST_F(DataStore, FindsAnElementByItsChainage) {
  THzElements aHz(3);
  aHz[1].dChainage = 100;
  aHz[2].dChainage = 200;
  Store::SetAligmentHz(1, aHz);
  EXPECT_EQ(Store::GetAligmentHzWithChainage(1, 0).dChainage, 100);
  EXPECT_EQ(Store::GetAligmentHzWithChainage(1, 200).dChainage, 200);
  EXPECT_EQ(Store::GetAligmentHzWithChainage(1, 999).dChainage, 200);
  // Out of order the walk stops at the first element behind the chainage.
  aHz.resize(5);
  aHz[2].dChainage = 400;
  aHz[3].dChainage = 200;
  aHz[4].dChainage = 300;
  Store::SetAligmentHz(1, aHz);
  EXPECT_EQ(Store::GetAligmentHzWithChainage(1, 350).dChainage, 100);
  EXPECT_EQ(Store::GetAligmentHzWithChainage(1, 500).dChainage, 300);
}

TEST_F(DataStore, FindsAStringlineByItsExactName) {
  TStringLine Line;
  EXPECT_FALSE(Store::GetAligmentStrLnWithName(1, "L1", Line));
  TStringLines StrLn;
  StrLn.nCount = 1;
  StrLn.Lines.resize(3);
  StrLn.Lines[1].sName = "L1";
  StrLn.Lines[1].dChainageEnd = 7;
  StrLn.Lines[2].sName = "L2";
  Store::SetAligmentStrLn(1, StrLn);
  EXPECT_TRUE(Store::GetAligmentStrLnWithName(1, "L1", Line));
  EXPECT_EQ(Line.dChainageEnd, 7);
  EXPECT_FALSE(Store::GetAligmentStrLnWithName(1, "l1", Line));
  EXPECT_FALSE(Store::GetAligmentStrLnWithName(1, "", Line));
  EXPECT_FALSE(Store::GetAligmentStrLnWithName(1, "L2", Line)) << "beyond the count";
  EXPECT_TRUE(Platform.aBoxes.empty());
}

TEST_F(DataStore, ReportsANumberOutsideTheTable) {
  for (const int n : {-1, 2, 300}) {
    EXPECT_EQ(Store::GetAligmentType(n), 0);
    Store::SetAligmentHz(n, {});
    EXPECT_EQ(UpperBound(Store::GetAligmentHz(n)), -1);
  }
  EXPECT_EQ(Platform.aBoxes.size(), 9u);
  EXPECT_EQ(Platform.aBoxes[1].sText, "Unhandler Error in SetAligmentHz\r\nSubscript out of range");
}

}  // namespace
}  // namespace vrek::test
