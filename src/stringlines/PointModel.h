// What the rules of the stringline engine stand on: index lists, the two lists of a comparison, the search
// for near points and the sorts. Internal to this folder.
//
// A rule compares the This list (the surface under work) with the Last list (the surface of the same layer in
// the section before). Both are the surfaces' own points, changed in place. Offsets in metres, negative left.
#pragma once

#include <string_view>
#include <vector>

#include "base/NotGiven.h"
#include "records/CrossSections.h"
#include "shell/ErrHandler.h"
#include "shell/RepeatedFailures.h"

namespace vrek::CCrSec {

using TPoints = std::vector<TCrPoint>;
using TIndexes = std::vector<int>;  ///< indexes into a point list, from 0; often in an order that matters

/// One part of a comparison of two sections.
struct TSegment {
  TIndexes aThis;
  TIndexes aLast;
};

/// The result of one search for the nearest point.
struct TNearest {
  int nPoint = 0;                ///< the point searched for, in its own list
  int nCandidate = -1;           ///< the nearest point of the other list
  double dDistance = dNotGiven;  ///< offset of nPoint minus offset of the candidate
};

/// The two lists of a comparison. pLast is null when the section before has no surface of the layer.
struct TThisAndLast {
  TPoints* pThis = nullptr;
  TPoints* pLast = nullptr;
  explicit operator bool() const { return pLast != nullptr; }
};

/// The lists for a surface. A failure, such as a section without surfaces before this one, goes to the log.
TThisAndLast GetPointThisAndLast(TCrData& Cr, int nSection, int nSurface);

/// Index of the first surface of a layer; -1 if there is none.
int FindSurface(std::uint8_t nLayer, const std::vector<TCrSurface>& aSurfaces);

/// -1, 0 or 1.
int Sign(double dValue);

/// Whether two offsets lie on one side of the axis. An offset of 0 is on the side of any other.
bool IsSameSide(double dA, double dB);

/// The nearest of some candidates, taken in the order of their list, then ties (within 0.0001). The search
/// ends at a candidate farther away than the best, so a list out of order may hide nearer ones; and only the
/// first place gives way to a nearer candidate: ties of the one before stay.
TIndexes FindNearest(const TIndexes& aList, double dOffset, const TPoints& aPoints, bool bWithContinue,
                     bool bSameSide);

/// How many points have no code.
int CountUnnamed(const TPoints& aPoints);

/// Sorts points by offset, stable.
void SortCrSecByDistToCL(TPoints& aPoints);
/// Sorts records by the magnitude of their distance, stable.
void SortNearestPoints(std::vector<TNearest>& aNearest);
/// Sorts indexes by the height or offset of the point they stand for, stable.
void SortIndexesByHeight(TIndexes& aIndexes, const TPoints& aPoints);
void SortIndexesByOffset(TIndexes& aIndexes, const TPoints& aPoints);

/// All indexes of a list, in order of offset.
TIndexes IndexesByOffset(const TPoints& aPoints);

/// Runs a body; its failure goes to the log under the source named (once in a loop that CRepeatedFailures
/// watches), and the result is Fallback.
template <class TResult, class TBody>
TResult LogOnFailure(std::string_view sSource, TResult Fallback, TBody&& Body) {
  try {
    return Body();
  } catch (...) {
    Failure Caught = CurrentFailure();
    Caught.sSource = sSource;
    if (CRepeatedFailures::IsNews(Caught)) LogError(Caught);
    return Fallback;
  }
}

}  // namespace vrek::CCrSec
