// The index where only the last bit tells vertices apart, and where there is nothing to find.
#include "geometry/AligmentIndex.h"

#include <cmath>
#include <random>

#include "geometry/Alg.h"
#include "support/TestApp.h"

namespace vrek {
namespace {

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
  const std::pair<const THzElements*, const THzElements*> aPairs[] = {
      {&aEmpty, &aLine}, {&aNone, &aLine}, {&aLine, &aEmpty}, {&aLine, &aNone}, {&aLine, &aLine}};
  for (const auto& [pSource, pTarget] : aPairs) {
    for (const double dChainage : {9.0, 12.0}) {
      double dOffset = 0, dPjt = 0;
      const auto Boxes = [&] {
        std::string sText;
        for (const auto& Box : Platform.aBoxes) sText += Box.sText + "|";
        Platform.aBoxes.clear();
        return sText;
      };
      const bool bPlain = Alg::ProjectChainToAnotherAligment(dChainage, *pSource, *pTarget, dOffset, dPjt);
      const std::string sPlain = Boxes();
      const Alg::CHzIndex Source(*pSource), Target(*pTarget);
      EXPECT_EQ(Alg::ProjectChainToAnotherAligment(dChainage, Source, Target, dOffset, dPjt), bPlain);
      EXPECT_EQ(Boxes(), sPlain);
      EXPECT_EQ(sPlain.empty(), bPlain);
    }
  }
}

}  // namespace
}  // namespace vrek
