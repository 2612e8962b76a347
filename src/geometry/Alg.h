// Alg: places on an alignment. From a chainage to a point (Alg_Evaluation.cpp), from a chainage to its
// element (Alg_LookUp.cpp), from a point back to chainage and offset (Alg_Projection.cpp). Offsets: positive
// to the right of the alignment in the direction of the chainage. Whoever asks often, as for samples along a
// line, takes the same routines over an index (AligmentIndex.h).
#pragma once

#include "geometry/GM.h"
#include "records/Elements.h"

namespace vrek::Alg {

enum EElementKind : unsigned char { eStraight = 0, eArc = 1, eClothoid = 2, eCubicSpiral = 3 };

/// Kind of an element: radius 0, else parameter 0, above 0, below 0.
EElementKind GetElementKind(const THzElement& Element);

/// A copy with its azimuth turned from gon into radians.
THzElement InRadians(const THzElement& Element);

/// Index of the last element that starts at or before a chainage, but at least 1; of several that start
/// there, the first. With no element above index 0: the upper bound.
int FindHzElement(double dChainage, const THzElements& aHz);
/// The same for an array that never falls back in chainage, by bisection.
int FindHzElementInOrder(double dChainage, const THzElements& aHz);
int FindVtElement(double dChainage, const TVtElements& aVt);

/// Points along one element at a distance from its start, with the azimuth there. The element's azimuth is in radians.
/// An arc of radius 0 fails (11) away from its start.
THzPoint GetPointOnLine(double dDistance, const THzElement& Element);
THzPoint GetPointOnArc(double dDistance, const THzElement& Element);

/// dEndRadius: radius at the element's end, 0 for infinite. Any fault gives a zero record.
THzPoint GetPointOnClothoid(double dDistance, double dEndRadius, const THzElement& Element);

/// The end of a cubic spiral, whatever the chainage; no azimuth. d0: transition length. Element's azimuth in
/// radians, Next's in gon. bFromStart: the element before is a straight.
THzPoint GetPointOnCubicSpiral(double d0, bool bFromStart, const THzElement& Element, const THzElement& Next);

/// Signed end radius of the clothoid aHz[nElement] (0 for infinite), with the next element's help where the
/// curvature grows: evaluation and projection along an alignment both use it.
double EndRadiusInAligment(const THzElements& aHz, int nElement);

/// Point and azimuth at a chainage; beyond the end measured from the last element. Failures (no elements, a
/// chainage before the start, a cubic spiral at either end) are reported with the source
/// "GetCoordFromHzAligment" and give false; the point stays as it was.
bool GetCoordFromHzAligment(const THzElements& aHz, double dChainage, THzPoint& Point);

/// At which chainage and offset of Target does the point at a chainage of Source lie? True if a foot point
/// lies on the target. Failures are reported with the source "ProjectChainToAnotherAligment" and give false.
bool ProjectChainToAnotherAligment(double dChainage, const THzElements& aSource, const THzElements& aTarget,
                                   double& dOffset, double& dChainPjt);

/// Chainage and offset of a point, over the elements nFirst to nLast. False without a foot point: then the
/// distance to and the chainage of the nearest vertex. Both rounded to 3 decimals, halves to even.
bool ProjectPointToAligment(double& dChainage, double& dOffset, const THzPoint& Point, const THzElements& aHz,
                            int nFirst, int nLast);

/// Element from nFirst to nLast whose start is nearest; on a tie the later one.
int FindNearestVertex(const THzPoint& Point, const THzElements& aHz, int nFirst, int nLast);

/// Projection on one element (azimuth in gon): offset, and distance along from its start.
void ProjectOnLine(double& dOffset, double& dAlong, const THzPoint& Point, const THzElement& Element);
void ProjectOnArc(double& dOffset, double& dAlong, const THzPoint& Point, const THzElement& Element);
/// dEndRadius: as EndRadiusInAligment gives it. dAlong comes in with the value that stands for "outside".
void ProjectOnClothoid(double& dOffset, double& dAlong, const THzPoint& Point, const THzElement& Element,
                       double dEndRadius);

/// Foot of a point on the clothoid of parameter 1: arc length s (unchanged when there is none), distance and
/// side (-1 concave, +1 convex).
void FootOnUnitClothoid(double& s, double& dDistance, int& nSide, const THzPoint& Point);

}  // namespace vrek::Alg
