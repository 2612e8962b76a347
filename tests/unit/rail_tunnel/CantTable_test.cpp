#include <cmath>

#include "unit/geometry/FailureOf.h"
#include "unit/rail_tunnel/Tracks.h"

namespace vrek {
namespace {

using CantTable = test::TrackTest;

TEST_F(CantTable, ReadsBothForms) {
  const auto Cant = Table(
      "<Rows><CantStation station='100,5' appliedCant='80' rotationPoint='insideRail' appliedGauge='1,435' "
      "appliedSuperelevation='1.5'/></Rows>" +
          Row(200, -20, "LeftRail"),
      true);
  EXPECT_EQ(Cant.GetChainages(), (std::vector<double>{100.5, 200}));
  const auto& First = Cant.Stations().at(0);
  EXPECT_EQ(First.dAppliedCant, 80 * 0.001);
  EXPECT_EQ(First.eRotationPoint, ERotationPoint::eInsideRail);
  EXPECT_EQ(First.dAppliedGauge, 1.435);
  EXPECT_EQ(First.dAppliedSuperelevation, 1.5);
  EXPECT_EQ(Cant.Stations()[1].eRotationPoint, ERotationPoint::eGivenByRails) << "the case of letters counts";
  EXPECT_TRUE(Cant.IsCoplaneTrack());

  const auto Lifts = Table(
      "<CantStation station='110' appliedCantLeft='1' appliedCantRight='2' "
      "rotationPoint='center' appliedGauge='1' appliedSuperelevation='2'/>");
  EXPECT_EQ(Lifts.Stations().at(0).eRotationPoint, ERotationPoint::eGivenByRails);
  EXPECT_FALSE(Lifts.IsCoplaneTrack());
}

TEST_F(CantTable, RefusesOtherFilesWithTheirMessage) {
  const std::string sRow = Row(0, 0, "center"), sLifts = Row(1, 0, 0);
  const std::string sRoot = "<Cant gauge='1' superelevationBase='1' rotationPoint='center' coPlane='true'>";
  const std::string sTable = sRoot + sRow + "</Cant>";
  const std::string sGood = "<?xml version='1.0'?><!--'2.0.1'-->";
  const std::string sNotSet =
      "Unhandler Error in ImportSuperelevationTable\r\nObject variable or With block variable not set";
  const auto WithComment = [&](const std::string& sComment) {
    return "<?xml version='1.0'?><!--" + sComment + "-->" + sTable;
  };
  const std::pair<std::string, std::string> aCases[] = {
      {WithComment("'2.0.1'"), ""},
      {WithComment(" a'b'12.0.x y' "), ""},
      {WithComment("'2.1.0'"), "E_FILE_SUPER_VER"},
      {WithComment("2.0.1'"), "E_FILE_SUPER_VER"},
      {WithComment("'2.0.1"), "E_FILE_SUPER_VER"},
      {"<?xml version='1.0'?>" + sTable, "E_FILE_SUPER"},
      {"<?xml version='1.0'?><?p?><!--'2.0.1'-->" + sTable, "E_FILE_SUPER"},
      {sTable, "E_FILE_SUPER"},
      {sTable + "<!--'2.0.1'-->", ""},
      {sGood + "<cant/>", "E_NOVALIDFILE"},
      {sGood + "<n:Cant xmlns:n='u' gauge='1' superelevationBase='1' rotationPoint='' coPlane=''>" + sRow +
           "</n:Cant>",
       ""},
      {sGood + sRoot + "<CantStations/></Cant>", "E_NOTFINDXMLELM"},
      {sGood + "<Cant gauge='1' superelevationBase='1' rotationPoint='center'>" + sRow + "</Cant>", sNotSet},
      {sGood + sRoot + sRow + sLifts + "</Cant>", sNotSet},
      {sGood + sRoot, "E_OPENLANDXML\r\nPremature end of data in tag Cant line 1 (line 1, column " +
                          std::to_string(sGood.size() + sRoot.size() + 1) + ")"},
  };
  for (const auto& [sBytes, sMessage] : aCases) {
    Platform.aBoxes.clear();
    clsSuperelevation Cant;
    EXPECT_EQ(Cant.Import(WriteFile("cant.xml", sBytes)), sMessage.empty()) << sBytes;
    EXPECT_EQ(Boxes(), sMessage.empty() ? "" : sMessage + "|") << sBytes;
  }
  Platform.aBoxes.clear();
  clsSuperelevation Cant;
  EXPECT_FALSE(Cant.Import((Directory / "none.xml").string()));
  EXPECT_EQ(Boxes(), "E_OPENLANDXML\r\nFile not found|");
}

TEST_F(CantTable, HasNoRangeWithoutRows) {
  EXPECT_EQ(test::FailureOf([] { clsSuperelevation().GetChainageStart(); }), Error::nSubscript);
  EXPECT_EQ(test::FailureOf([] { clsSuperelevation().GetChainageEnd(); }), Error::nSubscript);
  EXPECT_EQ(clsSuperelevation().GetSlopeInChainage(5), 0);
}

TEST_F(CantTable, GivesTheSlopeAtAChainage) {
  const double dBase = 1.5;
  const struct {
    const char* sLabel;
    std::string sRows;
    std::vector<std::pair<double, double>> aSlopes;
  } aCases[] = {
      {"single cant",
       Row(100, 0, "leftRail") + Row(200, 150, "rightRail") + Row(300, 75, "center"),
       {{99.999, 0},
        {100, 0},
        {150, std::asin(0.075 / dBase)},
        {200, std::asin(0.150 / dBase)},
        {225, std::asin(0.13125 / dBase)},
        {301, std::asin(0.075 / dBase)}}},
      {"both lifts",
       Row(100, 20, -40) + Row(200, 0, 60),
       {{100, std::atan(-0.060 / dBase)}, {150, 0}, {175, std::atan(0.030 / dBase)}}},
      {"equal stations: the first of them stands",
       Row(100, 30, "center") + Row(100, 90, "center") + Row(200, 90, "center"),
       {{100, std::asin(0.030 / dBase)}, {150, std::asin(0.090 / dBase)}}},
      // At 250 the walk stops at 300, the first station above it, and runs from 100 to it.
      {"out of order",
       Row(100, 15, "center") + Row(300, 30, "center") + Row(200, 60, "center") + Row(400, 90, "center"),
       {{250, std::asin((0.015 + 0.015 * 0.75) / dBase)},
        {200, std::asin((0.015 + 0.015 * 0.5) / dBase)},
        {500, std::asin(0.090 / dBase)}}},
  };
  for (const auto& Case : aCases) {
    const auto Cant = Table(Case.sRows);
    for (const auto& [dChainage, dSlope] : Case.aSlopes) {
      EXPECT_NEAR(Cant.GetSlopeInChainage(dChainage), dSlope, 1e-15) << Case.sLabel << " " << dChainage;
    }
  }
}

TEST_F(CantTable, FailsOnABaseOfNothingAndACantBeyondIt) {
  const auto NumberOf = [&](const std::string& sCant, const std::string& sBase) {
    const auto Cant =
        Table("<CantStation station='0' appliedCant='" + sCant +
              "' rotationPoint='center' appliedGauge='1' appliedSuperelevation='" + sBase + "'/>");
    return test::FailureOf([&] { Cant.GetSlopeInChainage(0); });
  };
  EXPECT_EQ(NumberOf("1501", "0"), Error::nDivisionByZero);
  EXPECT_EQ(NumberOf("1501", "1.5"), Error::nInvalidCall);
  EXPECT_EQ(NumberOf("1e400", "1.5"), Error::nOverflow);
}

}  // namespace
}  // namespace vrek
