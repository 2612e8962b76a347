#include "design_data/CovertData.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/Failure.h"

namespace vrek::test {
namespace {

TEST(CovertData, RefusesWhatIsNoNumberAnyMore) {
  TCrData Cr;
  CovertData::StartCr(Cr);
  CovertData::TPointLists aLists;
  aLists[0] = {{std::numeric_limits<double>::infinity(), 1}};
  EXPECT_THROW(CovertData::AddCrSection(Cr, 0, aLists), Failure);
}

TEST(CovertData, SortsDoublesFromAnIndexOn) {
  std::vector<double> aValues = {9, 3, 1, 2, 1}, aNone;
  CovertData::SortDoubles(aValues);
  EXPECT_EQ(aValues, (std::vector<double>{9, 1, 1, 2, 3}));
  CovertData::SortDoubles(aValues, 0);
  EXPECT_EQ(aValues, (std::vector<double>{1, 1, 2, 3, 9}));
  CovertData::SortDoubles(aNone);
}

}  // namespace
}  // namespace vrek::test
