#include "landxml/CLandXML.h"
#include "unit/landxml/LandXmlTest.h"
#include "unit/rail_tunnel/Tracks.h"

namespace vrek {
namespace {

class RailSections : public test::TrackTest {
 protected:
  RailSections() {
    SetLevel(1, 10);
    SetPlan({{}, {.dLength = 10}});
  }

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
    for (const auto& sStation : test::Between(sFile, "sta=\"", "\"")) {
      sStations += std::to_string(std::stoi(sStation)) + " ";
    }
    return sStations;
  }
  static void SetPlan(THzElements aHz) { CAligmentsDatas::SetAligmentHz(1, std::move(aHz)); }

  double dStart = -1, dEnd = -1;
};

THzElement Piece(double dChainage, double dRadius, double dParameter) {
  return {.dChainage = dChainage, .dRadius = dRadius, .dParameter = dParameter, .dLength = 10};
}

TEST_F(RailSections, StandWhereClothoidsTurnTheOtherWay) {
  const auto Cant = Table(Row(0, 0, "leftRail") + Row(100, 0, "leftRail"));
  const struct {
    const char* sLabel;
    std::vector<THzElement> aPieces;
    const char* sStations;
  } aCases[] = {
      // clang-format off
      {"S-curve",              {Piece(10, 300, 50), Piece(20, -0.001, 50)},                 "0 20 100 "},
      {"same way",             {Piece(10, 300, 50), Piece(20, 0.001, 50)},                  "0 100 "},
      {"straight between",     {Piece(10, 300, 50), Piece(20, 0, 0), Piece(30, -0.001, 50)}, "0 100 "},
      {"cubic spiral between", {Piece(10, 300, 50), Piece(20, 9, -5), Piece(30, -1, 50)},   "0 100 "},
      {"arc between",          {Piece(10, 300, 50), Piece(20, 9, 0), Piece(30, -1, 50)},    "0 100 "},
      {"radius 0 turns right", {Piece(10, 0, 50), Piece(20, -1, 50), Piece(30, 0, 50)},     "0 20 30 100 "},
      {"at both ends",         {Piece(0, 1, 50), Piece(50, -1, 50), Piece(100, 1, 50)},     "0 50 100 100 "},
      {"outside the table",    {Piece(-1, -1, 50), Piece(10, 1, 50), Piece(101, -1, 50)}, "0 100 "},
      {"one outside between",  {Piece(10, 1, 50), Piece(101, 0, 0), Piece(20, -1, 50)},     "0 20 100 "},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    THzElements aHz(1);
    aHz.insert(aHz.end(), Case.aPieces.begin(), Case.aPieces.end());
    SetPlan(aHz);
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
      {dNotGiven,        15, "0 10 20 25 30 40 45 50 60 "},
      {        0,       100, "0 10 20 25 30 40 45 50 60 "},
      // The turn at 25 needs the element before it; the first chainage above the end is written too.
      {       15,        31, "20 25 30 40 "},
      {       26,        31, "30 40 "},
      {       20,        20, "20 25 "},
      {       21,        22, ""},
      {       61,       100, ""},
      {       50,        10, ""},
      {     -100,        -1, ""},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    EXPECT_EQ(Stations(Export(Cant, 1, Case.dFrom, Case.dTo)), Case.sStations)
        << Case.dFrom << " " << Case.dTo;
  }
  EXPECT_EQ(Export(Table(Row(100, 0, "leftRail"))), "") << "a single row";
  EXPECT_EQ(dStart, 0);
  EXPECT_EQ(dEnd, 0);
}

TEST_F(RailSections, KeepTheSectionBeforesValuesWhereARowSetsNone) {
  const auto sFile =
      Export(Table(Row(1, 0, "platformAxis") + Row(2, 0, "leftRail") + Row(3, 0, "platformAxis")));
  const std::string sRails = "-0.717500 10.000000 0.717500 10.000000";
  EXPECT_EQ(test::Between(sFile, "<PntList2D>", "</PntList2D>"),
            (std::vector<std::string>{"0.000000 0.000000 0.000000 0.000000", sRails, sRails}));
}

TEST_F(RailSections, TakeThePlanOfAStringline) {
  SetStringLine(1, {{}, Piece(10, 300, 50), Piece(15, -300, 50)}, {});
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
