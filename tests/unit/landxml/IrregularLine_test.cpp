#include <algorithm>

#include "LandXmlTest.h"
#include "base/NotGiven.h"

namespace vrek::test {
namespace {

using Strings = std::vector<std::string>;

// Pieces of 10 m to the north, from chainage 100 and X 5, Y 0.
THzElements Pieces(int nCount) {
  THzElements aHz(1);
  for (int i = 1; i <= nCount; ++i) {
    const double d = 10.0 * (i - 1);
    aHz.push_back({i, 100 + d, 5, d, 0, 0, 0, 10});
  }
  return aHz;
}

class IrregularLine : public LandXmlTest {
 protected:
  std::string Plan(const THzElements& aHz, double dFrom = dNotGiven, double dTo = dNotGiven) {
    return Written([&] { bResult = CLandXML::TagCoordGeomIrrLn(dStart, dEnd, aHz, dFrom, dTo); });
  }
  double dStart = -1, dEnd = -1;
  bool bResult = false;
};

TEST_F(IrregularLine, OfTwoElementsIsOneBlockWithABlankBehindEachPair) {
  EXPECT_EQ(Plan(Pieces(2)),
            "<CoordGeom>\n"
            "\t<IrregularLine staStart=\"100.000000\">\n"
            "\t\t<Start>0.000000 5.000000</Start>\n"
            "\t\t<End>20.000000 5.000000</End>\n"
            "\t\t<PntList2D>0.000000 5.000000 10.000000 5.000000 20.000000 5.000000 </PntList2D>\n"
            "\t</IrregularLine>\n"
            "</CoordGeom>\n");
  EXPECT_TRUE(bResult);
  EXPECT_EQ(dStart, 100);
  EXPECT_EQ(dEnd, 120);
}

TEST_F(IrregularLine, OfOneElementHasNoBlankAtTheEnd) {
  // A limit before the only element has no second one to offer.
  for (const double dTo : {dNotGiven, 50.0}) {
    EXPECT_EQ(Between(Plan(Pieces(1), dNotGiven, dTo), "<PntList2D>", "</PntList2D>"),
              Strings{"0.000000 5.000000 10.000000 5.000000"});
    EXPECT_TRUE(bResult);
  }
}

TEST_F(IrregularLine, IsCutIntoBlocksThatShareTheirEndPoints) {
  const std::string s1 = "100.000000", s25 = "340.000000", s49 = "580.000000";
  const std::string sY25 = "240.000000 5.000000", sY49 = "480.000000 5.000000";
  const struct {
    int nElements;
    Strings aStarts, aEnds;
    std::vector<long> aPoints;
  } aCases[] = {
      // clang-format off
      {25, {s1},           {"250.000000 5.000000"},             {26}},
      {26, {s1, s25},      {sY25, "260.000000 5.000000"},       {25, 3}},
      {49, {s1, s25},      {sY25, "490.000000 5.000000"},       {25, 26}},
      {60, {s1, s25, s49}, {sY25, sY49, "600.000000 5.000000"}, {25, 25, 13}},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    SCOPED_TRACE(Case.nElements);
    const std::string sPlan = Plan(Pieces(Case.nElements));
    EXPECT_EQ(Between(sPlan, "staStart=\"", "\""), Case.aStarts);
    EXPECT_EQ(Between(sPlan, "<End>", "</End>"), Case.aEnds);
    std::vector<long> aPoints;
    for (const std::string& sList : Between(sPlan, "<PntList2D>", "</PntList2D>")) {
      aPoints.push_back(std::count(sList.begin(), sList.end(), ' ') / 2);
    }
    EXPECT_EQ(aPoints, Case.aPoints);
    EXPECT_EQ(dEnd, 100 + 10.0 * Case.nElements);
  }
}

TEST_F(IrregularLine, GoesOneElementBeyondItsLimit) {
  const std::string sPlan = Plan(Pieces(5), 115, 125);
  EXPECT_EQ(Between(sPlan, "<PntList2D>", "</PntList2D>"),
            Strings{"10.000000 5.000000 20.000000 5.000000 30.000000 5.000000 40.000000 5.000000 "});
  EXPECT_EQ(dStart, 110);
  EXPECT_EQ(dEnd, 140);
}

TEST_F(IrregularLine, WithoutElementsIsNothing) {
  bResult = true;
  EXPECT_EQ(Plan(THzElements(1)), "");
  EXPECT_FALSE(bResult);
}

TEST_F(IrregularLine, ReportsANumberThatIsNone) {
  auto aHz = Pieces(30);
  aHz[28].dX = 1e308 * 10;
  const std::string sPlan = Plan(aHz);
  EXPECT_FALSE(bResult);
  EXPECT_EQ(Between(sPlan, "staStart=\"", "\""), Strings{"100.000000"}) << "the block before it stays";
  EXPECT_EQ(OnlyBox(), "Unhandler Error in TagCoordGeomIrrLn\r\nOverflow");
}

}  // namespace
}  // namespace vrek::test
