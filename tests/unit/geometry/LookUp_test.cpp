// Which element holds a chainage, and of what kind it is.
#include <gtest/gtest.h>

#include "geometry/Alg.h"
#include "geometry/AligmentIndex.h"

namespace vrek {
namespace {

struct TQuestion {
  std::vector<double> aStarts;
  double dChainage;
  int nElement;
};

TEST(LookUp, GivesTheLastElementThatStartsAtOrBeforeAChainage) {
  // clang-format off
  const TQuestion aQuestions[] = {
      {{10, 20, 30},      5, 1}, {{10, 20, 30},     10, 1}, {{10, 20, 30},   19.9, 1}, {{10, 20, 30},     20, 2},
      {{10, 20, 30},     30, 3}, {{10, 20, 30},    900, 3}, {{10},            -1, 1},  {{10},            11, 1},
      {{10, 20, 20, 20}, 20, 2}, {{10, 20, 20, 20}, 21, 4}, {{10, 10, 20},    10, 1},  {{10, 10, 20},     9, 1},
      {{10, 50, 20, 30}, 25, 1}, {{10, 50, 20, 30}, 50, 2}, {{10, 50, 20, 30}, 60, 4}, {{},               7, 0}};
  // clang-format on
  for (const TQuestion& Question : aQuestions) {
    THzElements aHz(1);
    TVtElements aVt(1);
    for (const double dStart : Question.aStarts) {
      aHz.push_back({.dChainage = dStart});
      aVt.push_back({.dChainage = dStart});
    }
    SCOPED_TRACE(std::to_string(&Question - aQuestions));
    EXPECT_EQ(Alg::FindHzElement(Question.dChainage, aHz), Question.nElement);
    if (Alg::IsInOrder(aHz)) {
      EXPECT_EQ(Alg::FindHzElementInOrder(Question.dChainage, aHz), Question.nElement);
    }
    EXPECT_EQ(Alg::FindVtElement(Question.dChainage, aVt), Question.nElement);
  }
  EXPECT_EQ(Alg::FindHzElement(7, {}), -1);
  EXPECT_EQ(Alg::FindHzElementInOrder(7, {}), -1);
}

TEST(LookUp, TellsTheKindOfAnElementByRadiusAndParameter) {
  const auto Kind = [](double dRadius, double dParameter) {
    return Alg::GetElementKind({.dRadius = dRadius, .dParameter = dParameter});
  };
  EXPECT_EQ(Kind(0, 0), Alg::eStraight);
  EXPECT_EQ(Kind(0, 100), Alg::eStraight);
  EXPECT_EQ(Kind(-50, 0), Alg::eArc);
  EXPECT_EQ(Kind(0.001, 100), Alg::eClothoid);
  EXPECT_EQ(Kind(50, -100), Alg::eCubicSpiral);
}

}  // namespace
}  // namespace vrek
