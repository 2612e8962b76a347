// A clothoid of parameter A seen from its point of zero curvature.
#pragma once

#include <cmath>

#include "base/Checked.h"
#include "geometry/GM.h"

namespace vrek::GM {

/// What an arc length s from the point of zero curvature stands for.
struct TClothoidChord {
  double dTau = 0;    ///< τ: how far the tangent has turned, radians
  double dDelta = 0;  ///< δ: angle between the tangent at the origin and the chord
  double dChord = 0;  ///< c: length of the chord, metres
};

/// The chord of a clothoid. s 0 has no direction: failure 11.
inline TClothoidChord ClothoidChord(double dParameter, double s) {
  TClothoidChord Chord;
  Chord.dTau = s * s / (2 * dParameter * dParameter);
  double x = 0, y = 0;
  ClothoidUnitPoint(Chord.dTau, x, y);
  Chord.dDelta = std::atan(Checked::Divide(y, x));
  Chord.dChord = Checked::Sqrt((dParameter * y) * (dParameter * y) + (dParameter * x) * (dParameter * x));
  return Chord;
}

}  // namespace vrek::GM
