#include "checks/CAligmentCheck.h"

#include <cmath>

#include "base/Checked.h"
#include "checks/Reports.h"
#include "geometry/Alg.h"
#include "shell/AppModel.h"
#include "shell/ErrHandler.h"

namespace vrek::CAligmentCheck {

namespace {

constexpr std::string_view sNoLength = "Invalid element lenght";

// A body that ends quietly on a failure; what it found until then stays in the report.
template <class TResult, class TBody>
TResult Quietly(TResult Fallback, TBody&& Body) {
  try {
    return Body();
  } catch (...) {
    return Fallback;
  }
}

// Where element i of an alignment ends by its own values.
THzPoint EndOfElement(const THzElements& aHz, int i) {
  const THzElement Element = Alg::InRadians(Checked::At(aHz, i));
  const THzElement& Next = Checked::At(aHz, i + 1);
  switch (Alg::GetElementKind(Element)) {
    case Alg::eStraight:
      return Alg::GetPointOnLine(Element.dLength, Element);
    case Alg::eArc:
      return Alg::GetPointOnArc(Element.dLength, Element);
    case Alg::eClothoid:
      return Alg::GetPointOnClothoid(Element.dLength, std::fabs(Next.dRadius), Element);
    default:
      return Alg::GetPointOnCubicSpiral(std::fabs(Element.dParameter), Checked::At(aHz, i - 1).dRadius == 0,
                                        Element, Next);
  }
}

void CheckMeeting(const THzElements& aHz, int i, double dTolerance) {
  const THzPoint End = EndOfElement(aHz, i);
  const THzElement& Next = Checked::At(aHz, i + 1);
  const double dX = End.dX - Next.dX;
  const double dY = End.dY - Next.dY;
  const double dDistance = Checked::Sqrt(dX * dX + dY * dY);
  if (dDistance > dTolerance)
    AddReportError(Next.dChainage, true, dX, dY, dNotGiven, dDistance, AppModel().GetToken("E_TOLE_HZ"));
}

// Adds a finding for each chainage outside the vertical alignment. Both its ends are inside.
bool CheckInside(const TVtElements& aVt, const std::vector<double>& aChainages, std::string_view sToken) {
  return Quietly(false, [&] {
    double dStart = 0, dEnd = 0;
    if (UpperBound(aVt) > 0) {
      dStart = aVt[1].dChainage;
      dEnd = Checked::Finite(aVt.back().dChainage + aVt.back().dLength);
    }
    for (const double dChainage : aChainages) {
      if (dChainage < dStart || dChainage > dEnd)
        AddReportError(dChainage, true, dNotGiven, dNotGiven, dNotGiven, dNotGiven,
                       AppModel().GetToken(sToken));
    }
    return CurrentReport().nErrors != 0;
  });
}

}  // namespace

int CheckHz(const THzElements& aHz, double dTolerance) {
  return Guard("CheckHz", 0, [&] {
    // Clothoids of no length
    for (int i = 1; i <= UpperBound(aHz); ++i) {
      const THzElement& Element = Checked::At(aHz, i);
      if (Element.dLength == 0 && Element.dParameter != 0)
        AddReportError(Element.dChainage, true, dNotGiven, dNotGiven, dNotGiven, dNotGiven, sNoLength);
    }
    // Does each element end where the next one starts?
    for (int i = 1; i < UpperBound(aHz); ++i) CheckMeeting(aHz, i, dTolerance);
    return CurrentReport().nErrors;
  });
}

int CheckVt(const TVtElements& aVt, double dTolerance) {
  return Quietly(0, [&] {
    for (int i = 1; i < UpperBound(aVt); ++i) {
      const TVtElement& Element = Checked::At(aVt, i);
      if (Element.dKv == 0) continue;
      const TVtElement& Next = Checked::At(aVt, i + 1);
      const double dHeight = GM::GetHeightInElement(Element, Element.dLength);
      const double dDifference = Checked::Finite(std::fabs(dHeight - Next.dHeight));
      if (dDifference > dTolerance)
        AddReportError(Next.dChainage, true, dNotGiven, dNotGiven, dDifference, dNotGiven,
                       AppModel().GetToken("E_TOLE_VT"));
    }
    return CurrentReport().nErrors;
  });
}

bool CheckTunnel(const TVtElements& aVt, const std::vector<double>& aChainages) {
  return CheckInside(aVt, aChainages, "E_TOLE_TUNNEL");
}

bool CheckSuperelevation(const TVtElements& aVt, const std::vector<double>& aChainages) {
  return !aVt.empty() && CheckInside(aVt, aChainages, "E_TOLE_SUPERELV");
}

}  // namespace vrek::CAligmentCheck
