// Preview: what the document holds, as polylines to be drawn. Metres; X east, Y north, both from the local
// origin; chainages and heights as they are.
#pragma once

#include <string>
#include <vector>

#include "geometry/Alg.h"

namespace vrek {

struct TPlanPoint {
  double dX = 0, dY = 0;
  double dChainage = 0;
};

/// One element of a plan with its data. A radius of 0 is infinite; positive turns right.
struct TPlanElement {
  Alg::EElementKind eKind = Alg::eStraight;
  double dChainage = 0;  ///< of the start
  double dLength = 0;
  double dRadiusStart = 0, dRadiusEnd = 0;
  double dParameter = 0;            ///< A of a clothoid; 0 for straights and arcs
  std::vector<TPlanPoint> aPoints;  ///< at least two; chords within dChordTolerance of the curve
};

struct TProfilePoint {
  double dChainage = 0, dHeight = 0;
};

/// Elements of a profile that follow each other and are of one kind.
struct TProfileRun {
  bool bCurve = false;
  std::vector<TProfilePoint> aPoints;
};

struct TSectionPoint {
  double dOffset = 0, dHeight = 0;
};

struct TSectionLine {
  std::string sName;  ///< layer; empty for the two rails of a track
  std::vector<TSectionPoint> aPoints;
};

struct TPreviewSection {
  double dChainage = 0;
  std::vector<TSectionLine> aLines;
};

struct TPreviewAligment {
  int nAligment = 0;
  std::string sName;
  std::vector<TPlanElement> aElements;
  std::vector<TProfileRun> aProfile;
  std::vector<TPreviewSection> aSections;  ///< as written: in the order of the listing or table
};

struct TPreview {
  double dOriginX = 0, dOriginY = 0;  ///< of the plan, in the coordinates of the listings
  std::vector<TPreviewAligment> aAligments;
};

/// What is to be shown: the choices of the Exporting page.
struct TPreviewChoice {
  struct TName {
    int nAligment = 0;
    std::string sName;
  };
  std::vector<TName> aNames;
  double dChStart = 0, dChEnd = 0;  ///< chainage limits; elements are taken whole, as in the document
  std::string sLayers;              ///< "$Taludes$Rasante$"
};

namespace Preview {

inline constexpr double dChordTolerance = 0.002;  // metres

/// Works the drawing out of the store. What can't be worked out is left out, without a report: the export has
/// told of it.
TPreview MakePreview(const TPreviewChoice& Choice);

// The parts of an alignment.
std::vector<TPlanElement> MakePlan(const THzElements& aHz, int nFirst, int nLast, double dOriginX,
                                   double dOriginY);
std::vector<TProfileRun> MakeProfile(const TVtElements& aVt, int nFirst, int nLast);

/// The place of a chainage on a plan, and the direction of the alignment there (a vector of length 1); the
/// nearest end for a chainage outside it. An alignment without elements: all 0.
struct TPlanPlace {
  TPlanPoint Point;
  double dAlongX = 0, dAlongY = 0;
};
TPlanPlace PlaceAt(const TPreviewAligment& Aligment, double dChainage);

/// First and last chainage of a plan; 0 and 0 without elements.
double FirstChainage(const TPreviewAligment& Aligment);
double LastChainage(const TPreviewAligment& Aligment);

/// An element of a plan by its indexes; -1 for none.
struct TElementIndex {
  int nAligment = -1, nElement = -1;
  bool IsGiven() const { return nAligment >= 0; }
  friend bool operator==(const TElementIndex&, const TElementIndex&) = default;
};

/// The element whose line passes nearest to a point, if it passes within a distance.
TElementIndex FindElement(const TPreview& Shown, double dX, double dY, double dWithin);

}  // namespace Preview
}  // namespace vrek
