#include "LandXmlTest.h"
#include "base/NotGiven.h"

namespace vrek::test {
namespace {

// Chainage, X, Y, azimuth (gon), radius, parameter, length.
THzElement Hz(double dChainage, double dX, double dY, double dAzimuth, double dRadius, double dParameter,
              double dLength) {
  return {0, dChainage, dX, dY, dAzimuth, dRadius, dParameter, dLength};
}

class CoordGeom : public LandXmlTest {
 protected:
  std::string Plan(const THzElements& aHz, double dFrom = dNotGiven, double dTo = dNotGiven) {
    return Written([&] { bResult = CLandXML::TagCoordGeom(dStart, dEnd, aHz, dFrom, dTo); });
  }
  double dStart = -1, dEnd = -1;
  bool bResult = false;
};

TEST_F(CoordGeom, WorksOutTheEndOfItsLastElement) {
  const struct {
    const char* sLabel;
    THzElement Element;
    std::string sAttribute, sMiddle, sEnd;
  } aCases[] = {
      // clang-format off
      {"straight", Hz(10, 1000, 2000, 50, 0, 0, 100),
       "staStart=\"10.000000\"", "", "2070.710678 1070.710678"},
      // A quarter turn of radius 100 heading north: the centre lies east or west of the start.
      {"arc right", Hz(0, 1000, 2000, 0, 100, 0, 157.07963267949),
       "rot=\"cw\"", "<Center>2000.000000 1100.000000<", "2100.000000 1100.000000"},
      {"arc left", Hz(0, 1000, 2000, 0, -100, 0, 157.07963267949),
       "rot=\"ccw\"", "<Center>2000.000000 900.000000<", "2100.000000 900.000000"},
      {"from a straight, right", Hz(0, 0, 0, 0, 0.001, 100, 50),
       "radiusEnd=\"200.000000\" rot=\"cw\"", "<PI>33.360656 0.000000<", "49.921931 2.081009"},
      {"from a straight, left", Hz(0, 0, 0, 0, -0.001, 100, 50),
       "radiusEnd=\"200.000000\" rot=\"ccw\"", "<PI>33.360656 0.000000<", "49.921931 -2.081009"},
      {"falling as its length says", Hz(0, 0, 0, 0, 200, 100, 30),
       "radiusEnd=\"500.000000\"", "<PI>12.870070 0.000000<", "29.932091 1.798125"},
      {"to a straight", Hz(0, 0, 0, 0, 200, 100, 50),
       "radiusEnd=\"INF\" rot=\"cw\"", "<PI>16.691508 0.000000<", "49.791873 4.159231"},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    SCOPED_TRACE(Case.sLabel);
    const std::string sPlan = Plan({{}, Case.Element});
    EXPECT_NE(sPlan.find(Case.sAttribute), std::string::npos) << sPlan;
    EXPECT_NE(sPlan.find(Case.sMiddle), std::string::npos) << sPlan;
    EXPECT_EQ(Between(sPlan, "<End>", "</End>"), std::vector{Case.sEnd});
    EXPECT_TRUE(bResult);
    EXPECT_EQ(dStart, Case.Element.dChainage);
    EXPECT_EQ(dEnd, Case.Element.dChainage + Case.Element.dLength);
  }
}

TEST_F(CoordGeom, TakesEndsFromTheNextElementGapsAndAll) {
  const std::string sPlan =
      Plan({{}, Hz(0, 0, 0, 0, 0, 0, 10), Hz(12, 0, 12, 0, 0.001, 100, 50), Hz(62, 2.5, 62, 8, 200, 0, 30)});
  const auto aEnds = Between(sPlan, "<End>", "</End>");
  EXPECT_EQ(aEnds.at(0), "12.000000 0.000000");
  EXPECT_EQ(aEnds.at(1), "62.000000 2.500000");
  EXPECT_EQ(Between(sPlan, "radiusEnd=\"", "\"").at(0), "200.000000");
  EXPECT_EQ(dEnd, 62 + 30);
}

TEST_F(CoordGeom, TakesTheRadiiOfACubicSpiralFromItsNeighbours) {
  const THzElement Straight = Hz(0, 0, 0, 0, 0, 0, 100), Arc = Hz(0, 0, 0, 0, -500, 0, 100),
                   Spiral = Hz(100, 0, 100, 0, -0.001, -1, 50),
                   ArcBehind = Hz(150, -1, 150, 396.82, -500, 0, 80),
                   StraightBehind = Hz(150, -1, 150, 396.82, 0, 0, 80);
  const struct {
    THzElements aHz;
    double dFrom, dTo;
    const char *sStart, *sEnd;
  } aCases[] = {
      // clang-format off
      {{{}, Straight, Spiral, ArcBehind}, dNotGiven, dNotGiven, "INF",        "500.000000"},
      {{{}, Arc, Spiral, StraightBehind}, 100,       dNotGiven, "500.000000", "INF"},
      {{{}, Arc, Spiral, ArcBehind},      dNotGiven, 149,       "500.000000", "500.000000"},
      {{{}, Spiral, StraightBehind},      dNotGiven, dNotGiven, "INF",        "INF"},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    const std::string sPlan = Plan(Case.aHz, Case.dFrom, Case.dTo);
    EXPECT_EQ(Between(sPlan, "radiusStart=\"", "\""), std::vector<std::string>{Case.sStart}) << sPlan;
    EXPECT_EQ(Between(sPlan, "radiusEnd=\"", "\""), std::vector<std::string>{Case.sEnd}) << sPlan;
    EXPECT_NE(sPlan.find(" rot=\"ccw\" spiType=\"cubic\">\n"), std::string::npos) << sPlan;
    // The tangents meet south of the middle: the end turns left by 3.18 gon.
    EXPECT_EQ(Between(sPlan, "<PI>", "</PI>").at(0), "129.997164 0.000000");
    EXPECT_TRUE(bResult);
  }
}

TEST_F(CoordGeom, EndsBeforeAnElementThatCannotBeWorkedOut) {
  // A cubic spiral's end is known from the next element alone.
  const THzElement Straight = Hz(0, 0, 0, 0, 0, 0, 100), Spiral = Hz(100, 0, 100, 0, -500, -1, 50);
  const std::string sPlan = Plan({{}, Straight, Spiral});
  EXPECT_EQ(sPlan.substr(sPlan.find("\t\t<End>")), "\t\t<End>100.000000 0.000000</End>\n\t</Line>\n");
  EXPECT_FALSE(bResult);
  EXPECT_EQ(OnlyBox(), "Unhandler Error in CLandXML.TagCoordGeom\r\nSubscript out of range");
}

TEST_F(CoordGeom, LimitsChooseWholeElements) {
  const THzElements aHz = {
      {}, Hz(100, 0, 0, 0, 0, 0, 100), Hz(200, 0, 100, 0, 0, 0, 100), Hz(300, 0, 200, 0, 0, 0, 50)};
  const std::string s1 = "100.000000", s2 = "200.000000", s3 = "300.000000";
  const struct {
    double dFrom, dTo;
    std::vector<std::string> aWritten;
    double dStart, dEnd;
  } aCases[] = {
      // clang-format off
      {0,         1000,      {s1, s2, s3}, 100, 350},
      {100,       300,       {s1, s2, s3}, 100, 350},
      {199.9,     200,       {s1, s2},     100, 300},
      {200,       299.9,     {s2},         200, 300},
      {400,       dNotGiven, {s3},         300, 350},
      {dNotGiven, 50,        {s1},         100, 200},
      {300,       150,       {},           300, 0},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    SCOPED_TRACE(std::to_string(Case.dFrom) + " to " + std::to_string(Case.dTo));
    const std::string sPlan = Plan(aHz, Case.dFrom, Case.dTo);
    EXPECT_EQ(Between(sPlan, "staStart=\"", "\""), Case.aWritten);
    EXPECT_TRUE(bResult);
    EXPECT_EQ(dStart, Case.dStart);
    EXPECT_EQ(dEnd, Case.dEnd);
  }
}

TEST_F(CoordGeom, OfAnAlignmentWithoutElementsIsNothing) {
  for (const THzElements& aHz : {THzElements(), THzElements(1)}) {
    bResult = true;
    EXPECT_EQ(Plan(aHz, 0, 10), "");
    EXPECT_FALSE(bResult);
    EXPECT_EQ(OnlyBox(), "");
  }
}

}  // namespace
}  // namespace vrek::test
