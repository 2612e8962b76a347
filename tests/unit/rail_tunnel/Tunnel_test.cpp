#include "landxml/CLandXML.h"
#include "rail_tunnel/clsTunnel.h"
#include "support/TestApp.h"

namespace vrek {
namespace {

class Tunnel : public test::AppTest {
 protected:
  bool Load(std::string_view sBytes) { return Bore.Load(WriteFile("bore.xml", sBytes)); }
  /// What the output file holds when the bore is written at depth 1.
  std::string Written() {
    const auto sPath = (Directory / "out.xml").string();
    CLandXML::SetOutputFile(sPath);
    CLandXML::OpenFile();
    CLandXML::TagAlignments(false);
    double dStart = 0, dEnd = 0;
    EXPECT_TRUE(Bore.ExportToLandXml(dStart, dEnd, 5, 6));
    EXPECT_EQ(dStart, Bore.GetChainageStart());
    EXPECT_EQ(dEnd, Bore.GetChainageEnd());
    CLandXML::CloseFile();
    const auto sFile = ReadFile(sPath);
    return sFile.substr(sFile.find('\n') + 1);
  }
  clsTunnel Bore;
};

TEST_F(Tunnel, PassesItsTextThroughAsItsBytesStand) {
  const std::string sAllBytes = "desc='\x81\x8D\x8F\x90\x9D\xF1\x80 &amp;'";
  ASSERT_TRUE(Load("<?xml version='1.0' encoding='ISO-8859-1'?>\r\n<TunnelProfiles " + sAllBytes +
                   ">\r\n\t<TunnelProfile sta='20,5'\r\nname='a'/>\r\n  <TunnelProfile sta='3.25'/>\r\n"
                   "</TunnelProfiles>\r\n\r\n"));
  EXPECT_EQ(Written(),
            "\t<TunnelProfiles " + sAllBytes +
                ">\t<TunnelProfile sta='20,5'name='a'/>  <TunnelProfile sta='3.25'/></TunnelProfiles>\r\n");
  EXPECT_EQ(Bore.GetChainages(), (std::vector<double>{3.25, 20.5})) << "rising";
}

TEST_F(Tunnel, LeavesOutTheFirstLineInAnyCase) {
  ASSERT_TRUE(Load("<TunnelProfiles>\r\n<TunnelProfile sta='1'/><TunnelProfile sta='1'/></TunnelProfiles>"));
  EXPECT_EQ(Written(), "\t<TunnelProfile sta='1'/><TunnelProfile sta='1'/></TunnelProfiles>\r\n");
  EXPECT_EQ(Bore.GetChainages().size(), 2u);
}

TEST_F(Tunnel, TakesALoneLfForALineEndWhereThereIsNoCr) {
  ASSERT_TRUE(Load("<?xml version='1.0'?>\n<TunnelProfiles>\n<TunnelProfile sta='1'/>\n</TunnelProfiles>\n"));
  EXPECT_EQ(Written(), "\t<TunnelProfiles><TunnelProfile sta='1'/></TunnelProfiles>\r\n");
  EXPECT_NE(Log().find("bore.xml"), std::string::npos);
}

TEST_F(Tunnel, RefusesOtherFilesWithTheirMessage) {
  const std::string sDeclaration = "<?xml version='1.0'?>\r\n", sRow = "<TunnelProfile sta='1'/>";
  const std::string sUnhandled = "Unhandler Error in clsTunnel.Load\r\n";
  const struct {
    std::string sBytes, sMessage;
  } aCases[] = {
      {sDeclaration + "\r\n<TunnelProfiles>" + sRow + "</TunnelProfiles>", "E_NOVALIDFILE"},
      {sDeclaration + " <TunnelProfiles>" + sRow + "</TunnelProfiles>", "E_NOVALIDFILE"},
      {"<?xml version='1.0'?>", sUnhandled + "Input past end of file"},
      {"", "E_NOVALIDFILE"},
      {sDeclaration + "<TunnelProfiles>" + sRow, "E_NOVALIDFILE"},
      {sDeclaration + "<TunnelProfilesOfAll>" + sRow + "</TunnelProfilesOfAll>", "E_NOVALIDFILE"},
      {"<Cant>" + sRow + "</Cant>", "E_NOVALIDFILE"},
      {sDeclaration + "<TunnelProfiles><Profile sta='1'/></TunnelProfiles>", "E_NOTFINDXMLELM"},
      {sDeclaration + "<TunnelProfiles><TunnelProfile/></TunnelProfiles>",
       sUnhandled + "Object variable or With block variable not set"},
  };
  for (const auto& Case : aCases) {
    Platform.aBoxes.clear();
    EXPECT_FALSE(Load(Case.sBytes)) << Case.sBytes;
    ASSERT_EQ(Platform.aBoxes.size(), 1u) << Case.sBytes;
    EXPECT_EQ(Platform.aBoxes[0].sText, Case.sMessage) << Case.sBytes;
  }
  Platform.aBoxes.clear();
  EXPECT_FALSE(Bore.Load((Directory / "none.xml").string()));
  EXPECT_EQ(Platform.aBoxes.at(0).sText, sUnhandled + "File not found");
}

TEST_F(Tunnel, ReportsThatItHasNoProfilesToWrite) {
  double dStart = 0, dEnd = 0;
  EXPECT_FALSE(Bore.ExportToLandXml(dStart, dEnd));
  EXPECT_EQ(Platform.aBoxes.at(0).sText,
            "Unhandler Error in clsTunnel.ExportToLandXml\r\nSubscript out of range");
}

}  // namespace
}  // namespace vrek
