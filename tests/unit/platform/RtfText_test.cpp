// Small documents and the text they come out as. In the expected texts → stands for Tab and ¶ for CR LF.
#include "platform/RtfText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace vrek {
namespace {

std::string Replaced(std::string sText, std::string_view sFrom, std::string_view sTo) {
  for (std::size_t n = 0; (n = sText.find(sFrom, n)) != std::string::npos; n += sTo.size()) {
    sText.replace(n, sFrom.size(), sTo);
  }
  return sText;
}

std::string Shown(std::string_view sText) {
  return Replaced(Replaced(std::string(sText), "\t", "→"), "\r\n", "¶");
}

struct TCase {
  const char* sLabel;
  std::string_view sBody;  // behind "{\rtf1", up to and with the closing brace
  const char* sText;
  friend void PrintTo(const TCase& Case, std::ostream* pOut) { *pOut << Case.sLabel; }
};

class RtfBody : public testing::TestWithParam<TCase> {};

TEST_P(RtfBody, ComesOutAsText) {
  EXPECT_EQ(Shown(RtfToText("{\\rtf1" + std::string(GetParam().sBody))), GetParam().sText);
}

using namespace std::string_view_literals;

// clang-format off
constexpr TCase aPlainCases[] = {
    {"paragraphs",       R"(\pard one\par two\line three\sect four})",       "one¶two¶three¶four"},
    {"source line ends", "\\pard o\r\nn\ne\\par\r\n two}",                   "one¶ two"},
    {"escaped line end", "\\pard one\\\r\ntwo\\\nthree\\\rfour}",            "one¶two¶three¶four"},
    {"tabs",             "\\pard a\\tab b\tc\\\td}",                         "a→b→c→d"},
    {"symbols",          R"(\pard \{a\}\\b\~c\_d\-e\|f})",                   "{a}\\b\u00A0c-def"},
    {"named characters", R"(\pard\emdash\endash \lquote x\rquote\bullet y})", "—–‘x’•y"},
    {"delimiters",       R"(\pard\b1 x\b0  y\fs-20z\i-w})",                  "x yz-w"},
    {"pages",            R"(\pard a\page b\par\page c\column\page d})",      "a¶b¶c¶d"},
    {"unknown words",    R"(\pard\nosuchword12 a\averyveryveryveryverylongwordindeed b})", "ab"},
    {"huge parameter",   R"(\pard\fs99999999999999999999 a\uc-5\u233 b})",   "aéb"},
    {"raw data",         "\\pard a\\bin5 }}\\{{b{\\pict\\bin3 }}}ff}c}",     "abc"},
    {"behind the end",   "\\pard a}\n\0 b{c}"sv,                             "a"}};

constexpr TCase aDestinationCases[] = {
    {"head",          R"({\fonttbl{\f0\fnil Arial;}}{\colortbl;\red0;}{\stylesheet{\s0 Normal;}}{\info{\title T}}a})", "a"},
    {"starred",       R"(a{\*\nobody knows {\b this}\par}b{\*\par c}d})",     "abd"},
    {"header",        R"({\header\pard Page {\field{\*\fldinst PAGE}{\fldrslt 1}}\par}{\footerr x}a})", "a"},
    {"field",         R"(a{\field{\fldinst PAGE}{\fldrslt{\b 7}}}b})",        "a7b"},
    {"hidden",        R"(a{\v hidden}b)",                                     "ahiddenb"},
    {"bullets",       R"({\listtext\'b7\tab}a\par{\pntext\'b7\tab}b\par})",   "a¶b¶"},
    {"footnote",      R"(\pard 120{\super\chftn{\footnote\pard a note\par}}.5)",    "120.5"},
    {"object result", R"({\object{\*\objdata 00ff}{\result 5}}{\pict 00ff})", "5"},
    {"both texts",    R"({\upr{Espa?a}{\*\ud{Espa\u241 ?a}}}b})",             "Españab"},
    {"both, in info", R"({\info{\upr{\title a}{\*\ud{\title b}}}}c})",        "c"},
    {"star inside",   R"(a\*\cs10 b\info c})",                                "abc"}};

constexpr TCase aTableCases[] = {
    {"row",               R"(\trowd\cellx1\cellx2\pard\intbl a\cell b\cell\row})",           "a→b→¶"},
    {"empty cells",       R"(\trowd\pard\intbl\cell\cell b\cell\cell\row})",                 "→→b→→¶"},
    {"rows share a head", R"({\trowd\pard\intbl a\cell\row\pard\intbl b\cell\row})",         "a→¶b→¶"},
    {"head behind",       R"(\pard\intbl{a\cell b\cell}\pard\intbl{\trowd\cellx1\row}\pard c\par})", "a→b→¶c¶"},
    {"closed paragraphs", R"(\trowd{\pard\intbl a\par}\cell{\pard\intbl b\par\par}\cell\row})", "a→b→¶"},
    {"closed, no \\intbl", R"(\trowd\pard a\par\cell\row})",                                 "a→¶"},
    {"escaped line end",  "\\trowd\\pard\\intbl a\\\n\\cell\\row}",                          "a→¶"},
    {"two paragraphs",    R"(\trowd\pard\intbl a\par b\par\cell\row})",                      "a¶b→¶"},
    {"empty paragraph between rows", R"(\trowd\pard\intbl\cell\row\par\trowd\pard\intbl\cell b\cell\row})", "→¶¶→b→¶"},
    {"paragraph before an empty cell", R"(\pard a\par\pard\intbl\cell b\cell\row})",         "a¶→b→¶"},
    {"last row unclosed", R"(\trowd\pard\intbl a\cell b\par})",                              "a→b¶"},
    {"no table at all",   R"(\pard a\cell b\cell})",                                         "a→b→"},
    {"nested", R"(\trowd\pard\intbl\itap2 a\nestcell{\nonesttables\par}b\par\nestcell{\nonesttables\par}{\*\nesttableprops\trowd\cellx1\nestrow}{\nonesttables\par}\pard\intbl c\cell\row})", "a→b→¶c→¶"},
    {"merged",            R"(\trowd\clmgf\cellx1\clmrg\cellx2\pard\intbl a\cell\cell\row})", "a→→¶"}};

constexpr TCase aCodePageCases[] = {
    {"no page",      R"(\ansi\'e9\'80\'81)",                                               "é€\u0081"},
    {"raw bytes",    "\\ansi\xE9\x93}",                                                    "é“"},
    {"document",     R"(\ansicpg1250 \'b3 \ansicpg1251 \'e9 \ansicpg4711 \'e9})",          "ł й й"},
    {"old systems",  R"(\pc\'82 \pca\'82 \mac\'8e})",                                      "é é é"},
    {"font",         R"(\ansicpg1252{\fonttbl{\f0\fcharset0 A;}{\f1\fcharset204 B;}}\f1\'e9{\f0\'e9}\'e9\plain\'e9})", "йéйé"},
    {"flat table",   R"(\ansi{\fonttbl\f0\fcharset238 A;\f7\fcharset161 B;}\f0\'b3\f7\'e1)", "łα"},
    {"default font", R"(\ansi\deff3{\fonttbl{\f3\fcharset238{\*\falt \'b3}A;}}\'b3)",      "ł"},
    {"page of font", R"(\ansi{\fonttbl{\f0\fcharset0\cpg866 A;}}\f0\'a9)",                 "й"},
    {"Shift-JIS",    R"(\ansi{\fonttbl{\f0\fcharset128 A;}}\f0\'93\'fa\'83\\\'83A\'b1\\x})", "日ソアｱ\\x"},
    {"GBK",          R"(\ansicpg936 \'d6\'d0)",                                            "中"},
    {"Korean",       R"(\ansicpg949 \'c7\'d1)",                                            "한"},
    {"Big5",         "\\ansicpg950 \xA4\xA4",                                              "中"},
    {"UTF-8",        "\\ansicpg65001 \xC3\xA9\xE2\x82\xAC\xF0\x9F\x9A\x84}",               "é€🚄"},
    {"half of two",  R"(\ansicpg932 \'93\par\'93 1\'93{\b x}\'93})",                       "\uFFFD¶\uFFFD 1\uFFFDx\uFFFD"},
    {"half at the end", R"(\ansicpg932 a\'93)",                                           "a\uFFFD"},
    {"no digits",    R"(\ansi a\'b\'zc\'})",                                               "azc"}};

constexpr TCase aUnicodeCases[] = {
    {"stand-in",            R"(a\u233?b\u233\'e9c\u233{?}d)",         "aébécé?d"},
    {"several",             R"(\uc2 \u26085\'93\'fax\uc0 \u26085 y)", "日x日y"},
    {"\\uc ends with group", R"({\uc0\u233 a}\u233?b)",               "éaéb"},
    {"word as stand-in",    R"(\u8212\emdash a\u8212\bin2 }}b\u8212\{c)", "—a—b—c"},
    {"group ends it",       R"(\uc3{\u233 ?}abc\u233 ?{?}abc)",       "éabcé?abc"},
    {"negative",            R"(\u-257?)",                             "\uFEFF"},
    {"surrogates",          R"(\u-10179?\u-8704?\u55357 ?\u56960 ?)", "😀🚀"},
    {"half a pair",         R"(\uc0\u-10187 a\u-8960 b\u-10187\par\u-10187)", "\uFFFDa\uFFFDb\uFFFD¶\uFFFD"},
    {"beyond 16 bits",      R"(\u128512?\u1114112?\u-99999?)",        "😀\uFFFD\uFFFD"},
    {"control characters",  R"(a\u9?b\'09c\u13?d\u10?e\'0d\'0af)",    "a→b→c¶de¶f"},
    {"no number",           R"(\u?a)",                                "?a"}};
// clang-format on

std::string LabelOf(const testing::TestParamInfo<TCase>& Info) {
  std::string sName = Info.param.sLabel;
  std::erase_if(sName, [](unsigned char c) { return !std::isalnum(c); });
  return sName;
}

INSTANTIATE_TEST_SUITE_P(Plain, RtfBody, testing::ValuesIn(aPlainCases), LabelOf);
INSTANTIATE_TEST_SUITE_P(Destinations, RtfBody, testing::ValuesIn(aDestinationCases), LabelOf);
INSTANTIATE_TEST_SUITE_P(Tables, RtfBody, testing::ValuesIn(aTableCases), LabelOf);
INSTANTIATE_TEST_SUITE_P(CodePages, RtfBody, testing::ValuesIn(aCodePageCases), LabelOf);
INSTANTIATE_TEST_SUITE_P(Unicode, RtfBody, testing::ValuesIn(aUnicodeCases), LabelOf);

TEST(RtfText, TakesWhatHasNoRtfHeadForPlainText) {
  EXPECT_EQ(Shown(RtfToText("Estaci\xF3n\t1\r\n\x80\n\r{\\par}")), "Estación→1¶€¶¶{\\par}");
  EXPECT_EQ(RtfToText(" {\\rtf1 a}"), " {\\rtf1 a}");
  EXPECT_EQ(RtfToText(""), "");
}

TEST(RtfText, SurvivesGroupsOfAnyDepth) {
  constexpr std::size_t nDepth = 3'000'000;
  const std::string sOpen(nDepth, '{');
  const std::string sClose(nDepth, '}');
  EXPECT_EQ(RtfToText("{\\rtf1 a" + sOpen), "a");
  EXPECT_EQ(RtfToText("{\\rtf1 a" + sOpen + "b" + sClose + "c}d"), "abc");
  EXPECT_EQ(RtfToText("{\\rtf1 a{\\info" + sOpen + "b" + sClose + "}c}"), "ac");
}

TEST(RtfText, KnowsADocumentThatWasCutOff) {
  const std::pair<const char*, bool> aCases[] = {
      {R"({\rtf1 a{b}c})", true},
      {R"({\rtf1 a} behind {)", true},
      {R"({\rtf1 a{b}c)", false},
      {R"({\rtf1 a\})", false},
      {R"({\rtf1 a\'7d)", false},
      {R"({\rtf1 a\{})", true},
      {R"({\rtf1{\bin3 }}}a}b})", true},
      {R"({\rtf1{\bin3 }}}a}b)", false},
      {R"({\rtf1{\bin99 a}})", false},
      {R"({\rtf1{\*\x a)", false},
      {"", false},
  };
  for (const auto& [sBytes, bWhole] : aCases) EXPECT_EQ(IsWholeRtf(sBytes), bWhole) << sBytes;
}

}  // namespace
}  // namespace vrek
