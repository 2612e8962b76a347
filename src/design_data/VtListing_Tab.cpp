// The tab form of the vertical listing: an RTF table in blocks of three rows, of which two are read (A and B;
// -> is a Tab). Two lines stand before the first block.
//
//     x->0.000                                        first block: the profile's start (A2, B4, B5)
//     x->x->x->512.340->2.500
//     x
//     x->x->250.000->516.090->2.500->x->12.5          a curve: chainage, height, gradient, parameter
//     x->x->370.000->519.666                          its end: chainage, height
//     x
#include <cmath>

#include "base/Checked.h"
#include "design_data/ListingReaders.h"
#include "design_data/TabText.h"
#include "design_data/VtElements.h"
#include "geometry/GM.h"
#include "platform/RtfText.h"
#include "shell/ErrHandler.h"

namespace vrek::Entry {

namespace {

constexpr int nFieldLimit = 10;

// A place where a curve starts, or a point between two grades.
struct TPlace {
  double dChainage = 0, dHeight = 0, dSlope = 0;
};

bool IsCurve(const TVtElement& Element) {
  return Element.dKv != 0;
}

// The parameter stands in metres or in thousands of them: the one that comes nearer to the printed end
// height.
double ChooseKv(TVtElement Curve, double dParameter, double dEndHeight) {
  const auto Miss = [&](double dKv) {
    Curve.dKv = dKv;
    return std::abs(Checked::Finite(GM::GetHeightInElement(Curve, Curve.dLength)) - dEndHeight);
  };
  const double dThousands = 1000 * dParameter;
  return Miss(dParameter) < Miss(dThousands) ? dParameter : dThousands;
}

// Lets the last element reach a place: a straight grade is cut there, behind a curve comes a grade of its
// own.
void ReachPlace(TVtElements& aVt, const TPlace& Place, double dCurveEndHeight) {
  TVtElement& Last = aVt.back();
  if (!IsCurve(Last)) {
    Last.dLength = Checked::Finite(Place.dChainage - Last.dChainage);
    return;
  }
  const double dStart = Last.dChainage + Last.dLength;
  AppendVtElement(aVt,
                  {0, dStart, dCurveEndHeight, Place.dSlope, 0, Checked::Finite(Place.dChainage - dStart)});
}

void TakeBlock(CTabRow& A, CTabRow& B, double& dCurveEndHeight, TVtElements& aVt) {
  if (UpperBound(aVt) == 0) {
    AppendVtElement(aVt, {0, A.Chainage(2), B.Number(4), B.Number(5) / 100, 0, 0});
    return;
  }
  const TPlace Place{A.Chainage(3), A.Number(4), A.Number(5) / 100};
  const double dParameter = A.Number(7);
  const bool bBehindCurve = IsCurve(aVt.back());
  ReachPlace(aVt, Place, dCurveEndHeight);
  if (dParameter != 0) {
    const double dLength = Checked::Finite(B.Chainage(3) - Place.dChainage);
    dCurveEndHeight = B.Number(4);
    // Appended before its parameter is tried: the range of what was read counts even where the trial fails.
    AppendVtElement(aVt, {0, Place.dChainage, Place.dHeight, Place.dSlope, dParameter, dLength});
    aVt.back().dKv = ChooseKv(aVt.back(), dParameter, dCurveEndHeight);
  } else if (!bBehindCurve) {
    AppendVtElement(aVt, {0, Place.dChainage, Place.dHeight, Place.dSlope, 0, 0});
  }
}

void ReadBlocks(std::string_view sText, TVtElements& aVt) {
  CTabText Text(sText);
  CTabRow A(nFieldLimit), B(nFieldLimit);
  std::string_view sLineA, sLineB, sLine3;
  double dCurveEndHeight = 0;
  if (!Text.NextLine(sLineA) || !Text.NextLine(sLineA)) return;
  while (Text.NextLine(sLineA) && Text.NextLine(sLineB) && Text.NextLine(sLine3)) {
    A.Cut(sLineA);
    B.Cut(sLineB);
    TakeBlock(A, B, dCurveEndHeight, aVt);
  }
}

}  // namespace

bool ImportVtTabbed(TVtElements& aVt, std::string_view sRtf) {
  return Guard("ImportVtTabbed", false, [&] {
    aVt.assign(1, {});
    ReadBlocks(RtfToText(sRtf), aVt);
    return UpperBound(aVt) >= 1;
  });
}

}  // namespace vrek::Entry
