// Clothoids: their series, what their radii must be, and where their formulas end: no length, no solution, a
// start that could be anywhere.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "geometry/Alg.h"
#include "unit/geometry/Curvature.h"
#include "unit/geometry/FailureOf.h"

namespace vrek {
namespace {

// Parameter 100: 50 m lead from a straight to radius 200, 30 m from radius 500 to 200.
THzElement Clothoid(double dRadius, double dLength) {
  return {.dX = 7, .dY = 9, .dAzimuth = 0, .dRadius = dRadius, .dParameter = 100, .dLength = dLength};
}

// All fifty terms, with the powers built as the converter builds them.
THzPoint SumOfAllTerms(double dTau) {
  double x = 0, y = 0, dPower = 1, dFactorial = 1;
  for (int i = 1; i <= 50; ++i) {
    const double dSign = i % 2 == 1 ? 1 : -1;
    x += dSign * dPower / ((4 * i - 3) * dFactorial);
    dPower *= dTau;
    dFactorial *= 2 * i - 1;
    y += dSign * dPower / ((4 * i - 1) * dFactorial);
    dPower *= dTau;
    dFactorial *= 2 * i;
  }
  return {x * std::sqrt(2 * dTau), y * std::sqrt(2 * dTau), 0};
}

TEST(UnitPoint, IsTheSumOfAllTermsToTheLastBit) {
  std::mt19937_64 Random(11);
  std::uniform_real_distribution<double> Exponent(-40, 2);
  for (int n = 0; n < 20000; ++n) {
    const double dTau = std::pow(10, n % 2 == 0 ? Exponent(Random) : Exponent(Random) / 20);
    double x = 0, y = 0;
    GM::ClothoidUnitPoint(dTau, x, y);
    const auto All = SumOfAllTerms(dTau);
    ASSERT_EQ(x, All.dX) << dTau;
    ASSERT_EQ(y, All.dY) << dTau;
  }
}

TEST(EndRadius, FromTheElementAlone) {
  EXPECT_DOUBLE_EQ(GM::GetClothoidEndRadius(Clothoid(0.001, 50)), 200);
  EXPECT_DOUBLE_EQ(GM::GetClothoidEndRadius(Clothoid(-0.001, 50)), -200);
  EXPECT_DOUBLE_EQ(GM::GetClothoidEndRadius(Clothoid(-200, 30)), -500);
  EXPECT_EQ(GM::GetClothoidEndRadius(Clothoid(-200, 50.0199)), 0);  // within two centimetres
  EXPECT_NE(GM::GetClothoidEndRadius(Clothoid(-200, 50.0201)), 0);
}

TEST(EndRadius, WithTheNextElement) {
  EXPECT_DOUBLE_EQ(GM::ChooseClothoidEndRadius(Clothoid(500, 30), 0, 200), 200);
  EXPECT_DOUBLE_EQ(GM::ChooseClothoidEndRadius(Clothoid(-500, 30), 0, -200), -200);
  EXPECT_DOUBLE_EQ(GM::ChooseClothoidEndRadius(Clothoid(200, 30), 0, 500), 500);
  EXPECT_EQ(GM::ChooseClothoidEndRadius(Clothoid(200, 49.9801), 0, 5), 0);
  EXPECT_NE(GM::ChooseClothoidEndRadius(Clothoid(200, 49.9799), 0, 5), 0);
  // The next radius doesn't fit: the deflection tells a growing from a falling curvature.
  const double dGrowing = (50.0 * 50 - 20.0 * 20) / 20000;
  EXPECT_DOUBLE_EQ(GM::ChooseClothoidEndRadius(Clothoid(500, 30), dGrowing, 0), 200);
  EXPECT_DOUBLE_EQ(GM::ChooseClothoidEndRadius(Clothoid(-500, 30), -dGrowing, 0), -200);
  EXPECT_DOUBLE_EQ(GM::ChooseClothoidEndRadius(Clothoid(200, 30), dGrowing, 0), 500);
}

TEST(EndRadius, GrowsInAnAlignmentOnlyWhereTheNextElementSaysSo) {
  EXPECT_DOUBLE_EQ(Alg::EndRadiusInAligment({{}, Clothoid(500, 30), {.dRadius = 200}}, 1), 200);
  EXPECT_DOUBLE_EQ(Alg::EndRadiusInAligment({{}, Clothoid(500, 30)}, 1), 1000);
  EXPECT_DOUBLE_EQ(Alg::EndRadiusInAligment({{}, Clothoid(0.001, 50), {.dRadius = 100}}, 1), 200);
  EXPECT_DOUBLE_EQ(Alg::EndRadiusInAligment({{}, Clothoid(-200, 30.01), {.dRadius = -500}}, 1),
                   -10000 / 19.99);
}

TEST(EndRadius, OfNoLengthFromAStraightIsADivisionByZeroOnlyWithANextElement) {
  EXPECT_EQ(test::FailureOf([] { GM::ChooseClothoidEndRadius(Clothoid(0.001, 0), 0, 200); }),
            Error::nDivisionByZero);
  EXPECT_EQ(Alg::EndRadiusInAligment({{}, Clothoid(0.001, 0), {.dRadius = 200}}, 1), 0);
}

TEST(StartRadius, ComesFromAzimuthsAndNeighbours) {
  const double A = std::sqrt(60.0 * 250), dDeflection = 60.0 / 500 / GM::dGonToRadians;
  EXPECT_EQ(GM::GetClothoidStartRadius(50, 50 + dDeflection, 0, 250, A), 0.001);
  EXPECT_EQ(GM::GetClothoidStartRadius(50, 50 - dDeflection, 0, -250, A), -0.001);
  EXPECT_EQ(GM::GetClothoidStartRadius(399, 399 + dDeflection - 400, 250, 0, A), 250);
  // Between two radii: t1 - t2.
  const double B = 100, t500 = B * B / 500 / 1000, t200 = B * B / 200 / 400;
  EXPECT_EQ(GM::GetClothoidStartRadius(10, 10 + (t200 - t500) / GM::dGonToRadians, 500, 200, B), 500);
  // Without a deflection, and on a tie, the earliest hypothesis stands; no turn counts as right.
  EXPECT_EQ(GM::GetClothoidStartRadius(10, 10, 0, 0, B), 0);
  EXPECT_EQ(GM::GetClothoidStartRadius(100, 120, 200, 200, B), 200);
  EXPECT_EQ(GM::GetClothoidStartRadius(100, 100, 500, -200, B), 500);
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
    const THzPoint End = Alg::GetPointOnClothoid(50, 0, Clothoid(dRadius, 50)),
                   True = test::Integrate({7, 9, 0}, {50, 1 / dRadius, 0}, 50);
    EXPECT_NEAR(End.dX, True.dX, 1e-9);
    EXPECT_NEAR(End.dY, True.dY, 1e-9);
    EXPECT_NEAR(std::sin(End.dAzimuth - True.dAzimuth), 0, 1e-12);
  }
  EXPECT_EQ(Alg::GetPointOnClothoid(0, 0, Clothoid(500, 30)).dX, 7);
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
