// Clothoids where their formulas end: no length, no solution, a start that could be anywhere.
#include <gtest/gtest.h>

#include <cmath>

#include "geometry/Alg.h"
#include "unit/geometry/Curvature.h"
#include "unit/geometry/FailureOf.h"

namespace vrek {
namespace {

THzElement Clothoid(double dRadius, double dLength) {
  return {.dX = 7, .dY = 9, .dAzimuth = 0, .dRadius = dRadius, .dParameter = 100, .dLength = dLength};
}

TEST(EndRadius, CountsAsInfiniteWithinTwoCentimetres) {
  EXPECT_EQ(GM::GetClothoidEndRadius(Clothoid(-200, 50.0199)), 0);
  EXPECT_NE(GM::GetClothoidEndRadius(Clothoid(-200, 50.0201)), 0);
  EXPECT_EQ(GM::ChooseClothoidEndRadius(Clothoid(200, 49.9801), 0, 5), 0);
  EXPECT_NE(GM::ChooseClothoidEndRadius(Clothoid(200, 49.9799), 0, 5), 0);
}

TEST(EndRadius, OfNoLengthFromAStraightIsADivisionByZeroOnlyWithANextElement) {
  EXPECT_EQ(test::FailureOf([] { GM::ChooseClothoidEndRadius(Clothoid(0.001, 0), 0, 200); }),
            Error::nDivisionByZero);
  EXPECT_EQ(Alg::EndRadiusInAligment({{}, Clothoid(0.001, 0), {.dRadius = 200}}, 1), 0);
}

TEST(EndRadius, GrowsOnlyWhereTheNextElementSaysSo) {
  EXPECT_DOUBLE_EQ(Alg::EndRadiusInAligment({{}, Clothoid(500, 30), {.dRadius = 200}}, 1), 200);
  EXPECT_DOUBLE_EQ(Alg::EndRadiusInAligment({{}, Clothoid(500, 30)}, 1), 1000);
  EXPECT_DOUBLE_EQ(Alg::EndRadiusInAligment({{}, Clothoid(0.001, 50), {.dRadius = 100}}, 1), 200);
  EXPECT_DOUBLE_EQ(Alg::EndRadiusInAligment({{}, Clothoid(-200, 30), {.dRadius = -500}}, 1), -500);
}

TEST(StartRadius, OnATieIsThatOfTheEarliestHypothesis) {
  EXPECT_EQ(GM::GetClothoidStartRadius(100, 120, 200, 200, 100), 200);
  EXPECT_EQ(GM::GetClothoidStartRadius(100, 100, 500, -200, 100), 500);  // no turn counts as right
}

TEST(PointOnClothoid, FromAStraightTakesNoEndRadius) {
  const THzPoint Point = Alg::GetPointOnClothoid(50, 12345, Clothoid(0.001, 50));
  EXPECT_NEAR(Point.dX, 7 + 2.081009, 1e-6);
  EXPECT_NEAR(Point.dY, 9 + 49.921931, 1e-6);
  EXPECT_DOUBLE_EQ(Point.dAzimuth, 0.125);
}

// As long as its start is away from a straight, it runs out to one, whatever its end is said to be.
TEST(PointOnClothoid, ThatCouldRunOutToAStraightDoes) {
  const THzPoint Said = Alg::GetPointOnClothoid(20, 200, Clothoid(400, 25)),
                 Not = Alg::GetPointOnClothoid(20, 0, Clothoid(400, 25));
  EXPECT_EQ(Said.dX, Not.dX);
  EXPECT_EQ(Said.dY, Not.dY);
  EXPECT_NEAR(Said.dAzimuth, 20 / 400.0 - 20 * 20 / 20000.0, 1e-12);
  EXPECT_NE(Alg::GetPointOnClothoid(20, 0, Clothoid(400, 25.019)).dX, 0);  // within two centimetres, too
  EXPECT_EQ(Alg::GetPointOnClothoid(20, 0, Clothoid(400, 25.021)).dX, 0);
}

TEST(PointOnClothoid, KnowsItsStartAndItsOrigin) {
  for (const double dRadius : {200.0, -200.0}) {
    THzElement Element = Clothoid(dRadius, 50);
    Element.dAzimuth = 1.25;
    const THzPoint Start = Alg::GetPointOnClothoid(0, 0, Element);
    EXPECT_EQ(Start.dX, 7);
    EXPECT_EQ(Start.dAzimuth, 1.25);
    const THzPoint End = Alg::GetPointOnClothoid(50, 0, Element),
                   True = test::Integrate({7, 9, 1.25}, {50, 1 / dRadius, 0}, 50);
    EXPECT_NEAR(End.dX, True.dX, 1e-9);
    EXPECT_NEAR(End.dY, True.dY, 1e-9);
    EXPECT_NEAR(End.dAzimuth, True.dAzimuth, 1e-12);
  }
  EXPECT_EQ(Alg::GetPointOnClothoid(3, 0, Clothoid(1e6, 0)).dX, 7);  // no length: its start
}

TEST(PointOnClothoid, WithoutASolutionIsAZeroRecord) {
  const auto IsZero = [](const THzPoint& Point) {
    return Point.dX == 0 && Point.dY == 0 && Point.dAzimuth == 0;
  };
  EXPECT_TRUE(IsZero(Alg::GetPointOnClothoid(5, -500, Clothoid(500, 30))));  // equal radii
  EXPECT_TRUE(IsZero(Alg::GetPointOnClothoid(5, 200, Clothoid(500, 50))));   // it would start at its origin
  EXPECT_TRUE(IsZero(Alg::GetPointOnClothoid(20, 900, Clothoid(500, 30))));  // the point would be the origin
  EXPECT_TRUE(IsZero(Alg::GetPointOnClothoid(5, 0, Clothoid(500, 30))));     // no end radius
}

TEST(SpiralPI, LiesOnBothTangents) {
  for (const double k : {1 / 300.0, -1 / 300.0}) {
    for (const test::TPiece& Piece :
         {test::TPiece{60, 0, k}, test::TPiece{60, k, 0}, test::TPiece{60, k, 2 * k}}) {
      const THzPoint Start{1000, 2000, 6.1}, End = test::Integrate(Start, Piece, 60);
      const THzPoint PI =
          GM::GetSpiralPI(End, {.dX = 1000, .dY = 2000, .dAzimuth = 6.1, .dRadius = k, .dParameter = 1});
      for (const THzPoint& From : {Start, End}) {
        EXPECT_NEAR((PI.dX - From.dX) * std::cos(From.dAzimuth) - (PI.dY - From.dY) * std::sin(From.dAzimuth),
                    0, 1e-9);
      }
    }
  }
}

TEST(SpiralPI, OfASpiralWithoutExtentIsItsStart) {
  // From a point to itself the azimuth is π, and the sine of the angle at the PI exactly 0.
  const THzPoint PI = GM::GetSpiralPI({10, 20, GM::dPi}, {.dX = 10, .dY = 20, .dRadius = 1, .dParameter = 5});
  EXPECT_EQ(PI.dX, 10);
  EXPECT_EQ(PI.dY, 20);
}

TEST(CubicSpiral, BehindACurveIsWorkedOutFromTheElementThatFollows) {
  // R 300, d0 60, 40 along the tangent of the next element: y = 40^3 / (6 R d0) (1 + 3 d0^2 / (64 R^2))
  const THzElement Spiral{.dX = 1, .dY = 2, .dRadius = 300, .dParameter = -60, .dLength = 20};
  const THzPoint Point =
      Alg::GetPointOnCubicSpiral(60, false, Spiral, {.dX = 150, .dY = 270, .dAzimuth = 100});
  EXPECT_NEAR(Point.dX, 150 + 40, 1e-9);
  EXPECT_NEAR(Point.dY, 270 - 64000.0 / 108000 * 1.001875, 1e-9);
}

}  // namespace
}  // namespace vrek
