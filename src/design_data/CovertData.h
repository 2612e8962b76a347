// CovertData: from the points that a cross-section reader collects to the sections of the store.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "records/CrossSections.h"

namespace vrek::CovertData {

/// A listing's point: signed distance from the axis and height, metres.
struct TOffsetHeight {
  double dOffset = 0;
  double dHeight = 0;
};

/// The points of one layer in the section under work, from 0, in listing order.
using PointList3D = std::vector<TOffsetHeight>;

/// Layers by index.
inline constexpr std::uint8_t nTaludes = 0, nCunetas = 1, nSubrasante = 2, nRasante = 3;

/// One list for each layer.
using TPointLists = std::array<PointList3D, 4>;

/// The record that every reader starts from: four named layers without codes, no sections.
void StartCr(TCrData& Cr);

/// Appends a section with a surface for each list that holds points, in the order of the layers.
void AddCrSection(TCrData& Cr, double dChainage, const TPointLists& aLists);

/// Appends a surface to the last section: the list's points without duplicates, named if they are the layer's
/// first. Values beyond the doubles: failure 6.
void AddCrSurface(TCrData& Cr, const PointList3D& aPoints, std::uint8_t nLayer);

/// Sorts a list from index nFirst on, rising; equal values stay. Reports failures with the source
/// "SortDoubles".
void SortDoubles(std::vector<double>& aValues, std::size_t nFirst = 1);

}  // namespace vrek::CovertData
