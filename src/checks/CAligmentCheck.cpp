#include "checks/CAligmentCheck.h"

#include <cmath>

#include "base/Checked.h"
#include "checks/Reports.h"
#include "geometry/Alg.h"
#include "shell/AppModel.h"
#include "shell/ErrHandler.h"

namespace vrek::CAligmentCheck {
namespace {

// Where element i of a plan ends, by its own geometry; the next one's radius is that at a clothoid's end.
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
      break;
  }
  const bool bFromStart = Checked::At(aHz, i - 1).dRadius == 0;
  return Alg::GetPointOnCubicSpiral(std::fabs(Element.dParameter), bFromStart, Element, Next);
}

void CheckClothoidLengths(const THzElements& aHz) {
  for (int i = 1; i <= UpperBound(aHz); ++i) {
    const THzElement& Element = Checked::At(aHz, i);
    if (Element.dLength != 0 || Element.dParameter == 0) continue;
    AddReportError(Element.dChainage, true, dNotGiven, dNotGiven, dNotGiven, dNotGiven,
                   "Invalid element lenght");
  }
}

void CheckMeeting(const THzElements& aHz, int i, double dTolerance) {
  const THzPoint End = EndOfElement(aHz, i);
  const THzElement& Next = Checked::At(aHz, i + 1);
  const double dX = End.dX - Next.dX, dY = End.dY - Next.dY;
  const double dDistance = Checked::Sqrt(dX * dX + dY * dY);
  if (dDistance > dTolerance) {
    AddReportError(Next.dChainage, true, dX, dY, dNotGiven, dDistance, AppModel().GetToken("E_TOLE_HZ"));
  }
}

// Runs a check that ends quietly on a failure; what it has found so far stays.
template <class TBody>
bool Quietly(TBody&& Body) {
  try {
    Body();
    return true;
  } catch (...) {
    return false;
  }
}

bool CheckRange(const TVtElements& aVt, const std::vector<double>& aChainages, const char* sToken) {
  bool bWrong = false;
  Quietly([&] {
    double dStart = 0, dEnd = 0;
    if (UpperBound(aVt) >= 1) {
      dStart = aVt[1].dChainage;
      dEnd = aVt.back().dChainage + aVt.back().dLength;
    }
    for (const double d : aChainages) {
      if (d >= dStart && d <= dEnd) continue;
      AddReportError(d, true, dNotGiven, dNotGiven, dNotGiven, dNotGiven, AppModel().GetToken(sToken));
    }
    bWrong = CurrentReport().nErrors != 0;
  });
  return bWrong;
}

}  // namespace

int CheckHz(const THzElements& aHz, double dTolerance) {
  return Guard("CheckHz", 0, [&] {
    CheckClothoidLengths(aHz);
    for (int i = 1; i < UpperBound(aHz); ++i) CheckMeeting(aHz, i, dTolerance);
    return CurrentReport().nErrors;
  });
}

int CheckVt(const TVtElements& aVt, double dTolerance) {
  int nErrors = 0;
  Quietly([&] {
    for (int i = 1; i < UpperBound(aVt); ++i) {
      const TVtElement& Element = Checked::At(aVt, i);
      const TVtElement& Next = Checked::At(aVt, i + 1);
      if (Element.dKv == 0) continue;
      const double dZ = std::fabs(GM::GetHeightInElement(Element, Element.dLength) - Next.dHeight);
      if (!(dZ > dTolerance)) continue;
      AddReportError(Next.dChainage, true, dNotGiven, dNotGiven, dZ, dNotGiven,
                     AppModel().GetToken("E_TOLE_VT"));
    }
    nErrors = CurrentReport().nErrors;
  });
  return nErrors;
}

bool CheckTunnel(const TVtElements& aVt, const std::vector<double>& aChainages) {
  return CheckRange(aVt, aChainages, "E_TOLE_TUNNEL");
}

bool CheckSuperelevation(const TVtElements& aVt, const std::vector<double>& aChainages) {
  return !aVt.empty() && CheckRange(aVt, aChainages, "E_TOLE_SUPERELV");
}

}  // namespace vrek::CAligmentCheck
