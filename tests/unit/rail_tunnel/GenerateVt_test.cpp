#include "rail_tunnel/GenerateVt.h"

#include <bit>
#include <cmath>

#include "unit/geometry/FailureOf.h"
#include "unit/rail_tunnel/Tracks.h"

namespace vrek {
namespace {

using CAligmentsDatas::GenerateVtAligment;

/// Notes what the panel is told, and presses Cancel at a sample.
class Panel final : public IProgress {
 public:
  void Tittle(std::string_view) override {}
  void Info(std::string_view) override {}
  void ShowCancel(bool) override {}
  void ShowProgressBar(bool) override {}
  void SetRanges(double dMin, double dMax) override { aRanges = {dMin, dMax}; }
  void SetValue(double dValue) override { aValues.push_back(dValue); }
  bool CancelPressed() const override { return std::ssize(aValues) > nCancelAfter; }
  void Reset() override {}

  std::vector<double> aRanges, aValues;
  int nCancelAfter = 1 << 30;
};

/// The generation as it reads, with the plain walks of the geometry: every answer is looked up from scratch.
TVtElements PlainGeneration(int nTarget, int nSource, int nSup, double dStep, bool bFromCentre) {
  const auto oSup = CAligmentsDatas::GetAligmentSup(nSup);
  const THzElements aHz = CAligmentsDatas::GetAligmentHz(nSource);
  const TVtElements aVt = CAligmentsDatas::GetAligmentVt(nSource);
  const THzElements aTarget = CAligmentsDatas::GetAligmentHz(nTarget);
  TVtElements aNew(1);
  std::size_t i = 1;
  double ch = aHz[i].dChainage;
  while (ch <= aHz.back().dChainage + aHz.back().dLength) {
    double dOffset = 0, dChainPjt = 0;
    if (Alg::ProjectChainToAnotherAligment(ch, aHz, aTarget, dOffset, dChainPjt)) {
      double z = GM::GetHeightAtChainage(aVt, ch);
      if (oSup->IsCoplaneTrack())
        oSup->CalcHeightVtAligmentCoplane(nTarget, dChainPjt, dOffset, z, bFromCentre);
      if (aNew.size() > 1) {
        auto& Before = aNew.back();
        Before.dLength = dChainPjt - Before.dChainage;
        if (Before.dLength != 0) Before.dSlope = (z - Before.dHeight) / std::fabs(Before.dLength);
      }
      aNew.push_back({.nId = UpperBound(aNew) + 1, .dChainage = dChainPjt, .dHeight = z});
    }
    ch = ch + dStep;
    if (ch > aHz[i].dChainage + aHz[i].dLength) {
      if (++i == aHz.size()) break;
      ch = aHz[i].dChainage;
    }
  }
  return aNew;
}

class Generation : public test::TrackTest {
 protected:
  /// A line of straights, arcs and clothoids of both senses.
  static THzElements Line(double dX, double dY, double dChainage, double dScale = 1) {
    test::PlanMaker Maker(dX, dY, 37.5, dChainage);
    for (int n = 0; n < 3; ++n) {
      Maker.Line(120 * dScale)
          .Clothoid(0.001, 400, 200, 100)
          .Arc(400, 150 * dScale)
          .Clothoid(400, 0, 200, 100);
      Maker.Clothoid(-0.001, -300, 150, 75).Arc(-300, 90).Clothoid(-300, 0, 150, 75).Line(60.25);
    }
    return Maker.Elements();
  }
  static TVtElements Profile() {
    return {{},
            {.nId = 1, .dChainage = 900, .dHeight = 50, .dSlope = 0.01, .dLength = 500},
            {.nId = 2, .dChainage = 1400, .dHeight = 55, .dSlope = 0.01, .dKv = -8000, .dLength = 200},
            {.nId = 3, .dChainage = 1600, .dHeight = 54.5, .dSlope = -0.015, .dLength = 3000}};
  }
  void SetTracks(bool bCoPlane, std::string_view sRotationPoint = "center") {
    CAligmentsDatas::SetAligmentHz(1, Line(0, 0, 1000));
    CAligmentsDatas::SetAligmentHz(2, Line(-2.5, 1.5, 500));
    CAligmentsDatas::SetAligmentHz(3, Line(3, -2, 2000, 1.001));
    for (int n = 1; n <= 3; ++n) CAligmentsDatas::SetAligmentVt(n, Profile());
    std::string sRows;
    for (int n = 0; n < 60; ++n) sRows += Row(450 + 40 * n, 10 * (n % 11), sRotationPoint);
    const auto oSup = std::make_shared<clsSuperelevation>(Table(sRows, bCoPlane));
    for (int n = 2; n <= 3; ++n) CAligmentsDatas::SetAligmentSup(n, oSup);
  }
  /// The number of the failure before it begins, 0 without one.
  static int NumberOf(double dStep) {
    Panel Progress;
    const int nNumber = test::FailureOf([&] { GenerateVtAligment(2, 1, 2, dStep, Progress, true); });
    EXPECT_TRUE(Progress.aValues.empty());
    return nNumber;
  }
};

constexpr auto aFields = {&TVtElement::dChainage, &TVtElement::dHeight, &TVtElement::dSlope, &TVtElement::dKv,
                          &TVtElement::dLength};

void ExpectSameBits(const TVtElements& aVt, const TVtElements& aPlain) {
  ASSERT_EQ(aVt.size(), aPlain.size());
  for (std::size_t i = 0; i < aVt.size(); ++i) {
    for (const auto pField : aFields) {
      ASSERT_EQ(std::bit_cast<std::uint64_t>(aVt[i].*pField), std::bit_cast<std::uint64_t>(aPlain[i].*pField))
          << i;
    }
    ASSERT_EQ(aVt[i].nId, aPlain[i].nId);
  }
}

TEST_F(Generation, GivesThePlainOnesResultToTheLastBit) {
  for (const bool bCoPlane : {false, true}) {
    for (const char* sRotationPoint : {"insideRail", "outsideRail", "center", "leftRail", "platformAxis"}) {
      for (const int nTarget : {2, 3}) {
        SetTracks(bCoPlane, sRotationPoint);
        const int nSource = bCoPlane ? 1 : 5 - nTarget;
        const auto aPlain = PlainGeneration(nTarget, nSource, nTarget, 0.5, nSource == 1);
        EXPECT_GT(aPlain.size(), 2000u);
        Panel Progress;
        EXPECT_TRUE(GenerateVtAligment(nTarget, nSource, nTarget, 0.5, Progress, nSource == 1));
        ExpectSameBits(CAligmentsDatas::GetAligmentVt(nTarget), aPlain);
        if (!bCoPlane) break;
      }
    }
  }
}

TEST_F(Generation, SamplesAfreshAtEachElementAndBridgesGaps) {
  // Two straights north, 10 and 4.2 m long; the target lies 3 m to the right and begins 1.2 m later.
  CAligmentsDatas::SetAligmentHz(1, test::PlanMaker(0, 0, 0, 100).Line(10).Line(4.2).Elements());
  CAligmentsDatas::SetAligmentHz(2, test::PlanMaker(3, 1.2, 0, 0).Line(50).Elements());
  CAligmentsDatas::SetAligmentVt(
      1, {{}, {.nId = 1, .dChainage = 100, .dHeight = 5, .dSlope = 0.1, .dLength = 20}});
  CAligmentsDatas::SetAligmentSup(2, std::make_shared<clsSuperelevation>());
  Panel Progress;
  EXPECT_TRUE(GenerateVtAligment(2, 1, 2, 4, Progress, true));
  EXPECT_EQ(Progress.aRanges, (std::vector<double>{0, 1}));
  EXPECT_EQ(Progress.aValues, (std::vector<double>{1, 1, 1, 2, 2}));
  // 100 lies before the target; then 104, 108, 110 and 114.
  const auto& aVt = CAligmentsDatas::GetAligmentVt(2);
  ASSERT_EQ(aVt.size(), 5u);
  const TVtElement aExpected[] = {
      {1, 2.8, 5.4, 0.1, 0, 4}, {2, 6.8, 5.8, 0.1, 0, 2}, {3, 8.8, 6, 0.1, 0, 4}, {4, 12.8, 6.4, 0, 0, 0}};
  for (std::size_t i = 0; i < 4; ++i) {
    for (const auto pField : aFields) EXPECT_NEAR(aVt[i + 1].*pField, aExpected[i].*pField, 1e-9) << i;
  }
}

TEST_F(Generation, AgainstTheTargetsDirectionTakesTheGradesBackwards) {
  CAligmentsDatas::SetAligmentHz(1, test::PlanMaker(0, 0, 0, 100).Line(10).Elements());
  CAligmentsDatas::SetAligmentHz(2, test::PlanMaker(3, 50, 200, 0).Line(60).Elements());
  CAligmentsDatas::SetAligmentVt(1, {{}, {.nId = 1, .dChainage = 100, .dHeight = 5, .dSlope = 0.1}});
  CAligmentsDatas::SetAligmentSup(2, std::make_shared<clsSuperelevation>());
  Panel Progress;
  EXPECT_TRUE(GenerateVtAligment(2, 1, 2, 4, Progress, true));
  const auto& First = CAligmentsDatas::GetAligmentVt(2).at(1);
  EXPECT_NEAR(First.dChainage, 50, 1e-9);
  EXPECT_NEAR(First.dLength, -4, 1e-9);
  EXPECT_NEAR(First.dSlope, 0.1, 1e-9);
}

TEST_F(Generation, StoresNothingWhenCancelled) {
  SetTracks(false);
  const auto aBefore = CAligmentsDatas::GetAligmentVt(2);
  Panel Progress;
  Progress.nCancelAfter = 5;
  EXPECT_FALSE(GenerateVtAligment(2, 1, 2, 0.5, Progress, true));
  EXPECT_EQ(Progress.aValues.size(), 6u);
  EXPECT_EQ(CAligmentsDatas::GetAligmentVt(2).size(), aBefore.size());
}

TEST_F(Generation, RefusesStepsThatLeadNowhereAndEndlessSources) {
  SetTracks(false);
  for (const double dStep : {0.0, -0.5, 1e-13, 1e-5, std::nan("")}) {
    EXPECT_EQ(NumberOf(dStep), Error::nOverflow) << dStep;
  }
  const double dHuge = 9007199254740992;  // 2^53, from where on neighbours lie 2 apart
  const std::pair<double, double> aSources[] = {{0, 1e7 + 1},  {dHuge, 10},     {dHuge / 2 + 1, 10},
                                                {0, INFINITY}, {-INFINITY, 10}, {1e300, 1e300}};
  for (const auto& [dChainage, dLength] : aSources) {
    CAligmentsDatas::SetAligmentHz(1, {{}, {.nId = 1, .dChainage = dChainage, .dLength = dLength}});
    EXPECT_EQ(NumberOf(0.5), Error::nOverflow) << dChainage << " " << dLength;
  }
}

TEST_F(Generation, LetsFailuresRise) {
  SetTracks(false);
  CAligmentsDatas::SetAligmentHz(1, THzElements(1));
  EXPECT_EQ(NumberOf(0.5), Error::nSubscript);
  CAligmentsDatas::SetAligmentHz(1, Line(0, 0, 1000));
  CAligmentsDatas::SetAligmentSup(2, nullptr);
  Panel Progress;
  EXPECT_EQ(test::FailureOf([&] { GenerateVtAligment(2, 1, 2, 0.5, Progress, true); }), Error::nObjectNotSet);
}

}  // namespace
}  // namespace vrek
