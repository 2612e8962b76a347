#include "ReaderTest.h"

namespace vrek::test {
namespace {

using CrossSectionListing = ReaderTest;

TEST_F(CrossSectionListing, MarkedFormSortsPointsIntoLayersByTheirCode) {
  const auto Cr = ReadCr(
      "*TRV\n(line)\n"
      "1000.000,3\n-12.500,510.200,T01\n-3.500,512.000,C01\n0.000,512.100,P01\n"
      "1020.000,9,x\n1,1,D\n2,2,M\n3,3,E\n4,4,S\n5,5,X\n6,6,t\n7,7,\n8,8,P,9\n9,9, P\n"
      "FIN\n"
      "1040.000,1\n0,0,P\n");
  EXPECT_TRUE(bRead);
  EXPECT_EQ(Text(Cr), "1000: T -12.5/510.2 C -3.5/512 R 0/512.1;1020: T 1/1 2/2 S 3/3 4/4 R 8/8;");
  ASSERT_EQ(Cr.Layers.size(), 4u);
  EXPECT_EQ(Cr.Layers[1].sName, "Cunetas");
}

TEST_F(CrossSectionListing, MarkedFormCountsPointLines) {
  struct TCase {
    const char *sWhat, *sSections, *sExpected;
  };
  const TCase aCases[] = {
      // clang-format off
      {"no points, no section",            "0,0\n5,-3\n10,0.5\n",                     ""},
      {"half to even",                     "0,1.5\n1,1,P\n2,2,P\n9,2.5\n1,1,P\n2,2,P\n", "0: R 1/1 2/2;9: R 1/1 2/2;"},
      {"points without a layer",           "0,1\n1,1,X\n",                            "0:;"},
      {"skipped lines",                    "12E,2\nFIN\n0,1\n0,1\n1,1,P\n",           "0: R 1/1;"},
      {"nothing skipped",                  "12E,0\n0,1\n1,1,P\n",                     "0: R 1/1;"},
      {"an empty line repeats a point",    "0,3\n1,1,P\n\n2,2,C\n",                   "0: C 2/2 R 1/1;"},
      {"an empty line repeats a point as head", "0,1\n1,2,P\n\n3,3,C\n4,4,C\n",       "0: R 1/2;1: C 3/3 4/4;"},
      {"an empty line repeats a head",     "7,2,P\n\n3,3,P\n",                        "7: R 7/2 3/3;"},
      {"the last line stands for the rest", "0,1000000000\n1,1,P\n2,2,C\n",           "0: C 2/2 R 1/1;"},
      {"also when it is the head",         "0,2147483647,P",                          "0: R 0/2.14748e+09;"},
      {"neighbours within a tenth of a millimetre", "0,3\n1,1,P1\n1.00005,1,P2\n1.0001,1,P3\n", "0: R 1/1;"},
      {"but no others",                    "0,3\n1,1,P\n2,1,P\n1,1,P\n",              "0: R 1/1 2/1 1/1;"},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    EXPECT_EQ(Text(ReadCr(std::string("*TRV,1,2\nx\n") + Case.sSections)), Case.sExpected) << Case.sWhat;
    EXPECT_EQ(BoxText(), "") << Case.sWhat;
  }
}

TEST_F(CrossSectionListing, MarkedFormTakesTwoSections) {
  const auto Cr = ReadCr("*TRV\nx\n0,1\n1,1,P\n");
  EXPECT_FALSE(bRead);
  EXPECT_EQ(Text(Cr), "0: R 1/1;");
  ReadCr("*TRV\nx\n0,1\n1,1,X\n5,1\n1,1,p\n");
  EXPECT_TRUE(bRead) << "sections without surfaces count";
}

TEST_F(CrossSectionListing, FirstSurfaceOfALayerIsNamed) {
  const auto Cr = ReadCr("*TRV\nx\n0,1\n1,1,C\n5,3\n2,1,P\n2.0004,2,P\n-3.5,1,C\n9,1\n7,7,P\n");
  std::string sCodes;
  for (const auto& Section : Cr.Sections) {
    for (const auto& Surface : Section.Surfaces) {
      for (const auto& Point : Surface.Points)
        sCodes.append(Cr.Layers[Surface.nLayer].aCodes.Text(Point.sCode)) += ';';
    }
  }
  EXPECT_EQ(sCodes, "1.000;;2.000;2.000_2;;");
  EXPECT_TRUE(Cr.Layers[0].aCodes.empty());
}

TEST_F(CrossSectionListing, SectionsHoldNoSpareRoom) {
  const auto Cr = ReadCr("*TRV\nx\n0,5\n1,1,P\n1,1,P\n2,1,P\n3,1,P\n3,1,C\n5,1\n1,1,P\n");
  for (const auto& Section : Cr.Sections) {
    EXPECT_EQ(Section.Surfaces.capacity(), Section.Surfaces.size());
    for (const auto& Surface : Section.Surfaces) EXPECT_EQ(Surface.Points.capacity(), Surface.Points.size());
  }
}

TEST_F(CrossSectionListing, TabFormReadsHeadsAndRowsOfTwelveFields) {
  const auto Cr = ReadCr(
      "ESTACION\t1+000.000\nCOTA\n"
      "-12.500\t510.200\t\t\t-3.500\t512,000\t\t\t-3.000\t511.500\t\t\n"
      "1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\n"
      "1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\t12\t13\n"
      "0\t0\t\t\t0,00\t0\t\t\t7\t8\t\t\n"
      " estaci\t1+020,500\tx\n"
      "\n"
      " Cota roja\tx\n"
      "1.234,50\t1,234.50\t\t\t\t\t\t\t\t\t\t\n",
      "a.rtf");
  EXPECT_TRUE(bRead);
  EXPECT_EQ(Text(Cr), "1000: T -12.5/510.2 S -3/511.5 7/8 R -3.5/512;1020.5: T 1234.5/1234.5;");
}

TEST_F(CrossSectionListing, TabFormHeadsDecideTheChainage) {
  struct TCase {
    const char *sWhat, *sRows, *sExpected;
  };
  const std::string sPoint = "1\t2\t\t\t\t\t\t\t\t\t\t\n";
  const TCase aCases[] = {
      {"no rows: the end closes the section in hand", "a\n", "0:;"},
      {"points before the first head", "@ESTA\t10\nCOTA\n@", "10: T 1/2;"},
      {"a section without COTA keeps the chainage", "ESTA\t10\nCOTA\n@ESTA\t20\n@", "10: T 1/2;10: T 1/2;"},
      {"a head of one field is none", "ESTA\t10\nCOTA\n@ESTACION\n@", "10: T 1/2;"},
      {"two heads in a row", "ESTA\t10\nESTA\t20\nCOTA\n@", "0:;20: T 1/2;"},
      {"a head of twelve fields is a point of the section before",
       "ESTA\t10\nCOTA\nESTA\t20\t\t\t\t\t\t\t\t\t\t\nCOTA\n@", "10: T 0/20;20: T 1/2;"},
  };
  for (const auto& Case : aCases) {
    std::string sText;
    for (const char* p = Case.sRows; *p != 0; ++p) sText += *p == '@' ? sPoint : std::string(1, *p);
    EXPECT_EQ(Text(ReadCr(sText, "a.rtf")), Case.sExpected) << Case.sWhat;
  }
}

}  // namespace
}  // namespace vrek::test
