// The printed vertical listing: pages of blocks of three lines. Line 1 tells where a straight grade starts,
// line 3 where it ends and a vertical curve starts; the curve ends where the next block's grade starts.
//
//     ====== ========== ======= =======                      rule line, two more lines, then the blocks
//      1       100.000  512.340   2.500                      -, chainage, height, gradient in per cent
//     (line)
//      a  b    250.000  516.090   2.500  c  -12000.000       -, -, chainage, height, gradient, -, parameter
//
// A form feed where line 3 should stand ends the page: that line comes two lines behind the next rule line.
#include "base/Checked.h"
#include "base/ST.h"
#include "design_data/ListingReaders.h"
#include "design_data/VtElements.h"
#include "shell/ErrHandler.h"

namespace vrek::Entry {

namespace {

constexpr char cFormFeed = 12;
constexpr char cEscape = 27;

// What the lines of a block fill in, kept from block to block.
struct TBlocks {
  int nCount = 1;
  double c1 = 0, z1 = 0, g1 = 0;          // start of the straight grade: chainage, height, gradient
  double c3 = 0, z3 = 0, g3 = 0, k3 = 0;  // start of the curve, and its parameter
};

struct TLines {
  TLine Line1, Line3;
  bool bLast = false;  // no block comes behind this one
};

bool IsRuleLine(std::string_view sLine, TTokens& aFields) {
  int nFields = 0;
  ST::ScanTokens(sLine, ' ', nFields, aFields);
  return aFields[1].sText.starts_with("==");
}

// Reads on to the next rule line that has lines behind it.
bool PassRuleLine(CListing& Listing) {
  TTokens aFields;
  while (!Listing.AtEnd()) {
    const bool bRule = IsRuleLine(Listing.NextLine(), aFields);
    if (bRule && !Listing.AtEnd()) return true;
  }
  return false;
}

bool BeginsWithFormFeed(std::string_view sLine) {
  return sLine.starts_with(cFormFeed);
}

// Reads the lines of a block; what the file hasn't got stays as it is. False when it ends behind a page end.
bool ReadBlock(CListing& Listing, TLines& Lines) {
  TLine Line2;
  for (TLine* pLine : {&Lines.Line1, &Line2, &Lines.Line3}) {
    if (Listing.AtEnd()) break;
    Listing.NextLine();
    *pLine = Listing.Line();
  }
  Lines.bLast = Listing.AtEnd();
  if (Lines.bLast || !BeginsWithFormFeed(Lines.Line3.sText)) return true;
  if (!PassRuleLine(Listing)) return false;
  Listing.NextLine();
  const auto sLine3 = Listing.NextLine();
  const bool bEscape = sLine3.size() > 1 && sLine3[1] == cEscape;
  Lines.Line3 = Listing.Line();
  Lines.bLast = BeginsWithFormFeed(sLine3) && (Listing.AtEnd() || bEscape);
  return true;
}

// Calls a body with each field and its number, from 1. Fields stand between runs of blanks and commas; one
// that starts at the line's last character isn't seen, and a line without a character can't be walked.
template <class TBody>
void ForEachField(const TLine& Line, const CListing& Listing, TBody&& Body) {
  const std::string_view sLine = Line.sText;
  if (sLine.empty()) Listing.Refuse(Error::nInvalidCall, Line);
  constexpr std::string_view sSeparators = " ,";
  int n = 0;
  for (std::size_t i = 0;;) {
    i = sLine.find_first_not_of(sSeparators, i);
    if (i == sLine.npos || i + 1 >= sLine.size()) return;
    const auto nEnd = std::min(sLine.find_first_of(sSeparators, i), sLine.size());
    Body(++n, sLine.substr(i, nEnd - i));
    i = nEnd;
  }
}

void TakeLine1(const TLine& Line, const CListing& Listing, TBlocks& B, TVtElements& aVt) {
  ForEachField(Line, Listing, [&](int n, std::string_view sField) {
    const double dValue = n >= 2 && n <= 4 ? ST::LeadingNumber(sField) : 0;
    if (n == 2) {
      B.c1 = dValue;
      if (B.nCount++ > 1) AppendVtElement(aVt, {0, B.c3, B.z3, B.g3, B.k3, Checked::Finite(B.c1 - B.c3)});
    } else if (n == 3) {
      B.z1 = dValue;
    } else if (n == 4) {
      B.g1 = dValue / 100;
    }
  });
}

void TakeLine3(const TLine& Line, const CListing& Listing, TBlocks& B, TVtElements& aVt) {
  ForEachField(Line, Listing, [&](int n, std::string_view sField) {
    const double dValue = n >= 3 && n <= 7 ? ST::LeadingNumber(sField) : 0;
    if (n == 3) {
      B.c3 = dValue;
      AppendVtElement(aVt, {0, B.c1, B.z1, B.g1, 0, Checked::Finite(B.c3 - B.c1)});
    } else if (n == 4) {
      B.z3 = dValue;
    } else if (n == 5) {
      B.g3 = dValue / 100;
    } else if (n == 7) {
      B.k3 = dValue;
    }
  });
}

}  // namespace

bool ImportVtPrinted(TVtElements& aVt, CListing& Listing) {
  return Guard("ImportVtPrinted", false, [&] {
    aVt.assign(1, {});
    if (!PassRuleLine(Listing)) return false;
    Listing.NextLine();
    Listing.NextLine();
    TBlocks Blocks;
    TLines Lines;
    Lines.Line1.nNumber = Lines.Line3.nNumber = Listing.Line().nNumber;
    while (!Lines.bLast) {
      if (!ReadBlock(Listing, Lines)) return false;
      TakeLine1(Lines.Line1, Listing, Blocks, aVt);
      TakeLine3(Lines.Line3, Listing, Blocks, aVt);
    }
    AppendClosingElement(aVt);
    return UpperBound(aVt) >= 1;
  });
}

}  // namespace vrek::Entry
