// The tab form of the horizontal listing: an RTF table, a row a point. A row carries length, radius and
// parameter of the element that ends there; how many fields it has tells which of them count (-> is a Tab).
//
//     0+180.000->60.000->1128.913->2125.523->57.6394->250.000->122.474->
//     chainage   length  X         Y         azimuth  radius   parameter
#include <cmath>

#include "base/ST.h"
#include "design_data/ListingReaders.h"
#include "design_data/TabText.h"
#include "geometry/GM.h"
#include "platform/RtfText.h"
#include "shell/ErrHandler.h"

namespace vrek::Entry {

namespace {

constexpr int nFieldLimit = 15;
constexpr int nFewestFields = 7;
constexpr std::string_view sColumnHead = "Estaci\xC3\xB3n";

bool IsPointRow(const CTabRow& Row) {
  return Row.Count() >= nFewestFields && Row.FirstField() != sColumnHead &&
         ST::IsNumberText(Row.FirstField());
}

THzElement ElementFromRow(CTabRow& Row) {
  THzElement Element;
  Element.dChainage = Row.Chainage(1);
  Element.dLength = Row.Number(2);
  Element.dX = Row.Number(3);
  Element.dY = Row.Number(4);
  Element.dAzimuth = Row.Number(5);
  // "INFINITO" in place of a radius is no number, thus 0.
  const int n = Row.Count();
  if (n == 8 || n == 9 || n == 10) Element.dRadius = Row.Number(6);
  if (n == 8 || n == 10) Element.dParameter = Row.Number(7);
  return Element;
}

void ReadRows(std::string_view sText, THzElements& aHz) {
  CTabText Text(sText);
  CTabRow Row(nFieldLimit);
  std::string_view sLine;
  while (Text.NextLine(sLine)) {
    Row.Cut(sLine);
    if (!IsPointRow(Row)) continue;
    aHz.push_back(ElementFromRow(Row));
    aHz.back().nId = UpperBound(aHz);
  }
}

// A listing that ends inside a clothoid gets an element for the clothoid to end at.
void CloseClothoid(THzElements& aHz) {
  const THzElement Last = aHz.back();
  if (Last.dParameter == 0) return;
  constexpr double dStub = 0.01;
  aHz.push_back({UpperBound(aHz) + 1, Last.dChainage + dStub, 0, 0, 0, Last.dRadius, 0, dStub});
}

// Gives an element what its end point's row says of it.
void ShiftBack(THzElement& Element, const THzElement& Next) {
  Element.dLength = Next.dLength;
  if (Next.dParameter == 0) {
    Element.dRadius = Next.dRadius;
    Element.dParameter = 0;
    return;
  }
  Element.dParameter = std::abs(Next.dParameter);
  Element.dRadius = GM::GetClothoidStartRadius(Element.dAzimuth, Next.dAzimuth, Element.dRadius, Next.dRadius,
                                               Element.dParameter);
}

}  // namespace

bool ImportHzTabbed(THzElements& aHz, const std::string& sFilename) {
  return Guard("ImportHzTabbed", false, [&] {
    aHz.assign(1, {});
    ReadRows(ReadRtfFile(sFilename), aHz);
    CloseClothoid(aHz);
    // In rising order: at its turn an element still has the radius of its own row, the one it starts from.
    for (std::size_t i = 1; i + 1 < aHz.size(); ++i) ShiftBack(aHz[i], aHz[i + 1]);
    return UpperBound(aHz) >= 1;
  });
}

}  // namespace vrek::Entry
