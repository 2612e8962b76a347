// Angles, arcs and mirror images.
#include "geometry/GM.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/Failure.h"

namespace vrek {
namespace {

TEST(Angles, OfEqualPointsAndTheAxes) {
  const auto Azimuth = [](double dX, double dY) { return GM::GetAzimuth({0, 0, 0}, {dX, dY, 0}); };
  EXPECT_EQ(Azimuth(0, 0), 3.14159265358979);
  EXPECT_EQ(Azimuth(0, 5), 0);
  EXPECT_EQ(Azimuth(5, 0), 1.5707963267949);
  EXPECT_EQ(Azimuth(-5, 0), 4.71238898038469);
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

TEST(Arcs, EndWhereTheCircleSays) {
  const struct {
    const char* sLabel;
    double dRadius, dLength, dX, dY, dAzimuth;
  } aCases[] = {
      // clang-format off
      {"quarter right",        100, 100 * GM::dHalfPi,   100,  100, GM::dHalfPi},
      {"negative length",      100, -100 * GM::dHalfPi,  100,  100, GM::dHalfPi},
      {"three quarters right", 100, 300 * GM::dHalfPi,   100, -100, GM::dThreeHalvesPi},
      {"three quarters left", -100, 300 * GM::dHalfPi,  -100, -100, GM::dHalfPi},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    SCOPED_TRACE(Case.sLabel);
    const auto End = GM::PointOnArc({0, 0, 0}, Case.dRadius, Case.dLength, 0);
    EXPECT_NEAR(End.dX, Case.dX, 1e-9);
    EXPECT_NEAR(End.dY, Case.dY, 1e-9);
    EXPECT_NEAR(End.dAzimuth, Case.dAzimuth, 1e-12);
    const auto Center = GM::GetArcCenter({0, 0, 0}, End, Case.dRadius, Case.dLength);
    EXPECT_NEAR(Center.dX, Case.dRadius, 1e-4);  // near a half circle the chord says little of its side
    EXPECT_NEAR(Center.dY, 0, 1e-4);
  }
  EXPECT_EQ(GM::PointOnArc({}, 100, GM::dPi * 100, 0.25).dAzimuth, (0.25 + GM::dPi / 2) + GM::dPi / 2);
  EXPECT_THROW(GM::GetArcCenter({0, 0, 0}, {0, 201, 0}, 100, 100), Failure);  // a chord beyond the diameter
}

TEST(MirrorPoint, TakesTheLineAsLevel) {
  const auto Image = GM::MirrorPoint({1, 2, 0}, {5, 9, 0}, {3, 7, 0});
  EXPECT_EQ(Image.dX, 3);
  EXPECT_EQ(Image.dY, -3);
  EXPECT_THROW(GM::MirrorPoint({1, 2, 0}, {1, 9, 0}, {3, 7, 0}), Failure);
}

}  // namespace
}  // namespace vrek
