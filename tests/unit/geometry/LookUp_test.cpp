// Which element holds a chainage.
#include <gtest/gtest.h>

#include "geometry/Alg.h"
#include "geometry/AligmentIndex.h"

namespace vrek {
namespace {

TEST(LookUp, GivesTheLastElementThatStartsAtOrBeforeAChainage) {
  const struct {
    std::vector<double> aStarts;
    double dChainage;
    int nElement;
  } aCases[] = {
      // clang-format off
      {{10, 20, 30},  5, 1}, {{10, 20, 30}, 10, 1}, {{10, 20, 30}, 19.9, 1}, {{10, 20, 30},   20, 2},
      {{10, 20, 30}, 99, 3}, {{10, 20, 20}, 20, 2}, {{10, 20, 20},   21, 3}, {{10, 10, 20},   10, 1},
      {{10},         -1, 1}, {{10, 50, 20}, 25, 1}, {{10, 50, 20},   60, 3}, {{},              7, 0},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    SCOPED_TRACE(&Case - aCases);
    THzElements aHz(1);
    TVtElements aVt(1);
    for (const double dStart : Case.aStarts) {
      aHz.push_back({.dChainage = dStart});
      aVt.push_back({.dChainage = dStart});
    }
    EXPECT_EQ(Alg::FindHzElement(Case.dChainage, aHz), Case.nElement);
    EXPECT_EQ(Alg::FindVtElement(Case.dChainage, aVt), Case.nElement);
    if (Alg::IsInOrder(aHz)) {
      EXPECT_EQ(Alg::FindHzElementInOrder(Case.dChainage, aHz), Case.nElement);
    }
  }
  EXPECT_EQ(Alg::FindHzElement(7, {}), -1);
  EXPECT_EQ(Alg::FindHzElementInOrder(7, {}), -1);
}

}  // namespace
}  // namespace vrek
