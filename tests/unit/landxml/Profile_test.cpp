#include "LandXmlTest.h"
#include "base/NotGiven.h"

namespace vrek::test {
namespace {

using Strings = std::vector<std::string>;

// Grades of 100 m each, from chainage 100.
TVtElements Grades(int nCount) {
  TVtElements aVt(1);
  for (int i = 1; i <= nCount; ++i) aVt.push_back({i, 100.0 * i, 50, 0, 0, 100});
  return aVt;
}

class Profile : public LandXmlTest {
 protected:
  std::string Axis(const TVtElements& aVt, double dFrom = dNotGiven, double dTo = dNotGiven) {
    return Written([&] { bResult = CLandXML::TagProfAlign(dStart, dEnd, "\xC3\xB1", aVt, dFrom, dTo); });
  }
  std::string StringLine(const TVtElements& aVt, double dFrom = dNotGiven, double dTo = dNotGiven) {
    return Written([&] { bResult = CLandXML::TagProfAlignIrrLn(dStart, dEnd, "\xC3\xB1", aVt, dFrom, dTo); });
  }
  double dStart = -1, dEnd = -1;
  bool bResult = false;
};

TEST_F(Profile, HasAPointAtEachStartAndALineForEachCurve) {
  EXPECT_EQ(Axis({{},
                  {1, 500, 20, 0.03, -1000, -40},
                  {2, 540, 20.4, -0.01, -1000, 0},
                  {3, 540, 20.4, -0.01, 0, 460},
                  {4, 1000, 50, 0.02, -5000, 120}}),
            "<ProfAlign name=\"\xC3\xB1\">\n"
            "\t<PVI>500.000000 20.000000</PVI>\n"
            "\t<CircCurve length=\"40.000000\" radius=\"-1000.000000\">519.989008 20.599670</CircCurve>\n"
            "\t<PVI>540.000000 20.400000</PVI>\n"
            "\t<CircCurve length=\"0.000000\" radius=\"-1000.000000\">540.000000 20.400000</CircCurve>\n"
            "\t<PVI>540.000000 20.400000</PVI>\n"
            "\t<PVI>1000.000000 50.000000</PVI>\n"
            "\t<ParaCurve length=\"120.000000\" desc=\"-5000.000000\">1060.000000 51.200000</ParaCurve>\n"
            "</ProfAlign>\n");
  EXPECT_TRUE(bResult);
  EXPECT_EQ(dStart, 500);
  EXPECT_EQ(dEnd, 1120);
}

TEST_F(Profile, EndsBehindThePointOfACircleWithoutANextGrade) {
  EXPECT_EQ(Axis({{}, {1, 0, 1, 0.03, 2000, -40}}),
            "<ProfAlign name=\"\xC3\xB1\">\n\t<PVI>0.000000 1.000000</PVI>\n");
  EXPECT_FALSE(bResult);
  EXPECT_EQ(OnlyBox(), "Unhandler Error in TagProfAlign\r\nSubscript out of range");
}

TEST_F(Profile, CoversItsLimits) {
  const auto P = [](int i) { return std::to_string(100 * i) + ".000000 50.000000"; };
  const struct {
    int nElements;
    double dFrom, dTo;
    Strings aWritten;
    double dStart, dEnd;
  } aCases[] = {
      // clang-format off
      {5, dNotGiven, 350,       {P(1), P(2), P(3), P(4)},       100, 500},
      {5, 200,       500,       {P(2), P(3), P(4), P(5)},       200, 600},
      {5, 50,        60,        {P(1), P(2)},                   100, 300},
      {5, 700,       dNotGiven, {P(5)},                         500, 600},
      {5, 500,       150,       {},                             500, 0},
      {1, 150,       50,        {P(1)},                         100, 200},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    SCOPED_TRACE(std::to_string(Case.dFrom) + " to " + std::to_string(Case.dTo));
    const TVtElements aVt = Grades(Case.nElements);
    EXPECT_EQ(Between(Axis(aVt, Case.dFrom, Case.dTo), "<PVI>", "</PVI>"), Case.aWritten);
    EXPECT_TRUE(bResult);
    EXPECT_EQ(dStart, Case.dStart);
    EXPECT_EQ(dEnd, Case.dEnd);
    EXPECT_EQ(Between(StringLine(aVt, Case.dFrom, Case.dTo), "<PVI>", "</PVI>"), Case.aWritten);
    EXPECT_TRUE(bResult);
  }
}

TEST_F(Profile, OfAStringLineIsPointsAlone) {
  const std::string sProfile =
      StringLine({{}, {1, 500, 20, 0.03, -1000, -40}, {2, 540, 20.4, -0.01, 900, 10}});
  EXPECT_EQ(Between(sProfile, "<PVI>", "</PVI>"), (Strings{"500.000000 20.000000", "540.000000 20.400000"}));
  EXPECT_EQ(sProfile.find("Curve"), std::string::npos);
  EXPECT_EQ(dStart, -1);
  EXPECT_EQ(dEnd, -1);
}

TEST_F(Profile, WithoutElementsIsNothingAndWell) {
  for (const TVtElements& aVt : {TVtElements(), TVtElements(1)}) {
    EXPECT_EQ(Axis(aVt, 0, 10), "");
    EXPECT_TRUE(std::exchange(bResult, false));
    EXPECT_EQ(StringLine(aVt, 0, 10), "");
    EXPECT_TRUE(std::exchange(bResult, false));
  }
}

TEST_F(Profile, OfAStringLineSaysWhetherItsClosingLineWentOut) {
  const TVtElements aVt = Grades(1);
  ASSERT_TRUE(CLandXML::OpenFile());
  Disk().nRoom = 60;  // the opening line and the point, not the closing line
  EXPECT_FALSE(CLandXML::TagProfAlignIrrLn(dStart, dEnd, "a", aVt, dNotGiven, dNotGiven));
  EXPECT_EQ(OnlyBox(), NotWritten("</ProfAlign>"));
}

}  // namespace
}  // namespace vrek::test
