#include "ReaderTest.h"
#include "geometry/GM.h"

namespace vrek::test {
namespace {

using VerticalListing = ReaderTest;

// Elements from 1: number, chainage, height, slope, parameter, length.
void ExpectElements(const TVtElements& aVt, std::initializer_list<TVtElement> aExpected) {
  ASSERT_EQ(aVt.size(), aExpected.size() + 1);
  std::size_t i = 0;
  for (const TVtElement& Expected : aExpected) {
    SCOPED_TRACE(++i);
    EXPECT_EQ(aVt[i].nId, Expected.nId);
    EXPECT_NEAR(aVt[i].dChainage, Expected.dChainage, 1e-9);
    EXPECT_NEAR(aVt[i].dHeight, Expected.dHeight, 1e-9);
    EXPECT_NEAR(aVt[i].dSlope, Expected.dSlope, 1e-12);
    EXPECT_NEAR(aVt[i].dKv, Expected.dKv, 1e-6);
    EXPECT_NEAR(aVt[i].dLength, Expected.dLength, 1e-9);
  }
}

// Each element ends where the next one starts.
void ExpectWithoutSteps(const TVtElements& aVt) {
  for (std::size_t i = 1; i + 1 < aVt.size(); ++i) {
    EXPECT_NEAR(aVt[i].dChainage + aVt[i].dLength, aVt[i + 1].dChainage, 0.001) << i;
    EXPECT_NEAR(GM::GetHeightInElement(aVt[i], aVt[i].dLength), aVt[i + 1].dHeight, 0.001) << i;
  }
}

// A vertex keeps its number, also behind an element put in between.
TEST_F(VerticalListing, MarkedFormBuildsGradesAndCurvesFromVertices) {
  const auto aVt = ReadVt(
      "*ALZ\n"
      "0.000,512.340C,0T\n"
      "250.000,2.500P,60.000T\n"
      "600.000,-1.000P,8000.000R\n"
      "900.000,505.000C,0T\n");
  EXPECT_TRUE(bRead);
  const double dLast = (505 - 515.09) / 300, dHalf = 4000 * (-0.01 - dLast);
  ExpectElements(aVt, {{1, 0, 512.34, 0.025, 0, 190},
                       {2, 190, 517.09, 0.025, -120 / 0.035, 120},
                       {3, 310, 517.99, -0.01, 0, 290 - dHalf},
                       {3, 600 - dHalf, 515.09 + 0.01 * dHalf, -0.01, -8000, 2 * dHalf},
                       {5, 600 + dHalf, 515.09 + dLast * dHalf, dLast, 0, 300 - dHalf},
                       {6, 900, 505, 0, 0, 0}});
  ExpectWithoutSteps(aVt);
}

// Grades of +2 and -2 per cent: a crest with a change of 0.04; the sag mirrors it.
TEST_F(VerticalListing, MarkedFormTellsCurvesByTheirLetter) {
  struct TCase {
    std::string sCurve;
    double dKv, dLength;
  };
  const TCase aCases[] = {{"20T", -1000, 40},   {"-20T", -1000, 40},   {"0.2F", -1000, 40},
                          {"1000R", -1000, 40}, {"-1000R", -1000, 40}, {"1000X", 0, 0},
                          {"1000r", 0, 0}};
  for (const auto& [sCurve, dKv, dLength] : aCases) {
    const auto aCrest = ReadVt("*ALZ\n0,10C,0R\n100,12C," + sCurve + "\n200,10C,0R\n");
    const auto aSag = ReadVt("*ALZ\n0,10C,0R\n100,8C, " + sCurve + "\n200,10C ,0R\n");
    EXPECT_NEAR(aCrest.at(2).dKv, dKv, 1e-6) << sCurve;
    EXPECT_NEAR(aSag.at(2).dKv, -dKv, 1e-6) << sCurve;
    EXPECT_NEAR(aCrest[2].dLength, dLength, 1e-9) << sCurve;
    EXPECT_NEAR(aSag[2].dLength, dLength, 1e-9) << sCurve;
  }
}

TEST_F(VerticalListing, ABlankFirstLineMakesItThePrintedForm) {
  ExpectElements(ReadVt("\n*ALZ\n0,1C,0T\n1,1C,0T\n"), {});
  EXPECT_FALSE(bRead);
  EXPECT_EQ(UpperBound(ReadVt("\n*ALZ\n==\n\n\n 1 0 9 1.0\n\n a b 5 9 1 c 7.0\n")), 2);
  EXPECT_TRUE(bRead);
  EXPECT_EQ(BoxText(), "");
}

TEST_F(VerticalListing, MarkedFormOfSharpVerticesTakesTheArrivingGrade) {
  ExpectElements(ReadVt("*ALZ1\nany,1C,1T\n\n0,10C,0T\ncomment\n1,2\n,,100,,11C  ,  0F,x,y\n150,8C,0R\n\n"),
                 {{1, 0, 10, 0.01, 0, 100}, {2, 100, 11, 0.01, 0, 50}, {3, 150, 11.5, 0, 0, 0}});
  EXPECT_TRUE(bRead);
  ExpectElements(ReadVt("*ALZ\n0,10C,0T\n100,1P,30T\n200,1P,0T\n"),  // no change, no curve
                 {{1, 0, 10, 0.01, 0, 100}, {2, 100, 11, 0.01, 0, 0}, {3, 100, 11, 0, 0, 0}});
}

TEST_F(VerticalListing, MarkedFormLetsCurvesTouch) {
  for (const auto& [sTangent, nElements] : {std::pair{"50.0004T", 5}, {"49.99T", 6}}) {
    const auto aVt = ReadVt("*ALZ\n0,10C,0T\n100,2P,50T\n200,-2P," + std::string(sTangent) + "\n300,2P,0T\n");
    EXPECT_EQ(UpperBound(aVt), nElements) << sTangent;
    ExpectWithoutSteps(aVt);
  }
}

TEST_F(VerticalListing, WithoutElementsIsNoListing) {
  for (const char* sText : {"*ALZ", "*ALZ1\n", "*ALZX\n0,1C,0T\n1,1C,0T\n", "*ALZ \n0,1C,0T\n1,1C,0T\n",
                            "*ALZ\n0,1C,0T\n", "head\n====", "head\n====\n", "=\n"}) {
    ReadVt(sText);
    EXPECT_FALSE(bRead) << sText;
  }
  for (const char* sText : {"", "a\nb\n", "a\nb\n\t0\n\t\n"}) {
    ReadVt(sText, "a.rtf");
    EXPECT_FALSE(bRead) << sText;
  }
  EXPECT_EQ(BoxText(), "");
}

class PrintedProfile : public ReaderTest {
 protected:
  TVtElements ReadBlocks(const std::string& sBlocks) {
    return ReadVt("any head\n===== ====\n(line)\n(line)\n" + sBlocks);
  }
  const std::string sFirst = " 1  0  10  1.00\n\n a b 100 11 1.00 c 5000\n 2  150  11.75  2.00\n\n";
};

TEST_F(PrintedProfile, IsReadInBlocksOfThreeLines) {
  const auto aVt = ReadBlocks(
      " 1  100.000  512.340  2.500\n"
      "\n"
      " a  b  250.000  516.090  2.500  c  -12000.000\n"
      " 2, 490.000, 519.690, 0.500\n"
      "\n"
      " a  b  600.000  520.240  0.500  c  0.000 \n");
  EXPECT_TRUE(bRead);
  ExpectElements(aVt, {{1, 100, 512.34, 0.025, 0, 150},
                       {2, 250, 516.09, 0.025, -12000, 240},
                       {3, 490, 519.69, 0.005, 0, 110},
                       {4, 600, 520.24, 0, 0, 0}});
  ExpectWithoutSteps(aVt);
}

TEST_F(PrintedProfile, DoesNotSeeAFieldOfTheLastCharacterAlone) {
  ExpectElements(ReadBlocks(",1,0,10,1\n\na,b,5,1,1,c,9,\n"),  // the gradient is that character
                 {{1, 0, 10, 0, 0, 5}, {2, 5, 10, 0, 0, 0}});
}

TEST_F(PrintedProfile, GoesOnBehindAPageEnd) {
  const std::string sLine3 = " a b 200 12.75 2.00 c 0.0\n";
  ExpectElements(ReadBlocks(sFirst + sLine3), {{1, 0, 10, 0.01, 0, 100},
                                               {2, 100, 11, 0.01, 5000, 50},
                                               {3, 150, 11.75, 0.02, 0, 50},
                                               {4, 200, 12.75, 0, 0, 0}});
  // The last block's line 3 is the form feed alone: its curve starts, but its grade has no end.
  const auto aPaged = ReadBlocks(sFirst + "\fpage 2\nhead\n==\n(line)\n" + sLine3 + " 3 200 12.75 2.0\n\n\f");
  EXPECT_TRUE(bRead);
  ASSERT_EQ(UpperBound(aPaged), 5);
  EXPECT_EQ(aPaged[3].dLength, 50);
  EXPECT_EQ(aPaged[4].dSlope, 0.02);
  EXPECT_EQ(aPaged[4].dLength, 0);
}

TEST_F(PrintedProfile, EndsAtAnEscapeBehindAPageEnd) {
  ExpectElements(ReadBlocks(sFirst + "\f\n==\n(line)\n\f\x1B\n 9  9  9  9.99\n\n 9 9 9 9 9 9 9.9\n"),
                 {{1, 0, 10, 0.01, 0, 100}, {2, 100, 11, 0.01, 5000, 50}, {3, 150, 11.75, 0, 0, 0}});
  EXPECT_TRUE(bRead);
}

TEST_F(PrintedProfile, ReusesLine3WhereTheFileHasNone) {
  ExpectElements(ReadBlocks(" 1  0  10  1.00\n\n a b 100 11 1.00 c 5000\n 2  60  10.6  1.00\n"),
                 {{1, 0, 10, 0.01, 0, 100},
                  {2, 100, 11, 0.01, 5000, -40},
                  {3, 60, 10.6, 0.01, 0, 40},
                  {4, 100, 11, 0, 0, 0}});
  EXPECT_TRUE(bRead);
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
  ExpectElements(aVt, {{1, 0, 512.34, 0.025, 0, 250},
                       {2, 250, 518.59, 0.025, -8000, 120},
                       {3, 370, 520.69, 0.01, 0, 230},  // cut again by the point at 600
                       {4, 600, 520.99, -0.01, 0, 0}});
}

// A grade of 2 per cent into a curve of 100 m. At the end: 10 + 2 + 5000 / Kv.
TEST_F(VerticalListing, TabFormTakesTheParameterInTheUnitThatFits) {
  const auto Kv = [&](const std::string& sParameter, const std::string& sEndHeight) {
    return ReadVt("a\nb\n\t0\n\t\t\t8\t2\n\n\t\t100\t10\t2\t\t" + sParameter + "\n\t\t200\t" + sEndHeight +
                      "\n\n",
                  "a.rtf")
        .at(2)
        .dKv;
  };
  EXPECT_EQ(Kv("12.5", "12.400"), 12500);
  EXPECT_EQ(Kv("12500", "12.400"), 12500);
  EXPECT_EQ(Kv("2500", "14.000"), 2500);
}

TEST_F(VerticalListing, TabFormPutsAGradeBetweenCurvesAndDropsAnUnfinishedBlock) {
  const auto aVt = ReadVt(
      "a\nb\n\t0\n\t\t\t8\t2\n\n"
      "\t\t100\t10\t2\t\t5000\n\t\t200\t13\n\n"
      "\t\t250\t15\t4\t\t-5000\n\t\t300\t16.75\n\n"
      "\t\t900\t1\t1\n\t\t\t",
      "a.rtf");
  ExpectElements(aVt, {{1, 0, 8, 0.02, 0, 100},
                       {2, 100, 10, 0.02, 5000, 100},
                       {3, 200, 13, 0.04, 0, 50},
                       {4, 250, 15, 0.04, -5000, 50}});
  ExpectWithoutSteps(aVt);
}

TEST_F(VerticalListing, TabFormKeepsTheCurveWhoseParameterCantBeTried) {
  const auto aVt = ReadVt("a\nb\n\t0\n\t\t\t8\t2\n\n\t\t300\t14\t2\t\t0.5\n\t\t250\t13\n\n", "a.rtf");
  EXPECT_FALSE(bRead);
  EXPECT_NE(BoxText().find("ImportVtTabbed"), std::string::npos);
  ExpectElements(aVt, {{1, 0, 8, 0.02, 0, 300}, {2, 300, 14, 0.02, 0.5, -50}});
}

TEST_F(VerticalListing, AnEmptyOrMissingFileLeavesNoElementAtAll) {
  for (const char* sName : {"a.alz", "a.rtf"}) {
    EXPECT_TRUE(ReadVt("", sName).empty()) << sName;
    TVtElements aVt;
    EXPECT_FALSE(Entry::ImportVtAligment(aVt, std::string("missing/") + sName));
    EXPECT_TRUE(aVt.empty()) << sName;
  }
}

}  // namespace
}  // namespace vrek::test
