#include <sstream>

#include "landxml/CLandXML.h"
#include "unit/rail_tunnel/Tracks.h"

namespace vrek {
namespace {

class RailSections : public test::TrackTest {
 protected:
  RailSections() { SetLevel(1, 10); }

  /// Writes the sections of an alignment; gives the file.
  std::string Export(const clsSuperelevation& Cant, int nAligment = 1, double dFrom = dNotGiven,
                     double dTo = dNotGiven, std::string_view sStringLine = {}) {
    const auto sPath = (Directory / "out.xml").string();
    CLandXML::SetOutputFile(sPath);
    EXPECT_TRUE(CLandXML::OpenFile());
    dStart = dEnd = -1;
    Cant.ExportToLandXml(dStart, dEnd, "Track", nAligment, dFrom, dTo, sStringLine);
    CLandXML::CloseFile();
    return ReadFile(sPath);
  }
  /// The chainages of the sections in a file.
  static std::string Stations(const std::string& sFile) {
    std::string sStations;
    std::istringstream Lines(sFile);
    for (std::string sLine; std::getline(Lines, sLine);) {
      const auto nAt = sLine.find("sta=\"");
      if (nAt != sLine.npos) sStations += std::to_string(std::stoi(sLine.substr(nAt + 5))) + " ";
    }
    return sStations;
  }
  static void SetPlan(THzElements aHz) { CAligmentsDatas::SetAligmentHz(1, std::move(aHz)); }

  double dStart = -1, dEnd = -1;
};

THzElement Piece(double dChainage, double dRadius, double dParameter) {
  return {.dChainage = dChainage, .dRadius = dRadius, .dParameter = dParameter, .dLength = 10};
}

TEST_F(RailSections, HoldTwoPointsAndTheirNames) {
  SetPlan({{}, Piece(0, 0, 0)});
  EXPECT_EQ(Export(Table(Row(100, 0, "leftRail") + Row(120.5, 75, "leftRail"))),
            test::CrLf("<CrossSects>\n"
                       "\t<CrossSect sta=\"100.000000\" name=\"Track\">\n"
                       "\t\t<CrossSectSurf name=\"Rails\">\n"
                       "\t\t\t<PntList2D>-0.717500 10.000000 0.717500 10.000000</PntList2D>\n"
                       "\t\t\t<Feature code=\"QN Vertex Name\">Left,Right</Feature>\n"
                       "\t\t</CrossSectSurf>\n"
                       "\t</CrossSect>\n"
                       "\t<CrossSect sta=\"120.500000\" name=\"Track\">\n"
                       "\t\t<CrossSectSurf name=\"Rails\">\n"
                       "\t\t\t<PntList2D>-0.716603 10.000000 0.716603 10.075000</PntList2D>\n"
                       "\t\t\t<Feature code=\"QN Vertex Name\">Left,Right</Feature>\n"
                       "\t\t</CrossSectSurf>\n"
                       "\t</CrossSect>\n"
                       "</CrossSects>\n"));
  EXPECT_EQ(dStart, 100);
  EXPECT_EQ(dEnd, 120.5);
}

TEST_F(RailSections, NameTheRailsByTheirTrack) {
  for (int n = 1; n <= 3; ++n) CAligmentsDatas::SetAligmentHz(n, {{}, Piece(0, 0, 0)});
  const auto Cant = Table(Row(1, 0, "leftRail") + Row(2, 0, "leftRail"));
  EXPECT_NE(Export(Cant, 2).find(">Left_L,Right_L<"), std::string::npos);
  EXPECT_NE(Export(Cant, 3).find(">Left_R,Right_R<"), std::string::npos);
}

TEST_F(RailSections, StandWhereClothoidsTurnTheOtherWay) {
  const auto Cant = Table(Row(0, 0, "leftRail") + Row(100, 0, "leftRail"));
  const struct {
    const char* sLabel;
    THzElements aHz;
    const char* sStations;
  } aCases[] = {
      {"S-curve", {{}, Piece(10, 300, 50), Piece(20, -0.001, 50)}, "0 20 100 "},
      {"same way", {{}, Piece(10, 300, 50), Piece(20, 0.001, 50)}, "0 100 "},
      {"a straight between", {{}, Piece(10, 300, 50), Piece(20, 0, 0), Piece(30, -0.001, 50)}, "0 100 "},
      {"a cubic spiral between", {{}, Piece(10, 300, 50), Piece(20, 9, -5), Piece(30, -1, 50)}, "0 100 "},
      {"an arc between", {{}, Piece(10, 300, 50), Piece(20, 9, 0), Piece(30, -1, 50)}, "0 100 "},
      {"radius 0 turns right", {{}, Piece(10, 0, 50), Piece(20, -1, 50), Piece(30, 0, 50)}, "0 20 30 100 "},
      {"at both ends of the table",
       {{}, Piece(0, 1, 50), Piece(50, 1, 50), Piece(100, -1, 50)},
       "0 100 100 "},
      {"outside the table",
       {{}, Piece(-5, 1, 50), Piece(-1, -1, 50), Piece(10, 1, 50), Piece(101, -1, 50)},
       "0 100 "},
      {"one outside between", {{}, Piece(10, 1, 50), Piece(101, 0, 0), Piece(20, -1, 50)}, "0 20 100 "},
  };
  for (const auto& Case : aCases) {
    SetPlan(Case.aHz);
    EXPECT_EQ(Stations(Export(Cant)), Case.sStations) << Case.sLabel;
  }
}

TEST_F(RailSections, KeepToTheirLimits) {
  SetPlan({{}, Piece(0, 300, 50), Piece(25, -300, 50), Piece(45, 300, 50), Piece(65, -300, 50)});
  std::string sRows;
  for (int n = 0; n <= 60; n += 10) sRows += Row(n, 0, "leftRail");
  const auto Cant = Table(sRows);
  const struct {
    double dFrom, dTo;
    const char* sStations;
  } aCases[] = {
      // clang-format off
      {dNotGiven, dNotGiven, "0 10 20 25 30 40 45 50 60 "},
      {       15, dNotGiven, "0 10 20 25 30 40 45 50 60 "},
      {dNotGiven,        15, "0 10 20 25 30 40 45 50 60 "},
      {        0,       100, "0 10 20 25 30 40 45 50 60 "},
      // The turn at 25 needs the element before it; the first chainage above the end is written too.
      {       15,        31, "20 25 30 40 "},
      {       26,        31, "30 40 "},
      {       20,        20, "20 25 "},
      {       21,        22, ""},
      {       55,       100, ""},
      {       61,       100, ""},
      {       50,        10, ""},
      {     -100,        -1, ""},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    EXPECT_EQ(Stations(Export(Cant, 1, Case.dFrom, Case.dTo)), Case.sStations)
        << Case.dFrom << " " << Case.dTo;
  }
  EXPECT_EQ(dStart, 0);
  EXPECT_EQ(dEnd, 0);
}

TEST_F(RailSections, AreNotWrittenForASingleRow) {
  SetPlan({{}, Piece(0, 0, 0)});
  EXPECT_EQ(Export(Table(Row(100, 0, "leftRail"))), "");
  EXPECT_EQ(dStart, 0);
  EXPECT_EQ(dEnd, 0);
}

TEST_F(RailSections, KeepTheSectionBeforesValuesWhereARowSetsNone) {
  SetPlan({{}, Piece(0, 0, 0)});
  const auto sFile =
      Export(Table(Row(1, 0, "platformAxis") + Row(2, 0, "leftRail") + Row(3, 0, "platformAxis")));
  const auto nFirst = sFile.find("<PntList2D>0.000000 0.000000 0.000000 0.000000<");
  const auto nSecond = sFile.find("<PntList2D>-0.717500 10.000000 0.717500 10.000000<");
  ASSERT_NE(nFirst, std::string::npos);
  ASSERT_NE(nSecond, std::string::npos);
  EXPECT_NE(sFile.find("<PntList2D>-0.717500 10.000000 0.717500 10.000000<", nSecond + 1), std::string::npos);
}

TEST_F(RailSections, SortATableThatIsOutOfOrder) {
  SetPlan({{}, Piece(0, 0, 0)});
  EXPECT_EQ(Stations(Export(Table(Row(30, 0, "leftRail") + Row(10, 0, "leftRail") + Row(30, 0, "leftRail")))),
            "10 30 30 ");
}

TEST_F(RailSections, TakeThePlanOfAStringline) {
  SetPlan({{}, Piece(0, 0, 0)});
  TStringLines StrLn;
  StrLn.nCount = 1;
  StrLn.Lines.resize(2);
  StrLn.Lines[1].sName = "axis";
  StrLn.Lines[1].Hz = {{}, Piece(10, 300, 50), Piece(15, -300, 50)};
  CAligmentsDatas::SetAligmentStrLn(1, StrLn);
  const auto Cant = Table(Row(10, 0, "leftRail") + Row(20, 0, "leftRail"));
  EXPECT_EQ(Stations(Export(Cant, 1, dNotGiven, dNotGiven, "axis")), "10 15 20 ");
}

TEST_F(RailSections, ReportWhatGoesWrong) {
  SetPlan({{}});
  EXPECT_EQ(Export(Table(Row(10, 0, "leftRail") + Row(20, 0, "leftRail")), 1, 0, 100), "");
  EXPECT_EQ(Boxes(), "Unhandler Error in ExportToLandXML\r\nSubscript out of range|");
}

}  // namespace
}  // namespace vrek
