#include <cmath>
#include <random>

#include "unit/rail_tunnel/Tracks.h"

namespace vrek {
namespace {

constexpr double dGauge = 1.435, dBase = 1.5, dZ = 100;

class Rails : public test::TrackTest {
 protected:
  Rails() {
    SetLevel(1, dZ);
    // A plan whose radius at station 10 is the one wanted.
    SetRadius(0);
  }
  static void SetRadius(double dRadius) {
    THzElements aHz(2);
    aHz[1].dRadius = dRadius;
    aHz[1].dLength = 1000;
    for (int n = 1; n <= 3; ++n) CAligmentsDatas::SetAligmentHz(n, aHz);
  }
};

// Half the plan distance of two rails a gauge apart on a plane that rises by dRise over the base: the plane's
// unit vector across the track, times half the gauge, seen from above.
double SeenFromAbove(double dRise) {
  return 0.5 * dGauge * std::cos(std::asin(dRise / dBase));
}

TEST_F(Rails, FollowTheRotationPointAndTheCurve) {
  constexpr double c = 0.080;
  const struct {
    const char* sRotationPoint;
    double dRadius, dRise, dLeft, dRight;
  } aCases[] = {
      // clang-format off
      {"leftRail",       0, c,      0,      c},
      {"leftRail",     500, c,      0,      c},
      {"rightRail",      0, c,      c,      0},
      {"rightRail",   -500, c,      c,      0},
      {"insideRail",     0, 0,      0,      0},
      {"insideRail",   500, c,      c,      0},
      {"insideRail",  -500, c,      0,      c},
      {"outsideRail",    0, 0,      0,      0},
      {"outsideRail",  500, c,      0,      c},
      {"outsideRail", -500, c,      c,      0},
      {"center",         0, 0,      0,      0},
      {"center",       500, c,  c / 2, -c / 2},
      {"center",      -500, c, -c / 2,  c / 2},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    SetRadius(Case.dRadius);
    double d = -1, dLeft = -1, dRight = -1;
    EXPECT_TRUE(Table(Row(10, 80, Case.sRotationPoint)).ComputeRails(d, dLeft, dRight, 1, 15));
    const std::string sLabel = Case.sRotationPoint + std::string(" ") + std::to_string(Case.dRadius);
    EXPECT_NEAR(d, SeenFromAbove(Case.dRise), 1e-14) << sLabel;
    EXPECT_EQ(dLeft, dZ + Case.dLeft) << sLabel;
    EXPECT_EQ(dRight, dZ + Case.dRight) << sLabel;
  }
}

TEST_F(Rails, LieAGaugeApartOnTheTiltedPlane) {
  std::mt19937 Random(7);
  std::uniform_int_distribution<int> Lift(-300, 300);
  for (int n = 0; n < 200; ++n) {
    const int l = Lift(Random), r = Lift(Random);
    double d = 0, dLeft = 0, dRight = 0;
    ASSERT_TRUE(Table(Row(10, l, r)).ComputeRails(d, dLeft, dRight, 1, 10));
    // The plane's slope from the heights over the base, then the distance of the two points upon it.
    const double dSin = (dRight - dLeft) / dBase;
    EXPECT_NEAR(std::hypot(2 * d, dGauge * dSin), dGauge, 1e-12) << l << " " << r;
    EXPECT_NEAR(dLeft - dZ, l * 0.001, 1e-12);
  }
}

TEST_F(Rails, TakeTheRowWithoutInterpolation) {
  const auto Cant = Table(Row(10, 0, "leftRail") + Row(20, 80, "leftRail"));
  double d = 0, dLeft = 0, dRight = 0;
  EXPECT_TRUE(Cant.ComputeRails(d, dLeft, dRight, 1, 19.999));
  EXPECT_EQ(dRight, dZ);
  EXPECT_NEAR(d, 0.7175, 1e-15);
  EXPECT_TRUE(Cant.ComputeRails(d, dLeft, dRight, 1, 500));
  EXPECT_EQ(dRight, dZ + 0.080) << "beyond the table";
}

TEST_F(Rails, TakeTheRadiusAtTheRowsStation) {
  THzElements aHz(3);
  aHz[1] = {.nId = 1, .dRadius = 500, .dLength = 15};
  aHz[2] = {.nId = 2, .dChainage = 15, .dRadius = -500, .dLength = 100};
  CAligmentsDatas::SetAligmentHz(1, aHz);
  double d = 0, dLeft = 0, dRight = 0;
  Table(Row(10, 80, "insideRail")).ComputeRails(d, dLeft, dRight, 1, 50);
  EXPECT_EQ(dLeft, dZ + 0.080);
}

TEST_F(Rails, StayAsTheyWereWhereARowSetsNothing) {
  const auto Cant = Table(Row(10, 80, "platformAxis"));
  double d = 1, dLeft = 2, dRight = 3;
  EXPECT_FALSE(Cant.ComputeRails(d, dLeft, dRight, 1, 9.999)) << "before the table";
  EXPECT_TRUE(Cant.ComputeRails(d, dLeft, dRight, 1, 10));
  EXPECT_EQ(std::vector({d, dLeft, dRight}), std::vector({1.0, 2.0, 3.0}));
  EXPECT_TRUE(Platform.aBoxes.empty());
}

TEST_F(Rails, ReportACantBeyondItsBase) {
  double d = 0, dLeft = 0, dRight = 0;
  EXPECT_FALSE(Table(Row(10, 1501, "leftRail")).ComputeRails(d, dLeft, dRight, 1, 10));
  EXPECT_EQ(Boxes(), "Unhandler Error in ComputeRails\r\nInvalid procedure call or argument|");
}

TEST_F(Rails, TakeTheHeightFromProfileOrStringline) {
  const auto Cant = Table(Row(10, 0, "leftRail"));
  double d = 0, dLeft = 0, dRight = 0;
  Cant.ComputeRails(d, dLeft, dRight, 2, 10);
  EXPECT_EQ(dLeft, 0) << "no profile";
  TStringLines StrLn;
  StrLn.nCount = 1;
  StrLn.Lines.resize(2);
  StrLn.Lines[1].sName = "axis";
  StrLn.Lines[1].Vt = {{}, {.nId = 1, .dHeight = 7, .dSlope = 0.1, .dLength = 100}};
  CAligmentsDatas::SetAligmentStrLn(2, StrLn);
  Cant.ComputeRails(d, dLeft, dRight, 2, 10, "axis");
  EXPECT_EQ(dLeft, 8);
  Cant.ComputeRails(d, dLeft, dRight, 2, 10, "another");
  EXPECT_EQ(dLeft, 0);
  SetLevel(2, 50);
  Cant.ComputeRails(d, dLeft, dRight, 2, 10, "axis");
  EXPECT_EQ(dLeft, 50);
}

class CantPlane : public Rails {};

TEST_F(CantPlane, FallsTowardsTheLowerRail) {
  constexpr double c = 0.090, dDistance = 4;
  // The plane rises by c over the base; dWay -1: the left side lies lower, +1: the right side, 0: level.
  const struct {
    const char* sRotationPoint;
    double dRadius;
    int nWay;
  } aCases[] = {
      {"insideRail", 500, 1},   {"insideRail", -500, -1}, {"insideRail", 0, 0}, {"outsideRail", 500, -1},
      {"outsideRail", -500, 1}, {"outsideRail", 0, 0},    {"center", 500, 1},   {"center", -500, -1},
      {"center", 0, 0},         {"leftRail", 0, -1},      {"rightRail", 0, 1},  {"platformAxis", 500, 0},
  };
  const double dRise = dDistance * c / std::sqrt(dBase * dBase - c * c);  // along the plane, seen from above
  for (const auto& Case : aCases) {
    SetRadius(Case.dRadius);
    const auto Cant = Table(Row(10, 90, Case.sRotationPoint));
    for (const bool bFromCentre : {false, true}) {
      const double dMove = bFromCentre ? dRise - c / 2 : dRise;
      double dLeft = dZ, dRight = dZ, dOther = dZ;
      EXPECT_TRUE(Cant.CalcHeightVtAligmentCoplane(2, 10, -dDistance, dLeft, bFromCentre));
      EXPECT_TRUE(Cant.CalcHeightVtAligmentCoplane(3, 10, dDistance, dRight, bFromCentre));
      EXPECT_TRUE(Cant.CalcHeightVtAligmentCoplane(1, 10, dDistance, dOther, bFromCentre));
      EXPECT_NEAR(dLeft, dZ + Case.nWay * dMove, 1e-12) << Case.sRotationPoint << Case.dRadius;
      EXPECT_NEAR(dRight, dZ - Case.nWay * dMove, 1e-12) << Case.sRotationPoint << Case.dRadius;
      EXPECT_EQ(dOther, dZ);
    }
  }
}

TEST_F(CantPlane, FollowsTheLiftsOfBothRails) {
  double dLeft = dZ, dRight = dZ;
  // Left rail 60 mm below the right one: the plane rises to the right by 60 mm over the base.
  Table(Row(10, -20, 40)).CalcHeightVtAligmentCoplane(2, 10, 4, dLeft, false);
  Table(Row(10, -20, 40)).CalcHeightVtAligmentCoplane(3, 10, 4, dRight, false);
  EXPECT_NEAR(dLeft, dZ - 4 * 0.060 / dBase, 1e-12);
  EXPECT_NEAR(dRight, dZ + 4 * 0.060 / dBase, 1e-12);
}

TEST_F(CantPlane, LeavesTheHeightBeforeTheTableAndOnAFailure) {
  double dHeight = dZ;
  EXPECT_FALSE(Table(Row(10, 90, "leftRail")).CalcHeightVtAligmentCoplane(2, 9, 4, dHeight, true));
  EXPECT_TRUE(Platform.aBoxes.empty());
  EXPECT_FALSE(Table(Row(10, 1600, "leftRail")).CalcHeightVtAligmentCoplane(2, 10, 4, dHeight, true));
  EXPECT_EQ(dHeight, dZ);
  EXPECT_EQ(Boxes(),
            "Unhandler Error in ModifyHeightVtAligmentCoplane\r\nInvalid procedure call or argument|");
}

}  // namespace
}  // namespace vrek
