#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/ST.h"

namespace vrek {
namespace {

using ::testing::ElementsAre;
using TTexts = std::vector<std::string>;

// "start-end:text" of each field from index 1.
TTexts Fields(const TTokens& aTokens) {
  TTexts aOut;
  for (std::size_t i = 1; i < aTokens.size(); ++i) {
    const auto& Token = aTokens[i];
    aOut.push_back(std::to_string(Token.nStart) + "-" + std::to_string(Token.nEnd) + ":" +
                   std::string(Token.sText));
  }
  return aOut;
}

TTexts Scan(std::string_view sLine) {
  TTokens aTokens;
  int nCount = -1;
  ST::ScanTokens(sLine, ' ', nCount, aTokens);
  EXPECT_EQ(nCount + 1, static_cast<int>(aTokens.size()));
  return Fields(aTokens);
}

TEST(ScanTokens, CutsRunsBetweenRunsOfTheSeparator) {
  EXPECT_THAT(Scan("  a  b"), ElementsAre("3-3:a", "6-799:b"));
  EXPECT_THAT(Scan("ab cd"), ElementsAre("1-2:ab", "4-799:cd"));
  EXPECT_THAT(Scan("ab  "), ElementsAre("1-2:ab", "5-799:"));
  EXPECT_THAT(Scan(""), ElementsAre("1-799:"));
  EXPECT_THAT(Scan("   "), ElementsAre("4-799:"));
}

TEST(ScanTokens, EndsAtPosition799) {
  const auto Line = [](std::size_t nBlanks, std::string_view sRest) {
    return std::string(nBlanks, ' ').append(sRest);
  };
  EXPECT_THAT(Scan(Line(797, "ab")), ElementsAre("798-799:ab"));
  EXPECT_THAT(Scan(Line(797, "abc")), ElementsAre("798-799:ab"));
  EXPECT_THAT(Scan(Line(797, "a b")), ElementsAre("798-798:a", "800-799:"));
  EXPECT_THAT(Scan(Line(798, "a b")), ElementsAre("799-799:a"));
  EXPECT_THAT(Scan(Line(799, "a b")), ElementsAre("800-799:"));
}

TEST(ScanTokens, LeavesNothingOfTheLineBefore) {
  TTokens aTokens;
  int nCount = 0;
  ST::ScanTokens("a b c", ' ', nCount, aTokens);
  ST::ScanTokens("d", ' ', nCount, aTokens);
  EXPECT_EQ(nCount, 1);
  EXPECT_THAT(Fields(aTokens), ElementsAre("1-799:d"));
}

TEST(SplitBySeparator, EndsAFieldAtEverySeparator) {
  struct TCase {
    const char* sLine;
    int nLimit;
    bool bSkipEmpty;
    int nReported;
    TTexts aFields;
  };
  const TCase aCases[] = {
      {"a,,b", 10, false, 3, {"1-2:a", "3-3:", "4-5:b"}},
      {"a,,b", 10, true, 2, {"1-2:a", "4-5:b"}},
      {"a,", 10, false, 2, {"1-2:a", "3-3:"}},
      {"a,", 10, true, 1, {"1-2:a"}},
      {",a", 10, false, 2, {"1-1:", "2-3:a"}},
      {"", 10, false, 1, {"1-1:"}},
      {"", 10, true, 0, {}},
      {"a,b,c,d", 2, false, 2, {"1-2:a", "3-4:b", "5-6:c"}},  // one more than reported
      {"a,b,c", 3, false, 3, {"1-2:a", "3-4:b", "5-6:c"}},
      {"a,b", 0, false, 0, {"1-2:a"}},
      {"a,,,b", 1, true, 1, {"1-2:a", "5-6:b"}},
      {"a,b", -1, false, -1, {}},
  };
  for (const auto& Case : aCases) {
    TTokens aTokens(5);  // what an earlier line left
    int nLimit = Case.nLimit;
    ST::SplitBySeparator(Case.sLine, ',', nLimit, aTokens, Case.bSkipEmpty);
    EXPECT_EQ(nLimit, Case.nReported) << Case.sLine;
    EXPECT_EQ(Fields(aTokens), Case.aFields) << Case.sLine;
  }
}

// All lines of a text up to its end.
TTexts Lines(std::string_view sText) {
  TTexts aOut;
  std::size_t nPos = 1;
  for (;;) {
    bool bEnd = false;
    const std::size_t nBefore = nPos;
    const auto sLine = ST::NextTextLine(sText, nPos, bEnd);
    if (bEnd) {
      EXPECT_EQ(sLine, "");
      EXPECT_EQ(nPos, nBefore);
      return aOut;
    }
    aOut.emplace_back(sLine);
  }
}

TEST(NextTextLine, BeginsEveryLaterLineWithTheLineEndBefore) {
  EXPECT_THAT(Lines("a\r\nbc\r\n"), ElementsAre("a", "\r\nbc"));
  EXPECT_THAT(Lines("a\r\n\r\nb\r\n"), ElementsAre("a", "\r\n", "\r\nb"));
}

TEST(NextTextLine, LosesALastLineWithoutItsEnd) {
  EXPECT_THAT(Lines("a\r\nb"), ElementsAre("a"));
  EXPECT_THAT(Lines("a\r\nb\r"), ElementsAre("a"));  // the last character isn't looked at
  EXPECT_THAT(Lines("abc"), ElementsAre());
}

TEST(NextTextLine, DoesNotSeeALineEndAtItsOwnStart) {
  EXPECT_THAT(Lines("\ra\r\n"), ElementsAre("\ra"));
  EXPECT_THAT(Lines("\r\na\r\n"), ElementsAre("\r\na"));
}

TEST(NextTextLine, IsAtTheEndOfShortTexts) {
  for (const auto* sText : {"", "a", "\r", "\r\n"}) EXPECT_THAT(Lines(sText), ElementsAre()) << sText;
  std::size_t nPos = 99;
  bool bEnd = false;
  EXPECT_EQ(ST::NextTextLine("a\r\n", nPos, bEnd), "");
  EXPECT_TRUE(bEnd);
}

}  // namespace
}  // namespace vrek
