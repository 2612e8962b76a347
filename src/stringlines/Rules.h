// The naming rules of the stringline engine and the routines under them. Internal to this folder.
//
// A rule works on one surface (section from 1, surface from 0) and looks at the section just before it, which
// is finished by then. Each works on what the one before left, in the order of this header.
#pragma once

#include "stringlines/PointModel.h"

namespace vrek::CCrSec {

/// Links points that lie at the offset of a point of the section before (closer than dTolerance, metres). A
/// surface without a predecessor only registers its offset texts in the layer.
void NamesByDistance(TCrData& Cr, int nSection, int nSurface, double dTolerance);

/// Links the two outer points to those of the section before, however far they moved; with bSameSide only on
/// the same side of the axis.
void NamesByEnds(TCrData& Cr, int nSection, int nSurface, bool bSameSide);

/// Links unnamed points between two named ones to what lies between the same two codes in the section before.
/// Sorts both surfaces by offset.
void NamesByProximity(TCrData& Cr, int nSection, int nSurface);

/// Starts a new line at each point that is still unnamed. Ends the surface's work.
void NamesToRest(TCrData& Cr, int nSection, int nSurface);

/// Groups of This and Last points of equal offset, in the order of making. A chain of This points each closer
/// than dTolerance (metres) to the one before stays in one group.
std::vector<TSegment> GroupByDistance(const TPoints& aThis, const TPoints& aLast, double dTolerance);

/// Gives the This points of each group the codes of as many Last points, from the lowest up. Gives how many.
int NameGroups(TPoints& aThis, const TPoints& aLast, std::vector<TSegment>& aGroups);

/// Links the first or last points of the lists. Gives 1 when the This point was named, else 0.
int NameEnd(TPoints& aThis, const TPoints& aLast, bool bLastEnd, bool bSameSide);

/// The stretches between neighbouring named points that have points to name, each with the stretch between
/// the same codes in the Last list. A failure goes to the log.
std::vector<TSegment> GetSegments(const TPoints& aThis, const TPoints& aLast);

/// One unnamed point against several of the section before. Ties are added to the This list as phantoms.
void OneToSeveral(TPoints& aThis, int nThis, const TPoints& aLast, const TIndexes& aLastIndexes);

/// Several unnamed points against one of the section before. Ties note its code as the line they branch off.
void SeveralToOne(const TPoints& aLast, int nLast, TPoints& aThis, const TIndexes& aThisIndexes);

/// Several against several: as many by place in their lists, else the nearest pairs first. Failures are
/// reported.
void SeveralToSeveral(TPoints& aThis, const TIndexes& aThisIndexes, const TPoints& aLast,
                      const TIndexes& aLastIndexes);

/// For each source point that finds one, its nearest target: the first that FindNearest gives.
std::vector<TNearest> MatchNearest(const TPoints& aTargets, const TIndexes& aTargetIndexes,
                                   const TPoints& aSources, const TIndexes& aSourceIndexes,
                                   bool bWithContinue, bool bSameSide);

}  // namespace vrek::CCrSec
