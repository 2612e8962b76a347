// The marked horizontal listing: points where elements meet. A point's line carries radius and parameter of
// the element that ends there.
//
//     *PLT
//     0.000,1000.000,2000.000,50.0000,0.000,0.000         chainage, X, Y, azimuth (gon), radius, parameter
//     120.000,1084.853,2084.853,50.0000,0.000,0.000
#include "base/Checked.h"
#include "base/ST.h"
#include "design_data/ListingReaders.h"
#include "geometry/GM.h"
#include "shell/ErrHandler.h"

namespace vrek::Entry {

namespace {

constexpr int nPointFields = 6;

THzElement CutPoint(std::string_view sLine, const CListing& Listing, TTokens& aFields) {
  int nFields = nPointFields;
  ST::SplitBySeparator(sLine, ',', nFields, aFields, true);
  if (nFields < nPointFields) Listing.Refuse(Error::nSubscript);
  const auto Number = [&](std::size_t n) { return ST::LeadingNumber(aFields[n].sText); };
  return {0, Number(1), Number(2), Number(3), Number(4), Number(5), Number(6), 0};
}

// The element ends at the point and takes what is printed there.
void CloseElement(THzElement& Element, const THzElement& Point) {
  Element.dLength = Checked::Finite(Point.dChainage - Element.dChainage);
  Element.dRadius = Point.dRadius;
  Element.dParameter = Point.dParameter;
}

// Reads all point lines into aElements, from 1, radius and parameter shifted back by one. Gives how many
// elements are closed: the last point closes one and opens none. It stands behind them all the same when the
// file ends on blank lines.
int ReadPoints(CListing& Listing, THzElements& aElements) {
  TTokens aFields;
  int n = 0;
  for (std::string_view sLine = Listing.NextLine();; sLine = Listing.NextLineNotBlank()) {
    const bool bLast = Listing.AtEnd();
    if (bLast && ST::Trim(sLine).empty()) return n - 1;
    const THzElement Point = CutPoint(sLine, Listing, aFields);
    if (n > 0) CloseElement(aElements.back(), Point);
    if (bLast) return n;
    aElements.push_back(Point);
    aElements.back().nId = ++n;
  }
}

// Drops elements without length in favour of the next one and works out the start radius of each spiral.
void CleanUp(const THzElements& aElements, int nCount, const CListing& Listing, THzElements& aHz) {
  int k = 0;  // dropped so far
  for (int i = 1; i <= nCount; ++i) {
    const auto n = static_cast<std::size_t>(i);
    THzElement Element = aElements[n];
    Element.nId = i - k;
    if (Element.dLength == 0) ++k;
    if (Element.dParameter != 0) {
      if (n + 1 >= aElements.size()) Listing.Refuse(Error::nSubscript);  // the end azimuth isn't kept
      Element.dRadius =
          GM::GetClothoidStartRadius(Element.dAzimuth, aElements[n + 1].dAzimuth, aElements[n - 1].dRadius,
                                     Element.dRadius, Element.dParameter);
    }
    aHz.resize(static_cast<std::size_t>(Element.nId) + 1);
    aHz.back() = Element;
  }
}

}  // namespace

bool ImportHzMarked(THzElements& aHz, const std::string& sFilename) {
  return Guard("ImportHzMarked", false, [&] {
    aHz.assign(1, {});
    CListing Listing(sFilename);
    const auto sMarker = Listing.NextFilledLine();
    if (sMarker != "*PLT" && sMarker != "*PLT1") return false;
    if (sMarker == "*PLT1") Listing.NextLine();
    THzElements aElements(1);
    const int nCount = ReadPoints(Listing, aElements);
    CleanUp(aElements, nCount, Listing, aHz);
    return UpperBound(aHz) >= 1;
  });
}

}  // namespace vrek::Entry
