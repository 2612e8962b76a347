#include <random>

#include "ReaderTest.h"

namespace vrek::test {
namespace {

using PrintedSections = ReaderTest;

constexpr const char* sRule = " ====== ====== ==== ====== ====== ==== ====== ======";

TEST_F(PrintedSections, ReadsPointsUnderTheirColumns) {
  const auto Cr = ReadCr(std::string("title\n P.K. 1000.000\n(line)\n") + sRule +
                         "\n"
                         " -12.500 510.200 T1  -3.500 512.000 P1  -3.000 511.500\n"
                         "                            3.500 512.100\n"
                         "                                        3.250 511.6\n"
                         " -9.0  511.0  T2\n"
                         "\n"
                         "page\nP.K.   1020.000 and\n" +
                         sRule + "\n7 8\n\f");
  EXPECT_TRUE(bRead);
  EXPECT_EQ(Text(Cr), "1000: T -12.5/510.2 -9/511 S -3/511.5 3.25/511.6 R -3.5/512 3.5/512.1;1020:;");
}

TEST_F(PrintedSections, EndsASectionAtAnEmptyLineAFormFeedOrTheEndOfTheFile) {
  const std::string sSection = std::string("P.K.5\n") + sRule + "\n 1.0 2.0\n";
  for (const char* sEnd : {"\n", "\fpage\n", "\n\n\n"}) {
    EXPECT_EQ(ReadCr(sSection + sEnd + sSection + "3.0 4.0").Sections.size(), 2u);
    EXPECT_TRUE(bRead);
  }
  // A line of blanks is no empty line, and the file's last line is no point line.
  EXPECT_EQ(Text(ReadCr(sSection + "  \n 2.0 3.0\n 9.0 9.0\n")), "5: T 1/2 2/3;");
  EXPECT_FALSE(bRead);
  EXPECT_EQ(BoxText(), "");
}

TEST_F(PrintedSections, TakesTheSeventhLineWhereNoRuleLineComes) {
  const std::string sSeventh = "aaaaaa aaaaaa aaaa aaaaaa aaaaaa aaaa aaaaaa aaaaaa";
  const auto Cr =
      ReadCr("P.K.5\n1\n2\n3\n4\n5\n6\n" + sSeventh + "\n 1.0 2.0\n\nP.K.12345678901234567890.9\n=====\n\n");
  EXPECT_TRUE(bRead);
  EXPECT_EQ(Text(Cr), "5: T 1/2;1.23457e+19:;");
  EXPECT_EQ(Cr.Sections[1].dChainage, 12345678901234567890.0) << "what lies behind 20 characters isn't read";
}

// The rules of position written out, character by character, as slowly as they are told.
struct TSlowField {
  std::string sText;
  int nStart, nEnd;
};

std::vector<TSlowField> SlowFields(std::string sLine) {
  sLine = sLine.substr(0, 799);
  const int nSize = static_cast<int>(sLine.size());
  const auto IsBlank = [&](int n) { return n <= nSize && sLine[static_cast<std::size_t>(n) - 1] == ' '; };
  const auto Part = [&](int nFrom, int nTo) {
    return nFrom > nSize
               ? ""
               : sLine.substr(static_cast<std::size_t>(nFrom) - 1, static_cast<std::size_t>(nTo - nFrom + 1));
  };
  std::vector<TSlowField> aFields(1);
  for (int i = 0; i != 799;) {
    ++i;
    while (IsBlank(i)) ++i;
    int nEnd = i;
    while (nEnd < 800 && !IsBlank(nEnd)) ++nEnd;
    --nEnd;
    aFields.push_back({Part(i, nEnd), i, nEnd});
    i = nEnd;
  }
  return aFields;
}

// The point of a group (1 to 3) on a line: " offset/height", or nothing.
std::string SlowPoint(const std::vector<TSlowField>& c, const std::vector<TSlowField>& t, int nGroup) {
  const std::size_t aFirst[] = {0, 1, 4, 7}, aLast[] = {0, 3, 6, 8};
  const std::size_t nFields = t.size() - 1;
  std::vector<std::size_t> aPairs;
  if (nFields >= 2) aPairs.push_back(1);
  if (nFields == 4 && nGroup != 1) aPairs.push_back(3);
  if (nFields >= 5 && nGroup != 1) aPairs.push_back(4);
  if (nFields >= 8 && nGroup == 3) aPairs.push_back(7);
  std::string sPoint;
  for (const std::size_t p : aPairs) {
    if (t[p].nEnd >= c[aFirst[nGroup]].nStart && t[p + 1].nStart <= c[aLast[nGroup]].nEnd)
      sPoint = " " + t[p].sText + "/" + (t[p + 1].sText.empty() ? "0" : t[p + 1].sText);
  }
  return sPoint;
}

TEST_F(PrintedSections, AgreesWithTheRulesWrittenOutOnRandomLines) {
  std::mt19937 Random(20260102);
  const auto UpTo = [&](int n) { return static_cast<int>(Random() % static_cast<unsigned>(n + 1)); };
  const auto Repeated = [](int n, char c) { return std::string(static_cast<std::size_t>(n), c); };
  for (int nRun = 0; nRun < 60; ++nRun) {
    std::string sRuleLine = Repeated(UpTo(3), ' ') + "=====";
    for (int n = 1; n < 8 + UpTo(1); ++n) {
      sRuleLine += Repeated(1 + UpTo(3), ' ');
      sRuleLine += Repeated(1 + UpTo(9), '=');
    }
    const auto c = SlowFields(sRuleLine);
    std::string sText = "P.K. 1\n" + sRuleLine + "\n", aExpected[4];
    for (int nLine = 0; nLine < 20; ++nLine) {
      std::string sLine = Repeated(UpTo(1) * UpTo(70), ' ');
      // Numbers that no neighbour repeats, so that no duplicate is dropped.
      for (int n = UpTo(9); n >= 0; --n) {
        sLine += std::to_string(1000 * nLine + UpTo(999));
        sLine += Repeated(n > 0 ? 1 + UpTo(6) : UpTo(2), ' ');
      }
      if (nLine == 7) sLine += Repeated(800, ' ') + "9 9";
      sText += sLine + "\n";
      const auto t = SlowFields(sLine);
      for (int g = 1; g <= 3 && t.size() > 2; ++g) aExpected[g] += SlowPoint(c, t, g);
    }
    std::string sExpected = "1:";
    for (const auto& [nGroup, sLayer] : {std::pair{1, " T"}, {3, " S"}, {2, " R"}})
      sExpected += aExpected[nGroup].empty() ? "" : sLayer + aExpected[nGroup];
    EXPECT_EQ(Text(ReadCr(sText + "\n")), sExpected + ";") << sText;
  }
}

}  // namespace
}  // namespace vrek::test
