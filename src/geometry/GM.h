// GM: geometry of a single element: angles, points, arcs, clothoids, heights. Stateless.
// X east, Y north. Azimuth: clockwise from +Y, radians here unless "gon" is said (gon in the store).
//
//        +Y                        dRadius > 0: turns right (azimuth grows)
//         |  / azimuth             dRadius < 0: turns left
//         | /                      |dRadius| = 0.001 on a clothoid: infinite (starts from a straight)
//         +------ +X
//
// A floating-point fault (division by zero, root of a negative number) is thrown as a Failure.
#pragma once

#include "records/Elements.h"

namespace vrek {

/// What the point routines give, and the form of every point argument (there the azimuth isn't read unless
/// said).
struct THzPoint {
  double dX = 0;
  double dY = 0;
  double dAzimuth = 0;  ///< radians
};

namespace GM {

// Literals that belong to the arithmetic. They are decimal, not the full-precision values, and differ between
// routines: results must come out the same to the last bit whoever computes them.
inline constexpr double dPi = 3.14159265358979;
inline constexpr double dHalfPi = 1.5707963267949;
inline constexpr double dThreeHalvesPi = 4.71238898038469;
inline constexpr double dTwoPiNormalize = 6.28318530717958;  ///< NormalizeAngle
inline constexpr double dTwoPiAzimuth = 6.28318530717959;    ///< GetAzimuth
inline constexpr double dGonToRadians = 0.015707963267949;
inline constexpr double dInfiniteRadius = 0.001;  ///< magnitude that stands for an infinite start radius

/// Arcsine, radians; ArcSin(-1) is 3π/2. Magnitude above 1: failure 5.
double ArcSin(double x);

/// One step towards [0, 2π): not a loop.
void NormalizeAngle(double& dAngle);

/// NormalizeAngle as a value.
double Normalized(double dAngle);

/// The point at a distance along an azimuth, carrying that azimuth.
THzPoint PolarPoint(const THzPoint& Point, double dAzimuth, double dDistance);

/// Azimuth from point 1 to point 2; π for equal points.
double GetAzimuth(const THzPoint& Point1, const THzPoint& Point2);

/// Plan distance.
double GetDistance(const THzPoint& Point1, const THzPoint& Point2);

/// The point reached after dLength metres along an arc that leaves Start.
///
/// dRadius   signed radius, metres; must not be 0.
/// dLength   arc length, metres; its sign is ignored.
/// dAzimuth  azimuth at Start, radians.
/// Gives the point with the azimuth there, normalized by one step.
THzPoint PointOnArc(const THzPoint& Start, double dRadius, double dLength, double dAzimuth);

/// Centre of an arc between two points; Start when dRadius is 0. A chord beyond the diameter: failure 5.
THzPoint GetArcCenter(const THzPoint& Start, const THzPoint& End, double dRadius, double dLength);

/// Signed radius at the end of a clothoid whose curvature falls, 0 for infinite. Needs only the element.
double GetClothoidEndRadius(const THzElement& Clothoid);

/// The better estimate where a next element exists. Clothoid carries its azimuth in radians; dNextAzimuth in
/// radians, dNextRadius signed. Gives the signed radius at the end, 0 for infinite.
double ChooseClothoidEndRadius(const THzElement& Clothoid, double dNextAzimuth, double dNextRadius);

/// Signed start radius of a clothoid, which no listing prints, from the azimuths (gon) at its start and end,
/// the radii of its neighbours and its parameter A. Magnitude 0.001 for a start from a straight.
double GetClothoidStartRadius(double dAzimuth1, double dAzimuth2, double dRadius1, double dRadius2,
                              double dParameter);

/// Coordinates on the clothoid of parameter 1 where the tangent has turned by dTau radians: 50 terms of the
/// Maclaurin series of the Fresnel integrals, x along the tangent at the origin.
void ClothoidUnitPoint(double dTau, double& dUnitX, double& dUnitY);

/// Intersection of the start and end tangents of a spiral. End with its azimuth; Spiral's azimuth in radians. Parallel
/// tangents give the start.
THzPoint GetSpiralPI(const THzPoint& End, const THzElement& Spiral);

/// Mirror image in the horizontal line through LinePoint1 (the rise of the line is taken as 0 whatever
/// LinePoint2's Y). Equal X of both: failure 11.
THzPoint MirrorPoint(const THzPoint& LinePoint1, const THzPoint& LinePoint2, const THzPoint& Point);

/// Height of a vertical alignment at a chainage. Beyond the end the last element goes on; before the start 0;
/// an empty array 0. Carries on over any fault.
double GetHeightAtChainage(const TVtElements& aVt, double dChainage);

/// The same from a known element; any fault, also a number outside the array, gives 0.
double GetHeightFromElement(const TVtElements& aVt, int nElement, double dChainage);

/// Height at a distance from the element's start.
double GetHeightInElement(const TVtElement& Element, double dDistance);

/// Height on a circular vertical curve at a distance from its start. Beyond the circle: failure 5.
double GetHeightOnCircle(const TVtElement& Element, double dDistance);

/// Start point of an element, without its azimuth.
inline THzPoint StartOf(const THzElement& Element) {
  return {Element.dX, Element.dY, 0};
}

}  // namespace GM
}  // namespace vrek
