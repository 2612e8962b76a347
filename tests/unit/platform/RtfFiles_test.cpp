// Documents of other programs, whole, cut off and damaged.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>
#include <string_view>
#include <vector>

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

std::vector<std::string> Split(std::string_view sText, std::string_view sSeparator) {
  std::vector<std::string> aParts;
  for (std::size_t nEnd; (nEnd = sText.find(sSeparator)) != std::string_view::npos;) {
    aParts.emplace_back(sText.substr(0, nEnd));
    sText.remove_prefix(nEnd + sSeparator.size());
  }
  aParts.emplace_back(sText);
  return aParts;
}

// The rows of a listing as the readers know them: seven fields or more, the first one a chainage.
std::vector<std::vector<std::string>> RowsOf(std::string_view sText) {
  std::vector<std::vector<std::string>> aRows;
  for (const std::string& sLine : Split(sText, "\r\n")) {
    auto aFields = Split(sLine, "\t");
    if (aFields.size() >= 7 && aFields[0].size() == 9 && aFields[0][1] == '+')
      aRows.push_back(std::move(aFields));
  }
  return aRows;
}

const std::vector<std::vector<std::string>> aListing = {
    {"0+000.000", "0.000", "1000.000", "2000.000", "50.0000", "INFINITO", ""},
    {"0+120.500", "120.500", "1085.206", "2085.206", "50.0000", "INFINITO", ""},
    {"0+180.500", "60.000", "1128.889", "2126.312", "56.3662", "300.000", "134.164"},
    {"0+310.250", "129.750", "1242.116", "2187.949", "83.9004", "300.000", ""},
    {"0+370.250", "60.000", "1301.236", "2197.834", "90.2666", "INFINITO", "134.164"},
    {"0+500.000", "129.750", "1429.474", "2217.562", "90.2666", "INFINITO", ""},
    {"0+560.000", "60.000", "1488.671", "2227.235", "85.4920", "-400.000", "154.919"},
    {"1+002.345", "442.345", "1867.432", "2440.118", "15.0901", "-400.000", ""}};

class HorizontalListing : public testing::TestWithParam<const char*> {};

TEST_P(HorizontalListing, IsReadAlikeFromEveryProgram) {
  auto aRows = RowsOf(TextOf(GetParam()));
  for (auto& aFields : aRows) {
    if (std::string_view(GetParam()).find("tabs") != std::string_view::npos) continue;
    EXPECT_EQ(aFields.size(), 8u) << "seven cells, a Tab behind each";
    EXPECT_EQ(aFields.back(), "");
    aFields.pop_back();
  }
  EXPECT_EQ(aRows, aListing);
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
  EXPECT_EQ(TextOf("striprtf_issue_38.rtf"), "cell 1\tcell 2\tcell 3\t\r\n");
  EXPECT_EQ(TextOf("striprtf_minimal_table.rtf"), "cell 1\tcell 2\tcell 3\t\r\n");
  EXPECT_EQ(TextOf("tika_testRTFTableCellSeparation.rtf"), "a\tb\t\r\nc\td\t\r\nä\të\t\r\nö\tü\t\r\n\r\n");
  EXPECT_EQ(TextOf("tika_testRTFTableCellSeparation2.rtf"), "Fax / Phone Station\tFax / Phone #\t");
  EXPECT_EQ(TextOf("tika_testRTFUnicodeUCNDoubling.rtf"), "0 年 abc 念");
  EXPECT_EQ(TextOf("tika_testRTFWindowsCodepage1250.rtf"), "zażółć gęślą jaźń\r\nZAŻÓŁĆ GĘŚLĄ JAŹŃ\r\n\r\n");
  EXPECT_EQ(TextOf("tika_testRTFInvalidUnicode.rtf"),
            "Unpaired hi \uFFFD here Unpaired lo \uFFFD here Mismatched pair \uFFFD\uFFFD here ");
  EXPECT_EQ(TextOf("tika_testBinControlWord.rtf"), "\t\t\t \r\n");
  EXPECT_EQ(TextOf("unstructured_fake-doc.rtf"),
            "My First Heading\r\nMy first paragraph.\r\nTable Example:\r\nColumn 1\tColumn 2\t\r\n"
            "Row 1, Cell 1\tRow 1, Cell 2\t\r\nRow 2, Cell 1\tRow 2, Cell 2\t\r\n");
}

TEST(RtfFiles, TablesOfOtherProgramsKeepTheirRows) {
  EXPECT_THAT(TextOf("gt_airquality.rtf"), HasSubstr("\r\n5\t5\t---\t—\t14.30\t56\t\r\n"));
  EXPECT_THAT(TextOf("gt_exibble.rtf"),
              HasSubstr("\r\n4.444e+02\tdurian\tfour\t2015-04-15\t16:50\t2018-04-04 15:55\t65100.000\t"
                        "row_4\tgrp_a\t\r\n"));
  EXPECT_THAT(
      TextOf("striprtf_pages_table_sample.rtf"),
      HasSubstr("Tabelle ist:\r\nHeader A\tHeader B\tHeader C\t\r\nA1\tB1\tC1\t\r\nA2\tB2\tC2\t\r\n"));
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
  for (std::size_t i = 0; i < sText.size();) {
    const auto nByte = static_cast<unsigned char>(sText[i]);
    const std::size_t nLength = nByte < 0x80   ? 1
                                : nByte < 0xC2 ? 0
                                : nByte < 0xE0 ? 2
                                : nByte < 0xF0 ? 3
                                : nByte < 0xF5 ? 4
                                               : 0;
    if (nLength == 0 || i + nLength > sText.size()) return false;
    for (std::size_t k = 1; k < nLength; ++k) {
      if ((static_cast<unsigned char>(sText[i + k]) & 0xC0) != 0x80) return false;
    }
    if (nByte == '\r' && !sText.substr(i).starts_with("\r\n")) return false;
    if (nByte == '\n' && (i == 0 || sText[i - 1] != '\r')) return false;
    i += nLength;
  }
  return true;
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

TEST(RtfFiles, AnyDamageIsRead) {
  constexpr int nRounds = 20'000;
  constexpr std::string_view sSharp = "\\{}'*-0 u\n\xE9\x93";
  std::mt19937 Random(20'240'611);
  const auto below = [&](std::size_t n) { return static_cast<std::size_t>(Random() % n); };
  for (int i = 0; i < nRounds; ++i) {
    std::string sRtf = sMixed;
    for (std::size_t n = 1 + below(8); n > 0; --n) {
      const std::size_t nAt = 5 + below(sRtf.size() - 5);
      switch (below(3)) {
        case 0:
          sRtf[nAt] = sSharp[below(sSharp.size())];
          break;
        case 1:
          sRtf.erase(nAt, 1 + below(4));
          break;
        default:
          sRtf.insert(nAt, sRtf.substr(below(sRtf.size()), below(40)));
          break;
      }
    }
    ASSERT_TRUE(IsSoundText(RtfToText(sRtf))) << "round " << i << ": " << sRtf;
  }
}

}  // namespace
}  // namespace vrek
