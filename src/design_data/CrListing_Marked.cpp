// The marked cross-section listing: sections of a head and its point lines; the first letter of a point's
// code picks its layer.
//
//     *TRV
//     (line)
//     1000.000,3                 chainage, number of point lines
//     -12.500,510.200,T01        offset, height, code
//     -3.500,512.000,C01
//     0.000,512.100,P01
//     120E,2                     skip head: two lines that aren't read
//     FIN
#include <algorithm>
#include <cmath>
#include <limits>

#include "base/ST.h"
#include "design_data/CovertData.h"
#include "design_data/ListingReaders.h"
#include "shell/ErrHandler.h"

namespace vrek::Entry {

namespace {

using CovertData::TPointLists;

constexpr int nFieldLimit = 3;

// The fields of the line in hand. An empty line, or none at the end of the file, leaves those of the line
// before.
struct TFields {
  TTokens aTokens = TTokens(2);  // before the first line: one empty field
  int nCount = 0;

  std::string_view operator[](std::size_t n) const { return aTokens[n].sText; }
};

void Cut(std::string_view sLine, TFields& Fields) {
  if (sLine.empty()) return;
  Fields.nCount = nFieldLimit;
  ST::SplitBySeparator(sLine, ',', Fields.nCount, Fields.aTokens, false);
}

// Rounded half to even.
long CountFrom(std::string_view sField, const CListing& Listing) {
  constexpr double dLargest = std::numeric_limits<std::int32_t>::max();
  const double dCount = std::nearbyint(ST::LeadingNumber(sField));
  if (dCount > dLargest || dCount < -dLargest - 1) Listing.Refuse(Error::nOverflow);
  return static_cast<long>(dCount);
}

// Index of the layer, or -1.
int LayerOfCode(std::string_view sCode) {
  if (sCode.empty()) return -1;
  switch (sCode[0]) {
    case 'T':
    case 'D':
    case 'M':
      return CovertData::nTaludes;
    case 'C':
      return CovertData::nCunetas;
    case 'E':
    case 'S':
      return CovertData::nSubrasante;
    case 'P':
      return CovertData::nRasante;
    default:
      return -1;
  }
}

void AddPoint(const TFields& Fields, const CListing& Listing, TPointLists& aLists) {
  if (Fields.nCount < 3) Listing.Refuse(Error::nSubscript);
  const int nLayer = LayerOfCode(Fields[3]);
  if (nLayer < 0) return;
  aLists[static_cast<std::size_t>(nLayer)].push_back(
      {ST::LeadingNumber(Fields[1]), ST::LeadingNumber(Fields[2])});
}

void ReadPoints(CListing& Listing, long nPoints, TFields& Fields, TPointLists& aLists) {
  for (; nPoints > 0 && !Listing.AtEnd(); --nPoints) {
    Cut(Listing.NextLine(), Fields);
    AddPoint(Fields, Listing, aLists);
  }
  // The last line stands for the lines that the file hasn't got. As equal neighbours go, two do for any
  // number.
  for (long n = std::min(nPoints, 2L); n > 0; --n) AddPoint(Fields, Listing, aLists);
}

void ReadSections(CListing& Listing, TFields& Fields, TCrData& Cr) {
  TPointLists aLists;
  while (!Listing.AtEnd()) {
    Cut(Listing.NextLine(), Fields);
    if (Fields[1] == "FIN") return;
    if (Fields.nCount < 2) Listing.Refuse(Error::nSubscript);
    const double dChainage = ST::LeadingNumber(Fields[1]);
    long nLines = CountFrom(Fields[2], Listing);
    if (Fields[1].ends_with('E')) {
      for (; nLines > 0; --nLines) Listing.NextLine();
    } else if (nLines > 0) {
      for (auto& aPoints : aLists) aPoints.clear();
      ReadPoints(Listing, nLines, Fields, aLists);
      CovertData::AddCrSection(Cr, dChainage, aLists);
    }
  }
}

}  // namespace

bool ImportCrMarked(TCrData& Cr, CListing& Listing) {
  return Guard("ImportCrMarked", false, [&] {
    CovertData::StartCr(Cr);
    TFields Fields;
    Cut(Listing.NextLine(), Fields);
    if (Fields[1] != "*TRV") return false;
    Listing.NextLine();
    ReadSections(Listing, Fields, Cr);
    return Cr.Sections.size() >= 2;
  });
}

}  // namespace vrek::Entry
