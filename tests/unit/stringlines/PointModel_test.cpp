#include "stringlines/PointModel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Roads.h"
#include "support/TestApp.h"

namespace vrek::test {
namespace {

using namespace CCrSec;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(PointModel, TakesAPointOnTheAxisForEitherSide) {
  EXPECT_TRUE(IsSameSide(0, -4));
  EXPECT_TRUE(IsSameSide(3, 0));
  EXPECT_TRUE(IsSameSide(0, 0));
  EXPECT_TRUE(IsSameSide(2, 4));
  EXPECT_FALSE(IsSameSide(2, -4));
}

struct TNearestCase {
  const char* sName;
  const char* sPoints;
  double dOffset;
  bool bWithContinue, bSameSide;
  TIndexes aExpected;
  friend void PrintTo(const TNearestCase& Case, std::ostream* pOut) { *pOut << Case.sName; }
};

class FindNearestTest : public ::testing::TestWithParam<TNearestCase> {};

// clang-format off
INSTANTIATE_TEST_SUITE_P(PointModel, FindNearestTest, ::testing::Values(
    TNearestCase{"TieIsAppended",               "3 7 9",         5,  true,  false, {0, 1}},
    TNearestCase{"NearerReplacesTheFirst",      "3 6 7",         5,  true,  false, {1}},
    TNearestCase{"OtherSideIsLeftOut",          "-1 0 4",        2,  true,  true,  {1, 2}},
    TNearestCase{"TiesOfAFartherPointStay",     "2 2 3 9",       4,  true,  false, {2, 1}},
    TNearestCase{"EndsBeforeANearerOneBehind",  "3 9 4",         5,  true,  false, {0}},
    TNearestCase{"ContinueIsLeftOut",           "4A* 6 9",       4,  false, false, {1}},
    TNearestCase{"ContinueMayBeFound",          "4A* 6 9",       4,  true,  false, {0}},
    TNearestCase{"NoneOnThisSide",              "-3 -2",         1,  true,  true,  {}},
    TNearestCase{"TooFarForAnyPoint",           "1",             1e15, true, false, {}}),
    [](const auto& Info) { return Info.param.sName; });
// clang-format on

TEST_P(FindNearestTest, Finds) {
  const auto& Case = GetParam();
  const TPoints aPoints = List(Case.sPoints);
  TIndexes aAll(aPoints.size());
  for (std::size_t n = 0; n < aAll.size(); ++n) aAll[n] = static_cast<int>(n);
  EXPECT_EQ(FindNearest(aAll, Case.dOffset, aPoints, Case.bWithContinue, Case.bSameSide), Case.aExpected);
}

TEST(PointModel, SortsAreStable) {
  TPoints aPoints = List("2/1A 1/3B 2/0C 1/2D");
  SortCrSecByDistToCL(aPoints);
  EXPECT_EQ(Show(aPoints), "1/3B 1/2D 2/1A 2C");
  TIndexes aIndexes{0, 1, 2, 3};
  SortIndexesByHeight(aIndexes, aPoints);
  EXPECT_THAT(aIndexes, ElementsAre(3, 2, 1, 0));
  SortIndexesByOffset(aIndexes, aPoints);
  EXPECT_THAT(aIndexes, ElementsAre(1, 0, 3, 2));
}

class GetPointThisAndLastTest : public AppTest {};

TEST_F(GetPointThisAndLastTest, FindsTheSurfaceOfTheSameLayer) {
  TCrData Cr = Road({"0", "1"});
  AddSurface(Cr, 1, List("5"));
  EXPECT_FALSE(GetPointThisAndLast(Cr, 0, 0));
  const auto Lists = GetPointThisAndLast(Cr, 1, 0);
  ASSERT_TRUE(Lists);
  EXPECT_EQ(Lists.pThis, &Cr.Sections[1].Surfaces[0].Points);
  EXPECT_EQ(Lists.pLast, &Cr.Sections[0].Surfaces[0].Points);
  EXPECT_FALSE(GetPointThisAndLast(Cr, 1, 1)) << "a layer that the section before doesn't have";
  EXPECT_EQ(Log(), "");
}

TEST_F(GetPointThisAndLastTest, LogsASectionWithoutSurfacesBefore) {
  TCrData Cr = Road({"0", "", "1"});
  EXPECT_FALSE(GetPointThisAndLast(Cr, 2, 0));
  EXPECT_THAT(Log(), HasSubstr("Error: 9 Subscript out of range in GetPointThisAndLast"));
  EXPECT_THAT(Platform.aBoxes, IsEmpty());
}

}  // namespace
}  // namespace vrek::test
