// The stringline engine a second time, as plainly as it can be put: codes and labels as texts in the points,
// lists copied and copied back, every search a walk. Slow, and the reference that the real one is held
// against.
#pragma once

#include <string>
#include <vector>

#include "records/CrossSections.h"

namespace vrek::test::plain {

struct TPoint {
  double dOffset = 0, dHeight = 0;
  std::string sCode, sLink;
  bool bContinue = false, bPhantom = false;
  bool operator==(const TPoint&) const = default;
};
struct TSurface {
  int nLayer = 0;
  bool bDone = false;
  std::vector<TPoint> aPoints;
  bool operator==(const TSurface&) const = default;
};
struct TLayer {
  std::string sName;
  std::vector<std::string> aCodes;
  bool operator==(const TLayer&) const = default;
};
struct TSection {
  double dChainage = 0;
  std::vector<TSurface> aSurfaces;
  bool operator==(const TSection&) const = default;
};
struct TRoad {
  std::vector<TSection> aSections;
  std::vector<TLayer> aLayers;
  bool operator==(const TRoad&) const = default;
};

/// The same road with texts instead of handles.
TRoad FromData(const TCrData& Cr);

void NameFirstSurfaces(TRoad& Road);
/// Names the sections; from section nFailAt on (0: never) nothing is done and the codes stay unsorted.
void ApplyRules(TRoad& Road, const std::string& sLines, int nFailAt);
/// The bytes of CrossSects for the sections nFirst to nLast.
std::string Export(TRoad& Road, const std::string& sLines, int nFirst, int nLast);

}  // namespace vrek::test::plain
