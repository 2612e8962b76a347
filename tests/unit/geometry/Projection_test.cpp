// From a point back to chainage and offset.
#include "geometry/Alg.h"
#include "support/TestApp.h"
#include "unit/geometry/Curvature.h"

namespace vrek {
namespace {

/// 50 m north from chainage 100, then, from 150, another element.
THzElements NorthThen(THzElement Second) {
  Second.dChainage = 150;
  Second.dLength = 50;
  return {{}, {.dChainage = 100, .dLength = 50}, Second};
}

const THzElements aBend = NorthThen({.dY = 50, .dAzimuth = 100});
const THzElements aLeftBend = NorthThen({.dY = 50, .dAzimuth = 300});
const THzElements aTwice = NorthThen({});
const THzElements aCubic = NorthThen({.dY = 50, .dRadius = 300, .dParameter = -50});
const THzElements aOnlyCubic = {{}, aCubic[2], aCubic[2]};
const THzElements aClothoid = test::LayOut({}, 0, {{80, 0, 0}, {50, 0, 1 / 200.0}});
const THzElements aOnlyClothoid = {{}, aClothoid[2]};

TEST(Projection, TakesTheElementOnWhichThePointHasAFoot) {
  const struct {
    const char* sLabel;
    const THzElements& aHz;
    double dX, dY;
    bool bFound;
    double dChainage, dOffset;
  } aCases[] = {
      // clang-format off
      {"left of it",                    aBend,    -3.5,   20,  true, 120,  -3.5},
      {"inside the bend, first",        aBend,       4,   40,  true, 140,     4},
      {"inside the bend, second",       aBend,      10,   46,  true, 160,     4},
      {"inside a left bend, first",     aLeftBend,  -4,   40,  true, 140,    -4},
      {"inside a left bend, second",    aLeftBend, -10,   46,  true, 160,    -4},
      {"as far from both: the second",  aTwice,      4,   40,  true, 190,     4},
      {"outside the bend",              aBend,      -3,   54, false, 150,     5},
      {"behind the start",              aBend,      -3,   -4, false, 100,     5},
      {"a hair before the start",       aBend,       3, -0.0004, true, 100,   3},
      {"more than that",                aBend,       3, -0.0006, false, 100,  3},
      {"beyond the end",                aBend,      60,   60, false, 150,    60.828},
      {"beyond it, level with a bend",  aBend,      53,   50,  true, 150,    53},
      {"half a millimetre, to even",    aBend,  0.0625,   20,  true, 120, 0.062},
      {"and to even upwards",           aBend,  0.1875,   20,  true, 120, 0.188},
      {"before a cubic spiral",         aCubic,      4,   40,  true, 140,     4},
      {"beside one: the line before",   aCubic,     10,   46,  true, 146,    10},
      {"nothing but cubic spirals",     aOnlyCubic,  4,   40, false, 150,    10.77},
      {"before a clothoid's origin",    aClothoid,   2, 79.5,  true, 79.5,    2},
      {"with no element there",         aOnlyClothoid, 2, 79.5, false, 80,    2.062},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    SCOPED_TRACE(Case.sLabel);
    double dChainage = 0, dOffset = 0;
    const THzPoint Point{Case.dX, Case.dY, 0};
    EXPECT_EQ(Alg::ProjectPointToAligment(dChainage, dOffset, Point, Case.aHz, 1, UpperBound(Case.aHz)),
              Case.bFound);
    EXPECT_DOUBLE_EQ(dChainage, Case.dChainage);
    EXPECT_NEAR(dOffset, Case.dOffset, 1e-12);
  }
}

TEST(Projection, LooksNoFartherThanTheElementsAsked) {
  double dChainage = 0, dOffset = 0;
  EXPECT_TRUE(Alg::ProjectPointToAligment(dChainage, dOffset, {4, 40, 0}, aBend, 2, 2));
  EXPECT_EQ(dChainage, 154);
  EXPECT_NEAR(dOffset, 10, 1e-12);
}

TEST(Projection, OnTheCentreOfAnArcIsARadiusAway) {
  for (const double dRadius : {100.0, -100.0}) {
    double dOffset = 0, dAlong = 0;
    Alg::ProjectOnArc(dOffset, dAlong, {5 + dRadius, 6, 0}, {.dX = 5, .dY = 6, .dRadius = dRadius});
    EXPECT_NEAR(dOffset, dRadius, 1e-9);
  }
}

// Beyond the straight end of a clothoid the mirrored clothoid goes on.
TEST(Projection, BeyondTheOriginOfAClothoidCountsOn) {
  const THzElement Clothoid{.dRadius = -200, .dParameter = 100, .dLength = 50};
  const THzPoint End = test::Integrate({}, {50, -1 / 200.0, 0}, 50),
                 Beyond = GM::PolarPoint(End, End.dAzimuth, 4);
  double dOffset = 0, dAlong = 900000000000000;
  Alg::ProjectOnClothoid(dOffset, dAlong, Beyond, Clothoid, 0);
  EXPECT_NEAR(dAlong, 54, 0.001);
  EXPECT_NEAR(dOffset, 0, 0.002);
}

TEST(NearestVertex, IsTheLaterOneOfEquals) {
  const THzElements aHz = {
      {}, {.dX = 0, .dY = 1}, {.dX = 1, .dY = 0}, {.dX = 5, .dY = 0}, {.dX = -1, .dY = 0}};
  EXPECT_EQ(Alg::FindNearestVertex({0, 0, 0}, aHz, 1, 4), 4);
  EXPECT_EQ(Alg::FindNearestVertex({0, 0, 0}, aHz, 1, 3), 2);
  EXPECT_EQ(Alg::FindNearestVertex({0, 0, 0}, aHz, 3, 4), 4);
  EXPECT_EQ(Alg::FindNearestVertex({4, 0, 0}, aHz, 1, 4), 3);
}

struct TFoot {
  double s = 900000000000000, dDistance = 0;
  int nSide = 0;
  TFoot(double x, double y) { Alg::FootOnUnitClothoid(s, dDistance, nSide, {x, y, 0}); }
};

/// A point beside the unit clothoid at an arc length; a positive offset is on the concave side.
THzPoint BesideUnitClothoid(double s, double dOffset) {
  double x = 0, y = 0;
  GM::ClothoidUnitPoint(s * s / 2, x, y);
  return {x - dOffset * std::sin(s * s / 2), y + dOffset * std::cos(s * s / 2), 0};
}

TEST(FootOnUnitClothoid, IsFoundOnBothSides) {
  for (double s = 0.01; s < 1.4; s += 0.01) {
    for (const double dOffset : {-0.3, -0.02, 0.02, 0.3}) {
      const THzPoint Point = BesideUnitClothoid(s, dOffset);
      if (Point.dX < 0.000001) continue;
      const TFoot Foot(Point.dX, Point.dY);
      ASSERT_NEAR(Foot.s, s, 1e-7) << dOffset;
      ASSERT_NEAR(Foot.dDistance, std::fabs(dOffset), 1e-7) << s;
      ASSERT_EQ(Foot.nSide, dOffset > 0 ? -1 : 1) << s;
    }
  }
}

TEST(FootOnUnitClothoid, DependsOnTheFirstGuess) {
  constexpr double dNone = -9999999.9999;
  const struct {
    const char* sLabel;
    double s, dOffset, dExpected, dDistance;
    int nSide;
  } aCases[] = {
      // clang-format off
      {"convex, but by little: the guess lies on the other side", 1.4, -0.001,   1.4, 0.001, -1},
      // The level mirror image is too far off for six passes.
      {"far inside the curve",                                    0.8,    0.9, dNone, dNone, -1},
      {"far outside: held within a quarter turn of the tangent",  1.4,   -1.1,   1.4,   1.1,  1},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    SCOPED_TRACE(Case.sLabel);
    const THzPoint Point = BesideUnitClothoid(Case.s, Case.dOffset);
    const TFoot Foot(Point.dX, Point.dY);
    EXPECT_NEAR(Foot.s, Case.dExpected, 1e-7);
    EXPECT_NEAR(Foot.dDistance, Case.dDistance, 1e-7);
    EXPECT_EQ(Foot.nSide, Case.nSide);
  }
}

TEST(FootOnUnitClothoid, IsTheOriginBesideItAndNoneBehindIt) {
  EXPECT_EQ(TFoot(0, 0.25).s, 0);
  EXPECT_EQ(TFoot(0.0000009, 0.25).dDistance, 0.25);
  EXPECT_EQ(TFoot(0.0000009, -0.25).dDistance, -0.25);
  EXPECT_GT(TFoot(0.0000011, -0.25).s, 0);
  const TFoot Behind(-0.001, 0.5);
  EXPECT_EQ(Behind.s, 900000000000000);
  EXPECT_EQ(Behind.dDistance, 999999999);
}

using ProjectChain = test::AppTest;

TEST_F(ProjectChain, ReportsAChainageThatTheSourceDoesntHave) {
  double dOffset = 7, dChainPjt = 7;
  EXPECT_FALSE(Alg::ProjectChainToAnotherAligment(99, aBend, aBend, dOffset, dChainPjt));
  EXPECT_EQ(dOffset, 0);
  EXPECT_EQ(dChainPjt, 0);
  ASSERT_EQ(Platform.aBoxes.size(), 2u);
  EXPECT_NE(Platform.aBoxes[0].sText.find("GetCoordFromHzAligment"), std::string::npos);
  EXPECT_NE(Platform.aBoxes[1].sText.find("ProjectChainToAnotherAligment"), std::string::npos);
  EXPECT_FALSE(Alg::ProjectChainToAnotherAligment(120, aBend, THzElements(1), dOffset, dChainPjt));
  EXPECT_EQ(Platform.aBoxes.size(), 3u);
}

}  // namespace
}  // namespace vrek
