#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Roads.h"
#include "stringlines/Rules.h"
#include "support/TestApp.h"

namespace vrek::test {
namespace {

using namespace CCrSec;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct TProximityCase {
  const char* sName;
  const char* sLast;
  const char* sThis;
  const char* sExpected;
  friend void PrintTo(const TProximityCase& Case, std::ostream* pOut) { *pOut << Case.sName; }
};

class Proximity : public ::testing::TestWithParam<TProximityCase> {};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rule, Proximity, ::testing::Values(
    TProximityCase{"OneToOne",                  "-5A -2B 5D",          "-5A -1.7 5D",         "-5A -1.7B 5D"},
    TProximityCase{"OneToOneAcrossTheAxis",     "-5A -2B 5D",          "-5A 4 5D",            "-5A 4B 5D"},
    TProximityCase{"OneToNone",                 "-5A 5D",              "-5A 1 5D",            "-5A 1 5D"},
    TProximityCase{"OneToSeveral",              "-5A -2B 2C 5D",       "-5A -1 5D",           "-5A -1B 5D"},
    TProximityCase{"OneToSeveralTie",           "-5A -2B 0C 5D",       "-5A -1/7 5D",         "-5A -1/7B -1/7C* 5D"},
    TProximityCase{"OneToSeveralOtherSide",     "-5A 1B 2C 5D",        "-5A -1 5D",           "-5A -1 5D"},
    TProximityCase{"OneToSeveralFromAPhantom",  "-5A -2B* -1C 5D",     "-5A -2 5D",           "-5A -2B 5D"},
    TProximityCase{"SeveralToOne",              "-5A -1B 5D",          "-5A -2 1 5D",         "-5A -2B 1 5D"},
    TProximityCase{"SeveralToOneTie",           "-5A -1B 5D",          "-5A -2 0 5D",         "-5A -2B 0>B 5D"},
    TProximityCase{"SeveralToOneAcross",        "-5A -0.1B 5D",        "-5A 1 2 5D",          "-5A 1B 2 5D"},
    TProximityCase{"OutsideTheAnchors",         "-5A 1B 5D",           "-8 -5A 5D 8",         "-8 -5A 5D 8"},
    TProximityCase{"NeighbouringAnchors",       "-5A -2B 5D",          "-5A 5D",              "-5A 5D"},
    TProximityCase{"AnchorsInOppositeOrder",    "-5D -2B 5A",          "-5A -2 5D",           "-5A -2 5D"},
    TProximityCase{"AnchorUnknownBefore",       "-5A -2B",             "-5A -2 5D",           "-5A -2 5D"},
    TProximityCase{"OneAnchor",                 "-5A -2B 5D",          "-5A -2 4",            "-5A -2 4"},
    TProximityCase{"FirstOfTwoEqualCodes",      "-5A -3B -2A 0C 5D",   "-5A -3 -1 5D",        "-5A -3B -1C 5D"},
    TProximityCase{"BothAnchorsOneCode",        "-5A -2B 5A",          "-5A -2 5A",           "-5A -2 5A"},
    TProximityCase{"LastOutOfOrder",            "5D -2B -5A",          "-5A -1.7 5D",         "-5A -1.7B 5D"},
    TProximityCase{"ThisIsSorted",              "-5A -2B 5D",          "5D -2 -5A",           "-5A -2 5D"},
    TProximityCase{"TieThenAnotherSegment",     "-5A -2B 0C 3D 4E 6F", "-5A -1 3D 4.4 6F",    "-5A -1B -1C* 3D 4.4E 6F"}),
    [](const auto& Info) { return Info.param.sName; });
// clang-format on

TCrData TwoSections(const char* sLast, const char* sThis) {
  TCrData Cr = EmptyRoad();
  for (const char* sPoints : {sLast, sThis}) {
    Cr.Sections.emplace_back().Surfaces.push_back({3, false, List(sPoints)});
  }
  return Cr;
}

TEST_P(Proximity, NamesThePointsBetweenAnchors) {
  TCrData Cr = TwoSections(GetParam().sLast, GetParam().sThis);
  NamesByProximity(Cr, 1, 0);
  EXPECT_EQ(Show(Cr.Sections[1].Surfaces[0].Points), GetParam().sExpected);
  EXPECT_FALSE(Cr.Sections[1].Surfaces[0].bDone);
}

TEST(NamesByProximity, SortsBothSectionsEvenWithoutAMatch) {
  TCrData Cr = TwoSections("5D -5A", "8C 5D");
  NamesByProximity(Cr, 1, 0);
  EXPECT_EQ(Show(Cr.Sections[0].Surfaces[0].Points), "-5A 5D");
  EXPECT_EQ(Show(Cr.Sections[1].Surfaces[0].Points), "5D 8C");
}

TEST(NamesByProximity, LeavesASurfaceThatIsDoneInTheOrderOfTheListing) {
  TCrData Cr = TwoSections("5D -2B -5A", "5D -1 -5A");
  Cr.Sections[1].Surfaces[0].bDone = true;
  NamesByProximity(Cr, 1, 0);
  EXPECT_EQ(Show(Cr.Sections[0].Surfaces[0].Points), "5D -2B -5A");
  EXPECT_EQ(Show(Cr.Sections[1].Surfaces[0].Points), "5D -1 -5A");
}

TEST(NamesByProximity, ListsWhatLiesBetweenTwoCodesInOrderOfOffset) {
  const auto aSegments = GetSegments(List("-5A 1 2 5D 7 8C"), List("5D 3X -5A -2B -4A 8C"));
  ASSERT_EQ(aSegments.size(), 2U);
  EXPECT_THAT(aSegments[0].aThis, ElementsAre(1, 2));
  EXPECT_THAT(aSegments[0].aLast, ElementsAre(3, 1));
  EXPECT_THAT(aSegments[1].aThis, ElementsAre(4));
  EXPECT_THAT(aSegments[1].aLast, IsEmpty());
}

}  // namespace
}  // namespace vrek::test
