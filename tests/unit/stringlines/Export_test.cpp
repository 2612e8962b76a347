// The output of the sections, through the document's own writer into a file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Roads.h"
#include "landxml/CLandXML.h"
#include "support/TestApp.h"

namespace vrek::test {
namespace {

using namespace CCrSec;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

class Export : public AppTest {
 protected:
  /// What Export2LandXML writes to an otherwise empty file.
  std::string Written(TCrData Cr, std::string_view sLines, double dFrom = 0, double dTo = 0) {
    const std::string sPath = (Directory / "out.xml").string();
    CLandXML::SetOutputFile(sPath);
    EXPECT_TRUE(CLandXML::OpenFile());
    SetExportData(Cr);
    Export2LandXML(dChStart, dChEnd, Cr, sLines, dFrom, dTo, Progress);
    CLandXML::CloseFile();
    return ReadFile(sPath);
  }

  static TCrData Ruled(std::initializer_list<const char*> aSections) {
    TCrData Cr = Road(aSections);
    NoProgress Quiet;
    NameFirstSurfaces(Cr);
    ApplyRules(Cr, "", Quiet);
    return Cr;
  }

  NoProgress Progress;
  double dChStart = -1, dChEnd = -1;
};

// What stands on one line between an opening and its end, a blank behind each.
std::string Between(const std::string& sText, std::string_view sOpening, std::string_view sEnd) {
  std::string sFound;
  for (auto n = sText.find(sOpening); n != std::string::npos; n = sText.find(sOpening, n + 1)) {
    const auto nStart = n + sOpening.size();
    const auto sPart = sText.substr(nStart, sText.find(sEnd, nStart) - nStart);
    if (sPart.find('\n') == std::string::npos) sFound += sPart + " ";
  }
  return sFound;
}

std::string Stations(const std::string& sText) {
  return Between(sText, "sta=\"", ".");
}

// "Name L1:3,C3:3 ..."
std::string Features(const std::string& sText) {
  auto sFound = Between(sText, "QN Vertex ", "</Feature>");
  for (std::size_t n = 0; (n = sFound.find("\">")) != std::string::npos;) sFound.replace(n, 2, " ");
  return sFound;
}

// Tags and indents are held against the plain engine.
TEST_F(Export, WritesPointsLabelsAndConnections) {
  const std::string sText = Written(
      Ruled({"-3.5/10 0/10.1 3.5/10", "-3.5/10.2 3.5/10.2 5/9.8", "-3.5/10.4 3.5/10.4"}), "$Rasante$");
  EXPECT_EQ(Between(sText, "sta=\"", "\""), "100.000000 120.000000 140.000000 ");
  EXPECT_EQ(Between(sText, "<PntList2D>", "</PntList2D>"),
            "-3.500000 10.000000 0.000000 10.100000 3.500000 10.000000 "
            "-3.500000 10.200000 3.500000 10.200000 5.000000 9.800000 "
            "-3.500000 10.400000 3.500000 10.400000 ");
  EXPECT_EQ(Features(sText),
            "Name L1:3,C3:3,R5:3 "
            "Name L1:3,R5:3,R6:3 Interpolate L1:3,L1:3,R5:3,R5:3 "
            "Name L1:3,R5:3 Interpolate L1:3,L1:3,R5:3,R5:3 Continue R6:3 ");
  EXPECT_EQ(dChStart, 100);
  EXPECT_EQ(dChEnd, 140);
}

// Here alone: the link is a code, no label.
TEST_F(Export, LinksATieToTheLineItBranchesFrom) {
  TCrData Cr = Ruled({"-5 -1 5", "-5 -2 0 5", "-5 -2 0 5", "-5 -2 0 5"});
  Cr.Sections[2].Surfaces[0].Points[2].sLink = Cr.Sections[0].Surfaces[0].Points[1].sCode;
  EXPECT_THAT(Features(Written(Cr, "")),
              EndsWith("Interpolate L1:3,L1:3,L3:3,L3:3,R6:3,R6:3 Link -1.000_2 Name L1:3,L3:3,C4:3,R6:3 "
                       "Interpolate L1:3,L1:3,L3:3,L3:3,C4:3,C4:3,R6:3,R6:3 "));
}

TEST_F(Export, TakesTheSideFromTheCode) {
  EXPECT_EQ(Features(Written(Ruled({"-0.0004 12.35 0"}), "")), "Name L2:3,R5:3,C3:3 ");
}

TEST_F(Export, ChoosesTheSectionsOfAChainageRange) {
  const TCrData Cr = Ruled({"0", "0", "0", "0", "0"});  // 100 to 180
  EXPECT_EQ(Stations(Written(Cr, "")), "100 120 140 160 180 ");
  EXPECT_EQ(Stations(Written(Cr, "", 0, 500)), "100 120 140 160 180 ");
  EXPECT_EQ(Stations(Written(Cr, "", 110, 500)), "120 140 160 180 ");
  EXPECT_EQ(Stations(Written(Cr, "", 170, 175)), "160 ");
  EXPECT_EQ(Stations(Written(Cr, "", 140, 160)), "140 160 ");
  EXPECT_EQ(Stations(Written(Cr, "", 0, 50)), "100 120 ");
  EXPECT_EQ(Stations(Written(Cr, "", 170, 130)), "");
  EXPECT_EQ(dChStart, 160);
  EXPECT_EQ(dChEnd, 0);
}

TEST_F(Export, TakesEveryLineForNewInTheFirstSectionOfARange) {
  const std::string sText = Written(Ruled({"0 1", "0 1", "0"}), "", 120, 500);
  EXPECT_EQ(Features(sText), "Name C1:3,R3:3 Name C1:3 Interpolate C1:3,C1:3 Continue R3:3 ");
}

TEST_F(Export, WritesSelectedLayersOnly) {
  TCrData Cr = Ruled({"0", "0"});
  AddSurface(Cr, 1, List("5"));
  EXPECT_EQ(Written(Cr, "__None__"), "");
  EXPECT_EQ(dChStart, 0);
  const std::string sText = Written(Cr, "$Taludes$");
  EXPECT_EQ(Stations(sText), "100 120 ");
  EXPECT_THAT(sText, Not(HasSubstr("CrossSectSurf")));
  EXPECT_THAT(Written(Cr, "$Rasante"), Not(HasSubstr("Cunetas"))) << "no closing sign is asked for";
  EXPECT_THAT(Written(Cr, "$Rasante"), HasSubstr("<CrossSectSurf name=\"Rasante\">"));
}

TEST_F(Export, NotesPointsWithoutCode) {
  TCrData Cr = Road({"0/1", "0/2 3/4"});
  EXPECT_THAT(Features(Written(Cr, "")), HasSubstr("Name NO_CODE,NO_CODE "));
  EXPECT_THAT(Log(), HasSubstr("Msg Point without code in Export2LandXml function  Ch : 120.000000\r\n"
                               " Offset: 3.000000\r\n Height: 4.000000\r\n"));
}

TEST_F(Export, KeepsWhatWasWrittenBeforeAFailure) {
  TCrData Cr = Ruled({"0", "0", "0"});
  Cr.Sections[1].Surfaces[0].Points[0].dHeight = 1e308 * 10;
  const std::string sText = Written(Cr, "");
  EXPECT_TRUE(
      sText.ends_with("sta=\"100.000000\">\r\n" + sText.substr(sText.find("\t\t\t\t\t<CrossSectSurf"))));
  EXPECT_EQ(Stations(sText), "100 ");
  EXPECT_THAT(sText, Not(HasSubstr("</CrossSects>")));
  EXPECT_EQ(dChEnd, 120);
  ASSERT_EQ(Platform.aBoxes.size(), 1U);
  EXPECT_EQ(Platform.aBoxes[0].sText, "Unhandler Error in Export2LandXML\r\nOverflow");
}

}  // namespace
}  // namespace vrek::test
