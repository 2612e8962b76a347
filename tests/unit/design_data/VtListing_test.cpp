#include "ReaderTest.h"
#include "geometry/GM.h"

namespace vrek::test {
namespace {

using VerticalListing = ReaderTest;

void ExpectElement(const TVtElement& E, double dChainage, double dHeight, double dSlope, double dKv,
                   double dLength) {
  EXPECT_NEAR(E.dChainage, dChainage, 1e-9);
  EXPECT_NEAR(E.dHeight, dHeight, 1e-9);
  EXPECT_NEAR(E.dSlope, dSlope, 1e-12);
  EXPECT_NEAR(E.dKv, dKv, 1e-6);
  EXPECT_NEAR(E.dLength, dLength, 1e-9);
}

// Each element ends where the next one starts.
void ExpectWithoutSteps(const TVtElements& aVt) {
  for (std::size_t i = 1; i + 1 < aVt.size(); ++i) {
    EXPECT_NEAR(aVt[i].dChainage + aVt[i].dLength, aVt[i + 1].dChainage, 0.001) << i;
    EXPECT_NEAR(GM::GetHeightInElement(aVt[i], aVt[i].dLength), aVt[i + 1].dHeight, 0.001) << i;
  }
}

TEST_F(VerticalListing, MarkedFormBuildsGradesAndCurvesFromVertices) {
  const auto aVt = ReadVt(
      "*ALZ\n"
      "0.000,512.340C,0T\n"
      "250.000,2.500P,60.000T\n"
      "600.000,-1.000P,8000.000R\n"
      "900.000,505.000C,0T\n");
  EXPECT_TRUE(bRead);
  ASSERT_EQ(UpperBound(aVt), 6);
  const double dLast = (505 - 515.09) / 300, dHalf = 4000 * (-0.01 - dLast);
  ExpectElement(aVt[1], 0, 512.34, 0.025, 0, 190);
  ExpectElement(aVt[2], 190, 517.09, 0.025, -120 / 0.035, 120);
  ExpectElement(aVt[3], 310, 517.99, -0.01, 0, 290 - dHalf);
  ExpectElement(aVt[4], 600 - dHalf, 515.09 + 0.01 * dHalf, -0.01, -8000, 2 * dHalf);
  ExpectElement(aVt[5], 600 + dHalf, 515.09 + dLast * dHalf, dLast, 0, 300 - dHalf);
  ExpectElement(aVt[6], 900, 505, 0, 0, 0);
  ExpectWithoutSteps(aVt);
  // A vertex keeps its number, also behind an element put in between.
  const int aIds[] = {0, 1, 2, 3, 3, 5, 6};
  for (std::size_t i = 0; i < aVt.size(); ++i) EXPECT_EQ(aVt[i].nId, aIds[i]) << i;
}

TEST_F(VerticalListing, MarkedFormTellsCurvesByTheirLetter) {
  struct TCase {
    const char* sCurve;
    double dKv, dLength;
  };
  // Grades of +2 and -2 per cent: a crest with a change of 0.04; the sag below mirrors it.
  for (const auto& Case : {TCase{"20T", -1000, 40},
                           {"-20T", -1000, 40},
                           {"0.2F", -1000, 40},
                           {"1000R", -1000, 40},
                           {"-1000R", -1000, 40},
                           {"1000X", 0, 0},
                           {"1000r", 0, 0}}) {
    const std::string sVertex = std::string(Case.sCurve) + "\n";
    for (const double dSign : {1.0, -1.0}) {
      const auto aVt = ReadVt(dSign > 0 ? "*ALZ\n0,10C,0R\n100,12C," + sVertex + "200,10C,0R\n"
                                        : "*ALZ\n0,10C,0R\n100,8C, " + sVertex + "200,10C ,0R\n");
      EXPECT_TRUE(bRead) << sVertex;
      ASSERT_GE(UpperBound(aVt), 3) << sVertex;
      EXPECT_NEAR(aVt[2].dKv, dSign * Case.dKv, 1e-6) << sVertex;
      EXPECT_NEAR(aVt[2].dLength, Case.dLength, 1e-9) << sVertex;
    }
  }
}

TEST_F(VerticalListing, ABlankFirstLineMakesItThePrintedForm) {
  EXPECT_EQ(UpperBound(ReadVt("\n*ALZ\n0,1C,0T\n1,1C,0T\n")), 0);
  EXPECT_FALSE(bRead);
  EXPECT_EQ(UpperBound(ReadVt("\n*ALZ\n==\n\n\n 1 0 9 1.0\n\n a b 5 9 1 c 7.0\n")), 2);
  EXPECT_TRUE(bRead);
  EXPECT_EQ(BoxText(), "");
}

TEST_F(VerticalListing, MarkedFormOfSharpVerticesTakesTheArrivingGrade) {
  const auto aVt = ReadVt("*ALZ1\nany,1C,1T\n\n0,10C,0T\ncomment\n1,2\n,,100,,11C  ,  0F,x,y\n150,8C,0R\n\n");
  EXPECT_TRUE(bRead);
  ASSERT_EQ(UpperBound(aVt), 3);
  ExpectElement(aVt[1], 0, 10, 0.01, 0, 100);
  ExpectElement(aVt[2], 100, 11, 0.01, 0, 50);
  ExpectElement(aVt[3], 150, 11.5, 0, 0, 0);
}

TEST_F(VerticalListing, MarkedFormTakesAnUnchangedGradeForSharp) {
  const auto aVt = ReadVt("*ALZ\n0,10C,0T\n100,1P,30T\n200,1P,0T\n");
  EXPECT_TRUE(bRead);
  ASSERT_EQ(UpperBound(aVt), 3);
  ExpectElement(aVt[2], 100, 11, 0.01, 0, 0);
}

TEST_F(VerticalListing, MarkedFormLetsCurvesTouch) {
  for (const auto& [sTangent, nElements] : {std::pair{"50.0004T", 5}, {"49.99T", 6}}) {
    const auto aVt = ReadVt("*ALZ\n0,10C,0T\n100,2P,50T\n200,-2P," + std::string(sTangent) + "\n300,2P,0T\n");
    EXPECT_EQ(UpperBound(aVt), nElements) << sTangent;
    ExpectWithoutSteps(aVt);
  }
}

TEST_F(VerticalListing, MarkerAloneIsNoListing) {
  for (const char* sText :
       {"*ALZ", "*ALZ1\n", "*ALZX\n0,1C,0T\n1,1C,0T\n", "*ALZ \n0,1C,0T\n1,1C,0T\n", "*ALZ\n0,1C,0T\n"}) {
    ReadVt(sText);
    EXPECT_FALSE(bRead) << sText;
  }
  EXPECT_EQ(BoxText(), "");
}

constexpr const char* sHead = "any head\n===== ====\n(line)\n(line)\n";

TEST_F(VerticalListing, PrintedFormReadsBlocksOfThreeLines) {
  const auto aVt = ReadVt(std::string(sHead) +
                          " 1  100.000  512.340  2.500\n"
                          "\n"
                          " a  b  250.000  516.090  2.500  c  -12000.000\n"
                          " 2, 490.000, 519.690, 0.500\n"
                          "\n"
                          " a  b  600.000  520.240  0.500  c  0.000 \n");
  EXPECT_TRUE(bRead);
  ASSERT_EQ(UpperBound(aVt), 4);
  ExpectElement(aVt[1], 100, 512.34, 0.025, 0, 150);
  ExpectElement(aVt[2], 250, 516.09, 0.025, -12000, 240);
  ExpectElement(aVt[3], 490, 519.69, 0.005, 0, 110);
  ExpectElement(aVt[4], 600, 520.24, 0, 0, 0);
  ExpectWithoutSteps(aVt);
  for (std::size_t i = 1; i < aVt.size(); ++i) EXPECT_EQ(aVt[i].nId, static_cast<int>(i));
}

TEST_F(VerticalListing, PrintedFormDoesNotSeeAFieldOfTheLastCharacterAlone) {
  const auto aVt = ReadVt(std::string(sHead) + ",1,0,10,1\n\na,b,5,1,1,c,9,\n");
  ASSERT_EQ(UpperBound(aVt), 2);
  ExpectElement(aVt[1], 0, 10, 0, 0, 5);  // the gradient is that last character
}

TEST_F(VerticalListing, PrintedFormGoesOnBehindAPageEnd) {
  const std::string sFirst = " 1  0  10  1.00\n\n a b 100 11 1.00 c 5000\n 2  150  11.75  2.00\n\n";
  const std::string sLine3 = " a b 200 12.75 2.00 c 0.0\n";
  const auto aPlain = ReadVt(sHead + sFirst + sLine3);
  ASSERT_EQ(UpperBound(aPlain), 4);
  const auto aPaged =
      ReadVt(sHead + sFirst + "\fpage 2\nhead\n==\n(line)\n" + sLine3 + " 3 200 12.75 2.0\n\n\f");
  EXPECT_TRUE(bRead);
  // The last block's line 3 is the form feed alone: its curve starts, but its grade has no end.
  ASSERT_EQ(UpperBound(aPaged), 5);
  for (std::size_t i = 1; i <= 3; ++i) EXPECT_EQ(aPaged[i].dLength, aPlain[i].dLength) << i;
  ExpectElement(aPaged[4], 200, 12.75, 0.02, 0, 0);
}

TEST_F(VerticalListing, PrintedFormEndsAtAnEscapeBehindAPageEnd) {
  const auto aVt =
      ReadVt(std::string(sHead) +
             " 1  0  10  1.00\n\n a b 100 11 1.00 c 5000\n 2  150  11.75  2.00\n\n\f\n==\n(line)\n\f\x1B\n"
             " 9  9  9  9.99\n\n 9 9 9 9 9 9 9.9\n");
  EXPECT_TRUE(bRead);
  ASSERT_EQ(UpperBound(aVt), 3);
  ExpectElement(aVt[2], 100, 11, 0.01, 5000, 50);
}

TEST_F(VerticalListing, PrintedFormReusesLine3WhereTheFileHasNone) {
  const auto aVt =
      ReadVt(std::string(sHead) + " 1  0  10  1.00\n\n a b 100 11 1.00 c 5000\n 2  60  10.6  1.00\n");
  EXPECT_TRUE(bRead);
  ASSERT_EQ(UpperBound(aVt), 4);
  ExpectElement(aVt[2], 100, 11, 0.01, 5000, -40);
  ExpectElement(aVt[3], 60, 10.6, 0.01, 0, 40);
}

TEST_F(VerticalListing, PrintedFormWithoutBlocksIsRefused) {
  for (const char* sText : {"no rule\nline\n", "head\n====", "head\n====\n", "=\n"}) {
    EXPECT_EQ(UpperBound(ReadVt(sText)), 0) << sText;
    EXPECT_FALSE(bRead) << sText;
  }
  EXPECT_EQ(BoxText(), "");
  EXPECT_EQ(UpperBound(ReadVt(std::string(sHead) +
                              " 1 0 10 1.00\n\n a b 50 10.5 1.0 c 9.0\n 2 70 1 1\n\n\fend\nhead\n")),
            1)
      << "what stands before the page end stays";
  EXPECT_FALSE(bRead);
}

TEST_F(VerticalListing, TabFormReadsBlocksOfThreeRows) {
  const auto aVt = ReadVt(
      "title\nheads\n"
      "x\t0.000\nx\tx\tx\t512,340\t2.500\nx\n"
      "x\tx\t0+250.000\t518.590\t2.500\tx\t-8\n"
      "x\tx\t0+370,000\t520.690\n\n"
      "\t\t500.000\t521.990\t1.000\n\t\n\n"
      "\t\t600.000\t520.990\t-1.000\tx\t0\nx\nx\n",
      "a.rtf");
  EXPECT_TRUE(bRead);
  ASSERT_EQ(UpperBound(aVt), 4);
  ExpectElement(aVt[1], 0, 512.34, 0.025, 0, 250);
  ExpectElement(aVt[2], 250, 518.59, 0.025, -8000, 120);
  ExpectElement(aVt[3], 370, 520.69, 0.01, 0, 230);  // cut again by the point at 600
  ExpectElement(aVt[4], 600, 520.99, -0.01, 0, 0);
}

TEST_F(VerticalListing, TabFormTakesTheParameterInTheUnitThatFits) {
  // A grade of 2 per cent into a curve of 100 m. At the end: 10 + 2 + 5000 / Kv.
  struct TCase {
    const char *sParameter, *sEndHeight;
    double dKv;
  };
  for (const auto& Case :
       {TCase{"12.5", "12.400", 12500}, {"12500", "12.400", 12500}, {"2500", "14.000", 2500}}) {
    const auto aVt = ReadVt(std::string("a\nb\n\t0\n\t\t\t8\t2\n\n\t\t100\t10\t2\t\t") + Case.sParameter +
                                "\n\t\t200\t" + Case.sEndHeight + "\n\n",
                            "a.rtf");
    ASSERT_EQ(UpperBound(aVt), 2);
    EXPECT_EQ(aVt[2].dKv, Case.dKv) << Case.sParameter;
  }
}

TEST_F(VerticalListing, TabFormPutsAGradeBetweenCurvesAndDropsAnUnfinishedBlock) {
  const auto aVt = ReadVt(
      "a\nb\n\t0\n\t\t\t8\t2\n\n"
      "\t\t100\t10\t2\t\t5000\n\t\t200\t13\n\n"
      "\t\t250\t15\t4\t\t-5000\n\t\t300\t16.75\n\n"
      "\t\t900\t1\t1\n\t\t\t",
      "a.rtf");
  ASSERT_EQ(UpperBound(aVt), 4);
  ExpectElement(aVt[3], 200, 13, 0.04, 0, 50);
  ExpectElement(aVt[4], 250, 15, 0.04, -5000, 50);
  ExpectWithoutSteps(aVt);
}

TEST_F(VerticalListing, TabFormWithoutABlockIsNoListing) {
  for (const char* sText : {"", "a\nb\n", "a\nb\n\t0\n\t\n"}) {
    EXPECT_EQ(UpperBound(ReadVt(sText, "a.rtf")), 0) << sText;
    EXPECT_FALSE(bRead);
  }
}

}  // namespace
}  // namespace vrek::test
