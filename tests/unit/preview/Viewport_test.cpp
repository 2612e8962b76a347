// What is on show of a drawing: the whole, moved, enlarged, far from the origin.
#include <gtest/gtest.h>

#include "preview/Viewport.h"

namespace vrek {
namespace {

TExtent Extent(double dLeft, double dBottom, double dRight, double dTop) {
  TExtent Extent;
  Extent.Add(dLeft, dBottom);
  Extent.Add(dRight, dTop);
  return Extent;
}

TEST(Viewport, FitsTheWholeInsideItsMargin) {
  const auto View = Viewport::Fit(Extent(100, 10, 1100, 60), 520, 400, {10, 10, 10}, true);
  EXPECT_DOUBLE_EQ(View.dScaleX, 0.5);
  EXPECT_DOUBLE_EQ(View.dScaleY, 0.5);
  EXPECT_DOUBLE_EQ(View.ToDevice(100, 35).dX, 10);
  EXPECT_DOUBLE_EQ(View.ToDevice(1100, 35).dX, 510);
  EXPECT_DOUBLE_EQ(View.ToDevice(600, 35).dY, 200);
  EXPECT_LT(View.ToDevice(600, 60).dY, View.ToDevice(600, 10).dY);  // up is up
  const auto Stretched = Viewport::Fit(Extent(100, 10, 1100, 60), 520, 400, {10, 40, 20}, false);
  EXPECT_DOUBLE_EQ(Stretched.ToDevice(100, 60).dY, 40);
  EXPECT_DOUBLE_EQ(Stretched.ToDevice(100, 10).dY, 380);
}

TEST(Viewport, NarrowsTheMarginsOfASmallView) {
  const auto View = Viewport::Fit(Extent(0, 0, 10, 10), 100, 100, {60, 100, 20}, false);
  EXPECT_DOUBLE_EQ(View.ToDevice(0, 10).dX, 30);
  EXPECT_DOUBLE_EQ(View.ToDevice(0, 10).dY, 50);
  EXPECT_DOUBLE_EQ(View.ToDevice(0, 0).dY, 90);
}

TEST(Viewport, ShowsASinglePointAndNothing) {
  EXPECT_DOUBLE_EQ(Viewport::Fit(Extent(5, 5, 5, 5), 100, 100, {10, 10, 10}, true).dScaleX, 80)
      << "as wide as a metre";
  EXPECT_GT(Viewport::Fit({}, 0, 0, {10, 10, 10}, true).dScaleX, 0);
}

TEST(Viewport, KeepsThePointUnderThePointerWhileZooming) {
  auto View = Viewport::Fit(Extent(0, 0, 6000, 4000), 600, 400, {}, true);
  const auto Before = View.ToMetres(123, 45);
  for (int n = 0; n < 40; ++n) Viewport::Zoom(View, 1.25, 123, 45);
  EXPECT_NEAR(View.ToMetres(123, 45).dX, Before.dX, 1e-7);
  EXPECT_NEAR(View.ToMetres(123, 45).dY, Before.dY, 1e-7);
  for (int n = 0; n < 500; ++n) Viewport::Zoom(View, 10, 0, 0);
  EXPECT_LE(View.dScaleX, 1e6 * 1.001);
}

TEST(Viewport, MovesByDeviceUnits) {
  auto View = Viewport::Fit(Extent(0, 0, 100, 100), 200, 200, {}, true);
  const auto Before = View.ToDevice(10, 10);
  Viewport::Pan(View, 30, -7);
  EXPECT_DOUBLE_EQ(View.ToDevice(10, 10).dX, Before.dX + 30);
  EXPECT_DOUBLE_EQ(View.ToDevice(10, 10).dY, Before.dY - 7);
}

TEST(Viewport, StepsByOneTwoFive) {
  const double aRows[][2] = {{0.7, 1}, {1, 1}, {1.1, 2}, {3, 5}, {6, 10}, {101, 200}, {0.012, 0.02}};
  for (const auto& [dLeast, dStep] : aRows) {
    EXPECT_NEAR(Viewport::NiceStep(dLeast), dStep, 1e-12) << dLeast;
  }
}

}  // namespace
}  // namespace vrek
