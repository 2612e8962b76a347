// Each rule by itself, on lists worked out by hand. What the rules make of whole roads is held against the
// plain engine.
#include "stringlines/Rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Roads.h"
#include "support/TestApp.h"

namespace vrek::test {
namespace {

using namespace CCrSec;
using ::testing::HasSubstr;

TIndexes All(const TPoints& aPoints) {
  TIndexes aAll;
  for (const TCrPoint& Point : aPoints) aAll.push_back(static_cast<int>(&Point - aPoints.data()));
  return aAll;
}

TPoints& Last(TCrData& Cr) {
  return Cr.Sections[0].Surfaces[0].Points;
}
TPoints& This(TCrData& Cr) {
  return Cr.Sections[1].Surfaces[0].Points;
}

TCrData TwoSections(const char* sLast, const char* sThis) {
  TCrData Cr = EmptyRoad();
  for (const char* sPoints : {sLast, sThis})
    Cr.Sections.emplace_back().Surfaces.push_back({3, false, List(sPoints)});
  return Cr;
}

// Lists whose points are well apart take a shorter way than the groups.
void Distance(TCrData& Cr) {
  TPoints aThis = This(Cr);
  auto aGroups = GroupByDistance(aThis, Last(Cr), 0.001);
  NameGroups(aThis, Last(Cr), aGroups);
  NamesByDistance(Cr, 1, 0, 0.001);
  EXPECT_EQ(Show(This(Cr)), Show(aThis));
}
void Ends(TCrData& Cr) {
  NamesByEnds(Cr, 1, 0, true);
}
void Proximity(TCrData& Cr) {
  NamesByProximity(Cr, 1, 0);
}
void Several(TCrData& Cr) {
  SeveralToSeveral(This(Cr), All(This(Cr)), Last(Cr), All(Last(Cr)));
}

struct TRuleCase {
  void (*Rule)(TCrData& Cr);
  const char *sName, *sLast, *sThis, *sExpected;
  friend void PrintTo(const TRuleCase& Case, std::ostream* pOut) { *pOut << Case.sName; }
};

// clang-format off
constexpr TRuleCase aRuleCases[] = {
    {Distance,  "SameOffset",             "-3.5A 0B 3.5C",     "-3.5 0.0004 4",         "-3.5A 0.0004B 4"},
    {Distance,  "BelowTheTolerance",      "1A",                "1.0009",                "1.0009A"},
    {Distance,  "AtTheTolerance",         "0A",                "0.001",                 "0.001"},
    {Distance,  "AtTheToleranceLeft",     "0A",                "-0.001",                "-0.001"},
    {Distance,  "WallFromTheLowestUp",    "2/11A 2/13B",       "2/14 2/12",             "2/14B 2/12A"},
    {Distance,  "OneWallTwoStayUnnamed",  "2/11A",             "2/14 2/12",             "2/14 2/12"},
    {Distance,  "TwoGroupsShareACode",    "0A",                "-0.0008 0.0007",        "-0.0008A 0.0007A"},
    {Distance,  "ChainIsOneGroup",        "0/1A 0.0018/2B",    "0/5 0.0009/6 0.0018/7", "0/5 0.0009/6 0.0018/7"},
    {Ends,      "HoweverFar",             "-7A 7B",            "-70 1C 0.5",            "-70A 1C 0.5B"},
    {Ends,      "ClaimedFurtherIn",       "-7A 7B",            "-7A 7B 9",              "-7A 7B 9"},
    {Ends,      "AcrossTheAxis",          "-7A 7B",            "1 2C -1",               "1 2C -1"},
    {Ends,      "OnTheAxisAgainstBeside", "0.5A 7B",           "0 3C 8B",               "0 3C 8B"},
    {Ends,      "ANamedEndKeepsItsCode",  "-7A 7B",            "-8C 8D",                "-8C 8D"},
    {Ends,      "LonePointLeftEndFirst",  "-7A -3B",           "-5",                    "-5A"},
    {Proximity, "OneToOneAcrossTheAxis",  "-5A -2B 5D",        "-5A 4 5D",              "-5A 4B 5D"},
    {Proximity, "OneToSeveral",           "-5A -2B 2C 5D",     "-5A -1 5D",             "-5A -1B 5D"},
    {Proximity, "OneToSeveralTie",        "-5A -2B 0C 5D",     "-5A -1/7 5D",           "-5A -1/7B -1/7C* 5D"},
    {Proximity, "OneToSeveralOtherSide",  "-5A 1B 2C 5D",      "-5A -1 5D",             "-5A -1 5D"},
    {Proximity, "FromAPhantom",           "-5A -2B* -1C 5D",   "-5A -2 5D",             "-5A -2B 5D"},
    {Proximity, "SeveralToOneTie",        "-5A -1B 5D",        "-5A -2 0 5D",           "-5A -2B 0>B 5D"},
    {Proximity, "AnchorsInOppositeOrder", "-5D -2B 5A",        "-5A -2 5D",             "-5A -2 5D"},
    {Proximity, "FirstOfTwoEqualCodes",   "-5A -3B -2A 0C 5D", "-5A -3 -1 5D",          "-5A -3B -1C 5D"},
    {Proximity, "OutOfOrder",             "5D -2B -5A",        "5C -5A -1.7 5D -9",     "-9 -5A -1.7B 5C 5D"},
    {Several,   "SameNumberAnyDistance",  "-4B 0.1E",          "-3.9 4.9",              "-3.9B 4.9E"},
    {Several,   "SameNumberOneAcross",    "-4B 1E 2F",         "-3 -1 9",               "-3B -1 9F"},
    {Several,   "MoreBefore",             "-4.5B -3.2C 1E",    "-3 2",                  "-3C 2E"},
    {Several,   "MoreBeforeNoSecond",     "-3.2B -3.1C -3F",   "-3 -1",                 "-3F -1"},
    {Several,   "BeforeSkipsContinue",    "-3B -2C -1F",       "-3X* -1",               "-3X* -1F"},
    {Several,   "MoreNowTakesContinue",   "-3B* 2E",           "-4 -2 1",               "-4B -2 1E"},
    {Several,   "MoreNowNoneOnTheSide",   "-4B -2C",           "1 2 3",                 "1 2 3"},
    {Several,   "NowAxisIsEitherSide",    "-4B 0C",            "1 2 3",                 "1C 2 3"}};
// clang-format on

class Rule : public ::testing::TestWithParam<TRuleCase> {};

TEST_P(Rule, NamesTheSection) {
  TCrData Cr = TwoSections(GetParam().sLast, GetParam().sThis);
  GetParam().Rule(Cr);
  EXPECT_EQ(Show(This(Cr)), GetParam().sExpected);
}

INSTANTIATE_TEST_SUITE_P(Hand, Rule, ::testing::ValuesIn(aRuleCases),
                         [](const auto& Info) { return Info.param.sName; });

class Rules : public AppTest {};

TEST_F(Rules, GoOnWhereTheOneBeforeLeftOff) {
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

TEST_F(Rules, RegisterTheOffsetsOfALayerThatComesBack) {
  TCrData Cr = Road({"0 3", "", "5 0"});
  NamesByDistance(Cr, 2, 0, 0.001);
  EXPECT_EQ(CodesOf(Cr, 2), "(none) (none)");
  EXPECT_TRUE(Cr.Sections[2].Surfaces[0].bDone);
  NamesToRest(Cr, 2, 0);
  EXPECT_EQ(CodesOf(Cr, 2), "5.000_2 0.000_2");
  EXPECT_THAT(Log(), HasSubstr("Error: 9 Subscript out of range in GetPointThisAndLast")) << "nothing before";
  EXPECT_TRUE(Platform.aBoxes.empty());
}

TEST_F(Rules, ReportAFailureOfSeveralToSeveralAndEndThere) {
  TPoints aThis = List("1 2 3");
  SeveralToSeveral(aThis, {0, 1, 7}, List("1B 2C"), {0, 1});
  ASSERT_EQ(Platform.aBoxes.size(), 1U);
  EXPECT_EQ(Platform.aBoxes[0].sText, "Unhandler Error in SeveralToSeveral\r\nSubscript out of range");
  EXPECT_EQ(Show(aThis), "1 2 3");
}

struct TNearestCase {
  const char *sName, *sPoints;
  double dOffset;
  bool bWithContinue, bSameSide;
  TIndexes aExpected;
};

TEST(FindNearest, GivesTheNearestThenItsTies) {
  // clang-format off
  const TNearestCase aCases[] = {
      {"a tie is appended",                 "3 7 9",  5,    true,  false, {0, 1}},
      {"the other side is left out",        "-1 0 4", 2,    true,  true,  {1, 2}},
      {"ties of a farther point stay",      "2 2 3 9", 4,   true,  false, {2, 1}},
      {"it ends before a nearer one",       "3 9 4",  5,    true,  false, {0}},
      {"a tie ends at a ten thousandth",    "3 0 7.0001", 5, true, false, {0}},
      {"points that continue are left out", "4A* 6 9", 4,   false, false, {1}},
      {"points that continue are found",    "4A* 6 9", 4,   true,  false, {0}},
      {"too far for any point",             "1",      1e15, true,  false, {}}};
  // clang-format on
  for (const auto& [sName, sPoints, dOffset, bWithContinue, bSameSide, aExpected] : aCases) {
    const TPoints aPoints = List(sPoints);
    EXPECT_EQ(FindNearest(All(aPoints), dOffset, aPoints, bWithContinue, bSameSide), aExpected) << sName;
  }
}

// The search by bisection must find what the walk puts first, on lists in and out of order.
TEST(MatchNearest, FindsWhatTheWalkFindsFirst) {
  RandomRoad Random(7);
  for (int nRound = 0; nRound < 3000; ++nRound) {
    TPoints aTargets, aSources;
    const double dGrid = nRound % 2 ? 0.5 : 0.00006;
    const double dBase = nRound % 17 == 0 ? 899999999999990.0 : 0;
    for (int n = Random.Below(12); n > 0; --n) {
      TCrPoint& Target = aTargets.emplace_back();
      Target.dOffset = dBase + dGrid * (Random.Below(13) - 6);
      Target.bContinue = Random.Chance(0.2);
      aSources.emplace_back().dOffset = dGrid * (Random.Below(25) - 12) / 2;
    }
    if (Random.Chance(0.8)) SortCrSecByDistToCL(aTargets);
    const bool bWithContinue = Random.Chance(0.5), bSameSide = Random.Chance(0.5);
    std::vector<std::pair<int, int>> aFound, aExpected;
    for (const int nSource : All(aSources)) {
      const double dOffset = aSources[static_cast<std::size_t>(nSource)].dOffset;
      const TIndexes aWalk = FindNearest(All(aTargets), dOffset, aTargets, bWithContinue, bSameSide);
      if (!aWalk.empty()) aExpected.emplace_back(nSource, aWalk.front());
    }
    for (const TNearest& Nearest :
         MatchNearest(aTargets, All(aTargets), aSources, All(aSources), bWithContinue, bSameSide))
      aFound.emplace_back(Nearest.nPoint, Nearest.nCandidate);
    ASSERT_EQ(aFound, aExpected) << "round " << nRound;
  }
}

}  // namespace
}  // namespace vrek::test
