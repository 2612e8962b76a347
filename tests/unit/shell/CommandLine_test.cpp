#include "shell/CommandLine.h"

#include "support/TestApp.h"

namespace vrek {
namespace {

class CommandLine : public test::AppTest {
 protected:
  CommandLine() { InitFormats(); }
};

TEST_F(CommandLine, TakesTheOptionsOfAHost) {
  // clang-format off
  const struct { const char *pLine, *pFile, *pJob; } aCases[] = {
      {R"(-o "C:\t\road.xml" -n "Road1")",        R"(C:\t\road.xml)", "Road1"},
      {R"(-n "Road1" -x  -o "r.xml")",            "r.xml",            "Road1"},
      {R"(-o C:\t\road.xml -n Road1)",            "",                 ""},
      {R"(-o "C:\my files\road.xml")",            "",                 ""},
      {R"(-o "a.xml" -o "b.xml")",                "b.xml",            ""},
      {R"(-O "a.xml" -N "Road1")",                "",                 ""},
      {R"(-o -n "Road1")",                        "",                 "Road1"},
      {R"(-o "" -n "x"y"z")",                     "",                 "x"},
      {R"(-o  "a.xml")",                          "",                 ""}};
  // clang-format on
  for (const auto& Case : aCases) {
    Model.XmlFileToExport = Model.ConversionInfo.sJobName = "";
    EXPECT_TRUE(ReadLineCommand(Case.pLine)) << Case.pLine;
    EXPECT_EQ(Model.XmlFileToExport, Case.pFile) << Case.pLine;
    EXPECT_EQ(Model.ConversionInfo.sJobName, Case.pJob) << Case.pLine;
    EXPECT_FALSE(Model.DebugMode) << Case.pLine;
  }
  EXPECT_TRUE(Platform.aBoxes.empty());
}

TEST_F(CommandLine, AsksForTheOutputFileOnAStandAloneRun) {
  EXPECT_FALSE(ReadLineCommand("")) << "dismissed";
  Platform.sSaveAnswer = "/home/t/obra.xml";
  for (const char* pLine : {"", "-reg", "whatever"}) {
    Model.DebugMode = false;
    EXPECT_TRUE(ReadLineCommand(pLine)) << pLine;
    EXPECT_TRUE(Model.DebugMode);
    EXPECT_EQ(Model.XmlFileToExport, "/home/t/obra.xml");
  }
  EXPECT_EQ(Platform.sSaveFilter, "File xml (*.XML)|*.XML|");
  EXPECT_EQ(Platform.sSaveName, "out_v2.3.0.xml");
  EXPECT_TRUE(Platform.aBoxes.empty());
}

TEST_F(CommandLine, DescribesTheConverterToAHost) {
  // clang-format off
  const std::pair<int, std::string> aWords[] = {
      {4, "Rail"}, {3, "Road,Tunnel"}, {31, "Road,Tunnel,Rail,PLA,DTM"}, {0, ""}};
  // clang-format on
  const std::string sPath =
      WriteFile("info.txt", "something longer than the four lines that replace it, for sure, by far");
  for (const auto& [nMask, sWords] : aWords) {
    InitFormats(nMask);
    EXPECT_FALSE(ReadLineCommand("-o \"" + sPath + "\" -reg"));
    EXPECT_EQ(ReadFile(sPath),
              "[Info]\r\nName=Vrek\r\nDescription=Vrek Converter\r\nFormat=" + sWords + "\r\n");
  }
  EXPECT_FALSE(Model.DebugMode);
  EXPECT_TRUE(Platform.aBoxes.empty());
}

TEST_F(CommandLine, ReportsWhatItCanNotDo) {
  EXPECT_FALSE(ReadLineCommand("-n \"Road1\" -o"));
  ASSERT_EQ(Platform.aBoxes.size(), 1u);
  EXPECT_EQ(Platform.aBoxes[0].sText, "Unhandler Error in ReadLineCommand\r\nSubscript out of range");
  EXPECT_EQ(Platform.aBoxes[0].eIcon, EIcon::eCritical);

  EXPECT_FALSE(ReadLineCommand("-reg -x"));  // no file to write to
  ASSERT_EQ(Platform.aBoxes.size(), 2u);
  EXPECT_TRUE(Platform.aBoxes[1].sText.starts_with("Unhandler Error in ReadLineCommand\r\n"));
}

TEST_F(CommandLine, TakesTheTextBetweenTwoMarks) {
  EXPECT_EQ(GetBetween("a[bc]d]", "[", "]", 1), "bc");
  EXPECT_EQ(GetBetween("[a][b]", "[", "]", 2), "b");
  EXPECT_EQ(GetBetween("[]", "[", "]", 1), "");
  EXPECT_EQ(GetBetween("[a", "[", "]", 1), "");
  EXPECT_EQ(GetBetween("abc]", "[", "]", 1), "abc");  // a missing opening mark counts as found at 0
  EXPECT_EQ(GetBetween("abc", "[", "]", 9), "");
  EXPECT_EQ(GetBetween("<<a>>", "<<", ">>", 1), "a");
}

TEST_F(CommandLine, RefusesPositionsBeyond16Bits) {
  const auto NumberOf = [](std::size_t nLength) {
    try {
      GetBetween("[" + std::string(nLength, 'x') + "]", "[", "]", 1);
    } catch (const Failure& Caught) {
      return Caught.nNumber;
    }
    return 0;
  };
  EXPECT_EQ(NumberOf(32765), 0);
  EXPECT_EQ(NumberOf(32766), Error::nOverflow);
}

}  // namespace
}  // namespace vrek
