// An independent way along an alignment: integrates the curvature numerically, without any formula of the
// converter.
#pragma once

#include <cmath>
#include <vector>

#include "geometry/GM.h"

namespace vrek::test {

/// One piece of a laid-out alignment: curvature 1/radius at its ends, positive right.
struct TPiece {
  double dLength = 0;
  double dStart = 0;
  double dEnd = 0;
};

/// Point s metres into a piece that starts at a point with an azimuth in radians (Gauss-Legendre, 5 nodes a
/// metre).
inline THzPoint Integrate(THzPoint Start, const TPiece& Piece, double s) {
  constexpr double aNodes[] = {0, 0.5384693101056831, -0.5384693101056831, 0.9061798459386640,
                               -0.9061798459386640};
  constexpr double aWeights[] = {0.5688888888888889, 0.4786286704993665, 0.4786286704993665,
                                 0.2369268850561891, 0.2369268850561891};
  const auto Azimuth = [&](double t) {
    return Start.dAzimuth + Piece.dStart * t + (Piece.dEnd - Piece.dStart) * t * t / (2 * Piece.dLength);
  };
  const int nSteps = std::max(1, static_cast<int>(std::ceil(s)));
  const double h = s / nSteps;
  THzPoint Point = Start;
  for (int n = 0; n < nSteps; ++n) {
    for (int k = 0; k < 5; ++k) {
      const double a = Azimuth(h * (n + (1 + aNodes[k]) / 2));
      Point.dX += aWeights[k] * h / 2 * std::sin(a);
      Point.dY += aWeights[k] * h / 2 * std::cos(a);
    }
  }
  Point.dAzimuth = Azimuth(s);
  return Point;
}

/// The elements of a layout and, behind them, the point where it ends as a straight of 10 m.
inline THzElements LayOut(THzPoint Start, double dChainage, const std::vector<TPiece>& aPieces) {
  THzElements aHz(1);
  const auto Add = [&](double dRadius, double dParameter, double dLength) {
    THzElement Element;
    Element.nId = static_cast<int>(aHz.size());
    Element.dChainage = dChainage;
    Element.dX = Start.dX;
    Element.dY = Start.dY;
    Element.dAzimuth = Start.dAzimuth / GM::dGonToRadians;
    Element.dRadius = dRadius;
    Element.dParameter = dParameter;
    Element.dLength = dLength;
    aHz.push_back(Element);
  };
  for (const auto& Piece : aPieces) {
    const double dTurn = Piece.dStart + Piece.dEnd > 0 ? 1 : -1;
    if (Piece.dStart == Piece.dEnd) {
      Add(Piece.dStart == 0 ? 0 : 1 / Piece.dStart, 0, Piece.dLength);
    } else {
      const double dParameter = std::sqrt(Piece.dLength / std::fabs(Piece.dEnd - Piece.dStart));
      Add(Piece.dStart == 0 ? dTurn * GM::dInfiniteRadius : 1 / Piece.dStart, dParameter, Piece.dLength);
    }
    Start = Integrate(Start, Piece, Piece.dLength);
    dChainage += Piece.dLength;
  }
  Add(0, 0, 10);
  return aHz;
}

}  // namespace vrek::test
