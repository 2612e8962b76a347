#include "LandXmlTest.h"

namespace vrek::test {
namespace {

using Document = LandXmlTest;

TEST_F(Document, WithAnEmptyJobHasItsFrame) {
  Platform.Time.tm_hour = 15;
  EXPECT_TRUE(CLandXML::TagLandXML(false));
  EXPECT_TRUE(CLandXML::TagApplication("Mu\xC3\xB1oz"));
  EXPECT_TRUE(
      CLandXML::TagProject("V\xC3\xAD"
                           "a \xC3\xB1 & ~",
                           "Vrek \xCE\xA9"));
  EXPECT_TRUE(CLandXML::TagUnits());
  EXPECT_TRUE(CLandXML::TagLandXML(true));
  EXPECT_TRUE(CLandXML::WroteWhole());
  EXPECT_EQ(CLandXML::Tabs(), 0);
  CLandXML::CloseFile();
  EXPECT_TRUE(CLandXML::WroteWhole());
  EXPECT_TRUE(Disk().bClosed);
  EXPECT_EQ(Disk().sPath, "road.xml");
  // The name as UTF-8, the author in the code page.
  EXPECT_EQ(
      Disk().sBytes,
      CrLf("<LandXML xmlns=\"http://www.landxml.org/schema/LandXML-1.0\" "
           "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
           "xsi:schemaLocation=\"http://www.landxml.org/schema/LandXML-1.0 "
           "http://www.landxml.org/schema/LandXML-1.0/LandXML-1.0.xsd\" version=\"1.0\" "
           "date=\"2026-01-02\" time=\"15:04:05\" readOnly=\"false\" language=\"english\">\n"
           "\t<Application name=\"Quennel Converters\" version=\"2.3.0\" manufacturer=\"Branthe AG\" "
           "manufacturerURL=\"http://www.branthe.example\"><Author createdBy=\"Mu\xF1oz\" /></Application>\n"
           "\t<Project name=\"V\xC3\xAD"
           "a \xC3\xB1 & ~\" desc=\"Vrek ?\" />\n"
           "\t<Units>\n"
           "\t\t<Metric areaUnit=\"squareMeter\" linearUnit=\"meter\" volumeUnit=\"cubicMeter\" "
           "temperatureUnit=\"celsius\" pressureUnit=\"HPA\" />\n"
           "\t</Units>\n"
           "</LandXML>\n"));
}

TEST_F(Document, BeginsAtDepthZeroWhateverTheOneBeforeLeft) {
  CLandXML::TagLandXML(false);
  CLandXML::TagAlignments(false);
  CLandXML::SetOutputFile("second.xml");
  EXPECT_FALSE(CLandXML::IsOpen());
  CLandXML::TagLandXML(false);
  EXPECT_EQ(CLandXML::Tabs(), 1);
  EXPECT_EQ(Disk().sPath, "second.xml");
  EXPECT_EQ(Disk().sBytes.find("<Alignments>"), std::string::npos);
}

TEST_F(Document, ThatCannotBeCreatedIsReportedAndGivenUp) {
  for (const bool bClose : {false, true}) {
    Platform.aBoxes.clear();
    Disk().nCreateFailure = Error::nPathNotFound;
    EXPECT_FALSE(CLandXML::TagLandXML(bClose));
    EXPECT_EQ(OnlyBox(), "Unhandler Error in CLandXML.OpenFile\r\nPath not found");
    EXPECT_FALSE(CLandXML::IsOpen());
    EXPECT_FALSE(CLandXML::WroteWhole());
  }
}

TEST_F(Document, TellsTheLineThatCouldNotBeWrittenAndGoesOn) {
  ASSERT_TRUE(CLandXML::OpenFile());
  Disk().nRoom = 20;
  EXPECT_TRUE(CLandXML::TagAlignments(false));
  EXPECT_FALSE(CLandXML::TagCrossSects(false, "\xC3\xB1"));
  EXPECT_EQ(OnlyBox(),
            "Unhandler Error in CLandXML.WriteLn\r\nDisk full\r\n"
            "Error to write: '\t<CrossSects name=\"\xC3\xB1\">' in file:road.xml");
  EXPECT_FALSE(CLandXML::WroteWhole());
  EXPECT_EQ(CLandXML::Tabs(), 2) << "the depth follows the calls, not the disk";
  EXPECT_TRUE(CLandXML::IsOpen());
  Disk().nRoom = 1000;
  EXPECT_TRUE(CLandXML::TagCrossSects(true, ""));
  EXPECT_EQ(Disk().sBytes, "<Alignments>\r\n\t</CrossSects>\r\n");
  EXPECT_FALSE(CLandXML::WroteWhole()) << "a line is missing for good";
}

TEST_F(Document, NeverHidesADiskThatIsFullOnlyWhenFlushed) {
  Disk().bBuffered = true;
  Disk().nRoom = 100;
  EXPECT_TRUE(CLandXML::TagLandXML(false));
  EXPECT_TRUE(CLandXML::WroteWhole());
  EXPECT_FALSE(CLandXML::TagLandXML(true));
  EXPECT_EQ(
      OnlyBox(),
      "Unhandler Error in CLandXML.WriteLn\r\nDisk full\r\nError to write: '</LandXML>' in file:road.xml");
  EXPECT_FALSE(CLandXML::WroteWhole());
}

TEST_F(Document, ThatFailsToCloseIsNotWholeButSaysNothing) {
  CLandXML::TagLandXML(false);
  CLandXML::TagLandXML(true);
  Disk().bCloseFails = true;
  CLandXML::CloseFile();
  EXPECT_EQ(OnlyBox(), "");
  EXPECT_FALSE(CLandXML::IsOpen());
  EXPECT_FALSE(CLandXML::WroteWhole());
}

TEST_F(Document, WithoutAnOpenFileTakesNoLine) {
  EXPECT_FALSE(CLandXML::WriteLn("lost"));
  EXPECT_EQ(OnlyBox(),
            "Unhandler Error in CLandXML.WriteLn\r\nObject variable or With block variable not set\r\n"
            "Error to write: 'lost' in file:road.xml");
}

}  // namespace
}  // namespace vrek::test
