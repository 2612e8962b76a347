#include "platform/XmlDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <chrono>

#include "unit/platform/FileTest.h"

namespace vrek {
namespace {

constexpr int nRefused = 10003;

class XmlFile : public test::FileTest {
 protected:
  TXmlDocument Read(std::string_view sBytes, std::string_view sElementName = "Row") {
    return ReadXmlFile(WriteFile("file.xml", sBytes), sElementName, nRefused);
  }
  /// The reason of a refusal; "" when the file is read.
  std::string Reason(std::string_view sBytes) { return ReasonOf(WriteFile("file.xml", sBytes)); }
  std::string ReasonOf(const std::string& sPath) {
    try {
      ReadXmlFile(sPath, "Row", nRefused);
    } catch (const Failure& Error) {
      EXPECT_EQ(Error.nNumber, nRefused);
      return Error.sDescription;
    }
    return "";
  }
};

std::string Kinds(const TXmlDocument& Document) {
  std::string sKinds;
  for (const auto& Node : Document.aTopNodes) sKinds += "DCPTE"[static_cast<int>(Node.eKind)];
  return sKinds;
}

std::string Repeat(std::string_view sText, int nTimes) {
  std::string sOut;
  for (int n = 0; n < nTimes; ++n) sOut += sText;
  return sOut;
}

TEST_F(XmlFile, GivesTheTopNodesInOrder) {
  // D declaration, C comment, P processing instruction, T document type, E element.
  EXPECT_EQ(Kinds(Read("<r/>")), "E");
  EXPECT_EQ(Kinds(Read("<?xml version='1.0' standalone='yes'?><!--a--><r><!--in--><?in?></r><!--b-->")),
            "DCEC");
  EXPECT_EQ(Kinds(Read("<?p?><!--a--><!DOCTYPE r [<!--in--><?in?><!ENTITY e 'x'>]><!--b--><r/>")), "PCTCE");
  EXPECT_EQ(Read("<?xml version='1.0'?><!-- it's '2.0.1' --><r/>").aTopNodes[1].sText, " it's '2.0.1' ");
}

TEST_F(XmlFile, SelectsByTheNameAsWrittenBelowTheRoot) {
  const auto Document = Read(
      "<Row n='root'><Row n='1'><x><Row n='2'/></x></Row><p:Row xmlns:p='u' n='3'/><row/>"
      "<Row xmlns='other' n='4'/><Rows n='5'/></Row>");
  std::string sFound = Document.Root.Attribute("n");
  for (const auto& Element : Document.aElements) sFound += " " + Element.Attribute("n");
  EXPECT_EQ(sFound, "root 1 2 4");
}

TEST_F(XmlFile, NamesTheRootWithoutItsPrefix) {
  const auto Document = Read("<p:Cant xmlns:p='not an address' p:gauge=''/>");
  EXPECT_EQ(Document.sRootLocalName, "Cant");
  EXPECT_EQ(Document.Root.sName, "p:Cant");
  EXPECT_EQ(Document.Root.Attribute("p:gauge"), "");
  EXPECT_FALSE(Document.Root.HasAttribute("gauge"));
  EXPECT_EQ(FailureOf([&] { Document.Root.Attribute("gauge"); }), Error::nObjectNotSet);
}

TEST_F(XmlFile, ReadsReferencesInValues) {
  const auto Document = Read(
      "<!DOCTYPE r [<!ENTITY e 'in&#x20AC;'><!ENTITY rows '<Row a=\"2\"/>'><!ATTLIST Row d CDATA 'default'>]>"
      "<r><Row a='&lt;&amp;&#241;&e;'/>&rows;&rows;</r>");
  ASSERT_EQ(Document.aElements.size(), 3u);
  EXPECT_EQ(Document.aElements[0].Attribute("a"), "<&ñin€");
  EXPECT_EQ(Document.aElements[2].Attribute("a"), "2");
  EXPECT_EQ(Document.aElements[0].Attribute("d"), "default");
}

TEST_F(XmlFile, ReadsTheEncodingsOfItsDeclaration) {
  const std::string aCases[] = {"<r a='\xC3\xB1'/>",
                                "\xEF\xBB\xBF<r a='\xC3\xB1'/>",
                                "<?xml version='1.0' encoding='ISO-8859-1'?><r a='\xF1'/>",
                                "<?xml version='1.0' encoding='IBM850'?><r a='\xA4'/>",
                                {"\xFF\xFE<\0r\0 \0a\0=\0'\0\xF1\0'\0/\0>\0", 22}};
  for (const auto& sBytes : aCases) EXPECT_EQ(Read(sBytes).Root.Attribute("a"), "ñ") << sBytes;
}

TEST_F(XmlFile, RefusesWhatIsNotWellFormedWithReasonAndPlace) {
  EXPECT_EQ(Reason("<r>\n <a></b>\n</r>"),
            "Opening and ending tag mismatch: a line 2 and b (line 2, column 9)");
  EXPECT_EQ(Reason(""), "Document is empty (line 1, column 1)");
  EXPECT_THAT(Reason("<r a=1/>"), ::testing::HasSubstr("(line 1, column 6)"));
  EXPECT_THAT(Reason("<p:r/>"), ::testing::HasSubstr("Namespace prefix p on r is not defined"));
  EXPECT_THAT(Reason("<r p:a=''/>"), ::testing::HasSubstr("Namespace prefix p for a on r is not defined"));
  for (const char* sBytes : {"text", "<r>", "<r/><r/>", "<r a='1' a='2'/>", "<r>&nobody;</r>", "<r>\xF1</r>",
                             "<?xml version='1.0' encoding='nonsense'?><r/>",
                             "<?xml version='1.0' encoding='ascii'?><r a='\xF1'/>"})
    EXPECT_NE(Reason(sBytes), "") << sBytes;
  EXPECT_NE(Reason(std::string("<r>\0</r>", 8)), "");
}

TEST_F(XmlFile, RefusesAFileThatCanNotBeOpened) {
  EXPECT_EQ(ReasonOf((Directory / "none.xml").string()), "File not found");
  EXPECT_EQ(ReasonOf(Directory.string()), "Path/File access error");
  EXPECT_EQ(ReasonOf(""), "File not found");
  EXPECT_EQ(ReasonOf(std::string("a\0b", 3)), "Path/File access error");
}

TEST_F(XmlFile, NestsTo256Levels) {
  EXPECT_EQ(Reason(Repeat("<a>", 256) + Repeat("</a>", 256)), "");
  EXPECT_EQ(Reason(Repeat("<a>", 257) + Repeat("</a>", 257)),
            "Elements nested deeper than 256 levels (line 1, column 771)");
  EXPECT_NE(Reason(Repeat("<a>", 100000)), "");
  EXPECT_EQ(Reason("<a>" + Repeat("<b/>", 1000) + "</a>"), "");
}

TEST_F(XmlFile, OpensNothingButTheFile) {
  const auto sSecret = WriteFile("secret.txt", "<Row a='secret'/>");
  const auto sDtd = WriteFile("x.dtd", "<!ATTLIST r a CDATA 'secret'><!ENTITY e 'secret'>");
  const std::string aCases[] = {
      "<!DOCTYPE r [<!ENTITY x SYSTEM 'file://" + sSecret + "'>]><r>&x;</r>",
      "<!DOCTYPE r [<!ENTITY x SYSTEM '" + sSecret + "'>]><r>&x;</r>",
      "<!DOCTYPE r [<!ENTITY x SYSTEM 'http://127.0.0.1:9/x'>]><r>&x;</r>",
      "<!DOCTYPE r SYSTEM '" + sDtd + "'><r/>",
      "<!DOCTYPE r PUBLIC 'p' 'http://127.0.0.1:9/x.dtd'><r/>",
      "<!DOCTYPE r [<!ENTITY % p SYSTEM '" + sDtd + "'>%p;]><r/>",
  };
  for (const auto& sBytes : aCases) {
    const auto Document = Read(sBytes);
    EXPECT_TRUE(Document.aElements.empty()) << sBytes;
    EXPECT_FALSE(Document.Root.HasAttribute("a")) << sBytes;
  }
  EXPECT_NE(Reason("<!DOCTYPE r [<!ENTITY x SYSTEM '" + sSecret + "'>]><r a='&x;'/>"), "");
}

std::string Bomb(const std::string& sUse) {
  std::string sText = "<!DOCTYPE r [<!ENTITY e0 '0123456789'>";
  for (int n = 1; n < 12; ++n) {
    const std::string sInner = "&e" + std::to_string(n - 1) + ";";
    sText += "<!ENTITY e" + std::to_string(n) + " '" + Repeat(sInner, 10) + "'>";
  }
  return sText + "]>" + sUse;
}

TEST_F(XmlFile, RefusesWhatExpandsBeyondBoundsSoon) {
  const std::string aCases[] = {
      Bomb("<r a='&e11;'/>"),
      Bomb("<r>&e11;</r>"),
      "<!DOCTYPE r [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><r>&a;</r>",
      "<!DOCTYPE r [<!ENTITY e '" + Repeat("x", 100000) + "'>]><r>" + Repeat("<Row a='&e;'/>", 20000) +
          "</r>",
      "<!DOCTYPE r [<!ATTLIST Row d CDATA '" + Repeat("x", 100000) + "'>]><r>" + Repeat("<Row/>", 100000) +
          "</r>",
      "<!DOCTYPE r [<!ENTITY e '" + Repeat("<Row/>", 20000) + "'>]><r>" + Repeat("&e;", 20000) + "</r>",
      "<!DOCTYPE r [<!ENTITY e '" + Repeat("x", 100000) + "'>]><r>" + Repeat("&e;", 200000) + "</r>",
      "<!DOCTYPE r [" + Repeat("<!ENTITY e 'x'>", 100000) + "]><r/>",
  };
  for (const auto& sBytes : aCases) {
    const auto Start = std::chrono::steady_clock::now();
    EXPECT_NE(Reason(sBytes), "") << sBytes.substr(0, 60);
    EXPECT_LT(std::chrono::steady_clock::now() - Start, std::chrono::seconds(5)) << sBytes.substr(0, 60);
  }
}

long PeakKilobytes() {
  rusage Usage{};
  getrusage(RUSAGE_SELF, &Usage);
  return Usage.ru_maxrss;
}

TEST_F(XmlFile, RefusesHugeMarkupInBoundedMemory) {
  const std::string sMegabytes(40 << 20, 'x');
  const std::string aFiles[] = {WriteFile("value.xml", "<r a='" + sMegabytes + "'/>"),
                                WriteFile("comment.xml", "<r><!--" + sMegabytes + "--></r>"),
                                WriteFile("open.xml", "<r><" + sMegabytes)};
  const long nBefore = PeakKilobytes();
  for (const auto& sPath : aFiles) {
    EXPECT_THAT(ReasonOf(sPath), ::testing::HasSubstr("longer than 1048576 bytes (line 1, column ")) << sPath;
  }
  EXPECT_LT(PeakKilobytes() - nBefore, 20 * 1024);
}

TEST_F(XmlFile, ReadsALargeFileInBoundedMemory) {
  const auto sPath =
      WriteFile("large.xml", "<r><t>" + Repeat("<u v='1'>text</u>", 1500000) + "</t><Row/></r>");
  const long nBefore = PeakKilobytes();
  EXPECT_EQ(ReadXmlFile(sPath, "Row", nRefused).aElements.size(), 1u);
  EXPECT_LT(PeakKilobytes() - nBefore, 20 * 1024);
}

TEST_F(XmlFile, LeavesStandardErrorAlone) {
  ::testing::internal::CaptureStderr();
  Reason("<r>&nobody;<a></b>");
  Reason("<?xml version='1.0' encoding='UTF-16'?><r/>");
  Reason("<?xml version='1.0' encoding='nonsense'?><r/>");
  Reason("<?xml version='1.0' encoding='ascii'?><r a='\xF1'/>");
  Reason("<!DOCTYPE r SYSTEM 'http://127.0.0.1:9/x.dtd'><r xml:space='odd' xmlns:p='rel'>&x;</r>");
  ReasonOf((Directory / "none.xml").string());
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST(XmlContent, IsTextAndElementsThatAreClosed) {
  using namespace std::string_literals;
  for (const auto& sBytes :
       {""s, "a"s, "<p/>"s, "  <p a='\xc3\xb1'>&amp;<!--x--></p> "s, Repeat("<p/>\n", 300'000)}) {
    EXPECT_TRUE(IsXmlContent(sBytes)) << sBytes.substr(0, 40);
  }
  for (const auto& sBytes :
       {"<p>"s, "</p>"s, "<p a='1'b='2'/>"s, "<p a='\xf1'/>"s, "<p>\0</p>"s, "\xff\xfe"s, "&e;"s,
        "<?xml version='1.0'?><p/>"s, "<q:p/>"s, Repeat("<p>", 300) + Repeat("</p>", 300)}) {
    EXPECT_FALSE(IsXmlContent(sBytes)) << sBytes.substr(0, 40);
  }
}

}  // namespace
}  // namespace vrek
