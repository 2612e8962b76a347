#include "geometry/GM.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "base/Failure.h"

namespace vrek {
namespace {

TEST(Angles, OfEqualPointsAndTheAxes) {
  const auto Azimuth = [](double dX, double dY) { return GM::GetAzimuth({0, 0, 0}, {dX, dY, 0}); };
  EXPECT_EQ(Azimuth(0, 0), 3.14159265358979);
  EXPECT_EQ(Azimuth(0, 5), 0);
  EXPECT_EQ(Azimuth(5, 0), 1.5707963267949);
  EXPECT_EQ(Azimuth(0, -5), 3.14159265358979);
  EXPECT_EQ(Azimuth(-5, 0), 4.71238898038469);
  EXPECT_NEAR(Azimuth(-1, 1), 7 * GM::dPi / 4, 1e-12);
  EXPECT_NEAR(Azimuth(-1, -1), 5 * GM::dPi / 4, 1e-12);
  EXPECT_EQ(Azimuth(-1, 1), std::atan(-1.0) + 6.28318530717959);  // not the 2π of the normalization
}

TEST(Angles, AreNormalizedByOneStepOnly) {
  EXPECT_NEAR(GM::Normalized(-7), -0.71681469282042, 1e-12);
  EXPECT_EQ(GM::Normalized(GM::dTwoPiNormalize), GM::dTwoPiNormalize);
  EXPECT_NEAR(GM::Normalized(13), 13 - GM::dTwoPiNormalize, 1e-12);
}

TEST(Angles, ArcSinOfMinusOneTurnsThreeQuarters) {
  EXPECT_NEAR(GM::ArcSin(-1), 3 * GM::dHalfPi, 1e-12);
  EXPECT_NEAR(GM::ArcSin(1), GM::dHalfPi, 1e-12);
  EXPECT_NEAR(GM::ArcSin(0.5), GM::dPi / 6, 1e-12);
  EXPECT_THROW(GM::ArcSin(1.0000001), Failure);
}

struct TArc {
  const char* sLabel;
  double dRadius, dLength, dX, dY, dAzimuth;
  friend void PrintTo(const TArc& Case, std::ostream* pOut) { *pOut << Case.sLabel; }
};

class Arcs : public ::testing::TestWithParam<TArc> {};

TEST_P(Arcs, EndWhereTheCircleSays) {
  const auto& Arc = GetParam();
  const auto End = GM::PointOnArc({0, 0, 0}, Arc.dRadius, Arc.dLength, 0);
  EXPECT_NEAR(End.dX, Arc.dX, 1e-9);
  EXPECT_NEAR(End.dY, Arc.dY, 1e-9);
  EXPECT_NEAR(End.dAzimuth, Arc.dAzimuth, 1e-12);
  const auto Center = GM::GetArcCenter({0, 0, 0}, End, Arc.dRadius, Arc.dLength);
  EXPECT_NEAR(Center.dX, Arc.dRadius, 1e-4);  // near a half circle the chord says little of its side
  EXPECT_NEAR(Center.dY, 0, 1e-4);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, Arcs, ::testing::Values(
    TArc{"quarter right",        100, 100 * GM::dHalfPi,     100,  100, GM::dHalfPi},
    TArc{"quarter left",        -100, 100 * GM::dHalfPi,    -100,  100, GM::dThreeHalvesPi},
    TArc{"negative length",      100, -100 * GM::dHalfPi,    100,  100, GM::dHalfPi},
    TArc{"half right",           100, 100 * GM::dPi,         200,    0, GM::dPi},
    TArc{"three quarters right", 100, 300 * GM::dHalfPi,     100, -100, GM::dThreeHalvesPi},
    TArc{"three quarters left", -100, 300 * GM::dHalfPi,    -100, -100, GM::dHalfPi}));
// clang-format on

TEST(Arcs, OfExactlyHalfACircleEndOppositeTheirStart) {
  const THzPoint End = GM::PointOnArc({0, 0, 0}, 100, GM::dPi * 100, 0.25);
  EXPECT_NEAR(GM::GetDistance({0, 0, 0}, End), 200, 1e-9);
  EXPECT_EQ(End.dAzimuth, (0.25 + GM::dPi / 2) + GM::dPi / 2);
}

TEST(Arcs, RefuseAChordBeyondTheDiameter) {
  EXPECT_THROW(GM::GetArcCenter({0, 0, 0}, {0, 201, 0}, 100, 100), Failure);
}

THzElement Clothoid(double dRadius, double dParameter, double dLength) {
  THzElement Element;
  Element.dRadius = dRadius;
  Element.dParameter = dParameter;
  Element.dLength = dLength;
  return Element;
}

TEST(Clothoids, UnitPointIsTheSumOfItsSeries) {
  for (const double dTau : {0.0, 1e-9, 0.01, 0.125, 0.8, 1.5707963267949, 3.0}) {
    double x = 0, y = 0, dPlainX = 0, dPlainY = 0;
    GM::ClothoidUnitPoint(dTau, x, y);
    for (int i = 1; i <= 50; ++i) {
      double dEven = 1, dOdd = 1;
      for (int k = 2; k <= 2 * i - 2; ++k) dEven *= k;
      for (int k = 2; k <= 2 * i - 1; ++k) dOdd *= k;
      const double dSign = i % 2 == 1 ? 1 : -1;
      dPlainX += dSign * std::pow(dTau, 2 * i - 2) / ((4 * i - 3) * dEven);
      dPlainY += dSign * std::pow(dTau, 2 * i - 1) / ((4 * i - 1) * dOdd);
    }
    EXPECT_NEAR(x, dPlainX * std::sqrt(2 * dTau), 1e-15) << dTau;
    EXPECT_NEAR(y, dPlainY * std::sqrt(2 * dTau), 1e-15) << dTau;
  }
  double x = 0, y = 0;
  GM::ClothoidUnitPoint(0.125, x, y);
  EXPECT_NEAR(100 * x, 49.921931, 5e-7);
  EXPECT_NEAR(100 * y, 2.081009, 5e-7);
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

TEST(Clothoids, TheEarlyEndOfTheSeriesChangesNoBit) {
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

TEST(Clothoids, EndRadiusFromTheElementAlone) {
  EXPECT_DOUBLE_EQ(GM::GetClothoidEndRadius(Clothoid(0.001, 100, 50)), 200);
  EXPECT_DOUBLE_EQ(GM::GetClothoidEndRadius(Clothoid(-0.001, 100, 50)), -200);
  EXPECT_EQ(GM::GetClothoidEndRadius(Clothoid(200, 100, 50)), 0);
  EXPECT_DOUBLE_EQ(GM::GetClothoidEndRadius(Clothoid(-200, 100, 30)), -500);
}

TEST(Clothoids, EndRadiusWithTheNextElement) {
  // From 500 to 200 with A 100: 30 m.
  EXPECT_DOUBLE_EQ(GM::ChooseClothoidEndRadius(Clothoid(500, 100, 30), 0, 200), 200);
  EXPECT_DOUBLE_EQ(GM::ChooseClothoidEndRadius(Clothoid(-500, 100, 30), 0, -200), -200);
  EXPECT_DOUBLE_EQ(GM::ChooseClothoidEndRadius(Clothoid(200, 100, 30), 0, 500), 500);
  EXPECT_EQ(GM::ChooseClothoidEndRadius(Clothoid(200, 100, 50), 0, 0), 0);
  // The next radius doesn't fit: the deflection tells a growing from a falling curvature.
  const double dGrowing = (50.0 * 50 - 20.0 * 20) / 20000;
  EXPECT_DOUBLE_EQ(GM::ChooseClothoidEndRadius(Clothoid(500, 100, 30), dGrowing, 0), 200);
  EXPECT_DOUBLE_EQ(GM::ChooseClothoidEndRadius(Clothoid(200, 100, 30), dGrowing, 0), 500);
}

TEST(Clothoids, StartRadiusFromAzimuthsAndNeighbours) {
  const double A = std::sqrt(60.0 * 250), dDeflection = 60.0 / 500 / GM::dGonToRadians;
  EXPECT_EQ(GM::GetClothoidStartRadius(50, 50 + dDeflection, 0, 250, A), 0.001);
  EXPECT_EQ(GM::GetClothoidStartRadius(50, 50 - dDeflection, 0, -250, A), -0.001);
  EXPECT_EQ(GM::GetClothoidStartRadius(50, 50 + dDeflection, 250, 0, A), 250);
  EXPECT_EQ(GM::GetClothoidStartRadius(399, 399 + dDeflection - 400, 250, 0, A), 250);
  // Between two radii: t1 - t2.
  const double B = 100, t500 = B * B / 500 / 1000, t200 = B * B / 200 / 400;
  EXPECT_EQ(GM::GetClothoidStartRadius(10, 10 + (t200 - t500) / GM::dGonToRadians, 500, 200, B), 500);
  // Without a deflection the first hypothesis of radius 0 stands.
  EXPECT_EQ(GM::GetClothoidStartRadius(10, 10, 0, 0, B), 0);
}

TEST(MirrorPoint, TakesTheLineAsLevel) {
  const auto Image = GM::MirrorPoint({1, 2, 0}, {5, 9, 0}, {3, 7, 0});
  EXPECT_EQ(Image.dX, 3);
  EXPECT_EQ(Image.dY, -3);
  EXPECT_THROW(GM::MirrorPoint({1, 2, 0}, {1, 9, 0}, {3, 7, 0}), Failure);
}

TEST(Heights, AlongGradesParabolasAndCircles) {
  const TVtElements aVt = {
      {}, {1, 100, 50, 0.02, 0, 50}, {2, 150, 51, 0.02, -2000, 80}, {3, 230, 51, -0.02, 0, 20}};
  EXPECT_EQ(GM::GetHeightAtChainage({}, 100), 0);
  EXPECT_EQ(GM::GetHeightAtChainage(aVt, 50), 0);  // before the start: the unused element
  EXPECT_EQ(GM::GetHeightAtChainage(aVt, 100), 50);
  EXPECT_NEAR(GM::GetHeightAtChainage(aVt, 125), 50.5, 1e-12);
  EXPECT_EQ(GM::GetHeightAtChainage(aVt, 150), 51);
  EXPECT_NEAR(GM::GetHeightAtChainage(aVt, 190), 51.4, 1e-12);
  EXPECT_NEAR(GM::GetHeightAtChainage(aVt, 220), 51 + 70 * 0.02 - 70.0 * 70 / 4000, 1e-12);
  EXPECT_NEAR(GM::GetHeightAtChainage(aVt, 300), 51 - 70 * 0.02, 1e-12);
  // A circle that starts level: a crest falls, a sag rises, by the rise of the arc.
  const double dRise = 1000 - std::sqrt(1000.0 * 1000 - 50 * 50);
  EXPECT_NEAR(GM::GetHeightInElement({1, 0, 10, 0, -1000, -60}, 50), 10 - dRise, 1e-9);
  EXPECT_NEAR(GM::GetHeightInElement({1, 0, 10, 0, 1000, -60}, -50), 10 + dRise, 1e-9);
  EXPECT_THROW(GM::GetHeightOnCircle({1, 0, 10, 0, 1000, -60}, 1001), Failure);
}

}  // namespace
}  // namespace vrek
