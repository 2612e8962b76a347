#include "geometry/Alg.h"

#include <gtest/gtest.h>

#include <random>

#include "geometry/AligmentIndex.h"
#include "support/TestApp.h"
#include "unit/geometry/Curvature.h"

namespace vrek {
namespace {

using test::AppTest;
using test::Integrate;
using test::LayOut;
using test::TPiece;

constexpr double R = 500, Q = 200;

struct TLayout {
  const char* sLabel;
  std::vector<TPiece> aPieces;
};

// clang-format off
const std::vector<TLayout> aLayouts = {
    {"straight",                {{100, 0, 0}}},
    {"arc right",               {{300, 1 / R, 1 / R}}},
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
    {"S-curve",                 {{60, 0, 1 / Q}, {90, 1 / Q, 1 / Q}, {60, 1 / Q, 0}, {50, 0, -1 / R}, {90, -1 / R, -1 / R}}},
    {"oval",                    {{60, 0, 1 / R}, {80, 1 / R, 1 / R}, {70, 1 / R, 1 / Q}, {80, 1 / Q, 1 / Q}, {60, 1 / Q, 0}}},
};
// clang-format on

const THzPoint UtmStart{431200.25, 4581300.75, 1.1};

class AlongALayout : public AppTest, public ::testing::WithParamInterface<std::size_t> {
 protected:
  const TLayout& Layout() const { return aLayouts[GetParam()]; }
  THzElements aHz = LayOut(UtmStart, 1000, Layout().aPieces);

  // Point and azimuth s metres into piece i, by integration.
  THzPoint True(std::size_t i, double s) const {
    const auto& Element = aHz[i + 1];
    return Integrate({Element.dX, Element.dY, Element.dAzimuth * GM::dGonToRadians}, Layout().aPieces[i], s);
  }
};

TEST_P(AlongALayout, PointsAreWhereTheCurvatureLeads) {
  for (std::size_t i = 0; i < Layout().aPieces.size(); ++i) {
    for (double s = 0; s <= Layout().aPieces[i].dLength - 0.001; s += 7.3) {
      THzPoint Point;
      ASSERT_TRUE(Alg::GetCoordFromHzAligment(aHz, aHz[i + 1].dChainage + s, Point));
      const auto Expected = True(i, s);
      EXPECT_NEAR(Point.dX, Expected.dX, 2e-6) << Layout().sLabel << " " << s;
      EXPECT_NEAR(Point.dY, Expected.dY, 2e-6) << Layout().sLabel << " " << s;
      EXPECT_NEAR(std::sin(Point.dAzimuth - Expected.dAzimuth), 0, 1e-9) << Layout().sLabel << " " << s;
    }
  }
  EXPECT_TRUE(Platform.aBoxes.empty());
}

TEST_P(AlongALayout, APointLaidOutComesBack) {
  const Alg::CHzIndex Index(aHz);
  for (std::size_t i = 0; i < Layout().aPieces.size(); ++i) {
    for (double s = 0.5; s < Layout().aPieces[i].dLength; s += 9.7) {
      for (const double dOffset : {-12.0, -3.5, 0.0, 2.1, 25.0}) {
        const auto On = True(i, s);
        const THzPoint Point{On.dX + dOffset * std::cos(On.dAzimuth), On.dY - dOffset * std::sin(On.dAzimuth),
                             0};
        double dChainage = 0, dFound = 0, dIndexed = 0, dIndexedOffset = 0;
        ASSERT_TRUE(Alg::ProjectPointToAligment(dChainage, dFound, Point, aHz, 1, UpperBound(aHz)))
            << Layout().sLabel << " " << s << " " << dOffset;
        EXPECT_NEAR(dChainage, aHz[i + 1].dChainage + s, 0.00101) << Layout().sLabel << " " << dOffset;
        EXPECT_NEAR(dFound, dOffset, 0.00101) << Layout().sLabel << " " << s;
        Alg::ProjectPointToAligment(dIndexed, dIndexedOffset, Point, Index);
        EXPECT_EQ(dIndexed, dChainage);
        EXPECT_EQ(dIndexedOffset, dFound);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, AlongALayout, ::testing::Range<std::size_t>(0, aLayouts.size()));

class Evaluation : public AppTest {};

TEST_F(Evaluation, TakesTheFirstOfElementsThatStartAtTheChainageAndTheLastBehindIt) {
  THzElements aHz(4);
  aHz[1] = {1, 0, 0, 0, 0, 0, 0, 10};
  aHz[2] = {2, 10, 1, 10, 0, 0, 0, 0};
  aHz[3] = {3, 10, 2, 10, 0, 0, 0, 5};
  THzPoint Point;
  ASSERT_TRUE(Alg::GetCoordFromHzAligment(aHz, 10, Point));
  EXPECT_EQ(Point.dX, 1);
  ASSERT_TRUE(Alg::GetCoordFromHzAligment(aHz, 12, Point));
  EXPECT_EQ(Point.dX, 2);
  EXPECT_EQ(Point.dY, 12);
  ASSERT_TRUE(Alg::GetCoordFromHzAligment(Alg::CHzIndex(aHz), 12, Point));
  EXPECT_EQ(Point.dX, 2);
}

TEST_F(Evaluation, ReportsAChainageBeforeTheStartAndLeavesThePoint) {
  const auto aHz = LayOut(UtmStart, 1000, {{100, 0, 0}});
  THzPoint Point{1, 2, 3};
  EXPECT_FALSE(Alg::GetCoordFromHzAligment(aHz, 999.9, Point));
  EXPECT_FALSE(Alg::GetCoordFromHzAligment(THzElements(1), 0, Point));
  EXPECT_EQ(Point.dX, 1);
  ASSERT_EQ(Platform.aBoxes.size(), 2u);
  EXPECT_NE(Platform.aBoxes[0].sText.find("GetCoordFromHzAligment"), std::string::npos);
}

TEST_F(Evaluation, ACubicSpiralIsItsEndWhateverTheChainage) {
  auto aHz = LayOut({0, 0, 0}, 0, {{50, 0, 0}, {40, 0, 0}});
  aHz[2].dRadius = 600;
  aHz[2].dParameter = -40;
  THzPoint Early, Late;
  ASSERT_TRUE(Alg::GetCoordFromHzAligment(aHz, 51, Early));
  ASSERT_TRUE(Alg::GetCoordFromHzAligment(aHz, 89, Late));
  EXPECT_EQ(Early.dX, Late.dX);
  EXPECT_EQ(Early.dAzimuth, 0);
  EXPECT_NEAR(Early.dY, 90, 1e-9);
  EXPECT_NEAR(Early.dX, 40.0 * 40 * 40 / (6 * 600 * 40) * (1 + 3 * 1600 / (64 * 360000.0)), 1e-9);
  aHz.pop_back();
  EXPECT_FALSE(Alg::GetCoordFromHzAligment(aHz, 60, Early));  // the last element has no next one
  ASSERT_EQ(Platform.aBoxes.size(), 1u);
  EXPECT_NE(Platform.aBoxes[0].sText.find("Invalid procedure call"), std::string::npos);
}

TEST_F(Evaluation, OffEveryElementTheNearestVertexStands) {
  const auto aHz = LayOut({0, 0, 0}, 1000, {{100, 0, 0}});
  double dChainage = 0, dOffset = 0;
  EXPECT_FALSE(Alg::ProjectPointToAligment(dChainage, dOffset, {3, -4, 0}, aHz, 1, UpperBound(aHz)));
  EXPECT_EQ(dChainage, 1000);
  EXPECT_EQ(dOffset, 5);
}

// Random alignments of curves with their transitions, long arcs among them.
TEST_F(Evaluation, PointsBesideRandomAlignmentsComeBack) {
  std::mt19937 Random(2024);
  const auto Between = [&](double dLow, double dHigh) {
    return std::uniform_real_distribution<double>(dLow, dHigh)(Random);
  };
  int nCompared = 0;
  for (int nRound = 0; nRound < 60; ++nRound) {
    std::vector<TPiece> aPieces;
    for (int n = 0; n < 4; ++n) {
      const double k = (Random() % 2 == 0 ? 1 : -1) / Between(250, 3000), k2 = k * Between(1.3, 2);
      const double dIn = Between(40, 120), dOver = Between(40, 120), dOut = Between(40, 120);
      const double dArc = Between(60, 0.6 / std::fabs(k2));
      const std::vector<TPiece> aCurve = {{Between(60, 200), 0, 0}, {dIn, 0, k},    {dArc, k, k},
                                          {dOver, k, k2},           {dArc, k2, k2}, {dOut, k2, 0}};
      aPieces.insert(aPieces.end(), aCurve.begin(), aCurve.end());
    }
    const auto aHz = LayOut(UtmStart, 1000, aPieces);
    const Alg::CHzIndex Index(aHz);
    for (std::size_t i = 0; i < aPieces.size(); ++i) {
      const auto& Element = aHz[i + 1];
      for (int n = 0; n < 3; ++n) {
        const double s = Between(0.01, aPieces[i].dLength - 0.01), dOffset = Between(-10, 10);
        const auto On =
            Integrate({Element.dX, Element.dY, Element.dAzimuth * GM::dGonToRadians}, aPieces[i], s);
        THzPoint Point;
        ASSERT_TRUE(Alg::GetCoordFromHzAligment(Index, Element.dChainage + s, Point));
        EXPECT_NEAR(Point.dX, On.dX, 5e-6) << nRound << " piece " << i << " at " << s;
        EXPECT_NEAR(Point.dY, On.dY, 5e-6) << nRound << " piece " << i << " at " << s;
        const double dRight = On.dX + dOffset * std::cos(On.dAzimuth);
        const double dAhead = On.dY - dOffset * std::sin(On.dAzimuth);
        // Only the elements beside the nearest vertex are asked.
        const int k = Index.NearestVertex({dRight, dAhead, 0}), nPiece = static_cast<int>(i) + 1;
        if (k != nPiece && k != nPiece + 1) continue;
        ++nCompared;
        double dChainage = 0, dFound = 0;
        EXPECT_TRUE(Alg::ProjectPointToAligment(dChainage, dFound, {dRight, dAhead, 0}, Index));
        EXPECT_NEAR(dChainage, Element.dChainage + s, 0.00101) << nRound << " piece " << i << " at " << s;
        EXPECT_NEAR(dFound, dOffset, 0.00101) << nRound << " piece " << i << " at " << s;
      }
    }
  }
  EXPECT_GT(nCompared, 4000);
  EXPECT_TRUE(Platform.aBoxes.empty());
}

// The walks that the index stands for, on arrays in order, with equal values, and out of order.
TEST(AligmentIndex, AnswersAsTheWalksDo) {
  std::mt19937 Random(7);
  std::uniform_real_distribution<double> Any(-500, 500);
  for (int nRound = 0; nRound < 300; ++nRound) {
    THzElements aHz(2 + Random() % 40);
    TVtElements aVt(aHz.size());
    double dChainage = 0;
    const bool bInOrder = nRound % 3 != 0;
    for (std::size_t i = 1; i < aHz.size(); ++i) {
      dChainage += bInOrder ? static_cast<double>(Random() % 3) * 5 : Any(Random);
      aHz[i].dChainage = aVt[i].dChainage = dChainage;
      aHz[i].dX = std::round(Any(Random) / 100) * 100;  // coarse, so that distances tie
      aHz[i].dY = std::round(Any(Random) / 100) * 100;
      aVt[i].dHeight = Any(Random);
      aVt[i].dSlope = Any(Random) / 10000;
      aVt[i].dKv = i % 2 == 0 ? 3000 : 0;
      aVt[i].dLength = 5;
    }
    const Alg::CHzIndex Index(aHz);
    const Alg::CVtIndex Heights(aVt);
    for (int n = 0; n < 60; ++n) {
      const THzPoint Point{std::round(Any(Random) / 50) * 50, std::round(Any(Random) / 50) * 50, 0};
      EXPECT_EQ(Index.NearestVertex(Point), Alg::FindNearestVertex(Point, aHz, 1, UpperBound(aHz)));
      const double d = std::round(Any(Random)) / 2;
      EXPECT_EQ(Heights.Height(d), GM::GetHeightAtChainage(aVt, d)) << nRound << " " << d;
      if (Index.InOrder()) {
        EXPECT_EQ(Alg::FindHzElementInOrder(d, aHz), Alg::FindHzElement(d, aHz)) << d;
      }
      if (UpperBound(aHz) < 1 || d < aHz[1].dChainage) continue;
      THzPoint Walked, Found;
      EXPECT_TRUE(Alg::GetCoordFromHzAligment(aHz, d, Walked));
      EXPECT_TRUE(Alg::GetCoordFromHzAligment(Index, d, Found));
      EXPECT_EQ(Found.dX, Walked.dX) << nRound << " " << d;
      EXPECT_EQ(Found.dY, Walked.dY) << nRound << " " << d;
    }
  }
}

}  // namespace
}  // namespace vrek
