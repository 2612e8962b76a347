// The elements of a horizontal and of a vertical alignment. Metres; X east, Y north; azimuths in gon (400 to
// the full circle) clockwise from north; gradients as fractions. In an array of elements, element 0 exists,
// stays zero and is never used: the first element is 1, and an upper bound of 0 is an empty alignment. An
// array without elements (upper bound -1) is one that no reader has touched.
#pragma once

#include <cstdint>
#include <type_traits>
#include <vector>

namespace vrek {

/// One element of a horizontal alignment, from its own start to the start of the following element.
struct THzElement {
  std::int32_t nId = 0;  ///< sequence number, from 1
  double dChainage = 0;  ///< of the start
  double dX = 0;
  double dY = 0;
  double dAzimuth = 0;  ///< at the start, gon (radians in working copies that say so)
  double dRadius =
      0;  ///< 0: straight. Positive turns right. On a spiral the radius at its start; 0.001 is infinite
  double dParameter = 0;  ///< 0: straight or arc; A of a clothoid; negative: a cubic spiral
  double dLength = 0;
};

/// One element of a vertical alignment.
struct TVtElement {
  std::int32_t nId = 0;  ///< sequence number, from 1
  double dChainage = 0;  ///< of the start
  double dHeight = 0;    ///< of the start
  double dSlope = 0;     ///< gradient at the start
  double dKv = 0;      ///< 0: straight grade; else the curve's signed parameter: negative crest, positive sag
  double dLength = 0;  ///< along the chainage; negative marks a circular vertical curve
};

static_assert(std::is_trivially_copyable_v<THzElement>);
static_assert(std::is_trivially_copyable_v<TVtElement>);

using THzElements = std::vector<THzElement>;
using TVtElements = std::vector<TVtElement>;

/// Last index of an array; -1 for an array without elements.
template <class TArray>
int UpperBound(const TArray& aItems) {
  return static_cast<int>(aItems.size()) - 1;
}

}  // namespace vrek
