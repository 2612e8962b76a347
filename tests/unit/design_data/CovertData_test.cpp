#include "design_data/CovertData.h"

#include <limits>

#include "base/Failure.h"
#include "records/SurfacePoints.h"
#include "support/TestApp.h"

namespace vrek::test {
namespace {

TEST(SurfacePoints, ComparesEachPointWithTheOneBeforeItKeptOrNot) {
  std::vector<TCrPoint> aPoints = {{3, 10, {}, {}, false, false},
                                   {3.00005, 10, {}, {}, false, false},
                                   {3.0001, 10, {}, {}, false, false},
                                   {3.0001, 10.0002, {}, {}, false, false},
                                   {3, 10, {}, {}, false, false}};
  EXPECT_EQ(CCrSec::DeleteDuplicatedpoints(aPoints), 2);
  ASSERT_EQ(aPoints.size(), 3u);
  EXPECT_EQ(aPoints[1].dHeight, 10.0002);
  aPoints.clear();
  EXPECT_EQ(CCrSec::DeleteDuplicatedpoints(aPoints), 0);
}

TEST(SurfacePoints, NumbersCodesOfOneOffset) {
  TCrLayer Layer;
  const auto Name = [&](double dOffset) {
    return std::string(Layer.aCodes.Text(CCrSec::NewCode(Layer, {dOffset, 0, {}, {}, false, false})));
  };
  EXPECT_EQ(Name(1.5), "1.500");
  EXPECT_EQ(Name(11.5), "11.500");
  EXPECT_EQ(Name(-1.5), "-1.500");
  EXPECT_EQ(Name(1.5), "1.500_2");
  EXPECT_EQ(Name(1.5004), "1.500_3");
  EXPECT_EQ(Layer.aCodes.Text(CCrSec::FindOrNewCode(Layer, {1.5, 0, {}, {}, false, false})), "1.500");
  EXPECT_EQ(Layer.aCodes.size(), 5);
  EXPECT_EQ(Layer.aCodes.Text(CCrSec::FindOrNewCode(Layer, {7, 0, {}, {}, false, false})), "7.000");
  EXPECT_EQ(Layer.aCodes.size(), 6);
}

TEST(SurfacePoints, RefusesWhatIsNoNumberAnyMore) {
  TCrData Cr;
  CovertData::StartCr(Cr);
  CovertData::TPointLists aLists;
  aLists[CovertData::nRasante] = {{std::numeric_limits<double>::infinity(), 1}};
  EXPECT_THROW(CovertData::AddCrSection(Cr, 0, aLists), Failure);
}

TEST(SortDoubles, SortsFromAnIndexOn) {
  std::vector<double> aValues = {9, 3, 1, 2, 1};
  CovertData::SortDoubles(aValues);
  EXPECT_EQ(aValues, (std::vector<double>{9, 1, 1, 2, 3}));
  CovertData::SortDoubles(aValues, 0);
  EXPECT_EQ(aValues, (std::vector<double>{1, 1, 2, 3, 9}));
  aValues.clear();
  CovertData::SortDoubles(aValues);
  EXPECT_TRUE(aValues.empty());
}

}  // namespace
}  // namespace vrek::test
