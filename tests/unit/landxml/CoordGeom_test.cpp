#include "LandXmlTest.h"
#include "base/NotGiven.h"

namespace vrek::test {
namespace {

using CLandXML::TagCoordGeom;

// Chainage, X, Y, azimuth (gon), radius, parameter, length.
THzElement Hz(double dChainage, double dX, double dY, double dAzimuth, double dRadius, double dParameter,
              double dLength) {
  return {0, dChainage, dX, dY, dAzimuth, dRadius, dParameter, dLength};
}

THzElements From1(std::initializer_list<THzElement> aElements) {
  THzElements aHz(1);
  aHz.insert(aHz.end(), aElements);
  return aHz;
}

class CoordGeom : public LandXmlTest {
 protected:
  std::string Plan(const THzElements& aHz, double dFrom = dNotGiven, double dTo = dNotGiven) {
    return Written([&] { bResult = TagCoordGeom(dStart, dEnd, aHz, dFrom, dTo); });
  }
  double dStart = -1, dEnd = -1;
  bool bResult = false;
};

TEST_F(CoordGeom, OfOneStraightEndsWhereItsAzimuthLeads) {
  EXPECT_EQ(Plan(From1({Hz(10, 1000, 2000, 50, 0, 0, 100)})),
            "<CoordGeom>\n"
            "\t<Line staStart=\"10.000000\">\n"
            "\t\t<Start>2000.000000 1000.000000</Start>\n"
            "\t\t<End>2070.710678 1070.710678</End>\n"
            "\t</Line>\n"
            "</CoordGeom>\n");
  EXPECT_TRUE(bResult);
  EXPECT_EQ(dStart, 10);
  EXPECT_EQ(dEnd, 110);
}

TEST_F(CoordGeom, OfOneArcTurnsByItsSign) {
  // A quarter turn of radius 100 heading north: the centre lies east or west of the start.
  EXPECT_EQ(Plan(From1({Hz(0, 1000, 2000, 0, 100, 0, 157.07963267949)})),
            "<CoordGeom>\n"
            "\t<Curve staStart=\"0.000000\" rot=\"cw\" crvType=\"arc\" radius=\"100.000000\">\n"
            "\t\t<Start>2000.000000 1000.000000</Start>\n"
            "\t\t<Center>2000.000000 1100.000000</Center>\n"
            "\t\t<End>2100.000000 1100.000000</End>\n"
            "\t</Curve>\n"
            "</CoordGeom>\n");
  const std::string sLeft = Plan(From1({Hz(0, 1000, 2000, 0, -100, 0, 157.07963267949)}));
  EXPECT_NE(sLeft.find("rot=\"ccw\" crvType=\"arc\" radius=\"100.000000\""), std::string::npos) << sLeft;
  EXPECT_NE(sLeft.find("<Center>2000.000000 900.000000</Center>"), std::string::npos) << sLeft;
}

TEST_F(CoordGeom, OfOneClothoidWorksOutItsEnd) {
  struct TCase {
    double dRadius;
    const char* sAttributes;
    const char* sPI;
    const char* sEnd;
  };
  // clang-format off
  const TCase aCases[] = {
      {0.001,  "desc=\"TangentToCurve\" length=\"50.000000\" radiusStart=\"INF\" radiusEnd=\"200.000000\" rot=\"cw\"",  "33.360656 0.000000", "49.921931 2.081009"},
      {-0.001, "desc=\"TangentToCurve\" length=\"50.000000\" radiusStart=\"INF\" radiusEnd=\"200.000000\" rot=\"ccw\"", "33.360656 0.000000", "49.921931 -2.081009"},
      {200,    "desc=\"CurveToTangent\" length=\"50.000000\" radiusStart=\"200.000000\" radiusEnd=\"INF\" rot=\"cw\"",  "16.691508 0.000000", "49.791873 4.159231"},
  };
  // clang-format on
  for (const TCase& Case : aCases) {
    EXPECT_EQ(Plan(From1({Hz(0, 0, 0, 0, Case.dRadius, 100, 50)})),
              std::string("<CoordGeom>\n\t<Spiral staStart=\"0.000000\" ") + Case.sAttributes +
                  " spiType=\"clothoid\" constant=\"100.000000\">\n"
                  "\t\t<Start>0.000000 0.000000</Start>\n"
                  "\t\t<PI>" +
                  Case.sPI +
                  "</PI>\n"
                  "\t\t<End>" +
                  Case.sEnd +
                  "</End>\n"
                  "\t</Spiral>\n"
                  "</CoordGeom>\n");
  }
}

TEST_F(CoordGeom, TakesEndsFromTheNextElementGapsAndAll) {
  // The straight is 12 m too short for the start of the clothoid behind it.
  const std::string sPlan =
      Plan(From1({Hz(0, 458120.355, 4471903.62, 277.729, 0, 0, 250),
                  Hz(262, 457874.224264, 4471813.822111, 277.729, 0.001, 345, 132.25),
                  Hz(394.25, 457748.941985, 4471771.560752, 282.406387, 900, 0, 279.183)}));
  EXPECT_EQ(sPlan.substr(0, sPlan.find("\t<Curve")),
            "<CoordGeom>\n"
            "\t<Line staStart=\"0.000000\">\n"
            "\t\t<Start>4471903.620000 458120.355000</Start>\n"
            "\t\t<End>4471813.822111 457874.224264</End>\n"
            "\t</Line>\n"
            "\t<Spiral staStart=\"262.000000\" desc=\"TangentToCurve\" length=\"132.250000\" "
            "radiusStart=\"INF\" radiusEnd=\"900.000000\" rot=\"cw\" spiType=\"clothoid\" "
            "constant=\"345.000000\">\n"
            "\t\t<Start>4471813.822111 457874.224264</Start>\n"
            "\t\t<PI>4471783.595316 457791.374396</PI>\n"
            "\t\t<End>4471771.560752 457748.941985</End>\n"
            "\t</Spiral>\n");
  EXPECT_EQ(dEnd, 394.25 + 279.183);
}

TEST_F(CoordGeom, TakesTheRadiiOfACubicSpiralFromItsNeighbours) {
  const THzElement Straight = Hz(0, 0, 0, 0, 0, 0, 100), Arc = Hz(0, 0, 0, 0, -500, 0, 100),
                   Spiral = Hz(100, 0, 100, 0, -0.001, -1, 50),
                   ArcBehind = Hz(150, -1, 150, 396.82, -500, 0, 80),
                   StraightBehind = Hz(150, -1, 150, 396.82, 0, 0, 80);
  struct TCase {
    THzElements aHz;
    double dFrom, dTo;
    const char* sRadii;
  };
  // clang-format off
  const TCase aCases[] = {
      {From1({Straight, Spiral, ArcBehind}), dNotGiven, dNotGiven, "radiusStart=\"INF\" radiusEnd=\"500.000000\""},
      {From1({Arc, Spiral, StraightBehind}), 100,       dNotGiven, "radiusStart=\"500.000000\" radiusEnd=\"INF\""},
      {From1({Arc, Spiral, ArcBehind}),      dNotGiven, 149,       "radiusStart=\"500.000000\" radiusEnd=\"500.000000\""},
      {From1({Spiral, StraightBehind}),      dNotGiven, dNotGiven, "radiusStart=\"INF\" radiusEnd=\"INF\""},
  };
  // clang-format on
  for (const TCase& Case : aCases) {
    const std::string sPlan = Plan(Case.aHz, Case.dFrom, Case.dTo);
    // The tangents meet south of the middle: the end turns left by 3.18 gon.
    EXPECT_NE(sPlan.find("\t<Spiral staStart=\"100.000000\" desc=\"\" length=\"50.000000\" " +
                         std::string(Case.sRadii) +
                         " rot=\"ccw\" spiType=\"cubic\">\n"
                         "\t\t<Start>100.000000 0.000000</Start>\n"
                         "\t\t<PI>129.997164 0.000000</PI>\n"
                         "\t\t<End>150.000000 -1.000000</End>\n"
                         "\t</Spiral>\n"),
              std::string::npos)
        << sPlan;
    EXPECT_TRUE(bResult);
  }
}

TEST_F(CoordGeom, EndsBeforeAnElementThatCannotBeWorkedOut) {
  // A cubic spiral's end is known from the next element alone.
  const THzElement Straight = Hz(0, 0, 0, 0, 0, 0, 100), Spiral = Hz(100, 0, 100, 0, -500, -1, 50);
  EXPECT_EQ(Plan(From1({Straight, Spiral})),
            "<CoordGeom>\n"
            "\t<Line staStart=\"0.000000\">\n"
            "\t\t<Start>0.000000 0.000000</Start>\n"
            "\t\t<End>100.000000 0.000000</End>\n"
            "\t</Line>\n");
  EXPECT_FALSE(bResult);
  EXPECT_EQ(OnlyBox(), "Unhandler Error in CLandXML.TagCoordGeom\r\nSubscript out of range");
}

TEST_F(CoordGeom, LimitsChooseWholeElements) {
  const auto aHz =
      From1({Hz(100, 0, 0, 0, 0, 0, 100), Hz(200, 0, 100, 0, 0, 0, 100), Hz(300, 0, 200, 0, 0, 0, 50)});
  struct TCase {
    double dFrom, dTo;
    std::vector<std::string> aWritten;
    double dStart, dEnd;
  };
  const std::string s1 = "100.000000", s2 = "200.000000", s3 = "300.000000";
  // clang-format off
  const TCase aCases[] = {
      {dNotGiven, dNotGiven, {s1, s2, s3}, 100, 350},
      {0,         1000,      {s1, s2, s3}, 100, 350},
      {100,       300,       {s1, s2, s3}, 100, 350},
      {199.9,     200,       {s1, s2},     100, 300},
      {200,       299.9,     {s2},         200, 300},
      {400,       dNotGiven, {s3},         300, 350},
      {dNotGiven, 50,        {s1},         100, 200},
      {300,       150,       {},           300, 0},
  };
  // clang-format on
  for (const TCase& Case : aCases) {
    const std::string sPlan = Plan(aHz, Case.dFrom, Case.dTo);
    EXPECT_EQ(Between(sPlan, "staStart=\"", "\""), Case.aWritten) << Case.dFrom << " to " << Case.dTo;
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

TEST_F(CoordGeom, StandsAtTheDepthOfItsAlignment) {
  const std::string sWritten = Written([&] {
    CLandXML::TagProfile(false);
    TagCoordGeom(dStart, dEnd, From1({Hz(0, 0, 0, 0, 0, 0, 1)}), dNotGiven, dNotGiven);
  });
  EXPECT_EQ(sWritten.substr(sWritten.find("\t<C"), 27), "\t<CoordGeom>\n\t\t<Line staSta");
  EXPECT_EQ(CLandXML::Tabs(), 1);
}

}  // namespace
}  // namespace vrek::test
