// Documents of other programs, whole and cut off.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <filesystem>
#include <sstream>

#include "platform/RtfText.h"
#include "platform/TextFile.h"

namespace vrek {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::filesystem::path Folder = VREK_TEST_DATA "/outside/rtf";

std::string TextOf(const std::string& sFile) {
  return ReadRtfFile((Folder / sFile).string());
}

// The rows of a listing as the readers know them: the first field is a chainage.
std::string RowsOf(const std::string& sText, std::string_view sEnd) {
  std::string sRows;
  std::istringstream Lines(sText);
  for (std::string sLine; std::getline(Lines, sLine, '\n');) {
    if (sLine.size() < 10 || sLine[1] != '+' || sLine[9] != '\t') continue;
    EXPECT_TRUE(sLine.ends_with(sEnd)) << sLine;
    sRows += sLine.substr(0, sLine.size() - sEnd.size()) + "\n";
  }
  return sRows;
}

class HorizontalListing : public testing::TestWithParam<const char*> {};

TEST_P(HorizontalListing, IsReadAlikeFromEveryProgram) {
  const bool bTable = std::string_view(GetParam()).find("tabs") == std::string_view::npos;
  EXPECT_EQ(RowsOf(TextOf(GetParam()), bTable ? "\t\r" : "\r"),  // a Tab behind each of the seven cells
            "0+000.000\t0.000\t1000.000\t2000.000\t50.0000\tINFINITO\t\n"
            "0+120.500\t120.500\t1085.206\t2085.206\t50.0000\tINFINITO\t\n"
            "0+180.500\t60.000\t1128.889\t2126.312\t56.3662\t300.000\t134.164\n"
            "0+310.250\t129.750\t1242.116\t2187.949\t83.9004\t300.000\t\n"
            "0+370.250\t60.000\t1301.236\t2197.834\t90.2666\tINFINITO\t134.164\n"
            "0+500.000\t129.750\t1429.474\t2217.562\t90.2666\tINFINITO\t\n"
            "0+560.000\t60.000\t1488.671\t2227.235\t85.4920\t-400.000\t154.919\n"
            "1+002.345\t442.345\t1867.432\t2440.118\t15.0901\t-400.000\t\n");
}

INSTANTIATE_TEST_SUITE_P(, HorizontalListing,
                         testing::Values("lo_docx_horizontal.rtf", "lo_html_horizontal.rtf",
                                         "lo_html_horizontal_merged_header.rtf", "lo_odt_horizontal.rtf",
                                         "lo_tabs_horizontal.rtf", "lo_from_pandoc_rtf.rtf",
                                         "pandoc_html_horizontal.rtf", "pandoc_md_horizontal.rtf",
                                         "pandoc_merged_header.rtf"),
                         [](const auto& Info) {
                           const std::string_view sName = Info.param;
                           return std::string(sName.substr(0, sName.find('.')));
                         });

TEST(RtfFiles, VerticalListingsAgree) {
  for (const char* sFile : {"lo_docx_vertical.rtf", "lo_html_vertical.rtf", "lo_odt_vertical.rtf",
                            "pandoc_html_vertical.rtf", "pandoc_md_vertical.rtf"}) {
    EXPECT_THAT(TextOf(sFile), HasSubstr("P.K.\tCota\tPendiente (%)\tL\tKv\tTangente\tFlecha\t\r\n"
                                         "0+000.000\t100.000\t1.2500\t\t\t\t\t\r\n"
                                         "0+200.000\t102.500\t1.2500\t80.000\t-3200.000\t40.000\t0.250\t\r\n"
                                         "0+620.000\t97.250\t-1.2500\t120.000\t4000.000\t60.000\t0.450\t\r\n"
                                         "1+002.345\t104.419\t1.7500\t\t\t\t\t\r\n"))
        << sFile;
  }
}

TEST(RtfFiles, AFragmentWithoutHeadStaysAsItIs) {
  EXPECT_TRUE(TextOf("pandoc_fragment_horizontal.rtf").starts_with("{\\pard \\ql \\f0 \\sa180"));
}

TEST(RtfFiles, SmallDocumentsAreReadWhole) {
  EXPECT_EQ(TextOf("striprtf_minimal_table.rtf"), "cell 1\tcell 2\tcell 3\t\r\n");
  EXPECT_EQ(TextOf("tika_testRTFTableCellSeparation.rtf"), "a\tb\t\r\nc\td\t\r\nä\të\t\r\nö\tü\t\r\n\r\n");
  EXPECT_EQ(TextOf("tika_testRTFUnicodeUCNDoubling.rtf"), "0 年 abc 念");
  EXPECT_EQ(TextOf("tika_testRTFWindowsCodepage1250.rtf"), "zażółć gęślą jaźń\r\nZAŻÓŁĆ GĘŚLĄ JAŹŃ\r\n\r\n");
  EXPECT_EQ(TextOf("tika_testRTFInvalidUnicode.rtf"),
            "Unpaired hi \uFFFD here Unpaired lo \uFFFD here Mismatched pair \uFFFD\uFFFD here ");
  EXPECT_EQ(TextOf("tika_testBinControlWord.rtf"), "\t\t\t \r\n");
}

TEST(RtfFiles, TablesOfOtherProgramsKeepTheirRows) {
  EXPECT_THAT(TextOf("gt_airquality.rtf"), HasSubstr("\r\n5\t5\t---\t—\t14.30\t56\t\r\n"));
  EXPECT_THAT(TextOf("gt_exibble.rtf"),
              HasSubstr("\r\n4.444e+02\tdurian\tfour\t2015-04-15\t16:50\t2018-04-04 15:55\t65100.000\t"
                        "row_4\tgrp_a\t\r\n"));
  EXPECT_THAT(TextOf("striprtf_nested_table.rtf"),
              HasSubstr("Coronararterie\tCalcium-Score\t\r\nRCA\t0 \t\r\nLM\t0  \t\r\nLAD/RIVA\t0  \t\r\n"));
  EXPECT_THAT(TextOf("rtfparserkit_testTextConversion.rtf"),
              HasSubstr("Heading 1\tHeading 2\tHeading 3\t\r\nAaa\tBbb\tCcc\t\r\nDdd\tEee\tFff\t\r\n"));
}

TEST(RtfFiles, ShowTheTextOfThePageAlone) {
  const std::string sText = TextOf("tika_testRTFVarious.rtf");
  EXPECT_THAT(sText, HasSubstr("Footnote appears here\r\n"));
  EXPECT_THAT(sText, HasSubstr("Here is a list:\r\nBullet 1\r\nBullet 2\r\nBullet 3\r\n"));
  EXPECT_THAT(sText, HasSubstr("\r\nThis is a hyperlink\r\n"));
  EXPECT_THAT(sText, HasSubstr("Row 1 Col 1\tRow 1 Col 2\tRow 1 Col 3\t\r\nRow 2 Col 1\t"));
  EXPECT_THAT(sText, HasSubstr("ゾルゲと尾崎、淡々と最期\r\n（ＧＨＱ）\r\n"));
  EXPECT_THAT(sText, HasSubstr("\r\n𐌲𐌿𐍄𐌹𐍃𐌺\r\n"));
  for (const char* sAway : {"This is a footnote", "footer text", "header text", "text box", "HYPERLINK"}) {
    EXPECT_THAT(sText, Not(HasSubstr(sAway)));
  }
  EXPECT_TRUE(TextOf("tika_testRTFJapanese.rtf").starts_with("ゾルゲと尾崎、淡々と最期　\r\n"));
}

// What holds for the text of any bytes: UTF-8, and no CR without LF or LF without CR.
bool IsSoundText(std::string_view sText) {
  int nToCome = 0;  // bytes of the character in hand
  char cBefore = 0;
  for (const char c : sText) {
    const int nOnes = std::countl_one(static_cast<unsigned char>(c));
    if (nOnes > 4 || (nOnes == 1) != (nToCome > 0) || (c == '\n') != (cBefore == '\r')) return false;
    nToCome = nOnes == 1 ? nToCome - 1 : std::max(nOnes - 1, 0);
    cBefore = c;
  }
  return nToCome == 0 && cBefore != '\r';
}

// A document with something of everything.
const std::string sMixed =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fcharset0 A;}{\\f1\\fcharset128 B;}{\\f2\\cpg65001 "
    "C;}}"
    "{\\*\\generator x;}{\\info{\\title t}}\\uc1\\pard "
    "a\\'e9\\u-10187?\\u-8960?\\tab{\\f1\\'93\\'fa\\'83\\\\}\\par\r\n"
    "{\\upr{x}{\\*\\ud{\\u26085?}}}\\trowd\\cellx1\\pard\\intbl{b\\par}\\cell{\\pict\\bin3 "
    "}}}ff}c\\cell\\row\\page "
    "{\\f2\xC3\xA9\\'e2\\'82\\'ac}\\~\\_\\{\\\n{\\field{\\*\\fldinst P}{\\fldrslt 7}}\\u233\\bin2 "
    "}}z\\sect\\u55357 }";

TEST(RtfFiles, AnyTruncationIsRead) {
  const std::string sTable = ReadWholeFile((Folder / "tika_testRTFTableCellSeparation.rtf").string());
  for (const std::string& sRtf : {sMixed, sTable}) {
    for (std::size_t n = 0; n <= sRtf.size(); ++n) {
      ASSERT_TRUE(IsSoundText(RtfToText(std::string_view(sRtf).substr(0, n)))) << "cut off at " << n;
    }
  }
}

}  // namespace
}  // namespace vrek
