#include "preview/Preview.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/Failure.h"
#include "design_data/CAligmentsDatas.h"
#include "landxml/ChainageLimits.h"
#include "preview/Sections.h"

namespace vrek::Preview {
namespace {

void AddAligment(TPreview& Shown, const TPreviewChoice& Choice, const TPreviewChoice::TName& Name) {
  using namespace CLandXML;
  const int nType = CAligmentsDatas::GetAligmentType(Name.nAligment);
  if ((nType & AligmentType::nHz) == 0) return;
  const auto& aHz = CAligmentsDatas::GetAligmentHz(Name.nAligment);
  if (UpperBound(aHz) < 1) return;
  if (Shown.aAligments.empty()) {
    Shown.dOriginX = aHz[1].dX;
    Shown.dOriginY = aHz[1].dY;
  }
  TPreviewAligment Aligment{Name.nAligment, Name.sName, {}, {}, {}};
  const auto Plan = ChooseElements(aHz, Choice.dChStart, Choice.dChEnd, Alg::FindHzElement, 0);
  Aligment.aElements = MakePlan(aHz, Plan.nFirst, Plan.nLast, Shown.dOriginX, Shown.dOriginY);
  if (nType & AligmentType::nVt) {
    const auto& aVt = CAligmentsDatas::GetAligmentVt(Name.nAligment);
    if (UpperBound(aVt) >= 1) {
      const auto Range = ChooseElements(aVt, Choice.dChStart, Choice.dChEnd, Alg::FindVtElement, 1);
      Aligment.aProfile = MakeProfile(aVt, Range.nFirst, Range.nLast);
    }
  }
  Aligment.aSections = MakeSections(Name.nAligment, Choice);
  Shown.aAligments.push_back(std::move(Aligment));
}

// Distance of a point from a chord.
double DistanceTo(const TPlanPoint& A, const TPlanPoint& B, double dX, double dY) {
  const double dx = B.dX - A.dX, dy = B.dY - A.dY, dSquare = dx * dx + dy * dy;
  const double t = dSquare > 0 ? std::clamp(((dX - A.dX) * dx + (dY - A.dY) * dy) / dSquare, 0.0, 1.0) : 0.0;
  return std::hypot(dX - A.dX - t * dx, dY - A.dY - t * dy);
}

}  // namespace

TPreview MakePreview(const TPreviewChoice& Choice) {
  TPreview Shown;
  for (const auto& Name : Choice.aNames) {
    try {
      AddAligment(Shown, Choice, Name);
    } catch (const Failure&) {
      // An alignment that can't be worked out isn't drawn; the export has told why.
    }
  }
  return Shown;
}

double FirstChainage(const TPreviewAligment& Aligment) {
  return Aligment.aElements.empty() ? 0 : Aligment.aElements.front().dChainage;
}

double LastChainage(const TPreviewAligment& Aligment) {
  if (Aligment.aElements.empty()) return 0;
  return Aligment.aElements.back().dChainage + Aligment.aElements.back().dLength;
}

TPlanPlace PlaceAt(const TPreviewAligment& Aligment, double dChainage) {
  const auto& aElements = Aligment.aElements;
  if (aElements.empty()) return {};
  auto it = std::upper_bound(aElements.begin(), aElements.end(), dChainage,
                             [](double d, const TPlanElement& Element) { return d < Element.dChainage; });
  if (it != aElements.begin()) --it;
  const auto& aPoints = it->aPoints;
  auto To = std::upper_bound(aPoints.begin(), aPoints.end(), dChainage,
                             [](double d, const TPlanPoint& Point) { return d < Point.dChainage; });
  To = std::clamp(To, aPoints.begin() + 1, aPoints.end() - 1);
  const auto &A = *(To - 1), &B = *To;
  const double dSpan = B.dChainage - A.dChainage, dChord = std::hypot(B.dX - A.dX, B.dY - A.dY);
  const double t = dSpan > 0 ? std::clamp((dChainage - A.dChainage) / dSpan, 0.0, 1.0) : 0.0;
  TPlanPlace Place{{A.dX + t * (B.dX - A.dX), A.dY + t * (B.dY - A.dY), dChainage}, 0, 1};
  if (dChord > 0) Place.dAlongX = (B.dX - A.dX) / dChord, Place.dAlongY = (B.dY - A.dY) / dChord;
  return Place;
}

TElementIndex FindElement(const TPreview& Shown, double dX, double dY, double dWithin) {
  TElementIndex Found;
  double dNearest = dWithin;
  for (std::size_t a = 0; a < Shown.aAligments.size(); ++a) {
    const auto& aElements = Shown.aAligments[a].aElements;
    for (std::size_t e = 0; e < aElements.size(); ++e) {
      const auto& aPoints = aElements[e].aPoints;
      for (std::size_t n = 1; n < aPoints.size(); ++n) {
        const double dDistance = DistanceTo(aPoints[n - 1], aPoints[n], dX, dY);
        if (!(dDistance < dNearest)) continue;
        dNearest = dDistance;
        Found = {static_cast<int>(a), static_cast<int>(e)};
      }
    }
  }
  return Found;
}

}  // namespace vrek::Preview
