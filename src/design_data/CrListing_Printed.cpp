// The printed cross-section listing: sections of a chainage, a rule line that marks eight columns, and lines
// on which two neighbouring fields make a point. Where a point stands under the rule line tells its layer.
//
//      P.K. 1000.000
//      (up to six lines)
//      ======= ======= == ======= ======= == ======= =======
//      -12.500 510.200 T1  -3.500 512.000 P1  -3.000 511.500
//
// Columns 1 to 3 (offset, height, code) are Taludes, 4 to 6 Rasante, 7 and 8 (offset, height) Subrasante.
#include "base/ST.h"
#include "design_data/CovertData.h"
#include "design_data/ListingReaders.h"
#include "shell/ErrHandler.h"

namespace vrek::Entry {

namespace {

constexpr char cFormFeed = 12;
constexpr int nColumns = 8;
constexpr int nLinesToRule = 7;
constexpr std::size_t nChainageWidth = 20;
constexpr std::string_view sSectionMark = "P.K.", sRuleMark = "=====";

// The columns of a layer, from the first position of the first to the last position of the last one.
struct TGroup {
  std::uint8_t nLayer = 0;
  int nStart = 0;
  int nEnd = 0;
};
using TGroups = std::array<TGroup, 3>;

// The text from the first character that is no blank on.
std::string_view WithoutIndent(std::string_view sLine) {
  return sLine.substr(std::min(sLine.find_first_not_of(' '), sLine.size()));
}

// Reads up to the next section. Gives its chainage.
double ReadHead(CListing& Listing) {
  for (;;) {
    const auto sLine = WithoutIndent(Listing.NextLine());
    if (sLine.starts_with(sSectionMark)) {
      return ST::LeadingNumber(sLine.substr(sSectionMark.size(), nChainageWidth));
    }
  }
}

// The section's rule line; the last line that it may stand on when none is found.
std::string_view ReadRuleLine(CListing& Listing) {
  std::string_view sLine;
  for (int n = 1; n <= nLinesToRule; ++n) {
    sLine = Listing.NextLine();
    if (WithoutIndent(sLine).starts_with(sRuleMark)) break;
  }
  return sLine;
}

// False for a line with too few columns, which matters as soon as a point wants one.
bool FindGroups(std::string_view sRule, TGroups& aGroups) {
  TTokens aFields;
  int nFields = 0;
  ST::ScanTokens(sRule, ' ', nFields, aFields);
  if (nFields < nColumns) return false;
  aGroups = {{{CovertData::nTaludes, aFields[1].nStart, aFields[3].nEnd},
              {CovertData::nRasante, aFields[4].nStart, aFields[6].nEnd},
              {CovertData::nSubrasante, aFields[7].nStart, aFields[8].nEnd}}};
  return true;
}

// Gives each group at most one point: of the pairs that stand under it the last one.
void AddPoints(const TGroups& aGroups, const TTokens& aFields, int nFields, CovertData::TPointLists& aLists) {
  std::array<std::size_t, 3> aPairs{};  // first field of each group's pair, 0: none
  const auto Test = [&](std::size_t nField, std::size_t nFirstGroup) {
    for (std::size_t g = nFirstGroup; g < aGroups.size(); ++g) {
      const bool bUnder =
          aFields[nField].nEnd >= aGroups[g].nStart && aFields[nField + 1].nStart <= aGroups[g].nEnd;
      if (bUnder) aPairs[g] = nField;
    }
  };
  Test(1, 0);
  if (nFields == 4) Test(3, 1);
  if (nFields >= 5) Test(4, 1);
  if (nFields >= 8) Test(7, 2);
  for (std::size_t g = 0; g < aGroups.size(); ++g) {
    if (const auto n = aPairs[g]; n > 0) {
      aLists[aGroups[g].nLayer].push_back(
          {ST::LeadingNumber(aFields[n].sText), ST::LeadingNumber(aFields[n + 1].sText)});
    }
  }
}

// Reads a section's point lines. False when the file ends with it; its last line is no point line then.
bool ReadPoints(CListing& Listing, const TGroups* pGroups, CovertData::TPointLists& aLists) {
  TTokens aFields;
  for (;;) {
    const auto sLine = Listing.NextLine();
    if (Listing.AtEnd()) return false;
    if (sLine.empty() || sLine[0] == cFormFeed) return true;
    int nFields = 0;
    ST::ScanTokens(sLine, ' ', nFields, aFields);
    if (nFields < 2) continue;
    if (pGroups == nullptr) Listing.Refuse(Error::nSubscript);
    AddPoints(*pGroups, aFields, nFields, aLists);
  }
}

}  // namespace

bool ImportCrPrinted(TCrData& Cr, CListing& Listing) {
  return Guard("ImportCrPrinted", false, [&] {
    CovertData::StartCr(Cr);
    CovertData::TPointLists aLists;
    for (bool bMore = true; bMore;) {
      const double dChainage = ReadHead(Listing);
      TGroups aGroups;
      const bool bColumns = FindGroups(ReadRuleLine(Listing), aGroups);
      for (auto& aPoints : aLists) aPoints.clear();
      bMore = ReadPoints(Listing, bColumns ? &aGroups : nullptr, aLists);
      CovertData::AddCrSection(Cr, dChainage, aLists);
    }
    return Cr.Sections.size() >= 2;
  });
}

}  // namespace vrek::Entry
