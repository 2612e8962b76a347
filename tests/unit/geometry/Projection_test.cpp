// From a point back to chainage and offset.
#include "geometry/Alg.h"

#include <random>

#include "support/TestApp.h"
#include "unit/geometry/Curvature.h"

namespace vrek {
namespace {

struct TPlace {
  bool bFound = false;
  double dChainage = 0, dOffset = 0;
};

TPlace Project(const THzPoint& Point, const THzElements& aHz) {
  TPlace Place;
  Place.bFound = Alg::ProjectPointToAligment(Place.dChainage, Place.dOffset, Point, aHz, 1, UpperBound(aHz));
  return Place;
}

const THzElements& Bend() {  // north, then east
  static const THzElements aHz = {{},
                                  {.dChainage = 100, .dX = 0, .dY = 0, .dAzimuth = 0, .dLength = 50},
                                  {.dChainage = 150, .dX = 0, .dY = 50, .dAzimuth = 100, .dLength = 50}};
  return aHz;
}

struct TPoint {
  const char* sName;
  double dX, dY;
  bool bFound;
  double dChainage, dOffset;
};

TEST(Projection, TakesTheElementOnWhichThePointHasAFoot) {
  // clang-format off
  const TPoint aPoints[] = {
      {"on the line",                    0,  20,  true, 120,     0},
      {"right of it",                  3.5,  20,  true, 120,   3.5},
      {"left of it",                  -3.5,  20,  true, 120,  -3.5},
      {"inside the bend, first",         4,  40,  true, 140,     4},
      {"inside the bend, second",       10,  46,  true, 160,     4},
      {"as far from both: the second",   5,  45,  true, 155,     5},
      {"outside the bend",              -3,  54, false, 150,     5},
      {"behind the start",              -3,  -4, false, 100,     5},
      {"a hair before the start",        3, -0.0004, true, 100,   3},
      {"more than that",                 3, -0.0006, false, 100,  3},
      {"beyond the end",                60,  60, false, 150,    60.828},
      {"beyond it, level with a bend",  53,  50,  true, 150,    53},
      {"half a millimetre, to even", 0.0625, 20,  true, 120, 0.062},
      {"and to even upwards",        0.1875, 20,  true, 120, 0.188}};
  // clang-format on
  for (const TPoint& Point : aPoints) {
    const TPlace Place = Project({Point.dX, Point.dY, 0}, Bend());
    EXPECT_EQ(Place.bFound, Point.bFound) << Point.sName;
    EXPECT_DOUBLE_EQ(Place.dChainage, Point.dChainage) << Point.sName;
    EXPECT_NEAR(Place.dOffset, Point.dOffset, 1e-12) << Point.sName;
  }
}

TEST(Projection, LooksNoFartherThanTheElementsAsked) {
  TPlace Place;
  Place.bFound = Alg::ProjectPointToAligment(Place.dChainage, Place.dOffset, {4, 40, 0}, Bend(), 2, 2);
  EXPECT_TRUE(Place.bFound);
  EXPECT_EQ(Place.dChainage, 154);
  EXPECT_NEAR(Place.dOffset, 10, 1e-12);
}

TEST(Projection, OnTheCentreOfAnArcIsARadiusAway) {
  for (const double dRadius : {100.0, -100.0}) {
    const THzElement Arc{.dX = 5, .dY = 6, .dAzimuth = 0, .dRadius = dRadius, .dLength = 400};
    double dOffset = 0, dAlong = 0;
    Alg::ProjectOnArc(dOffset, dAlong, {5 + dRadius, 6, 0}, Arc);
    EXPECT_NEAR(dOffset, dRadius, 1e-9);
  }
}

TEST(Projection, PassesCubicSpiralsOver) {
  THzElements aHz = Bend();
  aHz[2].dRadius = 300;
  aHz[2].dParameter = -50;
  const TPlace First = Project({4, 40, 0}, aHz), Second = Project({10, 46, 0}, aHz);
  EXPECT_TRUE(First.bFound);
  EXPECT_EQ(First.dChainage, 140);
  EXPECT_TRUE(Second.bFound);  // the straight before it still has a foot
  EXPECT_EQ(Second.dChainage, 146);
  EXPECT_NEAR(Second.dOffset, 10, 1e-12);
  aHz[1] = aHz[2];
  EXPECT_FALSE(Project({4, 40, 0}, aHz).bFound);
}

TEST(Projection, OfAPointAsFarFromTwoElementsIsOnTheLater) {
  THzElements aHz = Bend();
  aHz[2] = aHz[1];
  aHz[2].dChainage = 500;
  EXPECT_EQ(Project({4, 40, 0}, aHz).dChainage, 540);
}

TEST(Projection, OnTheLeftComparesDistancesNotSigns) {
  THzElements aHz = Bend();
  aHz[2].dAzimuth = 300;
  EXPECT_EQ(Project({-4, 40, 0}, aHz).dChainage, 140);
  EXPECT_EQ(Project({-10, 46, 0}, aHz).dChainage, 160);
}

TEST(Projection, BehindTheOriginOfAClothoidLeavesItToTheElementBefore) {
  const THzElements aHz = test::LayOut({}, 0, {{80, 0, 0}, {50, 0, 1 / 200.0}});
  const TPlace Place = Project({2, 79.5, 0}, aHz);
  EXPECT_TRUE(Place.bFound);
  EXPECT_EQ(Place.dChainage, 79.5);
  EXPECT_EQ(Place.dOffset, 2);
  const TPlace Without = Project({2, 79.5, 0}, {{}, aHz[2]});
  EXPECT_FALSE(Without.bFound);
  EXPECT_EQ(Without.dChainage, 80);
  EXPECT_EQ(Without.dOffset, 2.062);
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
  explicit TFoot(double x, double y) { Alg::FootOnUnitClothoid(s, dDistance, nSide, {x, y, 0}); }
};

TEST(FootOnUnitClothoid, IsFoundOnBothSides) {
  for (double s = 0.01; s < 1.4; s += 0.01) {
    for (const double dOffset : {-0.3, -0.02, 0.02, 0.3}) {  // positive: towards the concave side
      double x = 0, y = 0;
      GM::ClothoidUnitPoint(s * s / 2, x, y);
      const double t = s * s / 2, px = x - dOffset * std::sin(t), py = y + dOffset * std::cos(t);
      if (px < 0.000001) continue;
      const TFoot Foot(px, py);
      ASSERT_NEAR(Foot.s, s, 1e-7) << dOffset;
      ASSERT_NEAR(Foot.dDistance, std::fabs(dOffset), 1e-7) << s;
      ASSERT_EQ(Foot.nSide, dOffset > 0 ? -1 : 1) << s;
    }
  }
}

TEST(FootOnUnitClothoid, HasTheSideOfTheFirstGuess) {
  double x = 0, y = 0;
  GM::ClothoidUnitPoint(1.4 * 1.4 / 2, x, y);
  const TFoot Foot(x + 0.001 * std::sin(0.98), y - 0.001 * std::cos(0.98));  // convex, but by little
  EXPECT_NEAR(Foot.s, 1.4, 1e-7);
  EXPECT_NEAR(Foot.dDistance, 0.001, 1e-7);
  EXPECT_EQ(Foot.nSide, -1);
}

// On the concave side the first guess is that of the level mirror image: far inside the curve the six passes
// don't do from there. Far outside, the guess is held within a quarter turn of the tangent.
TEST(FootOnUnitClothoid, DependsOnTheFirstGuessFarAway) {
  double x = 0, y = 0;
  GM::ClothoidUnitPoint(0.8 * 0.8 / 2, x, y);
  EXPECT_EQ(TFoot(x - 0.9 * std::sin(0.32), y + 0.9 * std::cos(0.32)).s, -9999999.9999);
  GM::ClothoidUnitPoint(1.4 * 1.4 / 2, x, y);
  const TFoot Outside(x + 1.1 * std::sin(0.98), y - 1.1 * std::cos(0.98));
  EXPECT_NEAR(Outside.s, 1.4, 1e-7);
  EXPECT_EQ(Outside.nSide, 1);
}

TEST(FootOnUnitClothoid, IsTheOriginBesideIt) {
  EXPECT_EQ(TFoot(0, 0.25).s, 0);
  EXPECT_EQ(TFoot(0.0000009, 0.25).dDistance, 0.25);
  EXPECT_EQ(TFoot(0.0000009, -0.25).dDistance, -0.25);
  EXPECT_GT(TFoot(0.0000011, -0.25).s, 0);
}

TEST(FootOnUnitClothoid, IsRefusedWhereThereIsNone) {
  const TFoot Behind(-0.001, 0.5);
  EXPECT_EQ(Behind.s, 900000000000000);
  EXPECT_EQ(Behind.dDistance, 999999999);
  int nRefused = 0;  // far away the six passes don't do
  std::mt19937_64 Random(5);
  std::uniform_real_distribution<double> Far(0, 6);
  for (int n = 0; n < 500; ++n) {
    const TFoot Foot(Far(Random), Far(Random) - 3);
    if (Foot.s != -9999999.9999) continue;
    ++nRefused;
    EXPECT_EQ(Foot.dDistance, -9999999.9999);
  }
  EXPECT_GT(nRefused, 0);
}

using ProjectChain = test::AppTest;

TEST_F(ProjectChain, LeadsFromOneTrackToTheOther) {
  const THzElements aCentre = {{}, {.dChainage = 1000, .dX = 2, .dY = 5, .dAzimuth = 0, .dLength = 40}};
  double dOffset = 0, dChainPjt = 0;
  EXPECT_TRUE(Alg::ProjectChainToAnotherAligment(1015.25, aCentre, Bend(), dOffset, dChainPjt));
  EXPECT_EQ(dChainPjt, 120.25);
  EXPECT_NEAR(dOffset, 2, 1e-12);
  EXPECT_TRUE(Platform.aBoxes.empty());
}

TEST_F(ProjectChain, ReportsAChainageThatTheSourceDoesntHave) {
  double dOffset = 7, dChainPjt = 7;
  EXPECT_FALSE(Alg::ProjectChainToAnotherAligment(99, Bend(), Bend(), dOffset, dChainPjt));
  EXPECT_EQ(dOffset, 0);
  EXPECT_EQ(dChainPjt, 0);
  ASSERT_EQ(Platform.aBoxes.size(), 2u);
  EXPECT_NE(Platform.aBoxes[0].sText.find("GetCoordFromHzAligment"), std::string::npos);
  EXPECT_NE(Platform.aBoxes[1].sText.find("ProjectChainToAnotherAligment"), std::string::npos);
  EXPECT_FALSE(Alg::ProjectChainToAnotherAligment(120, Bend(), THzElements(1), dOffset, dChainPjt));
  EXPECT_EQ(Platform.aBoxes.size(), 3u);
}

}  // namespace
}  // namespace vrek
