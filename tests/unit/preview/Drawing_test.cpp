// Strokes and labels of a drawing, and the SVG document made of them.
#include <gtest/gtest.h>

#include <set>

#include "preview/Canvas.h"
#include "preview/SvgPlot.h"

namespace vrek {
namespace {

TPlanElement Straight(double dChainage, double dLength) {
  const double dEnd = dChainage + dLength;
  return {Alg::eStraight, dChainage, dLength, 0, 0, 0, {{dChainage, 0, dChainage}, {dEnd, 0, dEnd}}};
}

TPreview OneStraight(double dLength) {
  TPreview Shown;
  Shown.aAligments.push_back({1, "A<B & \xff", {Straight(0, dLength)}, {}, {}});
  return Shown;
}

TEST(Drawing, WritesChainagesInKilometresAndMetres) {
  EXPECT_EQ(Drawing::ChainageText(1234.5, 3), "1+234.500");
  EXPECT_EQ(Drawing::ChainageText(0, 0), "0+000");
  EXPECT_EQ(Drawing::ChainageText(-12.25, 1), "-0+012.3");
  EXPECT_EQ(Drawing::ChainageText(999.9996, 3), "1+000.000");
  EXPECT_EQ(Drawing::ChainageText(102000, 0), "102+000");
}

TEST(Drawing, TellsTheDataOfAnElement) {
  EXPECT_EQ(Drawing::DescribeElement(Straight(100, 50), {}), "straight, chainage 0+100.000, length 50.000 m");
  EXPECT_EQ(Drawing::DescribeElement({Alg::eArc, 0, 10, -300, -300, 0, {}}, {}),
            "arc, chainage 0+000.000, length 10.000 m, radius 300.000 m (left)");
  EXPECT_EQ(Drawing::DescribeElement({Alg::eClothoid, 0, 10, 0, 300, 55, {}}, {}),
            "spiral, chainage 0+000.000, length 10.000 m, radius ∞ - 300.000 m (right), parameter 55.000");
}

TEST(Drawing, ThinsOutItsChainageMarks) {
  for (const double dLength : {50.0, 1000.0, 100000.0}) {
    const auto Shown = OneStraight(dLength);
    const auto View = Viewport::Fit(Drawing::ExtentOfPlan(Shown), 1000, 300, {40, 40, 40}, true);
    int nMarks = 0;
    for (const auto& Label : Drawing::DrawPlan(Shown, View, {}, {}).aLabels) {
      nMarks += Label.sText.find('+') != std::string::npos;
    }
    EXPECT_GE(nMarks, 5) << dLength;
    EXPECT_LE(nMarks, 13) << dLength;
  }
}

TEST(Drawing, CutsItsStrokesAtTheEdgeHoweverNear) {
  const auto Shown = OneStraight(6000);
  auto View = Viewport::Fit(Drawing::ExtentOfPlan(Shown), 600, 400, {40, 40, 40}, true);
  for (int n = 0; n < 60; ++n) Viewport::Zoom(View, 1.25, 300, 200);
  const auto Drawn = Drawing::DrawPlan(Shown, View, {0, 0}, {});
  EXPECT_FALSE(Drawn.aStrokes.empty());
  for (const auto& Stroke : Drawn.aStrokes) {
    for (const auto& Point : Stroke.aPoints) {
      EXPECT_GE(Point.dX, -30);
      EXPECT_LE(Point.dX, 630);
    }
  }
}

TEST(Drawing, JoinsPointsThatLieOnTopOfEachOther) {
  CCanvas Canvas({100, 100, 50, 50, 1, 1});
  std::vector<TPlotPoint> aPoints;
  for (int n = 0; n <= 1000; ++n) aPoints.push_back({n * 0.05, 50});
  Canvas.Line(aPoints, {});
  const auto Drawn = Canvas.Take();
  ASSERT_EQ(Drawn.aStrokes.size(), 1U);
  EXPECT_LT(Drawn.aStrokes[0].aPoints.size(), 180U);
  EXPECT_DOUBLE_EQ(Drawn.aStrokes[0].aPoints.back().dX, 50);
}

TEST(Drawing, PutsNoLabelOnAnother) {
  CCanvas Canvas({100, 100, 50, 50, 1, 1});
  EXPECT_TRUE(Canvas.Label({{10, 50}, "0+100", EAnchor::eStart, EInk::eText}));
  EXPECT_FALSE(Canvas.Label({{20, 52}, "0+100", EAnchor::eStart, EInk::eText}));
  EXPECT_TRUE(Canvas.Label({{10, 80}, "0+100", EAnchor::eStart, EInk::eText}));
  EXPECT_FALSE(Canvas.Label({{10, 20}, "0+100", EAnchor::eEnd, EInk::eText})) << "cut by the edge";
}

// Two profiles from chainage 0 on.
TDrawing DrawTwoProfiles(double dWidth, double dHeight) {
  TPreview Shown;
  for (const char* sName : {"Left track", "Right track"}) {
    Shown.aAligments.push_back({1, sName, {}, {{false, {{0, 293.6}, {6220, 319.4}}}}, {}});
  }
  const TDrawingContent Content{[&](const TViewport& View) { return Drawing::DrawProfile(Shown, View, {}); },
                                Drawing::ExtentOfProfile(Shown), false};
  return Content.Draw(Drawing::Whole(Content, dWidth, dHeight));
}

TEST(Drawing, LabelsTheGridOfAProfile) {
  std::set<std::string> aTexts;
  for (const auto& Label : DrawTwoProfiles(960, 520).aLabels) aTexts.insert(Label.sText);
  for (const char* sText : {"0+000", "6+000", "294 m", "318 m", "heights enlarged × 130"}) {
    EXPECT_TRUE(aTexts.count(sText)) << sText;
  }
}

TEST(Drawing, StandsFreeOfItsLegendAndLabels) {
  for (const TPlotPoint& Size : {TPlotPoint{960, 520}, {330, 110}}) {
    const auto Drawn = DrawTwoProfiles(Size.dX, Size.dY);
    for (const auto& Stroke : Drawn.aStrokes) {
      const bool bProfile = Stroke.eInk == EInk::eSeries && Stroke.dWidth < 3;  // no sample of the legend
      for (const auto& Point : Stroke.aPoints) {
        EXPECT_TRUE(Stroke.eInk != EInk::eGrid || Point.dY >= Drawn.dLegendBottom) << Size.dX;
        if (!bProfile) continue;
        EXPECT_GT(Point.dY, Drawn.dLegendBottom) << Size.dX;
        EXPECT_LT(Point.dY, Size.dY - 4 - Drawing::dTextHeight) << Size.dX;
        EXPECT_GT(Point.dX, 4 + 0.64 * Drawing::dTextHeight * 5) << "behind 300 m, " << Size.dX;
      }
    }
  }
}

TEST(Drawing, SaysWhereThereIsNothing) {
  const auto Drawn = Drawing::DrawPlan({}, {300, 200, 0, 0, 1, 1}, {}, {});
  ASSERT_EQ(Drawn.aLabels.size(), 1U);
  EXPECT_EQ(Drawn.aLabels[0].sText, "Nothing to show");
}

TEST(SvgPlot, IsWellFormedAndPutsTheProfileBelowThePlan) {
  auto Shown = OneStraight(100);
  auto sSvg = SvgPlot::PlotAsSvg(Shown);
  EXPECT_NE(sSvg.find(">A&lt;B &amp; ?</text>"), std::string::npos);
  EXPECT_NE(sSvg.find("height=\"700\""), std::string::npos);
  EXPECT_TRUE(sSvg.ends_with("</svg>\n"));
  Shown.aAligments[0].aProfile = {{false, {{0, 10}, {100, 12}}}};
  sSvg = SvgPlot::PlotAsSvg(Shown);
  EXPECT_NE(sSvg.find("<svg y=\"700\""), std::string::npos);
  EXPECT_NE(sSvg.find("height=\"1100\""), std::string::npos);
}

}  // namespace
}  // namespace vrek
