// The drawing's geometry against the routines of the alignment: curves within the tolerance of their chords,
// joined without gaps, far from the origin.
#include <cmath>

#include "design_data/CAligmentsDatas.h"
#include "preview/Preview.h"
#include "support/TestApp.h"

namespace vrek {
namespace {

// A straight, a clothoid into an arc to the right, the arc, and what follows it.
THzElements Plan() {
  const double dX = 440000, dY = 4480000, A = 200, R = 400, L = A * A / R;
  THzElements aHz(5);
  aHz[1] = {1, 1000, dX, dY, 50, 0, 0, 300};
  const auto Next = [&](int i, double dRadius, double dParameter, double dLength) {
    auto& Before = aHz[static_cast<std::size_t>(i - 1)];
    const auto Element = Alg::InRadians(Before);
    const THzPoint End =
        Alg::GetElementKind(Before) == Alg::eStraight ? Alg::GetPointOnLine(Before.dLength, Element)
        : Alg::GetElementKind(Before) == Alg::eArc    ? Alg::GetPointOnArc(Before.dLength, Element)
                                                      : Alg::GetPointOnClothoid(Before.dLength, R, Element);
    aHz[static_cast<std::size_t>(i)] = {i,
                                        Before.dChainage + Before.dLength,
                                        End.dX,
                                        End.dY,
                                        End.dAzimuth / GM::dGonToRadians,
                                        dRadius,
                                        dParameter,
                                        dLength};
  };
  Next(2, GM::dInfiniteRadius, A, L);
  Next(3, R, 0, 250);
  Next(4, 0, 0, 100);
  return aHz;
}

TEST(Preview, FollowsTheAligmentWithinTheTolerance) {
  const auto aHz = Plan();
  const auto aElements = Preview::MakePlan(aHz, 1, 4, aHz[1].dX, aHz[1].dY);
  ASSERT_EQ(aElements.size(), 4U);
  EXPECT_EQ(aElements[0].aPoints.size(), 2U);
  EXPECT_EQ(aElements[1].eKind, Alg::eClothoid);
  EXPECT_EQ(aElements[1].dRadiusStart, 0);
  EXPECT_NEAR(aElements[1].dRadiusEnd, 400, 0.01);
  EXPECT_DOUBLE_EQ(aElements[2].dRadiusEnd, 400);
  for (std::size_t e = 1; e < 3; ++e) {
    const auto& aPoints = aElements[e].aPoints;
    for (std::size_t n = 1; n < aPoints.size(); ++n) {
      THzPoint On;
      const double dMiddle = (aPoints[n - 1].dChainage + aPoints[n].dChainage) / 2;
      ASSERT_TRUE(Alg::GetCoordFromHzAligment(aHz, dMiddle, On));
      const double dX = (aPoints[n - 1].dX + aPoints[n].dX) / 2 + aHz[1].dX;
      const double dY = (aPoints[n - 1].dY + aPoints[n].dY) / 2 + aHz[1].dY;
      EXPECT_LT(std::hypot(On.dX - dX, On.dY - dY), 1.5 * Preview::dChordTolerance);
    }
    EXPECT_NEAR(aPoints.front().dX, aElements[e - 1].aPoints.back().dX, 1e-9);
  }
}

TEST(Preview, LeavesOutWhatCantBeWorkedOut) {
  auto aHz = Plan();
  aHz[3].dLength = INFINITY;
  EXPECT_EQ(Preview::MakePlan(aHz, 1, 4, 0, 0).size(), 3U);
  EXPECT_TRUE(Preview::MakePlan({}, 1, 0, 0, 0).empty());
}

TEST(Preview, DrawsACubicSpiralFromItsStartToThatOfTheNextElement) {
  auto aHz = Plan();
  aHz[2].dParameter = -100;
  aHz[2].dRadius = 400;
  const auto aElements = Preview::MakePlan(aHz, 2, 2, aHz[2].dX, aHz[2].dY);
  ASSERT_EQ(aElements.size(), 1U);
  EXPECT_EQ(aElements[0].eKind, Alg::eCubicSpiral);
  EXPECT_NEAR(aElements[0].aPoints.front().dX, 0, 1e-9);
  EXPECT_NEAR(aElements[0].aPoints.back().dX, aHz[3].dX - aHz[2].dX, 1e-9);
}

TEST(Preview, JoinsTheElementsOfAProfile) {
  TVtElements aVt(4);
  aVt[1] = {1, 0, 100, 0.02, 0, 50};
  aVt[2] = {2, 50, 101, 0.02, -1000, 40};
  aVt[3] = {3, 90, 101, -0.02, 0, 10};
  const auto aRuns = Preview::MakeProfile(aVt, 1, 3);
  ASSERT_EQ(aRuns.size(), 3U);
  EXPECT_TRUE(aRuns[1].bCurve);
  EXPECT_GT(aRuns[1].aPoints.size(), 10U);
  EXPECT_NEAR(aRuns[1].aPoints[aRuns[1].aPoints.size() / 2].dHeight, 101.2, 0.01);
  EXPECT_NEAR(aRuns[2].aPoints.back().dHeight, 100.8, 1e-9);
}

TEST(Preview, RunsAGradeFromVertexToVertexWhateverItsSlope) {
  TVtElements aVt(3);
  aVt[1] = {1, 0, 100, 0.5, 0, 50};
  aVt[2] = {2, 50, 101, 0.02, 0, 10};
  const auto aRuns = Preview::MakeProfile(aVt, 1, 2);
  ASSERT_EQ(aRuns.size(), 1U);
  EXPECT_DOUBLE_EQ(aRuns[0].aPoints[1].dHeight, 101);
  EXPECT_DOUBLE_EQ(aRuns[0].aPoints.back().dHeight, 101.2);
}

TEST(Preview, FindsPlacesAndElements) {
  const auto aHz = Plan();
  TPreview Shown;
  Shown.aAligments.push_back({1, "axis", Preview::MakePlan(aHz, 1, 4, aHz[1].dX, aHz[1].dY), {}, {}});
  const auto& Aligment = Shown.aAligments[0];
  THzPoint On;
  ASSERT_TRUE(Alg::GetCoordFromHzAligment(aHz, 1500, On));
  const auto Place = Preview::PlaceAt(Aligment, 1500);
  EXPECT_NEAR(Place.Point.dX + aHz[1].dX, On.dX, 0.005);
  EXPECT_NEAR(Place.dAlongX, std::sin(On.dAzimuth), 0.01);
  EXPECT_NEAR(Preview::PlaceAt(Aligment, 0).Point.dX, 0, 1e-9);
  EXPECT_NEAR(Preview::PlaceAt(Aligment, 1e6).Point.dX, Aligment.aElements.back().aPoints.back().dX, 1e-9);
  EXPECT_EQ(Preview::PlaceAt({}, 5).Point.dX, 0);
  const auto Found = Preview::FindElement(Shown, Place.Point.dX + 1, Place.Point.dY, 2);
  EXPECT_EQ(Found, (Preview::TElementIndex{0, 2}));
  EXPECT_FALSE(Preview::FindElement(Shown, -500, -500, 2).IsGiven());
}

using StoredPreview = test::AppTest;

TEST_F(StoredPreview, HoldsTheElementsAndLayersThatAreWritten) {
  CAligmentsDatas::InitAligments();
  CAligmentsDatas::AddAligment();
  CAligmentsDatas::SetAligmentHz(1, Plan());
  TCrData Cr;
  Cr.Layers = {{"Taludes", {}}, {"Rasante", {}}};
  for (const double dChainage : {1100.0, 1350.0, 1600.0}) {
    TCrSection Section{dChainage, {{0, false, {}}, {1, false, {}}}};
    for (auto& Surface : Section.Surfaces) Surface.Points = {{-5, 10, {}, {}}, {5, 10.5, {}, {}}};
    Cr.Sections.push_back(Section);
  }
  CAligmentsDatas::SetAligmentCr(1, Cr);
  TPreviewChoice Choice{{{1, "axis"}, {1, "again"}}, 1310, 1450, "$Rasante$"};
  const auto Shown = Preview::MakePreview(Choice);
  ASSERT_EQ(Shown.aAligments.size(), 2U);
  EXPECT_EQ(Shown.dOriginX, 440000);
  EXPECT_EQ(Shown.aAligments[0].aElements.size(), 2U);  // whole elements: the clothoid and the arc
  EXPECT_EQ(Shown.aAligments[0].aElements[0].eKind, Alg::eClothoid);
  ASSERT_EQ(Shown.aAligments[0].aSections.size(), 1U);
  ASSERT_EQ(Shown.aAligments[0].aSections[0].aLines.size(), 1U);
  EXPECT_EQ(Shown.aAligments[0].aSections[0].aLines[0].sName, "Rasante");
  Choice.sLayers = "__None__";
  EXPECT_TRUE(Preview::MakePreview(Choice).aAligments[0].aSections.empty());
  EXPECT_TRUE(Platform.aBoxes.empty());
}

}  // namespace
}  // namespace vrek
