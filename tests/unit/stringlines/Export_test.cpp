// The output of the sections, through the document's own writer into a file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Roads.h"
#include "landxml/CLandXML.h"
#include "support/TestApp.h"

namespace vrek::test {
namespace {

using namespace CCrSec;
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

std::string Stations(const std::string& sText) {
  std::string sStations;
  for (auto n = sText.find("sta=\""); n != std::string::npos; n = sText.find("sta=\"", n + 1)) {
    sStations += sText.substr(n + 5, 3) + " ";
  }
  return sStations;
}

TEST_F(Export, WritesPointsLabelsAndConnections) {
  const TCrData Cr = Ruled({"-3.5/10 0/10.1 3.5/10", "-3.5/10.2 3.5/10.2 5/9.8", "-3.5/10.4 3.5/10.4"});
  EXPECT_EQ(Written(Cr, "$Rasante$"), CrLf(R"(			<CrossSects>
				<CrossSect sta="100.000000">
					<CrossSectSurf name="Rasante">
						<PntList2D>-3.500000 10.000000 0.000000 10.100000 3.500000 10.000000</PntList2D>
						<Feature code="QN Vertex Name">L1:3,C3:3,R5:3</Feature>
					</CrossSectSurf>
				</CrossSect>
				<CrossSect sta="120.000000">
					<CrossSectSurf name="Rasante">
						<PntList2D>-3.500000 10.200000 3.500000 10.200000 5.000000 9.800000</PntList2D>
						<Feature code="QN Vertex Name">L1:3,R5:3,R6:3</Feature>
						<Feature code="QN Vertex Connections">
							<Feature code="QN Vertex Interpolate">L1:3,L1:3,R5:3,R5:3</Feature>
						</Feature>
					</CrossSectSurf>
				</CrossSect>
				<CrossSect sta="140.000000">
					<CrossSectSurf name="Rasante">
						<PntList2D>-3.500000 10.400000 3.500000 10.400000</PntList2D>
						<Feature code="QN Vertex Name">L1:3,R5:3</Feature>
						<Feature code="QN Vertex Connections">
							<Feature code="QN Vertex Interpolate">L1:3,L1:3,R5:3,R5:3</Feature>
							<Feature code="QN Vertex Continue">R6:3</Feature>
						</Feature>
					</CrossSectSurf>
				</CrossSect>
			</CrossSects>
)"));
  EXPECT_EQ(dChStart, 100);
  EXPECT_EQ(dChEnd, 140);
}

TEST_F(Export, LinksATieToTheLineItBranchesFrom) {
  TCrData Cr = Ruled({"-5 -1 5", "-5 -2 0 5", "-5 -2 0 5"});
  Cr.Sections[2].Surfaces[0].Points[2].sLink = Cr.Sections[0].Surfaces[0].Points[1].sCode;
  const std::string sText = Written(Cr, "");
  EXPECT_THAT(sText, HasSubstr("<Feature code=\"QN Vertex Link\">-1.000_2</Feature>")) << "a code, no label";
  EXPECT_THAT(sText,
              HasSubstr("<Feature code=\"QN Vertex Interpolate\">L1:3,L1:3,L3:3,L3:3,R6:3,R6:3</Feature>"));
}

TEST_F(Export, TakesTheSideFromTheCode) {
  EXPECT_THAT(Written(Ruled({"-0.0004 12.35 0", "-0.0004 12.35 0"}), ""),
              HasSubstr("<Feature code=\"QN Vertex Name\">L2:3,R5:3,C3:3</Feature>"));
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
  EXPECT_THAT(sText, HasSubstr("\t<Feature code=\"QN Vertex Connections\">\r\n\t\t\t\t\t\t</Feature>"));
  EXPECT_THAT(sText, HasSubstr("<Feature code=\"QN Vertex Continue\">R3:3</Feature>"));
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
  EXPECT_THAT(Written(Cr, ""), HasSubstr("<Feature code=\"QN Vertex Name\">NO_CODE,NO_CODE</Feature>"));
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
