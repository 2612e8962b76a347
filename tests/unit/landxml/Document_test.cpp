#include "LandXmlTest.h"

namespace vrek::test {
namespace {

using Document = LandXmlTest;

TEST_F(Document, IsWholeOnceAllItsLinesWentOut) {
  Platform.Time.tm_hour = 15;
  EXPECT_TRUE(CLandXML::TagLandXML(false));
  EXPECT_TRUE(CLandXML::TagProject("\xC3\xB1 & ~", "Vrek \xCE\xA9"));
  EXPECT_TRUE(CLandXML::TagLandXML(true));
  EXPECT_TRUE(CLandXML::WroteWhole());
  EXPECT_EQ(CLandXML::Tabs(), 0);
  CLandXML::CloseFile();
  EXPECT_TRUE(CLandXML::WroteWhole());
  EXPECT_TRUE(Disk().bClosed);
  EXPECT_EQ(Disk().sPath, "road.xml");
  EXPECT_EQ(Between(Disk().sBytes, " time=\"", "\""), std::vector<std::string>{"15:04:05"});
  EXPECT_NE(Disk().sBytes.find("\t<Project name=\"\xC3\xB1 & ~\" desc=\"Vrek ?\" />\r\n"), std::string::npos);
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
  Disk().nCreateFailure = Error::nPathNotFound;
  for (const bool bClose : {false, true}) {
    Platform.aBoxes.clear();
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
  EXPECT_FALSE(CLandXML::WriteLn("a line\r\nand another that isn't taken either"));
  EXPECT_EQ(OnlyBox(), NotWritten("\t<CrossSects name=\"\xC3\xB1\">"));
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
  EXPECT_EQ(OnlyBox(), NotWritten("</LandXML>"));
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
  EXPECT_FALSE(CLandXML::WriteLn("lost\r\nas is this"));
  EXPECT_EQ(OnlyBox(), NotWritten("lost", "Object variable or With block variable not set"));
}

}  // namespace
}  // namespace vrek::test
