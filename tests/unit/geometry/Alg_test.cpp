// Along whole alignments: from a chainage to a point and back, held against integrated curvature.
#include "geometry/Alg.h"

#include <random>

#include "geometry/AligmentIndex.h"
#include "support/TestApp.h"
#include "unit/geometry/Curvature.h"

namespace vrek {
namespace {

using TPieces = std::vector<test::TPiece>;

constexpr double R = 500, Q = 200;

struct TLabelled {
  std::string sLabel;
  TPieces aPieces;
};

const std::vector<TLabelled> aLayouts = {
    // clang-format off
    {"straight",                {{100, 0, 0}}},
    {"arc left",                {{300, -1 / R, -1 / R}}},
    {"beyond a half circle",    {{420, 1 / 100.0, 1 / 100.0}}},
    {"from a straight, right",  {{80, 0, 1 / R}}},
    {"from a straight, left",   {{80, 0, -1 / Q}}},
    {"to a straight, right",    {{80, 1 / R, 0}}},
    {"to a straight, left",     {{80, -1 / Q, 0}}},
    {"falling, right",          {{70, 1 / Q, 1 / R}, {40, 1 / R, 1 / R}}},
    {"falling, left",           {{70, -1 / Q, -1 / R}, {40, -1 / R, -1 / R}}},
    {"growing, right",          {{70, 1 / R, 1 / Q}, {40, 1 / Q, 1 / Q}}},
    {"growing, left",           {{70, -1 / R, -1 / Q}, {40, -1 / Q, -1 / Q}}},
    // clang-format on
};

/// An alignment and, by integration, the truth about it.
struct TLayout {
  explicit TLayout(TPieces Pieces) : aPieces(std::move(Pieces)) {}

  // Point and azimuth s metres into a piece.
  THzPoint True(std::size_t nPiece, double s) const {
    const THzElement& Element = aHz[nPiece + 1];
    return test::Integrate({Element.dX, Element.dY, Element.dAzimuth * GM::dGonToRadians}, aPieces[nPiece],
                           s);
  }
  void ExpectPoint(std::size_t nPiece, double s) const {
    THzPoint Point;
    EXPECT_TRUE(Alg::GetCoordFromHzAligment(aHz, aHz[nPiece + 1].dChainage + s, Point));
    const THzPoint Expected = True(nPiece, s);
    EXPECT_NEAR(Point.dX, Expected.dX, 5e-6) << "piece " << nPiece << " at " << s;
    EXPECT_NEAR(Point.dY, Expected.dY, 5e-6) << "piece " << nPiece << " at " << s;
    EXPECT_NEAR(std::sin(Point.dAzimuth - Expected.dAzimuth), 0, 1e-9) << "piece " << nPiece << " at " << s;
  }
  // False where the piece isn't asked, as only the elements beside the nearest vertex are.
  bool ExpectBack(std::size_t nPiece, double s, double dOffset) const {
    const THzPoint On = True(nPiece, s), Point = GM::PolarPoint(On, On.dAzimuth + std::acos(0.0), dOffset);
    const auto nNearest = static_cast<std::size_t>(Index.NearestVertex(Point));
    if (nNearest != nPiece + 1 && nNearest != nPiece + 2) return false;
    double dChainage = 0, dFound = 0, dIndexed = 0, dIndexedOffset = 0;
    EXPECT_TRUE(Alg::ProjectPointToAligment(dChainage, dFound, Point, aHz, 1, UpperBound(aHz)));
    EXPECT_NEAR(dChainage, aHz[nPiece + 1].dChainage + s, 0.00101) << "piece " << nPiece << " " << dOffset;
    EXPECT_NEAR(dFound, dOffset, 0.00101) << "piece " << nPiece << " at " << s;
    Alg::ProjectPointToAligment(dIndexed, dIndexedOffset, Point, Index);
    EXPECT_EQ(dIndexed, dChainage);
    EXPECT_EQ(dIndexedOffset, dFound);
    return true;
  }

  TPieces aPieces;
  THzElements aHz = test::LayOut({431200.25, 4581300.75, 1.1}, 1000, aPieces);
  Alg::CHzIndex Index{aHz};
};

// Curves with their transitions, long arcs among them.
TLabelled RandomLayout(unsigned nSeed) {
  std::mt19937 Random(nSeed);
  const auto Between = [&](double dLow, double dHigh) {
    return std::uniform_real_distribution<double>(dLow, dHigh)(Random);
  };
  TLabelled Layout{"random " + std::to_string(nSeed), {}};
  for (int n = 0; n < 4; ++n) {
    const double k = (Random() % 2 == 0 ? 1 : -1) / Between(250, 3000), k2 = k * Between(1.3, 2);
    const double dArc = Between(60, 0.6 / std::fabs(k2));
    for (const test::TPiece& Piece :
         {test::TPiece{Between(60, 200), 0, 0}, test::TPiece{Between(40, 120), 0, k},
          test::TPiece{dArc, k, k}, test::TPiece{Between(40, 120), k, k2}, test::TPiece{dArc, k2, k2},
          test::TPiece{Between(40, 120), k2, 0}}) {
      Layout.aPieces.push_back(Piece);
    }
  }
  return Layout;
}

using Alignments = test::AppTest;

TEST_F(Alignments, LeadWhereTheirCurvatureDoesAndBack) {
  auto aAll = aLayouts;
  for (unsigned nSeed = 0; nSeed < 12; ++nSeed) aAll.push_back(RandomLayout(nSeed));
  int nBack = 0;
  for (const auto& [sLabel, aPieces] : aAll) {
    SCOPED_TRACE(sLabel);
    const TLayout Layout(aPieces);
    for (std::size_t i = 0; i < aPieces.size(); ++i) {
      for (double s = 0; s <= aPieces[i].dLength - 0.001; s += 7.3) Layout.ExpectPoint(i, s);
      for (double s = 0.5; s < aPieces[i].dLength; s += 9.7) {
        for (const double dOffset : {-12.0, -3.5, 0.0, 2.1, 25.0}) nBack += Layout.ExpectBack(i, s, dOffset);
      }
    }
  }
  EXPECT_GT(nBack, 20000);
  EXPECT_TRUE(Platform.aBoxes.empty());
}

using Evaluation = test::AppTest;

TEST_F(Evaluation, TakesTheFirstOfElementsThatStartAtTheChainageAndTheLastBehindIt) {
  const THzElements aHz = {{},
                           {.dLength = 10},
                           {.dChainage = 10, .dX = 1, .dY = 10},
                           {.dChainage = 10, .dX = 2, .dY = 10, .dLength = 5}};
  THzPoint Point;
  ASSERT_TRUE(Alg::GetCoordFromHzAligment(aHz, 10, Point));
  EXPECT_EQ(Point.dX, 1);
  ASSERT_TRUE(Alg::GetCoordFromHzAligment(aHz, 12, Point));
  EXPECT_EQ(Point.dX, 2);
  EXPECT_EQ(Point.dY, 12);
  // Out of order, too, and with another start between them.
  ASSERT_TRUE(Alg::GetCoordFromHzAligment({{},
                                           {.dLength = 100},
                                           {.dChainage = 100, .dX = 1},
                                           {.dChainage = 50, .dX = 2},
                                           {.dChainage = 100, .dX = 3}},
                                          100, Point));
  EXPECT_EQ(Point.dX, 1);
}

TEST_F(Evaluation, ReportsAChainageBeforeTheStartAndLeavesThePoint) {
  THzPoint Point{1, 2, 3};
  EXPECT_FALSE(Alg::GetCoordFromHzAligment({{}, {.dChainage = 1000, .dLength = 9}}, 999.9, Point));
  EXPECT_FALSE(Alg::GetCoordFromHzAligment(THzElements(1), 0, Point));
  EXPECT_EQ(Point.dX, 1);
  ASSERT_EQ(Platform.aBoxes.size(), 2u);
  EXPECT_NE(Platform.aBoxes[0].sText.find("GetCoordFromHzAligment"), std::string::npos);
}

TEST_F(Evaluation, ACubicSpiralIsItsEndWhateverTheChainage) {
  THzElements aHz = test::LayOut({}, 0, {{50, 0, 0}, {40, 0, 0}});
  aHz[2].dRadius = 600;
  aHz[2].dParameter = -40;
  aHz[3].dRadius = 600;
  THzPoint Point;
  for (const double dChainage : {51.0, 89.0}) {
    ASSERT_TRUE(Alg::GetCoordFromHzAligment(aHz, dChainage, Point));
    EXPECT_EQ(Point.dAzimuth, 0);
    EXPECT_NEAR(Point.dY, 90, 1e-9);
    EXPECT_NEAR(Point.dX, 40.0 * 40 * 40 / (6 * 600 * 40) * (1 + 3 * 1600 / (64 * 360000.0)), 1e-9);
  }
  aHz.pop_back();
  EXPECT_FALSE(Alg::GetCoordFromHzAligment(aHz, 60, Point));  // the last element has no next one
  ASSERT_EQ(Platform.aBoxes.size(), 1u);
  EXPECT_NE(Platform.aBoxes[0].sText.find("Invalid procedure call"), std::string::npos);
}

}  // namespace
}  // namespace vrek
