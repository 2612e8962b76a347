// Plans that other programs wrote, sent through a marked horizontal listing: their elements come back.
#include <cmath>
#include <iomanip>
#include <numbers>

#include "ReaderTest.h"
#include "geometry/GM.h"

namespace vrek::test {
namespace {

// An element as the plan has it, with its own radius and parameter; radii are signed here.
struct TPlanElement : THzElement {
  std::string sKind;
  double dRadiusEnd = 0;
};

std::vector<TPlanElement> ReadPlan(const std::filesystem::path& Path) {
  std::vector<TPlanElement> aPlan;
  std::ifstream Stream(Path);
  for (std::string sLine, sTurn; std::getline(Stream, sLine);) {
    if (sLine.starts_with('#')) continue;
    std::istringstream Fields(sLine);
    Fields.imbue(std::locale::classic());
    TPlanElement& E = aPlan.emplace_back();
    Fields >> E.sKind >> sTurn >> E.dChainage >> E.dX >> E.dY >> E.dAzimuth >> E.dRadius >> E.dRadiusEnd >>
        E.dParameter >> E.dLength;
    if (sTurn == "left") E.dRadius = -E.dRadius, E.dRadiusEnd = -E.dRadiusEnd;
    if (E.sKind == "Spiral" && E.dRadius == 0) E.dRadius = std::copysign(GM::dInfiniteRadius, E.dRadiusEnd);
  }
  return aPlan;
}

// Radius and parameter stand on the line of the point where their element ends.
std::string AsMarkedListing(const std::vector<TPlanElement>& aPlan) {
  std::ostringstream Out;
  Out.imbue(std::locale::classic());
  Out << std::fixed << std::setprecision(8) << "*PLT\n";
  TPlanElement Before;
  for (const auto& E : aPlan) {
    Out << E.dChainage << "," << E.dX << "," << E.dY << "," << E.dAzimuth << "," << Before.dRadiusEnd << ","
        << Before.dParameter << "\n";
    Before = E;
  }
  return Out.str() + "\n";
}

using OutsidePlans = ReaderTest;

TEST_F(OutsidePlans, ComeBackWhereTheyWere) {
  int nPlans = 0, nSpirals = 0, nArcs = 0;
  for (const auto& File : std::filesystem::directory_iterator(VREK_TEST_DATA "/outside/landxml")) {
    if (File.path().extension() != ".plan") continue;
    SCOPED_TRACE(File.path().filename());
    ++nPlans;
    const auto aPlan = ReadPlan(File.path());
    const auto aHz = ReadHz(AsMarkedListing(aPlan));
    ASSERT_EQ(aHz.size(), aPlan.size());
    for (std::size_t i = 1; i < aHz.size(); ++i) {
      SCOPED_TRACE(i);
      const THzElement& E = aHz[i];
      const TPlanElement &Plan = aPlan[i - 1], &Next = aPlan[i];
      EXPECT_EQ(E.dX, Plan.dX);
      EXPECT_EQ(E.dY, Plan.dY);
      EXPECT_NEAR(E.dLength, Plan.dLength, 2e-6);
      EXPECT_NEAR(E.dRadius, Plan.dRadius, 1e-6);
      EXPECT_NEAR(E.dParameter, Plan.dParameter, 1e-6);
      if (Plan.sKind == "Spiral") ++nSpirals;
      if (Plan.sKind != "Curve") continue;
      ++nArcs;
      const auto End = GM::PointOnArc(GM::StartOf(E), E.dRadius, E.dLength, E.dAzimuth * GM::dGonToRadians);
      EXPECT_NEAR(End.dX, Next.dX, 0.002);
      EXPECT_NEAR(End.dY, Next.dY, 0.002);
    }
  }
  EXPECT_EQ(nPlans, 8);
  EXPECT_EQ(nSpirals, 2);
  EXPECT_GE(nArcs, 15);
}

}  // namespace
}  // namespace vrek::test
