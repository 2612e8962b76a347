#include <gtest/gtest.h>

#include <set>

#include "Roads.h"
#include "support/TestApp.h"

namespace vrek::test {
namespace {

using namespace CCrSec;

std::string Codes(const TCrLayer& Layer) {
  std::string sCodes;
  for (int n = 0; n < Layer.aCodes.size(); ++n) sCodes.append(Layer.aCodes.TextAt(n)) += ' ';
  return sCodes;
}

class RuleDriver : public AppTest {
 protected:
  Recorder Progress;
};

TEST_F(RuleDriver, NamesTheFirstSurfaceOfEachLayerAnew) {
  TCrData Cr = Road({"-3.5 0 3.5", "", "0"});
  AddSurface(Cr, 1, List("5 5/1"));
  AddSurface(Cr, 2, {});
  NameFirstSurfaces(Cr);
  EXPECT_EQ(CodesOf(Cr, 0), "-3.500_2 0.000_2 3.500_2");
  EXPECT_EQ(CodesOf(Cr, 2, 0), "(none)");
  EXPECT_EQ(CodesOf(Cr, 2, 1), "5.000_3 5.000_4");
  EXPECT_EQ(Codes(Cr.Layers[3]), "-3.500 0.000 3.500 -3.500_2 0.000_2 3.500_2 ");
}

TEST_F(RuleDriver, SortsTheCodesByValueAndReportsEachSection) {
  TCrData Cr = Road({"3.5 -3.5 0", "3.5 -3.5 0", "3.5 -3.5 9"});
  NameFirstSurfaces(Cr);
  ApplyRules(Cr, "$Taludes$Rasante$", Progress);
  EXPECT_EQ(Codes(Cr.Layers[3]), "-3.500 -3.500_2 0.000 0.000_2 3.500 3.500_2 9.000 ");
  EXPECT_EQ(CodesOf(Cr, 2), "-3.500_2 3.500_2 9.000");
  EXPECT_EQ(Progress.sSteps, "0 to 2; 1; info 120.000; 2; info 140.000; ");
}

TEST_F(RuleDriver, LeavesLayersAloneThatDoNotTakePart) {
  for (const char* sLines : {"__None__", "$Taludes$", "$Rasante"}) {
    TCrData Cr = Road({"3.5 -3.5", "3.5 -3.5"});
    ApplyRules(Cr, sLines, Progress);
    EXPECT_EQ(CodesOf(Cr, 1), "(none) (none)") << sLines;
    EXPECT_EQ(Codes(Cr.Layers[3]), "-3.500 3.500 ") << sLines;
  }
}

TEST_F(RuleDriver, ReportsAFailureAndLeavesTheRestUnnamed) {
  TCrData Cr = Road({"3.5 -3.5", "3.5 -3.5", "3.5 -3.5"});
  Progress.dFailAt = 2;
  ApplyRules(Cr, "", Progress);
  EXPECT_EQ(CodesOf(Cr, 1), "3.500 -3.500");
  EXPECT_EQ(CodesOf(Cr, 2), "(none) (none)");
  EXPECT_EQ(Codes(Cr.Layers[3]), "3.500 -3.500 ") << "unsorted";
  ASSERT_EQ(Platform.aBoxes.size(), 1U);
  EXPECT_EQ(Platform.aBoxes[0].sText, "Unhandler Error in ApplyRules\r\nOverflow");
}

TEST_F(RuleDriver, EndsSoonOnOffsetsBeyondAllMeasure) {
  TCrData Cr = Road({"0 1 2", "0 1 2", "0 1 2"});
  for (TCrPoint& Point : Cr.Sections[1].Surfaces[0].Points) Point.dOffset = 1e308 * 10;
  ApplyRules(Cr, "", Progress);
  EXPECT_FALSE(Platform.aBoxes.empty());
}

// What the rules promise, on roads of all kinds.
TEST_F(RuleDriver, CodesEveryPointAndNeverTakesUpALineThatStopped) {
  for (unsigned nSeed = 1; nSeed <= 40; ++nSeed) {
    TCrData Cr = RandomRoad(nSeed).Make(60);
    NameFirstSurfaces(Cr);
    ApplyRules(Cr, "", Progress);
    std::set<std::pair<int, std::uint32_t>> Before, Seen;  // lines: layer and code
    for (const TCrSection& Section : Cr.Sections) {
      decltype(Seen) Here;
      for (const TCrSurface& Surface : Section.Surfaces) {
        EXPECT_TRUE(Surface.bDone || &Section == &Cr.Sections.front());
        for (const TCrPoint& Point : Surface.Points) {
          ASSERT_FALSE(Point.sCode.empty());
          const std::pair Line(int{Surface.nLayer}, Point.sCode.nIndex);
          ASSERT_TRUE(Before.count(Line) || !Seen.count(Line))
              << "seed " << nSeed << " at " << Section.dChainage;
          Here.insert(Line);
        }
      }
      Seen.insert(Here.begin(), Here.end());
      Before = std::move(Here);
    }
  }
}

}  // namespace
}  // namespace vrek::test
