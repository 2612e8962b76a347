#include "design_data/CAligmentsDatas.h"

#include <gmock/gmock.h>

#include "support/TestApp.h"

namespace vrek::test {
namespace {

using ::testing::HasSubstr;
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
  EXPECT_EQ(UpperBound(Store::GetAligmentHz(1)), -1);
  EXPECT_EQ(UpperBound(Store::GetAligmentVt(1)), -1);
  EXPECT_TRUE(Store::GetAligmentCr(1).Layers.empty());
  EXPECT_EQ(Store::GetAligmentSup(1), nullptr);
  EXPECT_EQ(Store::GetAligmentTnl(1), nullptr);
  EXPECT_EQ(Store::GetAligmentStrLn(1).nCount, 0);
  EXPECT_EQ(Store::GetAligmentHzWithChainage(1, 5).dLength, 0);
  for (const char* sOperation : {"GetAligmentHz", "GetAligmentVt", "GetAligmentCr", "GetAligmentSup",
                                 "GetAligmentTnl", "GetAligmentStrLn", "GetAligmentHzWithChainage"}) {
    EXPECT_THAT(Log(), HasSubstr(std::string("aligment to return in ") + sOperation + "\r\n"));
  }
}

TEST_F(DataStore, KnowsAPartAsSoonAsItIsSet) {
  Store::SetAligmentHz(1, {});
  Store::SetAligmentVt(1, {});
  EXPECT_EQ(Store::GetAligmentType(1), AligmentType::nHz | AligmentType::nVt);
}

TEST_F(DataStore, FindsAnElementByItsChainage) {
  const auto Found = [](std::initializer_list<double> aChainages, double dChainage) {
    THzElements aHz(1);
    for (const double d : aChainages) aHz.emplace_back().dChainage = d;
    Store::SetAligmentHz(1, aHz);
    return Store::GetAligmentHzWithChainage(1, dChainage).dChainage;
  };
  EXPECT_EQ(Found({100, 200}, 0), 100);
  EXPECT_EQ(Found({100, 200}, 200), 200);
  EXPECT_EQ(Found({100, 200}, 999), 200);
  // Out of order the walk stops at the first element behind the chainage.
  EXPECT_EQ(Found({100, 400, 200, 300}, 350), 100);
  EXPECT_EQ(Found({100, 400, 200, 300}, 500), 300);
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
  for (const char* sName : {"l1", "", "L2"}) {  // the last is beyond the count
    EXPECT_FALSE(Store::GetAligmentStrLnWithName(1, sName, Line)) << sName;
  }
  EXPECT_TRUE(Platform.aBoxes.empty());
}

TEST_F(DataStore, ReportsANumberOutsideTheTable) {
  for (const int n : {-1, 2, 300}) {
    EXPECT_EQ(Store::GetAligmentType(n), 0);
    Store::SetAligmentHz(n, {});
    EXPECT_EQ(UpperBound(Store::GetAligmentHz(n)), -1);
  }
  ASSERT_EQ(Platform.aBoxes.size(), 9u);
  EXPECT_EQ(Platform.aBoxes[1].sText, "Unhandler Error in SetAligmentHz\r\nSubscript out of range");
}

}  // namespace
}  // namespace vrek::test
