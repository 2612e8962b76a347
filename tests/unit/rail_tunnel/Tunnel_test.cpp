#include "rail_tunnel/clsTunnel.h"

#include "landxml/CLandXML.h"
#include "unit/rail_tunnel/Tracks.h"

namespace vrek {
namespace {

class Tunnel : public test::TrackTest {
 protected:
  bool Load(std::string_view sBytes) { return Bore.Load(WriteFile("bore.xml", sBytes)); }
  clsTunnel Bore;
};

TEST_F(Tunnel, PassesItsTextThroughWithoutLineEndsAndItsFirstLine) {
  const std::string sAllBytes = "desc='\x81\x8D\x8F\x90\x9D\xF1\x80 &amp;'";
  const struct {
    const char* sLabel;
    std::string sBytes, sWritten;
    std::vector<double> aChainages;
  } aCases[] = {
      {"all bytes, rising",
       "<?xml version='1.0' encoding='ISO-8859-1'?>\r\n<TunnelProfiles " + sAllBytes +
           ">\r\n\t<TunnelProfile sta='20,5'\r\nname='a'/>\r\n  <TunnelProfile sta='3.25'/>\r\n"
           "</TunnelProfiles>\r\n\r\n",
       "<TunnelProfiles " + sAllBytes +
           ">\t<TunnelProfile sta='20,5'name='a'/>  <TunnelProfile sta='3.25'/></TunnelProfiles>",
       {3.25, 20.5}},
      {"no declaration",
       "<TunnelProfiles>\r\n<TunnelProfile sta='1'/><TunnelProfile sta='1'/></TunnelProfiles>",
       "<TunnelProfile sta='1'/><TunnelProfile sta='1'/></TunnelProfiles>",
       {1, 1}},
      {"LF alone",
       "<?xml version='1.0'?>\n<TunnelProfiles>\n<TunnelProfile sta='1'/>\n</TunnelProfiles>\n",
       "<TunnelProfiles><TunnelProfile sta='1'/></TunnelProfiles>",
       {1}},
  };
  for (const auto& Case : aCases) {
    SCOPED_TRACE(Case.sLabel);
    Bore = {};
    ASSERT_TRUE(Load(Case.sBytes));
    EXPECT_EQ(Bore.GetChainages(), Case.aChainages);
    const auto sPath = (Directory / "out.xml").string();
    CLandXML::SetOutputFile(sPath);
    CLandXML::OpenFile();
    CLandXML::TagAlignments(false);
    double dStart = 0, dEnd = 0;
    EXPECT_TRUE(Bore.ExportToLandXml(dStart, dEnd, 5, 6));
    EXPECT_EQ(dStart, Case.aChainages.front());
    EXPECT_EQ(dEnd, Case.aChainages.back());
    CLandXML::CloseFile();
    EXPECT_EQ(ReadFile(sPath), "<Alignments>\r\n\t" + Case.sWritten + "\r\n");
  }
  EXPECT_NE(Log().find("bore.xml"), std::string::npos) << "a file without a CR is noted";
}

TEST_F(Tunnel, RefusesOtherFilesWithTheirMessage) {
  const std::string sDeclaration = "<?xml version='1.0'?>\r\n", sRow = "<TunnelProfile sta='1'/>";
  const std::string sUnhandled = "Unhandler Error in clsTunnel.Load\r\n";
  const std::pair<std::string, std::string> aCases[] = {
      {sDeclaration + "\r\n<TunnelProfiles>" + sRow + "</TunnelProfiles>", "E_NOVALIDFILE"},
      {"<?xml version='1.0'?>", sUnhandled + "Input past end of file"},
      {"", "E_NOVALIDFILE"},
      {sDeclaration + "<TunnelProfiles>" + sRow, "E_NOVALIDFILE"},
      {sDeclaration + "<TunnelProfilesOfAll>" + sRow + "</TunnelProfilesOfAll>", "E_NOVALIDFILE"},
      {sDeclaration + "<TunnelProfiles><Profile sta='1'/></TunnelProfiles>", "E_NOTFINDXMLELM"},
      {sDeclaration + "<TunnelProfiles><TunnelProfile/></TunnelProfiles>",
       sUnhandled + "Object variable or With block variable not set"},
  };
  for (const auto& [sBytes, sMessage] : aCases) {
    Platform.aBoxes.clear();
    EXPECT_FALSE(Load(sBytes)) << sBytes;
    EXPECT_EQ(Boxes(), sMessage + "|") << sBytes;
  }
  Platform.aBoxes.clear();
  EXPECT_FALSE(Bore.Load((Directory / "none.xml").string()));
  EXPECT_EQ(Boxes(), sUnhandled + "File not found|");
}

TEST_F(Tunnel, ReportsThatItHasNoProfilesToWrite) {
  double dStart = 0, dEnd = 0;
  EXPECT_FALSE(Bore.ExportToLandXml(dStart, dEnd));
  EXPECT_EQ(Boxes(), "Unhandler Error in clsTunnel.ExportToLandXml\r\nSubscript out of range|");
}

}  // namespace
}  // namespace vrek
