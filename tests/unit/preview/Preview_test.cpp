// The drawing's geometry against the routines of the alignment: curves within the tolerance of their chords,
// joined without gaps, far from the origin.
#include <cmath>

#include "preview/Preview.h"
#include "unit/rail_tunnel/Tracks.h"

namespace vrek {
namespace {

// A straight, a clothoid into an arc to the right, the arc, and what follows it.
THzElements Plan() {
  return test::PlanMaker(440000, 4480000, 50, 1000)
      .Line(300)
      .Clothoid(GM::dInfiniteRadius, 400, 200, 100)
      .Arc(400, 250)
      .Line(100)
      .Elements();
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

TEST(Preview, EndsEachElementWhereTheNextStarts) {
  auto aHz = Plan();
  aHz[2].dX += 0.05;  // a gap within a generous tolerance
  aHz[2].dParameter = -100;
  aHz[2].dRadius = 400;
  const auto aElements = Preview::MakePlan(aHz, 1, 2, 0, 0);
  ASSERT_EQ(aElements.size(), 2U);
  EXPECT_EQ(aElements[1].eKind, Alg::eCubicSpiral);
  for (const std::size_t n : {0, 1}) {
    EXPECT_NEAR(aElements[n].aPoints.front().dX, aHz[n + 1].dX, 1e-9);
    EXPECT_NEAR(aElements[n].aPoints.back().dX, aHz[n + 2].dX, 1e-9);
  }
}

TEST(Preview, JoinsTheElementsOfAProfile) {
  TVtElements aVt{{}, {1, 0, 100, 0.02, 0, 50}, {2, 50, 101, 0.02, -1000, 40}, {3, 90, 101, -0.02, 0, 10}};
  auto aRuns = Preview::MakeProfile(aVt, 1, 3);
  ASSERT_EQ(aRuns.size(), 3U);
  EXPECT_TRUE(aRuns[1].bCurve);
  EXPECT_GT(aRuns[1].aPoints.size(), 10U);
  EXPECT_NEAR(aRuns[1].aPoints[aRuns[1].aPoints.size() / 2].dHeight, 101.2, 0.01);
  EXPECT_NEAR(aRuns[2].aPoints.back().dHeight, 100.8, 1e-9);
  // A grade runs from vertex to vertex whatever its slope; the last one by its own.
  aVt = {{}, {1, 0, 100, 0.5, 0, 50}, {2, 50, 101, 0.02, 0, 10}};
  aRuns = Preview::MakeProfile(aVt, 1, 2);
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
  for (const auto& [dChainage, nElement] : {std::pair{1399.0, 1}, {1401.0, 2}}) {  // both within reach
    const auto At = Preview::PlaceAt(Aligment, dChainage).Point;
    EXPECT_EQ(Preview::FindElement(Shown, At.dX, At.dY, 2), (Preview::TElementIndex{0, nElement}));
  }
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
