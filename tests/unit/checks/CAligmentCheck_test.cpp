#include "checks/CAligmentCheck.h"

#include <cmath>

#include "unit/rail_tunnel/Tracks.h"

namespace vrek {
namespace {

using namespace CAligmentCheck;

class Checks : public test::AppTest {
 protected:
  Checks() { InitReports(); }
  ~Checks() override { InitReports(); }

  /// Errors found in a plan, and the report in full.
  static int Hz(const THzElements& aHz, double dTolerance = 0.01) {
    InitReports();
    AddReportFile("file", EFileKind::eHorizontal);
    return CheckHz(aHz, dTolerance);
  }
  static int Vt(const TVtElements& aVt, double dTolerance = 0.01) {
    InitReports();
    AddReportFile("file", EFileKind::eVertical);
    return CheckVt(aVt, dTolerance);
  }
};

THzElements GoodPlan() {
  return test::PlanMaker(500000, 4000000, 88.5, 1000)
      .Line(100)
      .Clothoid(0.001, 400, 200, 100)
      .Arc(400, 300)
      .Clothoid(400, 0, 200, 100)
      .Clothoid(-0.001, -300, 150, 75)
      .Arc(-300, 200)
      .Clothoid(-300, -600, 200, 66.666666666666667)
      .Arc(-600, 50)
      .Line(10)
      .Elements();
}

TEST_F(Checks, FindEachElementThatDoesNotMeetTheNext) {
  const auto aGood = GoodPlan();
  EXPECT_EQ(Hz(aGood, 1e-6), 0);
  for (std::size_t i = 2; i < aGood.size(); ++i) {
    auto aHz = aGood;
    aHz[i].dX += 0.012;
    aHz[i].dY -= 0.016;
    EXPECT_EQ(Hz(aHz, 0.019), i + 1 < aHz.size() ? 2 : 1) << "it ends elsewhere as well " << i;
    EXPECT_EQ(Hz(aHz, 0.021), 0) << i;
  }
  EXPECT_EQ(Hz({{}, {.nId = 1, .dLength = 5}}), 0) << "nothing behind a single element";
  EXPECT_EQ(Hz({{}}) + Hz({}), 0);
}

TEST_F(Checks, PassADistanceEqualToTheTolerance) {
  const auto TwoStraights = [](double dY) {
    return THzElements{{}, {.nId = 1, .dLength = 100}, {.nId = 2, .dChainage = 100, .dY = dY, .dLength = 5}};
  };
  EXPECT_EQ(Hz(TwoStraights(100.25), 0.25), 0);
  EXPECT_EQ(Hz(TwoStraights(100.2501), 0.25), 1);
  EXPECT_TRUE(GetReportText("file", "PAGE1@Hz")
                  .ends_with("      100.0000\t        0.0000\t       -0.2501\tE_TOLE_HZ"));
}

TEST_F(Checks, FollowTheCubicSpiral) {
  // From a straight: a transition of 60 m to R 300 along +Y ends 60 ahead and y to the right.
  const double y = 60.0 * 60 * 60 / (6 * 300.0 * 60) * (1 + 3 * 60.0 * 60 / (64 * 300.0 * 300));
  THzElements aHz{{},
                  {.nId = 1, .dLength = 10},
                  {.nId = 2, .dChainage = 10, .dY = 10, .dRadius = 300, .dParameter = -60, .dLength = 60},
                  {.nId = 3, .dChainage = 70, .dX = y, .dY = 70, .dRadius = 300, .dLength = 5}};
  EXPECT_EQ(Hz(aHz, 1e-9), 0);
  aHz[3].dY += 0.1;
  EXPECT_EQ(Hz(aHz), 1);
  // Behind an arc it is measured from the next element; as long as the transition it ends there in any case.
  aHz[1].dRadius = 1e6;
  EXPECT_EQ(Hz(aHz, 1e-4), 0);
}

TEST_F(Checks, FindSpiralsOfNoLength) {
  const THzElements aHz{{},
                        {.nId = 1, .dChainage = 1},
                        {.nId = 2, .dChainage = 2.5, .dRadius = 300, .dParameter = 50},
                        {.nId = 3, .dChainage = 3, .dRadius = 300}};
  EXPECT_EQ(Hz(aHz), 1);
  EXPECT_EQ(GetReportText("file", "PAGE1@Hz"),
            "          E_CH\t           E_X\t           E_Y\tE_DESCRIPTION \r\n\r\n"
            "        2.5000\t -9999999.9999\t -9999999.9999\tInvalid element lenght");
}

TEST_F(Checks, CountAPlanAsPassedWhenTheCheckFails) {
  EXPECT_EQ(Hz({{}, {.nId = 1, .dLength = 1e300}, {.nId = 2}}), 0);
  ASSERT_EQ(Platform.aBoxes.size(), 1u);
  EXPECT_EQ(Platform.aBoxes[0].sText, "Unhandler Error in CheckHz\r\nOverflow");
}

TEST_F(Checks, TestTheCurvesOfAProfileAlone) {
  const auto Profile = [](double dKv, double dNextHeight) {
    return TVtElements{{},
                       {.nId = 1, .dHeight = 10, .dSlope = 0.02, .dKv = dKv, .dLength = 100},
                       {.nId = 2, .dChainage = 100, .dHeight = dNextHeight, .dKv = 5, .dLength = 7}};
  };
  // 10 + 2 - 100² / (2·5000) = 11
  EXPECT_EQ(Vt(Profile(-5000, 11)), 0);
  EXPECT_EQ(Vt(Profile(-5000, 11.25), 0.25), 0);
  EXPECT_EQ(Vt(Profile(0, 99)), 0);
  EXPECT_EQ(Vt(Profile(-5000, 11.5)), 1);
  EXPECT_TRUE(GetReportText("file", "PAGE2@Vt").ends_with("      100.0000\t        0.5000\tE_TOLE_VT"));
  EXPECT_EQ(Vt({}), 0);
}

TEST_F(Checks, EndQuietlyOnAFailureAndKeepWhatTheyFound) {
  // A circular curve whose end lies beyond its circle.
  const TVtElements aVt{{},
                        {.nId = 1, .dKv = 1000, .dLength = 10},
                        {.nId = 2, .dChainage = 10, .dHeight = 9, .dKv = 1, .dLength = -10},
                        {.nId = 3, .dChainage = 20}};
  EXPECT_EQ(Vt(aVt), 0);
  EXPECT_TRUE(Platform.aBoxes.empty());
  EXPECT_NE(GetReportText("file", "PAGE1@Vt").find("10.0000"), std::string::npos);
}

TEST_F(Checks, KeepSideFilesInsideTheProfile) {
  const TVtElements aVt{
      {}, {.nId = 1, .dChainage = 100, .dLength = 50}, {.nId = 2, .dChainage = 150, .dLength = 50}};
  // clang-format off
  const struct { TVtElements aVt; std::vector<double> aChainages; bool bTunnel, bCant; } aCases[] = {
      {aVt,  {100, 150, 200},  false, false},
      {aVt,  {99.9999},        true,  true},
      {aVt,  {150, 200.0001},  true,  true},
      {aVt,  {},               false, false},
      {{{}}, {0, 0},           false, false},
      {{{}}, {1},              true,  true},
      {{},   {1},              true,  false}};
  // clang-format on
  for (const auto& Case : aCases) {
    AddReportFile("tunnel", EFileKind::eTunnel);
    EXPECT_EQ(CheckTunnel(Case.aVt, Case.aChainages), Case.bTunnel);
    AddReportFile("cant", EFileKind::eCant);
    EXPECT_EQ(CheckSuperelevation(Case.aVt, Case.aChainages), Case.bCant);
  }
}

TEST_F(Checks, ReportEachChainageOutside) {
  AddReportFile("t", EFileKind::eTunnel);
  CheckTunnel({{}, {.nId = 1, .dChainage = 100, .dLength = 50}}, {-1, 120, 1e15, INFINITY});
  EXPECT_EQ(GetReportText("t", "PAGE1@Cr"),
            "          E_CH\tE_DESCRIPTION \r\n\r\n       -1.0000\tE_TOLE_TUNNEL\r\n"
            "1000000000000000.0000\tE_TOLE_TUNNEL\r\n      Overflow\tE_TOLE_TUNNEL");
  AddReportFile("c", EFileKind::eCant);
  CheckSuperelevation({{}}, {0.00005});
  EXPECT_EQ(GetReportText("c", "PAGE2@Cr"),
            "          E_CH\tE_DESCRIPTION \r\n\r\n        0.0001\tE_TOLE_SUPERELV");
}

TEST_F(Checks, FindTheReportOfANode) {
  EXPECT_EQ(GetReportText("", "PAGE1@Hz"), "") << "no file yet";
  AddReportFile("a", EFileKind::eHorizontal);
  AddReportError(1, false, 0, 0, 2, 0, "a note alone is no error");
  for (const char* sText : {"first", "second"}) {
    AddReportFile("a", EFileKind::eVertical);
    AddReportError(1, true, 0, 0, 2, 0, sText);
  }
  AddReportFile("sections", EFileKind::eCrossSections);
  EXPECT_EQ(GetReportText("a", "PAGE1@Hz"), "E_EMPTYFILE");
  EXPECT_TRUE(GetReportText("a", "PAGE3@Vt").ends_with("first"));
  EXPECT_EQ(GetReportText("a", "PAGE1@Cr"), "");
  EXPECT_EQ(GetReportText("b", "PAGE1@Hz"), "");
  EXPECT_EQ(GetReportText("sections", "PAGE1@Cr"), "E_EMPTYFILE");
  InitReports();
  EXPECT_EQ(GetReportText("a", "PAGE1@Hz"), "");
}

TEST_F(Checks, WriteHeadingsFromTheLanguageFile) {
  WriteFile("heads.lng",
            "E_CH =  Estación \r\nE_DESCRIPTION = D\xE9"
            "faut\r\nE_Z = Quite a long heading\r\n");
  ASSERT_TRUE(Model.TokenFile.ReadFile("heads.lng"));
  AddReportFile("v", EFileKind::eVertical);
  AddReportError(1, true, 0, 0, 2, 0, "text");
  AddReportError(2, false, 0, 0, 2, 0, "note");
  const auto sText = GetReportText("v", "Vt");
  EXPECT_NE(sText.find("\tQuite a long heading\tDéfaut        \r\n\r\n"), std::string::npos) << sText;
  EXPECT_NE(sText.find("        2.0000\t        2.0000\tnote"), std::string::npos);
}

}  // namespace
}  // namespace vrek
