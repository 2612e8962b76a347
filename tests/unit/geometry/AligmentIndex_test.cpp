// The index against the walks that it stands for.
#include "geometry/AligmentIndex.h"

#include <cmath>
#include <random>

#include "geometry/Alg.h"
#include "support/TestApp.h"

namespace vrek {
namespace {

// The walks that the index stands for, on arrays in order, with equal values, and out of order.
TEST(HzIndex, AnswersAsTheWalksDo) {
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

TEST(HzIndex, FindsTheNearestVertexToTheLastBit) {
  // All vertices as far from the middle as doubles can say: only rounding tells them apart.
  THzElements aHz(1);
  std::mt19937_64 Random(8);
  std::uniform_real_distribution<double> Turn(0, 6.28);
  for (int i = 0; i < 500; ++i) {
    const double a = Turn(Random);
    aHz.push_back({.dX = 437123.25 + 1000 * std::sin(a), .dY = 4471234.5 + 1000 * std::cos(a)});
  }
  const Alg::CHzIndex Index(aHz);
  for (int n = 0; n < 2000; ++n) {
    const double a = Turn(Random);
    const THzPoint Point{437123.25 + 1e-9 * n * std::sin(a), 4471234.5 + 1e-9 * n * std::cos(a), 0};
    ASSERT_EQ(Index.NearestVertex(Point), Alg::FindNearestVertex(Point, aHz, 1, UpperBound(aHz))) << n;
  }
}

using IndexFailures = test::AppTest;

TEST_F(IndexFailures, AreThoseOfThePlainRoutines) {
  const THzElements aEmpty(1), aNone, aLine = {{}, {.dChainage = 10, .dLength = 5}};
  const TVtElements aNoProfile, aEmptyProfile(1);
  EXPECT_EQ(Alg::CVtIndex(aNoProfile).Height(5), 0);
  EXPECT_EQ(Alg::CVtIndex(aEmptyProfile).Height(5), 0);
  const std::pair<const THzElements&, const THzElements&> aPairs[] = {
      {aEmpty, aLine}, {aNone, aLine}, {aLine, aEmpty}, {aLine, aNone}, {aLine, aLine}};
  const auto Boxes = [&] {
    std::string sText;
    for (const auto& Box : std::exchange(Platform.aBoxes, {})) sText += Box.sText + "|";
    return sText;
  };
  for (const auto& [aSource, aTarget] : aPairs) {
    for (const double dChainage : {9.0, 12.0}) {
      double dOffset = 0, dPjt = 0;
      const bool bPlain = Alg::ProjectChainToAnotherAligment(dChainage, aSource, aTarget, dOffset, dPjt);
      const std::string sPlain = Boxes();
      const Alg::CHzIndex Source(aSource), Target(aTarget);
      EXPECT_EQ(Alg::ProjectChainToAnotherAligment(dChainage, Source, Target, dOffset, dPjt), bPlain);
      EXPECT_EQ(Boxes(), sPlain);
      EXPECT_EQ(sPlain.empty(), bPlain);
    }
  }
}

}  // namespace
}  // namespace vrek
