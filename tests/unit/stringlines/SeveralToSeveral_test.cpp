#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numeric>

#include "Roads.h"
#include "stringlines/Rules.h"
#include "support/TestApp.h"

namespace vrek::test {
namespace {

using namespace CCrSec;

TIndexes All(const TPoints& aPoints) {
  TIndexes aAll(aPoints.size());
  std::iota(aAll.begin(), aAll.end(), 0);
  return aAll;
}

struct TMatchCase {
  const char* sName;
  const char* sLast;
  const char* sThis;
  const char* sExpected;
  friend void PrintTo(const TMatchCase& Case, std::ostream* pOut) { *pOut << Case.sName; }
};

class Matching : public ::testing::TestWithParam<TMatchCase> {};

// clang-format off
INSTANTIATE_TEST_SUITE_P(SeveralToSeveral, Matching, ::testing::Values(
    TMatchCase{"SameNumber",                 "-4B 1E",           "-3 2",           "-3B 2E"},
    TMatchCase{"SameNumberOneAcross",        "-4B 1E 2F",        "-3 -1 9",        "-3B -1 9F"},
    TMatchCase{"SameNumberAnyDistance",      "-4B 0.1E",         "-3.9 4.9",       "-3.9B 4.9E"},
    TMatchCase{"SameNumberOnTheAxis",        "-4B 0E",           "0 4.9",          "0B 4.9E"},
    TMatchCase{"MoreBefore",                 "-4.5B -3.2C 1E",   "-3 2",           "-3C 2E"},
    TMatchCase{"MoreBeforeLoserHasNoSecond", "-3.2B -3.1C -3F",  "-3 -1",          "-3F -1"},
    TMatchCase{"MoreBeforeSkipsContinue",    "-3B -2C -1F",      "-3X* -1",        "-3X* -1F"},
    TMatchCase{"MoreNow",                    "-3B 2E",           "-4 -2 1",        "-4B -2 1E"},
    TMatchCase{"MoreNowTakesContinue",       "-3B* 2E",          "-4 -2 1",        "-4B -2 1E"},
    TMatchCase{"MoreNowNoneOnTheSide",       "-4B -2C",          "1 2 3",          "1 2 3"},
    TMatchCase{"MoreNowAxisIsEitherSide",    "-4B 0C",           "1 2 3",          "1C 2 3"}),
    [](const auto& Info) { return Info.param.sName; });
// clang-format on

TEST_P(Matching, GivesEachCodeOnce) {
  TPoints aThis = List(GetParam().sThis);
  const TPoints aLast = List(GetParam().sLast);
  SeveralToSeveral(aThis, All(aThis), aLast, All(aLast));
  EXPECT_EQ(Show(aThis), GetParam().sExpected);
}

class MatchingFailure : public AppTest {};

TEST_F(MatchingFailure, IsReportedAndEndsThere) {
  TPoints aThis = List("1 2 3");
  const TPoints aLast = List("1B 2C");
  SeveralToSeveral(aThis, {0, 1, 7}, aLast, {0, 1});
  ASSERT_EQ(Platform.aBoxes.size(), 1U);
  EXPECT_EQ(Platform.aBoxes[0].sText, "Unhandler Error in SeveralToSeveral\r\nSubscript out of range");
  EXPECT_EQ(Show(aThis), "1 2 3");
}

// The search by bisection must find what the walk puts first, on lists in and out of order.
TEST(MatchNearest, FindsWhatTheWalkFindsFirst) {
  RandomRoad Random(7);
  for (int nRound = 0; nRound < 3000; ++nRound) {
    TPoints aTargets;
    TPoints aSources;
    const double dGrid = nRound % 2 ? 0.5 : 0.00006;
    const double dBase = nRound % 17 == 0 ? 899999999999990.0 : 0;
    for (int n = Random.Below(12); n > 0; --n) {
      TCrPoint Point;
      Point.dOffset = dBase + dGrid * (Random.Below(13) - 6);
      Point.bContinue = Random.Chance(0.2);
      aTargets.push_back(Point);
      Point.dOffset = dGrid * (Random.Below(25) - 12) / 2;
      aSources.push_back(Point);
    }
    if (Random.Chance(0.8)) SortCrSecByDistToCL(aTargets);
    const bool bWithContinue = Random.Chance(0.5);
    const bool bSameSide = Random.Chance(0.5);
    const auto aNearest =
        MatchNearest(aTargets, All(aTargets), aSources, All(aSources), bWithContinue, bSameSide);
    auto it = aNearest.begin();
    for (const int nSource : All(aSources)) {
      const double dOffset = aSources[static_cast<std::size_t>(nSource)].dOffset;
      const TIndexes aFound = FindNearest(All(aTargets), dOffset, aTargets, bWithContinue, bSameSide);
      if (aFound.empty()) continue;
      ASSERT_NE(it, aNearest.end()) << "round " << nRound;
      ASSERT_EQ(it->nPoint, nSource) << "round " << nRound;
      ASSERT_EQ(it->nCandidate, aFound.front()) << "round " << nRound;
      ++it;
    }
    ASSERT_EQ(it, aNearest.end()) << "round " << nRound;
  }
}

}  // namespace
}  // namespace vrek::test
