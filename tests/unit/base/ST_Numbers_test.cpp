#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

#include "base/Failure.h"
#include "base/ST.h"

namespace vrek {
namespace {

constexpr double dInfinity = std::numeric_limits<double>::infinity();

std::string Zeros(std::size_t n) {
  return std::string(n, '0');
}

// clang-format off
struct TNumber { std::string sText; double dValue; };
const TNumber aNumbers[] = {
    {" \t1 2\n3 4 . 5 ",                         1234.5},
    {"+ 5",                                      5},
    {"-12,5",                                    -12},
    {"1\r2",                                     1},
    {std::string("1\0" "2", 3),                  1},
    {"1D3",                                      1000},
    {"1 E + 0 3",                                1000},
    {"--5",                                      0},
    {".",                                        0},
    {"0x10",                                     0},
    {"inf",                                      0},
    {"1e400",                                    dInfinity},
    {"1e99999999999999999999999",                dInfinity},
    {"1e-99999999999999999999999",               0},
    {"0." + Zeros(500) + "1e501",                1},
    {"0." + Zeros(500) + "1e400",                1e-101},
    {"1" + Zeros(400) + "e-400",                 1},
    {"1" + Zeros(400),                           dInfinity},
    {Zeros(400) + "7",                           7},
    {"9007199254740993",                         9007199254740992},
    {"9007199254740993." + Zeros(900) + "1",     9007199254740994},   // far behind the digits that usually decide
    {"0.1000000000000000055511151231257827",     0.1},
    {"179769313486231580e291",                   DBL_MAX},
    {"179769313486231590e291",                   dInfinity},
    {"4.9e-324",                                 5e-324},
    {"2.4703282292062327e-324",                  0},
    {"2.4703282292062328e-324",                  5e-324},
    {"2.2250738585072011e-308",                  2.2250738585072011e-308},
};
// clang-format on

TEST(LeadingNumber, ReadsWhatStandsAtTheStart) {
  for (const auto& [sText, dValue] : aNumbers) EXPECT_EQ(ST::LeadingNumber(sText), dValue) << sText;
}

TEST(ParseReal, ReadsACommaAsAPoint) {
  EXPECT_EQ(ST::ParseReal("-1234,5"), -1234.5);
  EXPECT_EQ(ST::ParseReal("1,234.5"), 1.234);
  EXPECT_EQ(ST::ParseReal("1.234,5"), 1.234);
  EXPECT_EQ(ST::ParseReal("2,5e1,5"), 25);
}

// The plain way: what counts is copied out, and the C library reads it.
double Plain(std::string_view sText) {
  std::string s;
  for (const char c : sText) {
    if (c != ' ' && c != '\t' && c != '\n') s += c;
  }
  std::size_t i = !s.empty() && (s[0] == '+' || s[0] == '-') ? 1 : 0;
  const auto PassDigits = [&] {
    const auto nFirst = i;
    while (i < s.size() && s[i] >= '0' && s[i] <= '9') ++i;
    return i > nFirst;
  };
  bool bDigit = PassDigits();
  if (i < s.size() && s[i] == '.') bDigit = (++i, PassDigits()) || bDigit;
  if (!bDigit) return 0;
  std::size_t nEnd = i;
  if (i < s.size() && std::string_view("EeDd").find(s[i]) != std::string_view::npos) {
    s[i++] = 'e';
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    if (PassDigits()) nEnd = i;
  }
  static const locale_t Classic = ::newlocale(LC_ALL_MASK, "C", nullptr);
  return ::strtod_l(s.substr(0, nEnd).c_str(), nullptr, Classic);
}

std::string Digits(std::mt19937& Random, unsigned nMax) {
  std::string sOut;
  for (auto n = Random() % (nMax + 1); n > 0; --n) sOut += static_cast<char>('0' + Random() % 10);
  return sOut;
}

TEST(LeadingNumber, IsThePlainWayOnAnyText) {
  std::mt19937 Random(11);
  constexpr std::string_view sSigns = "0123456789012345678901234567890.. ,+-eEdD\t\n\rx";
  for (int i = 0; i < 300'000; ++i) {
    std::string sText;
    for (auto n = Random() % 24; n > 0; --n) sText += sSigns[Random() % sSigns.size()];
    const double dValue = ST::LeadingNumber(sText);
    ASSERT_EQ(dValue, Plain(sText)) << sText;
    ASSERT_EQ(std::signbit(dValue), std::signbit(Plain(sText))) << sText;
  }
}

TEST(LeadingNumber, IsCorrectlyRoundedOnNumbersOfAllLengths) {
  std::mt19937 Random(12);
  for (int i = 0; i < 200'000; ++i) {
    const unsigned nMax = i % 100 == 0 ? 1000 : i % 2 == 0 ? 12 : 25;
    std::string sText = Digits(Random, nMax) + "." + Digits(Random, nMax);
    if (Random() % 2 == 0) sText += "e" + std::to_string(static_cast<int>(Random() % 700) - 350);
    ASSERT_EQ(ST::LeadingNumber(sText), Plain(sText)) << sText;
  }
}

TEST(NormalizeNumberText, TakesTheLastOfPointAndCommaForTheDecimalSign) {
  const std::pair<std::string, std::string> aCases[] = {
      {"1,234.50", "1234.50"},    {"1.234,50", "1234.50"}, {"1,234", "1.234"}, {"1.234.567,8", "1234567.8"},
      {"1,234,567", "1.234.567"}, {"1,2.3,4", "1.23.4"},   {"abc", "abc"},
  };
  for (auto [sText, sExpected] : aCases) {
    ST::NormalizeNumberText(sText);
    EXPECT_EQ(sText, sExpected);
  }
}

TEST(ParseChainage, ReadsKilometresAndMetresAndTrimsTheTextInPlace) {
  const struct {
    std::string sText, sTrimmed;
    double dValue;
  } aCases[] = {
      // clang-format off
      {"  -1234.5 ",  "-1234.5",    -1234.5},
      {"12+345.678",  "12+345.678", 12345.678},
      {" 1+23.4",     "1+23.4",     123.4},   // the metres' own width is the scale
      {"12-345.678",  "12-345.678", 11654.322},
      {"-1+500",      "-1+500",     -1500},
      {"-1-500 ",     "-1-500",     -1500},
      {"+1+000",      "+1+000",     1000},
      {"1e+5",        "1e+5",       15},      // the sign ends the kilometres
      {"1+",          "1+",         1},
      {"1++5.0",      "1++5.0",     105},
      {"12.5+100",    "12.5+100",   12600},
      {"km 1+500",    "km 1+500",   500},
      {"   ",         "",           0},
      {"-",           "-",          0},
      {"1e400",       "1e400",      dInfinity},
      // clang-format on
  };
  for (const auto& Case : aCases) {
    std::string s = Case.sText;
    EXPECT_DOUBLE_EQ(ST::ParseChainage(s), Case.dValue) << Case.sText;
    EXPECT_EQ(s, Case.sTrimmed);
  }
}

TEST(ParseChainage, FailsBeyondTheDoubles) {
  for (std::string s :
       {"0+" + Zeros(400), std::string("1e400+5"), std::string("1+1e400"), "1e10+" + Zeros(300) + ".5"}) {
    EXPECT_THROW(ST::ParseChainage(s), Failure) << s;
  }
}

TEST(IsNumberText, WantsADigitAndNothingButSignsBesides) {
  for (const auto* sText : {"1", " 1+234,5 ", "-1.5", "5-", ".,+-0"})
    EXPECT_TRUE(ST::IsNumberText(sText)) << sText;
  for (const auto* sText : {"", "  ", "-", "12 m", "1 2", "1e5", "\t1", "Estaci\xF3n"}) {
    EXPECT_FALSE(ST::IsNumberText(sText)) << sText;
  }
}

TEST(IsReal, WantsANumberAndNothingBehindIt) {
  for (const auto* sText : {"1", " 1200.5 ", "-1,5", "+.5", "5.", "1e3", "1D-2", "1 200", "\t1\n"}) {
    EXPECT_TRUE(ST::IsReal(sText)) << sText;
  }
  for (const auto* sText : {"", " ", "-", ".", "0+200", "1,234.5", "1.2.3", "1+000 abc", "12 m", "1e", "1e+",
                            "e5", "--1", "1\r"}) {
    EXPECT_FALSE(ST::IsReal(sText)) << sText;
  }
}

}  // namespace
}  // namespace vrek
