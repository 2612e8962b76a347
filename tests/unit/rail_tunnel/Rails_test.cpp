#include <cmath>

#include "unit/rail_tunnel/Tracks.h"

namespace vrek {
namespace {

constexpr double dGauge = 1.435, dBase = 1.5, dZ = 100;

struct TRails {
  bool bFound = false;
  double d = 1, dLeft = 2, dRight = 3;
};

class Rails : public test::TrackTest {
 protected:
  Rails() {
    SetLevel(1, dZ);
    SetRadius(0);
  }
  /// Plans whose radius is the one wanted, up to chainage 15.
  static void SetRadius(double dRadius) {
    for (int n = 1; n <= 3; ++n) {
      CAligmentsDatas::SetAligmentHz(n, {{},
                                         {.nId = 1, .dRadius = dRadius, .dLength = 15},
                                         {.nId = 2, .dChainage = 15, .dRadius = -dRadius, .dLength = 100}});
    }
  }
  TRails At(const clsSuperelevation& Cant, double dChainage, int nAligment = 1,
            std::string_view sStringLine = {}) {
    TRails Found;
    Found.bFound = Cant.ComputeRails(Found.d, Found.dLeft, Found.dRight, nAligment, dChainage, sStringLine);
    return Found;
  }
  /// A height of dZ moved to a track over the plane at chainage 10.
  double Moved(const clsSuperelevation& Cant, int nAligment, double dDistance, bool bFromCentre) {
    double dHeight = dZ;
    EXPECT_TRUE(Cant.CalcHeightVtAligmentCoplane(nAligment, 10, dDistance, dHeight, bFromCentre));
    return dHeight;
  }
};

// Half the plan distance of two rails a gauge apart on a plane that rises by dRise over the base: the plane's
// unit vector across the track, times half the gauge, seen from above.
double SeenFromAbove(double dRise) {
  return 0.5 * dGauge * std::cos(std::asin(dRise / dBase));
}

TEST_F(Rails, AndThePlaneFollowTheRotationPointAndTheCurveAtTheRowsStation) {
  constexpr double c = 0.080;
  const struct {
    std::string sRow;
    double dRadius, dRise, dLeft, dRight;  // of the plane over the base, of the rails above the axis
    int nWay;                              // -1: the left side lies lower, 1: the right side, 0: level
  } aCases[] = {
      // clang-format off
      {Row(10, 80, "leftRail"),       0, c,      0,      c, -1},
      {Row(10, 80, "rightRail"),   -500, c,      c,      0,  1},
      {Row(10, 80, "insideRail"),     0, 0,      0,      0,  0},
      {Row(10, 80, "insideRail"),   500, c,      c,      0,  1},
      {Row(10, 80, "insideRail"),  -500, c,      0,      c, -1},
      {Row(10, 80, "outsideRail"),    0, 0,      0,      0,  0},
      {Row(10, 80, "outsideRail"),  500, c,      0,      c, -1},
      {Row(10, 80, "outsideRail"), -500, c,      c,      0,  1},
      {Row(10, 80, "center"),         0, 0,      0,      0,  0},
      {Row(10, 80, "center"),       500, c,  c / 2, -c / 2,  1},
      {Row(10, 80, "center"),      -500, c, -c / 2,  c / 2, -1},
      // clang-format on
  };
  const double dDistance = 4, dRise = dDistance * c / std::sqrt(dBase * dBase - c * c);
  for (const auto& Case : aCases) {
    SCOPED_TRACE(Case.sRow + " in " + std::to_string(Case.dRadius));
    SetRadius(Case.dRadius);
    const auto Cant = Table(Case.sRow);
    const TRails Found = At(Cant, 50);  // where the curve is another one
    EXPECT_TRUE(Found.bFound);
    EXPECT_NEAR(Found.d, SeenFromAbove(Case.dRise), 1e-14);
    EXPECT_EQ(Found.dLeft, dZ + Case.dLeft);
    EXPECT_EQ(Found.dRight, dZ + Case.dRight);
    for (const bool bFromCentre : {false, true}) {
      const double dMove = bFromCentre ? dRise - c / 2 : dRise;
      EXPECT_NEAR(Moved(Cant, 2, -dDistance, bFromCentre), dZ + Case.nWay * dMove, 1e-12);
      EXPECT_NEAR(Moved(Cant, 3, dDistance, bFromCentre), dZ - Case.nWay * dMove, 1e-12);
      EXPECT_EQ(Moved(Cant, 1, dDistance, bFromCentre), dZ);
    }
  }
}

TEST_F(Rails, AndThePlaneFollowTheLiftsOfBoth) {
  for (const auto& [nLeft, nRight] : {std::pair(-20, 40), std::pair(300, -250), std::pair(70, 70)}) {
    const auto Cant = Table(Row(10, nLeft, nRight));
    const double dRise = (nRight - nLeft) * 0.001;
    const TRails Found = At(Cant, 10);
    EXPECT_NEAR(Found.d, SeenFromAbove(dRise), 1e-14) << nLeft;
    EXPECT_EQ(Found.dLeft, dZ + nLeft * 0.001);
    EXPECT_EQ(Found.dRight, dZ + nRight * 0.001);
    EXPECT_NEAR(Moved(Cant, 2, 4, false), dZ - 4 * std::fabs(dRise) / dBase, 1e-12) << nLeft;
    EXPECT_NEAR(Moved(Cant, 3, 4, false), dZ + 4 * std::fabs(dRise) / dBase, 1e-12) << nLeft;
  }
}

TEST_F(Rails, TakeTheRowWithoutInterpolation) {
  const auto Cant = Table(Row(10, 0, "leftRail") + Row(20, 80, "leftRail"));
  EXPECT_EQ(At(Cant, 19.999).dRight, dZ);
  EXPECT_NEAR(At(Cant, 19.999).d, dGauge / 2, 1e-15);
  EXPECT_EQ(At(Cant, 500).dRight, dZ + 0.080) << "beyond the table";
}

TEST_F(Rails, StayAsTheyWereWhereARowSetsNothing) {
  const auto Cant = Table(Row(10, 80, "platformAxis"));
  EXPECT_FALSE(At(Cant, 9.999).bFound) << "before the table";
  const TRails Found = At(Cant, 10);
  EXPECT_TRUE(Found.bFound);
  EXPECT_EQ(std::vector({Found.d, Found.dLeft, Found.dRight}), std::vector({1.0, 2.0, 3.0}));
  EXPECT_EQ(Moved(Cant, 2, 4, false), dZ);
  EXPECT_EQ(Boxes(), "");
}

TEST_F(Rails, ReportACantBeyondItsBase) {
  EXPECT_FALSE(At(Table(Row(10, 1501, "leftRail")), 10).bFound);
  EXPECT_EQ(Boxes(), "Unhandler Error in ComputeRails\r\nInvalid procedure call or argument|");
}

TEST_F(Rails, TakeTheHeightFromProfileOrStringline) {
  const auto Cant = Table(Row(10, 0, "leftRail"));
  EXPECT_EQ(At(Cant, 10, 2).dLeft, 0) << "no profile";
  SetStringLine(2, {}, {{}, {.nId = 1, .dHeight = 7, .dSlope = 0.1, .dLength = 100}});
  EXPECT_EQ(At(Cant, 10, 2, "axis").dLeft, 8);
  EXPECT_EQ(At(Cant, 10, 2, "another").dLeft, 0);
  SetLevel(2, 50);
  EXPECT_EQ(At(Cant, 10, 2, "axis").dLeft, 50);
}

using CantPlane = Rails;

TEST_F(CantPlane, LeavesTheHeightBeforeTheTableAndOnAFailure) {
  double dHeight = dZ;
  EXPECT_FALSE(Table(Row(10, 90, "leftRail")).CalcHeightVtAligmentCoplane(2, 9, 4, dHeight, true));
  EXPECT_EQ(Boxes(), "");
  EXPECT_FALSE(Table(Row(10, 1600, "leftRail")).CalcHeightVtAligmentCoplane(2, 10, 4, dHeight, true));
  EXPECT_EQ(dHeight, dZ);
  EXPECT_EQ(Boxes(),
            "Unhandler Error in ModifyHeightVtAligmentCoplane\r\nInvalid procedure call or argument|");
}

}  // namespace
}  // namespace vrek
