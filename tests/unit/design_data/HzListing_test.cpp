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

// Elements from 1: number, chainage, X, Y, azimuth, radius, parameter, length.
void ExpectElements(const THzElements& aHz, std::initializer_list<THzElement> aExpected) {
  ASSERT_EQ(aHz.size(), aExpected.size() + 1);
  std::size_t i = 0;
  for (const THzElement& Expected : aExpected) {
    SCOPED_TRACE(++i);
    EXPECT_EQ(aHz[i].nId, Expected.nId);
    EXPECT_DOUBLE_EQ(aHz[i].dChainage, Expected.dChainage);
    EXPECT_DOUBLE_EQ(aHz[i].dX, Expected.dX);
    EXPECT_DOUBLE_EQ(aHz[i].dY, Expected.dY);
    EXPECT_DOUBLE_EQ(aHz[i].dAzimuth, Expected.dAzimuth);
    EXPECT_DOUBLE_EQ(aHz[i].dRadius, Expected.dRadius);
    EXPECT_DOUBLE_EQ(aHz[i].dParameter, Expected.dParameter);
    EXPECT_DOUBLE_EQ(aHz[i].dLength, Expected.dLength);
  }
}

TEST_F(HorizontalListing, MarkedFormShiftsRadiusAndParameterToTheElementThatEnds) {
  ExpectElements(ReadHz(sMarked), {{1, 0, 1000, 2000, 50, 0, 0, 120},
                                   {2, 120, 1084.853, 2084.853, 50, 0.001, 122.474, 60},
                                   {3, 180, 1128.913, 2125.523, 57.6394, 250, 0, 120}});
  EXPECT_TRUE(bRead);
}

TEST_F(HorizontalListing, LineEndsMakeNoDifference) {
  std::string sCr = sMarked;
  std::replace(sCr.begin(), sCr.end(), '\n', '\r');
  for (const std::string& sBytes :
       {sCr, CrLf(sMarked).erase(CrLf(sMarked).size() - 2), std::string(sMarked)}) {
    EXPECT_EQ(Log(), "");
    THzElements aHz;
    EXPECT_TRUE(Entry::ImportHzAligment(aHz, WriteFile("b.plt", sBytes)));
    ASSERT_EQ(UpperBound(aHz), 3);
    EXPECT_EQ(aHz[3].dLength, 120);
  }
  EXPECT_NE(Log().find("b.plt"), std::string::npos) << "the file with LF alone is noted";
}

TEST_F(HorizontalListing, MarkedFormPassesOverBlankLinesAndEmptyFields) {
  ExpectElements(ReadHz("\n\n*PLT1\nany title\n"
                        "0,,1,2,0,0,0,PS\n"
                        "   \n"
                        " 10.5 ,1,12.5,0,0,0\n"
                        "\n"
                        "20,1,22,0,0,0\n\n  \n"),
                 {{1, 0, 1, 2, 0, 0, 0, 10.5}, {2, 10.5, 1, 12.5, 0, 0, 0, 9.5}});
  EXPECT_TRUE(bRead);
}

TEST_F(HorizontalListing, MarkedFormNeedsTwoPoints) {
  for (const char* sText : {"*PLT\n0,0,0,0,0,0\n", "*PLT\n0,0,0,0,0,0\n\n", "*PLT\n\n"}) {
    ExpectElements(ReadHz(sText), {});
    EXPECT_FALSE(bRead) << sText;
  }
  EXPECT_EQ(BoxText(), "");
  ExpectElements(ReadHz("*PLT\n0,0,0,100,7,8\n50,50,0,100,-300,0"), {{1, 0, 0, 0, 100, -300, 0, 50}});
  EXPECT_TRUE(bRead);
}

TEST_F(HorizontalListing, MarkedFormDropsElementsWithoutLengthButTheLast) {
  ExpectElements(ReadHz("*PLT\n5,1,0,0,0,0\n5,2,0,0,0,0\n9,3,0,0,400,0\n9,4,0,0,0,0\n"),
                 {{1, 5, 2, 0, 0, 400, 0, 4}, {2, 9, 3, 0, 0, 0, 0, 0}});
}

TEST_F(HorizontalListing, MarkedFormTellsStartRadiiFromTheNeighbours) {
  // From an arc to a straight, at the end; and a parameter keeps its sign.
  ExpectElements(ReadHz("*PLT\n0,0,0,100,0,0\n100,0,0,80,-318.31,0\n160,0,0,74,0,138.199\n\n"),
                 {{1, 0, 0, 0, 100, -318.31, 0, 100}, {2, 100, 0, 0, 80, -318.31, 138.199, 60}});
  const auto aHz = ReadHz("*PLT\n0,0,0,100,0,0\n25,25,0,101,500,-111.8\n50,50,0,103,500,0\n");
  EXPECT_EQ(aHz.at(1).dParameter, -111.8);
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
  ExpectElements(aHz, {{1, 0, 1000, 2000, 50, 0, 0, 120},
                       {2, 120, 1084.853, 2084.853, 50, 0.001, 122.474, 60},
                       {3, 180, 1128.913, 2125.523, 57.6394, 250, 0, 120},
                       {4, 300, 1237.172, 2174.571, 88.1972, 250, 0, 120}});
}

// Fields 6 and 7 hold 60 and 70. The last row keeps its own values; with a parameter it is a clothoid that
// gets a stub to end at.
TEST_F(HorizontalListing, TabFormCountsRadiusAndParameterByTheRow) {
  for (const int nFields : {7, 8, 9, 10, 11, 15, 18}) {
    SCOPED_TRACE(nFields);
    const std::string sRow =
        "1\t2\t3\t4\t5\t60\t70" + std::string(static_cast<std::size_t>(nFields - 7), '\t');
    const auto aHz = ReadHz("\n" + sRow + "\n\n", "a.rtf");
    EXPECT_EQ(UpperBound(aHz), nFields == 8 || nFields == 10 ? 2 : 1);
    EXPECT_EQ(aHz.back().dRadius, nFields >= 8 && nFields <= 10 ? 60 : 0);
    EXPECT_EQ(aHz.back().dParameter, 0);
  }
}

TEST_F(HorizontalListing, TabFormThatEndsInsideAClothoidGetsAStub) {
  ExpectElements(ReadHz("\n0\t0\t1\t2\t100\tInfinito\t\n100\t100\t101\t2\t110\t300\t173.2\t\n\n", "a.rtf"),
                 {{1, 0, 1, 2, 100, 0.001, 173.2, 100},
                  {2, 100, 101, 2, 110, 300, 0, 0.01},
                  {3, 100.01, 0, 0, 0, 300, 0, 0.01}});
}

TEST_F(HorizontalListing, TabFormWithoutRowsIsNoListing) {
  ExpectElements(ReadHz("Estaci\xF3n\t1\t2\t3\t4\t5\t6\nno\t1\t2\t3\t4\t5\t6\n1\t2\t3\t4\t5\t6\n\n", "a.rtf"),
                 {});
  EXPECT_FALSE(bRead);
  EXPECT_EQ(BoxText(), "");
}

}  // namespace
}  // namespace vrek::test
