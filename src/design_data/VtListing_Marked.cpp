// The marked vertical listing: the vertices of the grade line, each with the curve it carries.
//
//     *ALZ
//     0.000,512.340C,0T              chainage, height (C), sharp
//     250.000,2.500P,60.000T         chainage, arriving gradient in per cent (P), curve of tangent 60 (T)
//     600.000,-1.000P,8000.000R      ... of parameter 8000 (R); F is the curve's versine
#include <cmath>
#include <vector>

#include "base/Checked.h"
#include "base/ST.h"
#include "design_data/ListingReaders.h"
#include "design_data/VtElements.h"
#include "shell/ErrHandler.h"

namespace vrek::Entry {

namespace {

constexpr double dContact = 0.001;  // curves this near to each other touch, metres

// A number with one letter behind it.
struct TLettered {
  double dNumber = 0;
  char cLetter = 0;
};

struct TVertex {
  double dChainage = 0;
  TLettered Place;  // C: height, P: gradient of the arriving grade, per cent
  TLettered Curve;  // T: tangent, F: versine, R: parameter; number 0: sharp
  TLine Line;       // where it stands
};

TLettered CutLettered(std::string_view sField, const CListing& Listing) {
  sField = ST::Trim(sField);
  if (sField.empty()) Listing.Refuse(Error::nInvalidCall);
  return {ST::LeadingNumber(sField.substr(0, sField.size() - 1)), sField.back()};
}

// From 1, like the elements that they become.
std::vector<TVertex> ReadVertices(CListing& Listing) {
  std::vector<TVertex> aVertices(1);
  TTokens aFields;
  while (!Listing.AtEnd()) {
    const auto sLine = Listing.NextLine();
    int nFields = 3;
    ST::SplitBySeparator(sLine, ',', nFields, aFields, true);
    if (nFields < 3) continue;
    aVertices.push_back({ST::LeadingNumber(aFields[1].sText), CutLettered(aFields[2].sText, Listing),
                         CutLettered(aFields[3].sText, Listing), Listing.Line()});
  }
  return aVertices;
}

// Height and arriving gradient of a vertex; dRun and Before: distance to the vertex before, and that vertex.
void PlaceVertex(TVtElement& Vertex, const TLettered& Place, bool bFirst, double dRun,
                 const TVtElement& Before) {
  if (Place.cLetter == 'C') {
    Vertex.dHeight = Place.dNumber;
    if (!bFirst) Vertex.dSlope = dRun == 0 ? 0 : Checked::Finite((Vertex.dHeight - Before.dHeight) / dRun);
  } else if (Place.cLetter == 'P') {
    Vertex.dSlope = Place.dNumber / 100;
    if (!bFirst) Vertex.dHeight = Checked::Finite(Vertex.dSlope * dRun + Before.dHeight);
  }
}

// The vertices with chainage, height, arriving gradient and the distance to the next vertex.
TVtElements PlaceVertices(const std::vector<TVertex>& aVertices) {
  TVtElements T(aVertices.size());
  for (std::size_t i = 1; i < T.size(); ++i) {
    T[i].nId = static_cast<std::int32_t>(i);
    T[i].dChainage = aVertices[i].dChainage;
    T[i - 1].dLength = i > 1 ? Checked::Finite(T[i].dChainage - T[i - 1].dChainage) : 0;
    PlaceVertex(T[i], aVertices[i].Place, i == 1, T[i - 1].dLength, T[i - 1]);
    if (i == 2) T[1].dSlope = T[2].dSlope;
  }
  return T;
}

double CurveParameter(const TLettered& Curve, double dSlopeChange) {
  const double v = Curve.dNumber;
  switch (Curve.cLetter) {
    case 'T':
      return dSlopeChange == 0 ? 0 : Checked::Divide(2 * v, dSlopeChange);
    case 'F':
      return dSlopeChange == 0 ? 0 : Checked::Divide(8 * v, dSlopeChange * dSlopeChange);
    case 'R':
      return v;
    default:
      return 0;
  }
}

// A vertex with a curve gets the curve's parameter, and the curve's length in place of the distance.
void AddCurves(const std::vector<TVertex>& aVertices, const CListing& Listing, TVtElements& T) {
  for (std::size_t i = 1; i < T.size(); ++i) {
    if (aVertices[i].Curve.dNumber == 0) continue;
    if (i + 1 == T.size()) Listing.Refuse(Error::nSubscript, aVertices[i].Line);  // no grade leaves it
    const double dSlopeChange = T[i].dSlope - T[i + 1].dSlope;
    const double dKv = std::abs(CurveParameter(aVertices[i].Curve, dSlopeChange));
    T[i].dKv = dSlopeChange > 0 ? -dKv : dKv;
    T[i].dLength = std::abs(Checked::Finite(dSlopeChange * T[i].dKv));
  }
}

bool IsSharp(const TVtElement& Vertex) {
  return Vertex.dKv == 0;
}

// Where the element that begins at or before a vertex starts.
double StartAt(const TVtElement& Vertex) {
  return IsSharp(Vertex) ? Vertex.dChainage : Vertex.dChainage - Vertex.dLength / 2;
}

// The curve centred on a vertex and, if there is room, the straight grade from its end to the next element.
void AppendCurve(TVtElement Vertex, const TVtElement& Next, int& k, TVtElements& aVt) {
  const double h = Vertex.dLength / 2;
  TVtElement Grade;
  Grade.dChainage = Vertex.dChainage + h;
  Grade.dHeight = Vertex.dHeight + h * Next.dSlope;
  Grade.dSlope = Next.dSlope;
  Grade.dLength = StartAt(Next) - Grade.dChainage;
  const std::int32_t nVertex = Vertex.nId;
  Vertex.dChainage -= h;
  Vertex.dHeight -= h * Vertex.dSlope;
  aVt.push_back(Vertex);
  if (std::abs(Grade.dChainage - StartAt(Next)) <= dContact) return;
  Grade.nId = ++k + nVertex;
  aVt.push_back(Grade);
}

void BuildElements(const TVtElements& T, TVtElements& aVt) {
  int k = 0;  // elements put in between
  for (std::size_t i = 1; i + 1 < T.size(); ++i) {
    if (!IsSharp(T[i])) {
      AppendCurve(T[i], T[i + 1], k, aVt);
      continue;
    }
    aVt.push_back(T[i]);
    if (!IsSharp(T[i + 1])) aVt.back().dLength -= T[i + 1].dLength / 2;
  }
}

}  // namespace

bool ImportVtMarked(TVtElements& aVt, CListing& Listing) {
  return Guard("ImportVtMarked", false, [&] {
    aVt.assign(1, {});
    const auto sMarker = Listing.NextFilledLine();
    if (Listing.AtEnd() || (sMarker != "*ALZ" && sMarker != "*ALZ1")) return false;
    if (sMarker == "*ALZ1") Listing.NextLine();
    const auto aVertices = ReadVertices(Listing);
    TVtElements T = PlaceVertices(aVertices);
    AddCurves(aVertices, Listing, T);
    BuildElements(T, aVt);
    AppendClosingElement(aVt);
    return UpperBound(aVt) >= 1;
  });
}

}  // namespace vrek::Entry
