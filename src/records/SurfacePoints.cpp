#include "records/SurfacePoints.h"

#include <cmath>
#include <string>

#include "base/Checked.h"
#include "base/FormatReal.h"

namespace vrek::CCrSec {

namespace {

constexpr double dSamePlace = 0.0001;
constexpr int nCodeDecimals = 3;

bool IsSamePlace(double dOffset1, double dHeight1, double dOffset2, double dHeight2) {
  return std::abs(Checked::Finite(dOffset1 - dOffset2)) < dSamePlace &&
         std::abs(Checked::Finite(dHeight1 - dHeight2)) < dSamePlace;
}

}  // namespace

int DeleteDuplicatedpoints(std::vector<TCrPoint>& aPoints) {
  if (aPoints.empty()) return 0;
  double dOffset = aPoints[0].dOffset, dHeight = aPoints[0].dHeight;
  std::size_t nKept = 1;
  for (std::size_t i = 1; i < aPoints.size(); ++i) {
    const double dOwnOffset = aPoints[i].dOffset, dOwnHeight = aPoints[i].dHeight;
    if (!IsSamePlace(dOwnOffset, dOwnHeight, dOffset, dHeight)) aPoints[nKept++] = aPoints[i];
    dOffset = dOwnOffset;
    dHeight = dOwnHeight;
  }
  const auto nRemoved = static_cast<int>(aPoints.size() - nKept);
  aPoints.resize(nKept);
  return nRemoved;
}

TCode NewCode(TCrLayer& Layer, const TCrPoint& Point) {
  std::string sCode = FormatReal(Point.dOffset, nCodeDecimals);
  const int nSame = Layer.aCodes.CountBeginning(sCode);
  if (nSame != 0) sCode += "_" + std::to_string(nSame + 1);
  return Layer.aCodes.Append(sCode);
}

TCode FindOrNewCode(TCrLayer& Layer, const TCrPoint& Point) {
  // A numbered code is only made behind the plain one, so the plain one is there whenever any begins with it.
  const TCode sCode = Layer.aCodes.Find(FormatReal(Point.dOffset, nCodeDecimals));
  return sCode.empty() ? NewCode(Layer, Point) : sCode;
}

void NameSurface(TCrSurface& Surface, TCrLayer& Layer) {
  for (TCrPoint& Point : Surface.Points) Point.sCode = NewCode(Layer, Point);
}

}  // namespace vrek::CCrSec
