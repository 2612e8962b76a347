// Plans that other programs wrote, sent through a marked horizontal listing: their elements come back.
#include <cmath>
#include <iomanip>
#include <numbers>

#include "ReaderTest.h"
#include "geometry/GM.h"

namespace vrek::test {
namespace {

// An element as the plan has it; radii are signed here.
struct TPlanElement {
  std::string sKind;
  THzElement Start;  // dRadius and dParameter of the element itself
  double dRadiusEnd = 0;
};

std::vector<TPlanElement> ReadPlan(const std::filesystem::path& Path) {
  std::vector<TPlanElement> aPlan;
  std::ifstream Stream(Path);
  for (std::string sLine; std::getline(Stream, sLine);) {
    if (sLine.starts_with('#')) continue;
    std::istringstream Fields(sLine);
    Fields.imbue(std::locale::classic());
    TPlanElement E;
    std::string sTurn;
    Fields >> E.sKind >> sTurn >> E.Start.dChainage >> E.Start.dX >> E.Start.dY >> E.Start.dAzimuth >>
        E.Start.dRadius >> E.dRadiusEnd >> E.Start.dParameter >> E.Start.dLength;
    if (sTurn == "left") E.Start.dRadius = -E.Start.dRadius, E.dRadiusEnd = -E.dRadiusEnd;
    if (E.sKind == "Spiral" && E.Start.dRadius == 0)
      E.Start.dRadius = std::copysign(GM::dInfiniteRadius, E.dRadiusEnd);
    aPlan.push_back(E);
  }
  return aPlan;
}

// Radius and parameter stand on the line of the point where their element ends.
std::string AsMarkedListing(const std::vector<TPlanElement>& aPlan) {
  std::ostringstream Out;
  Out.imbue(std::locale::classic());
  Out << std::fixed << "*PLT\n";
  for (std::size_t i = 0; i < aPlan.size(); ++i) {
    const auto& [sKind, Point, dUnused] = aPlan[i];
    Out << std::setprecision(6) << Point.dChainage << "," << Point.dX << "," << Point.dY << ","
        << std::setprecision(8) << Point.dAzimuth << "," << (i > 0 ? aPlan[i - 1].dRadiusEnd : 0) << ","
        << (i > 0 ? aPlan[i - 1].Start.dParameter : 0) << "\n";
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
      const THzElement &E = aHz[i], &Plan = aPlan[i - 1].Start, &Next = aPlan[i].Start;
      EXPECT_EQ(E.dX, Plan.dX);
      EXPECT_EQ(E.dY, Plan.dY);
      EXPECT_NEAR(E.dLength, Plan.dLength, 2e-6);
      EXPECT_NEAR(E.dRadius, Plan.dRadius, 1e-6);
      EXPECT_NEAR(E.dParameter, Plan.dParameter, 1e-6);
      if (aPlan[i - 1].sKind == "Spiral") ++nSpirals;
      if (aPlan[i - 1].sKind != "Curve") continue;
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
