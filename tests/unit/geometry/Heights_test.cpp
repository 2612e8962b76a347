// Heights along grades and parabolas, where elements meet, and on circular vertical curves.
#include <gtest/gtest.h>

#include <cmath>

#include "geometry/GM.h"
#include "unit/geometry/FailureOf.h"

namespace vrek {
namespace {

TEST(Heights, AlongGradesAndParabolas) {
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
}

TEST(Heights, BeyondTheMiddleOfAParabolaComeFromItsFarEndToTheLastBit) {
  const double H = 404.23, s = 0.0123, K = -3300, L = 77.7;
  for (const double dx : {39.1, 60.1, 76.6}) {
    const double r = L - dx;
    EXPECT_EQ(GM::GetHeightInElement({.dHeight = H, .dSlope = s, .dKv = K, .dLength = L}, dx),
              (H + (L / 2) * s) + (L / 2 - r) * (L / K + s) + r * r / (2 * K));
  }
}

TEST(Heights, OfTheFirstElementThatStartsAtAChainage) {
  const TVtElements aVt = {{},
                           {.dChainage = 100, .dHeight = 50},
                           {.dChainage = 300, .dHeight = 66},
                           {.dChainage = 300, .dHeight = 77}};
  EXPECT_EQ(GM::GetHeightAtChainage(aVt, 299.9), 50);
  EXPECT_EQ(GM::GetHeightAtChainage(aVt, 300), 66);
  EXPECT_EQ(GM::GetHeightAtChainage(aVt, 300.1), 77);
}

// The centre follows from the slope at the start alone.
TEST(CircularCurve, LiesOnItsCircle) {
  for (const double dKv : {-800.0, 800.0}) {
    for (const double dSlope : {-0.05, 0.0, 0.04}) {
      const TVtElement Curve{.dChainage = 1000, .dHeight = 10, .dSlope = dSlope, .dKv = dKv, .dLength = -100};
      const double dAngle = std::atan(dSlope), cx = 1000 - dKv * std::sin(dAngle),
                   cz = 10 + dKv * std::cos(dAngle);
      for (double dx = 0; dx <= 100; dx += 10) {
        const double z = GM::GetHeightInElement(Curve, dx);
        EXPECT_NEAR(std::hypot(1000 + dx - cx, z - cz), 800, 1e-9) << dKv << " " << dSlope << " " << dx;
        EXPECT_EQ(z > cz, dKv < 0);
        EXPECT_EQ(z, GM::GetHeightInElement(Curve, -dx));
        EXPECT_EQ(z, GM::GetHeightAtChainage({{}, Curve}, 1000 + dx));
      }
    }
  }
}

TEST(CircularCurve, EndsWithItsCircle) {
  const TVtElement Curve{.dHeight = 10, .dKv = -100, .dLength = -50};
  EXPECT_NEAR(GM::GetHeightAtChainage({{}, Curve}, 60), 10 - 20, 1e-12);
  EXPECT_EQ(test::FailureOf([&] { GM::GetHeightOnCircle(Curve, 100.5); }), Error::nInvalidCall);
  EXPECT_EQ(GM::GetHeightAtChainage({{}, Curve}, 100.5), 0);
}

TEST(CircularCurve, WithoutLengthIsOneOnlyInAProfile) {
  const TVtElement Curve{.dHeight = 10, .dSlope = 0.01, .dKv = 1000, .dLength = 0};
  EXPECT_EQ(GM::GetHeightAtChainage({{}, Curve}, 20), GM::GetHeightOnCircle(Curve, 20));
  EXPECT_NEAR(GM::GetHeightInElement(Curve, 20), 10 + 20 * 0.01 + 0.2, 1e-12);
}

}  // namespace
}  // namespace vrek
