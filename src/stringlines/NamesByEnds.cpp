// The second rule, for the outer points of a surface, and the last one, for what no rule could link.
#include "base/Checked.h"
#include "records/SurfacePoints.h"
#include "stringlines/Rules.h"

namespace vrek::CCrSec {

void NamesByEnds(TCrData& Cr, int nSection, int nSurface, bool bSameSide) {
  const TThisAndLast Lists = GetPointThisAndLast(Cr, nSection, nSurface);
  if (!Lists) return;
  NameEnd(*Lists.pThis, *Lists.pLast, false, bSameSide);
  NameEnd(*Lists.pThis, *Lists.pLast, true, bSameSide);
  if (CountUnnamed(*Lists.pThis) == 0)
    Checked::At(Checked::At(Cr.Sections, nSection).Surfaces, nSurface).bDone = true;
}

int NameEnd(TPoints& aThis, const TPoints& aLast, bool bLastEnd, bool bSameSide) {
  if (aThis.empty() || aLast.empty()) return 0;
  // An end that has a code keeps it
  TCrPoint& End = bLastEnd ? aThis.back() : aThis.front();
  if (!End.sCode.empty()) return 0;
  // The code at the same end of the section before
  const TCrPoint& LastEnd = bLastEnd ? aLast.back() : aLast.front();
  // Claimed already one place further in; a lone point has nobody beside it
  const std::size_t nNeighbour = bLastEnd && aThis.size() > 1 ? aThis.size() - 2 : 1;
  if (nNeighbour < aThis.size() && aThis[nNeighbour].sCode == LastEnd.sCode) return 0;
  // The side must be the very same: an end on the axis doesn't match one beside it
  if (bSameSide && Sign(End.dOffset) != Sign(LastEnd.dOffset)) return 0;
  // The line goes on
  End.sCode = LastEnd.sCode;
  return 1;
}

void NamesToRest(TCrData& Cr, int nSection, int nSurface) {
  TCrSurface& Surface = Checked::At(Checked::At(Cr.Sections, nSection).Surfaces, nSurface);
  TCrLayer& Layer = Checked::At(Cr.Layers, Surface.nLayer);
  for (TCrPoint& Point : Surface.Points) {
    if (Point.sCode.empty()) Point.sCode = NewCode(Layer, Point);
  }
  Surface.bDone = true;
}

}  // namespace vrek::CCrSec
