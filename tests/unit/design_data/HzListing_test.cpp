#include <cmath>

#include "ReaderTest.h"
#include "geometry/GM.h"

namespace vrek::test {
namespace {

using HorizontalListing = ReaderTest;

constexpr const char* sMarked =
    "*PLT\n"
    "0.000,1000.000,2000.000,50.0000,0.000,0.000\n"
    "120.000,1084.853,2084.853,50.0000,0.000,0.000\n"
    "180.000,1128.913,2125.523,57.6394,250.000,122.474\n"
    "300.000,1237.172,2174.571,88.1972,250.000,0.000\n";

void ExpectElement(const THzElement& E, int nId, double dChainage, double dX, double dAzimuth, double dRadius,
                   double dParameter, double dLength) {
  EXPECT_EQ(E.nId, nId);
  EXPECT_DOUBLE_EQ(E.dChainage, dChainage);
  EXPECT_DOUBLE_EQ(E.dX, dX);
  EXPECT_DOUBLE_EQ(E.dAzimuth, dAzimuth);
  EXPECT_DOUBLE_EQ(E.dRadius, dRadius);
  EXPECT_DOUBLE_EQ(E.dParameter, dParameter);
  EXPECT_DOUBLE_EQ(E.dLength, dLength);
}

TEST_F(HorizontalListing, MarkedFormShiftsRadiusAndParameterToTheElementThatEnds) {
  const auto aHz = ReadHz(sMarked);
  EXPECT_TRUE(bRead);
  ASSERT_EQ(UpperBound(aHz), 3);
  ExpectElement(aHz[1], 1, 0, 1000, 50, 0, 0, 120);
  ExpectElement(aHz[2], 2, 120, 1084.853, 50, 0.001, 122.474, 60);
  ExpectElement(aHz[3], 3, 180, 1128.913, 57.6394, 250, 0, 120);
  EXPECT_EQ(aHz[3].dY, 2125.523);
}

TEST_F(HorizontalListing, LineEndsMakeNoDifference) {
  const auto aExpected = ReadHz(sMarked);
  const std::string sCrLf = CrLf(sMarked);
  std::string sCr = sMarked;
  std::replace(sCr.begin(), sCr.end(), '\n', '\r');
  for (const std::string& sBytes : {std::string(sMarked), sCr, sCrLf.substr(0, sCrLf.size() - 2)}) {
    THzElements aHz;
    EXPECT_TRUE(Entry::ImportHzAligment(aHz, WriteFile("b.plt", sBytes)));
    ASSERT_EQ(aHz.size(), aExpected.size());
    EXPECT_EQ(aHz[3].dLength, aExpected[3].dLength);
  }
  EXPECT_NE(Log().find("b.plt"), std::string::npos) << "the file with LF alone is noted";
}

TEST_F(HorizontalListing, MarkedFormPassesOverBlankLinesAndEmptyFields) {
  const auto aHz = ReadHz(
      "\n\n*PLT1\nany title\n"
      "0,,1,2,0,0,0,PS\n"
      "   \n"
      " 10.5 ,1,12.5,0,0,0\n"
      "\n"
      "20,1,22,0,0,0\n\n  \n");
  EXPECT_TRUE(bRead);
  ASSERT_EQ(UpperBound(aHz), 2);
  ExpectElement(aHz[1], 1, 0, 1, 0, 0, 0, 10.5);
  EXPECT_EQ(aHz[2].dLength, 9.5);
}

TEST_F(HorizontalListing, MarkedFormNeedsTwoPoints) {
  EXPECT_EQ(UpperBound(ReadHz("*PLT\n0,0,0,0,0,0\n")), 0);
  EXPECT_FALSE(bRead);
  EXPECT_EQ(UpperBound(ReadHz("*PLT\n0,0,0,0,0,0\n\n")), 0);
  EXPECT_FALSE(bRead);
  EXPECT_EQ(UpperBound(ReadHz("*PLT\n\n")), 0);
  EXPECT_FALSE(bRead);
  EXPECT_EQ(BoxText(), "");

  const auto aHz = ReadHz("*PLT\n0,0,0,100,7,8\n50,50,0,100,-300,0");
  EXPECT_TRUE(bRead);
  ASSERT_EQ(UpperBound(aHz), 1);
  ExpectElement(aHz[1], 1, 0, 0, 100, -300, 0, 50);
}

TEST_F(HorizontalListing, MarkedFormDropsElementsWithoutLengthButTheLast) {
  const auto aHz = ReadHz(
      "*PLT\n"
      "5,1,0,0,0,0\n"
      "5,2,0,0,0,0\n"
      "9,3,0,0,400,0\n"
      "9,4,0,0,0,0\n");
  ASSERT_EQ(UpperBound(aHz), 2);
  ExpectElement(aHz[1], 1, 5, 2, 0, 400, 0, 4);
  ExpectElement(aHz[2], 2, 9, 3, 0, 0, 0, 0);
}

TEST_F(HorizontalListing, MarkedFormTellsStartRadiiFromTheNeighboursAlsoAtTheEnd) {
  const auto aHz = ReadHz(
      "*PLT\n"
      "0,0,0,100,0,0\n"
      "100,0,0,80,-318.31,0\n"
      "160,0,0,74,0,138.199\n\n");
  EXPECT_TRUE(bRead);
  ASSERT_EQ(UpperBound(aHz), 2);
  EXPECT_DOUBLE_EQ(aHz[2].dRadius, -318.31) << "from an arc to a straight";
  EXPECT_EQ(aHz[2].dParameter, 138.199);
}

TEST_F(HorizontalListing, MarkedFormKeepsANegativeParameter) {
  const auto aHz = ReadHz("*PLT\n0,0,0,100,0,0\n25,25,0,101,500,-111.8\n50,50,0,103,500,0\n");
  ASSERT_EQ(UpperBound(aHz), 2);
  EXPECT_EQ(aHz[1].dParameter, -111.8);
  EXPECT_EQ(std::abs(aHz[1].dRadius), GM::dInfiniteRadius);
}

// The same plan as a table, in the two number formats. Rows of text around it are passed over.
TEST_F(HorizontalListing, TabFormReadsRowsByTheirNumberOfFields) {
  const auto aHz = ReadHz(
      "Listado de eje\n"
      "Estaci\xF3n\tLongitud\tX\tY\tAzimut\tRadio\tPar\xE1metro\n"
      "0+000.000\t0.000\t1,000.000\t2.000,000\t50.0000\tINFINITO\t\n"
      "0+120,000\t120.000\t1084.853\t2084.853\t50.0000\t Infinito\t\n"
      "12 m\t1\t2\t3\t4\t5\t6\n"
      "0+180.000\t60.000\t1128.913\t2125.523\t57.6394\t250.000\t122.474\t\n"
      "0+300.000\t120.000\t1237.172\t2174.571\t88.1972\t250.000\t\t\t\n"
      "Total\t300\n",
      "a.RtF");
  EXPECT_TRUE(bRead);
  ASSERT_EQ(UpperBound(aHz), 4);
  ExpectElement(aHz[1], 1, 0, 1000, 50, 0, 0, 120);
  EXPECT_EQ(aHz[1].dY, 2000);
  ExpectElement(aHz[2], 2, 120, 1084.853, 50, 0.001, 122.474, 60);
  ExpectElement(aHz[3], 3, 180, 1128.913, 57.6394, 250, 0, 120);
  ExpectElement(aHz[4], 4, 300, 1237.172, 88.1972, 250, 0, 120);
}

TEST_F(HorizontalListing, TabFormCountsRadiusAndParameterByTheRow) {
  struct TCase {
    int nFields;
    double dRadius, dParameter;
  };
  // Fields 6 and 7 hold 60 and 70; the row in question is followed by none, so it keeps its own values.
  for (const auto& Case :
       {TCase{7, 0, 0}, {8, 60, 70}, {9, 60, 0}, {10, 60, 70}, {11, 0, 0}, {15, 0, 0}, {18, 0, 0}}) {
    std::string sRow = "1\t2\t3\t4\t5\t60\t70";
    for (int n = 7; n < Case.nFields; ++n) sRow += "\t";
    const auto aHz = ReadHz("\n" + sRow + "\n\n", "a.rtf");
    ASSERT_GE(UpperBound(aHz), 1) << Case.nFields;
    EXPECT_EQ(UpperBound(aHz), Case.dParameter == 0 ? 1 : 2) << Case.nFields;
    if (Case.dParameter == 0) {
      EXPECT_EQ(aHz[1].dRadius, Case.dRadius) << Case.nFields;
    }
    EXPECT_EQ(aHz[1].dParameter, 0) << Case.nFields;
  }
}

TEST_F(HorizontalListing, TabFormThatEndsInsideAClothoidGetsAStub) {
  const auto aHz = ReadHz("\n0\t0\t1\t2\t100\tInfinito\t\n100\t100\t101\t2\t110\t300\t173.2\t\n\n", "a.rtf");
  ASSERT_EQ(UpperBound(aHz), 3);
  ExpectElement(aHz[1], 1, 0, 1, 100, 0.001, 173.2, 100);
  ExpectElement(aHz[2], 2, 100, 101, 110, 300, 0, 0.01);
  ExpectElement(aHz[3], 3, 100.01, 0, 0, 300, 0, 0.01);
}

TEST_F(HorizontalListing, TabFormWithoutRowsIsNoListing) {
  EXPECT_EQ(UpperBound(
                ReadHz("Estaci\xF3n\t1\t2\t3\t4\t5\t6\nno\t1\t2\t3\t4\t5\t6\n1\t2\t3\t4\t5\t6\n\n", "a.rtf")),
            0);
  EXPECT_FALSE(bRead);
  EXPECT_EQ(BoxText(), "");
}

}  // namespace
}  // namespace vrek::test
