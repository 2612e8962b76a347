#include <cmath>

#include "unit/rail_tunnel/Tracks.h"

namespace vrek {
namespace {

class CantTable : public test::TrackTest {
 protected:
  /// What the user is shown when these bytes are imported; "" when they are taken.
  std::string Refusal(std::string_view sBytes) {
    Platform.aBoxes.clear();
    clsSuperelevation Cant;
    const bool bTaken = Cant.Import(WriteFile("cant.xml", sBytes));
    EXPECT_EQ(bTaken, Platform.aBoxes.empty());
    return bTaken ? "" : Platform.aBoxes.at(0).sText;
  }
};

TEST_F(CantTable, ReadsTheSingleCantForm) {
  const auto Cant = Table(
      "<Rows><CantStation station='100,5' appliedCant='80' rotationPoint='insideRail' appliedGauge='1,435' "
      "appliedSuperelevation='1.5'/></Rows>" +
          Row(200, -20, "LeftRail"),
      true);
  ASSERT_EQ(Cant.Stations().size(), 2u);
  const auto& First = Cant.Stations()[0];
  EXPECT_EQ(First.dStation, 100.5);
  EXPECT_EQ(First.dAppliedCant, 80 * 0.001);
  EXPECT_EQ(First.eRotationPoint, ERotationPoint::eInsideRail);
  EXPECT_EQ(First.dAppliedGauge, 1.435);
  EXPECT_EQ(First.dAppliedSuperelevation, 1.5);
  EXPECT_EQ(Cant.Stations()[1].eRotationPoint, ERotationPoint::eGivenByRails) << "the case of letters counts";
  EXPECT_TRUE(Cant.IsCoplaneTrack());
  EXPECT_EQ(Cant.GetChainageStart(), 100.5);
  EXPECT_EQ(Cant.GetChainageEnd(), 200);
  EXPECT_EQ(Cant.GetChainages(), (std::vector<double>{100.5, 200}));
}

TEST_F(CantTable, ReadsTheFormWithBothLifts) {
  const auto Cant = Table(Row(100, 15, -30) +
                          "<CantStation station='110' appliedCantLeft='1' appliedCantRight='2' "
                          "rotationPoint='center' appliedGauge='1' appliedSuperelevation='2'/>");
  EXPECT_EQ(Cant.Stations()[0].dAppliedCantLeft, 15 * 0.001);
  EXPECT_EQ(Cant.Stations()[0].dAppliedCantRight, -30 * 0.001);
  EXPECT_EQ(Cant.Stations()[1].eRotationPoint, ERotationPoint::eGivenByRails);
  EXPECT_FALSE(Cant.IsCoplaneTrack());
}

TEST_F(CantTable, RefusesOtherFilesWithTheirMessage) {
  const std::string sRow = Row(0, 0, "center");
  const std::string sRoot = "<Cant gauge='1' superelevationBase='1' rotationPoint='center' coPlane='true'>";
  const auto WithComment = [&](std::string_view sComment) {
    return "<?xml version='1.0'?><!--" + std::string(sComment) + "-->" + sRoot + sRow + "</Cant>";
  };
  const std::string sGood = "<?xml version='1.0'?><!--'2.0.1'-->";
  const std::string sUnhandled = "Unhandler Error in ImportSuperelevationTable\r\n";
  const std::string sNotSet = sUnhandled + "Object variable or With block variable not set";
  const struct {
    std::string sBytes, sMessage;
  } aCases[] = {
      {WithComment("'2.0.1'"), ""},
      {WithComment(" a'b'12.0.x y' "), ""},
      {WithComment("'.0.'"), ""},
      {WithComment("'2.1.0'"), "E_FILE_SUPER_VER"},
      {WithComment("'2.0'"), "E_FILE_SUPER_VER"},
      {WithComment("2.0.1'"), "E_FILE_SUPER_VER"},
      {WithComment("'2.0.1"), "E_FILE_SUPER_VER"},
      {"<?xml version='1.0'?>" + sRoot + sRow + "</Cant>", "E_FILE_SUPER"},
      {"<?xml version='1.0'?><?p?><!--'2.0.1'-->" + sRoot + sRow + "</Cant>", "E_FILE_SUPER"},
      {"<!--'2.0.1'-->" + sRoot + sRow + "</Cant>", "E_FILE_SUPER"},
      {sRoot + sRow + "</Cant>", "E_FILE_SUPER"},
      {sRoot + sRow + "</Cant><!--'2.0.1'-->", ""},
      {sGood + "<cant/>", "E_NOVALIDFILE"},
      {sGood + "<n:Cant xmlns:n='u' gauge='1' superelevationBase='1' rotationPoint='' coPlane=''>" + sRow +
           "</n:Cant>",
       ""},
      {sGood + sRoot + "<CantStations/></Cant>", "E_NOTFINDXMLELM"},
      {sGood + "<Cant gauge='1' superelevationBase='1' rotationPoint='center'>" + sRow + "</Cant>", sNotSet},
      {sGood + sRoot + sRow +
           "<CantStation station='1' appliedCantLeft='0' appliedCantRight='0' appliedGauge='1' "
           "appliedSuperelevation='1'/></Cant>",
       sNotSet},
      {sGood + sRoot + "<CantStation/></Cant>", sNotSet},
      {sGood + sRoot, "E_OPENLANDXML\r\nPremature end of data in tag Cant line 1 (line 1, column " +
                          std::to_string(sGood.size() + sRoot.size() + 1) + ")"},
  };
  for (const auto& Case : aCases) EXPECT_EQ(Refusal(Case.sBytes), Case.sMessage) << Case.sBytes;
}

TEST_F(CantTable, RefusesAMissingFileAsUnreadable) {
  clsSuperelevation Cant;
  EXPECT_FALSE(Cant.Import((Directory / "none.xml").string()));
  EXPECT_EQ(Boxes(), "E_OPENLANDXML\r\nFile not found|");
}

TEST_F(CantTable, HasNoRangeWithoutRows) {
  EXPECT_THROW(clsSuperelevation().GetChainageStart(), Failure);
  EXPECT_THROW(clsSuperelevation().GetChainageEnd(), Failure);
  EXPECT_EQ(clsSuperelevation().GetSlopeInChainage(5), 0);
}

TEST_F(CantTable, GivesTheSlopeOfASingleCant) {
  const auto Cant = Table(Row(100, 0, "leftRail") + Row(200, 150, "rightRail") + Row(300, 75, "center"));
  EXPECT_EQ(Cant.GetSlopeInChainage(99.999), 0);
  EXPECT_EQ(Cant.GetSlopeInChainage(100), 0);
  EXPECT_NEAR(Cant.GetSlopeInChainage(150), std::asin(0.075 / 1.5), 1e-15);
  EXPECT_NEAR(Cant.GetSlopeInChainage(200), std::asin(0.150 / 1.5), 1e-15);
  EXPECT_NEAR(Cant.GetSlopeInChainage(225), std::asin(0.13125 / 1.5), 1e-15);
  EXPECT_NEAR(Cant.GetSlopeInChainage(301), std::asin(0.075 / 1.5), 1e-15)
      << "beyond the table its last row stands";
}

TEST_F(CantTable, GivesTheSlopeBetweenBothLifts) {
  const auto Cant = Table(Row(100, 20, -40) + Row(200, 0, 60));
  EXPECT_NEAR(Cant.GetSlopeInChainage(100), std::atan(-0.060 / 1.5), 1e-15);
  EXPECT_NEAR(Cant.GetSlopeInChainage(150), 0, 1e-15);
  EXPECT_NEAR(Cant.GetSlopeInChainage(175), std::atan(0.030 / 1.5), 1e-15);
}

TEST_F(CantTable, DividesByNothingBetweenEqualStations) {
  const auto Cant = Table(Row(100, 30, "center") + Row(100, 90, "center") + Row(200, 90, "center"));
  EXPECT_NEAR(Cant.GetSlopeInChainage(100), std::asin(0.030 / 1.5), 1e-15) << "the first of them stands";
  EXPECT_NEAR(Cant.GetSlopeInChainage(150), std::asin(0.090 / 1.5), 1e-15);
}

TEST_F(CantTable, WalksATableThatIsOutOfOrder) {
  const auto Cant = Table(Row(100, 15, "center") + Row(300, 30, "center") + Row(200, 60, "center"));
  // The walk stops at 300, the first station above 250, and runs from 100 to it.
  EXPECT_NEAR(Cant.GetSlopeInChainage(250), std::asin((0.015 + 0.015 * 0.75) / 1.5), 1e-15);
  EXPECT_NEAR(Cant.GetSlopeInChainage(200), std::asin((0.015 + 0.015 * 0.5) / 1.5), 1e-15);
  EXPECT_NEAR(Cant.GetSlopeInChainage(400), std::asin(0.060 / 1.5), 1e-15);
}

TEST_F(CantTable, FailsOnABaseOfNothingAndACantBeyondIt) {
  const auto NumberOf = [](const clsSuperelevation& Cant) {
    try {
      Cant.GetSlopeInChainage(0);
      return 0;
    } catch (const Failure& Error) {
      return static_cast<int>(Error.nNumber);
    }
  };
  const std::string sBegin =
      "<CantStation station='0' appliedCant='1501' rotationPoint='center' appliedGauge='1' ";
  EXPECT_EQ(NumberOf(Table(sBegin + "appliedSuperelevation='0'/>")), Error::nDivisionByZero);
  EXPECT_EQ(NumberOf(Table(sBegin + "appliedSuperelevation='1.5'/>")), Error::nInvalidCall);
  EXPECT_EQ(
      NumberOf(Table("<CantStation station='0' appliedCant='1e400' rotationPoint='center' appliedGauge='1' "
                     "appliedSuperelevation='1.5'/>")),
      Error::nOverflow);
}

}  // namespace
}  // namespace vrek
