// The rules by distance, by ends and for the rest.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Roads.h"
#include "stringlines/Rules.h"
#include "support/TestApp.h"

namespace vrek::test {
namespace {

using namespace CCrSec;
using ::testing::ElementsAre;

struct TRuleCase {
  const char* sName;
  const char* sLast;
  const char* sThis;
  const char* sExpected;
  friend void PrintTo(const TRuleCase& Case, std::ostream* pOut) { *pOut << Case.sName; }
};

std::string NameOf(const ::testing::TestParamInfo<TRuleCase>& Info) {
  return Info.param.sName;
}

class GroupsByDistance : public ::testing::TestWithParam<TRuleCase> {};

// clang-format off
INSTANTIATE_TEST_SUITE_P(NamesByDistance, GroupsByDistance, ::testing::Values(
    TRuleCase{"OneToOne",                "-3.5A 0B 3.5C",    "-3.5 0.0004 4",         "-3.5A 0.0004B 4"},
    TRuleCase{"BelowTheTolerance",       "1A",               "1.0009",                "1.0009A"},
    TRuleCase{"AtTheTolerance",          "0A",               "0.001",                 "0.001"},
    TRuleCase{"WallFromTheLowestUp",     "2/11A 2/13B",      "2/14 2/12",             "2/14B 2/12A"},
    TRuleCase{"TwoToOneStayUnnamed",     "2/11A",            "2/14 2/12",             "2/14 2/12"},
    TRuleCase{"OneToTwoStaysUnnamed",    "2/11A 2/13B",      "2/12",                  "2/12"},
    TRuleCase{"ThreeToTwoStayUnnamed",   "2/11A 2/13B",      "2/14 2/12 2/9",         "2/14 2/12 2/9"},
    TRuleCase{"TwoGroupsShareACode",     "0A",               "-0.0008 0.0007",        "-0.0008A 0.0007A"},
    TRuleCase{"ChainIsOneGroup",         "0/1A 0.0018/2B",   "0/5 0.0009/6 0.0018/7", "0/5 0.0009/6 0.0018/7"},
    TRuleCase{"LastListOutOfOrder",      "3/1A 1B 3/0C",     "3/7 3/8 1",             "3/7C 3/8A 1B"},
    TRuleCase{"NothingBefore",           "",                 "1 2",                   "1 2"}),
    NameOf);
// clang-format on

TEST_P(GroupsByDistance, NamesWhatFits) {
  TPoints aThis = List(GetParam().sThis);
  const TPoints aLast = List(GetParam().sLast);
  auto aGroups = GroupByDistance(aThis, aLast, 0.001);
  NameGroups(aThis, aLast, aGroups);
  EXPECT_EQ(Show(aThis), GetParam().sExpected);
}

TEST(NamesByDistance, AGroupTakesEachLastPointOnceInTheOrderOfItsArrival) {
  const auto aGroups = GroupByDistance(List("0.0009 0"), List("0 0.0012 -0.0005"), 0.001);
  ASSERT_EQ(aGroups.size(), 1U);
  EXPECT_THAT(aGroups[0].aThis, ElementsAre(0, 1));
  EXPECT_THAT(aGroups[0].aLast, ElementsAre(0, 1, 2));
}

class BothEnds : public ::testing::TestWithParam<TRuleCase> {};

// clang-format off
INSTANTIATE_TEST_SUITE_P(NamesByEnds, BothEnds, ::testing::Values(
    TRuleCase{"HoweverFar",              "-7A 7B",           "-70 1C 0.5",            "-70A 1C 0.5B"},
    TRuleCase{"ClaimedFurtherIn",        "-7A 7B",           "-7A 7B 9",              "-7A 7B 9"},
    TRuleCase{"AcrossTheAxis",           "-7A 7B",           "1 2C -1",               "1 2C -1"},
    TRuleCase{"OnTheAxisAgainstBeside",  "0.5A 7B",          "0 3C 8B",               "0 3C 8B"},
    TRuleCase{"OnTheAxisBoth",           "0A 7B",            "0 3C 8D",               "0A 3C 8D"},
    TRuleCase{"ANamedEndKeepsItsCode",   "-7A 7B",           "-8C 8D",                "-8C 8D"},
    TRuleCase{"LonePointLeftEndFirst",   "-7A -3B",          "-5",                    "-5A"},
    TRuleCase{"LonePointRightEnd",       "-7A 3B",           "5",                     "5B"}),
    NameOf);
// clang-format on

TEST_P(BothEnds, AreNamed) {
  TPoints aThis = List(GetParam().sThis);
  const TPoints aLast = List(GetParam().sLast);
  NameEnd(aThis, aLast, false, true);
  NameEnd(aThis, aLast, true, true);
  EXPECT_EQ(Show(aThis), GetParam().sExpected);
}

TEST(NamesByEnds, CountsAndMayIgnoreTheSide) {
  TPoints aThis = List("1 2C");
  EXPECT_EQ(NameEnd(aThis, List("-7A 7B"), false, false), 1);
  EXPECT_EQ(Show(aThis), "1A 2C");
  EXPECT_EQ(NameEnd(aThis, List("-7A 7B"), false, false), 0);
}

class RulesInTurn : public AppTest {};

TEST_F(RulesInTurn, NameASectionFromTheOneBefore) {
  TCrData Cr = Road({"-7 -3.5 0 3.5 7", "-7.2 -3.5 0.0004 3.5 7 9"});
  NamesByDistance(Cr, 1, 0, 0.001);
  EXPECT_EQ(CodesOf(Cr, 1), "(none) -3.500 0.000 3.500 7.000 (none)");
  NamesByEnds(Cr, 1, 0, true);
  EXPECT_EQ(CodesOf(Cr, 1), "-7.000 -3.500 0.000 3.500 7.000 (none)");
  NamesByProximity(Cr, 1, 0);
  EXPECT_FALSE(Cr.Sections[1].Surfaces[0].bDone);
  NamesToRest(Cr, 1, 0);
  EXPECT_EQ(CodesOf(Cr, 1), "-7.000 -3.500 0.000 3.500 7.000 9.000");
  EXPECT_TRUE(Cr.Sections[1].Surfaces[0].bDone);
}

TEST_F(RulesInTurn, AreDoneOnceEveryPointIsNamed) {
  TCrData Cr = Road({"0 3 7", "0 3 7", "0 3 8"});
  NamesByDistance(Cr, 1, 0, 0.001);
  EXPECT_TRUE(Cr.Sections[1].Surfaces[0].bDone);
  NamesByDistance(Cr, 2, 0, 0.001);
  EXPECT_FALSE(Cr.Sections[2].Surfaces[0].bDone);
  NamesByEnds(Cr, 2, 0, true);
  EXPECT_TRUE(Cr.Sections[2].Surfaces[0].bDone);
}

TEST_F(RulesInTurn, RegisterTheOffsetsOfALayerThatComesBack) {
  TCrData Cr = Road({"0 3", "", "5 0"});
  NamesByDistance(Cr, 2, 0, 0.001);
  EXPECT_EQ(CodesOf(Cr, 2), "(none) (none)");
  EXPECT_TRUE(Cr.Sections[2].Surfaces[0].bDone);
  NamesToRest(Cr, 2, 0);
  EXPECT_EQ(CodesOf(Cr, 2), "5.000_2 0.000_2");
}

}  // namespace
}  // namespace vrek::test
