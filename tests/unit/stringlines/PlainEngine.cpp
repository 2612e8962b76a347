#include "PlainEngine.h"

#include <algorithm>
#include <cmath>

#include "base/FormatReal.h"
#include "base/ST.h"

namespace vrek::test::plain {
namespace {

using TPoints = std::vector<TPoint>;
using TIndexes = std::vector<int>;

struct TGroup {
  TIndexes aThis, aLast;
};

struct TRecord {
  int nPoint = 0, nCandidate = 0;
  double dDistance = 0;
};

const TPoint& At(const TPoints& a, int n) {
  return a.at(static_cast<std::size_t>(n));
}
TPoint& At(TPoints& a, int n) {
  return a.at(static_cast<std::size_t>(n));
}

template <class TList, class TKey>
void SortBy(TList& a, TKey Key) {
  std::stable_sort(a.begin(), a.end(), [&](const auto& L, const auto& R) { return Key(L) < Key(R); });
}

void SortByOffset(TPoints& a) {
  SortBy(a, [](const TPoint& P) { return P.dOffset; });
}

void SortByHeight(TIndexes& aIndexes, const TPoints& a) {
  SortBy(aIndexes, [&](int n) { return At(a, n).dHeight; });
}

std::string NewCode(TLayer& Layer, const TPoint& Point) {
  const std::string sOffset = FormatReal(Point.dOffset, 3);
  int nCount = 0;
  for (const auto& s : Layer.aCodes) nCount += s.starts_with(sOffset) ? 1 : 0;
  Layer.aCodes.push_back(nCount == 0 ? sOffset : sOffset + "_" + std::to_string(nCount + 1));
  return Layer.aCodes.back();
}

void FindOrNewCode(TLayer& Layer, const TPoint& Point) {
  const std::string sOffset = FormatReal(Point.dOffset, 3);
  for (const auto& s : Layer.aCodes) {
    if (s.starts_with(sOffset)) return;
  }
  NewCode(Layer, Point);
}

int FindSurface(int nLayer, const std::vector<TSurface>& aSurfaces) {
  for (std::size_t n = 0; n < aSurfaces.size(); ++n) {
    if (aSurfaces[n].nLayer == nLayer) return static_cast<int>(n);
  }
  return -1;
}

int Sign(double d) {
  return d > 0 ? 1 : d < 0 ? -1 : 0;
}

bool IsSameSide(double a, double b) {
  return Sign(a) + Sign(b) == 0 ? Sign(a) == 0 && Sign(b) == 0 : true;
}

TIndexes FindNearest(const TIndexes& aList, double dOffset, const TPoints& a, bool bWithContinue,
                     bool bSameSide) {
  TIndexes aFound;
  double dBest = 900000000000000.0;
  for (int n : aList) {
    if (!bWithContinue && At(a, n).bContinue) continue;
    if (bSameSide && !IsSameSide(At(a, n).dOffset, dOffset)) continue;
    const double d = std::abs(At(a, n).dOffset - dOffset);
    if (d < dBest) {
      dBest = d;
      if (aFound.empty()) {
        aFound = {n};
      } else {
        aFound[0] = n;
      }
    } else if (std::abs(d - dBest) >= 0.0001) {
      return aFound;
    } else {
      aFound.push_back(n);
    }
  }
  return aFound;
}

bool ThisAndLast(TPoints& aThis, TPoints& aLast, int& nBefore, const TRoad& Road, std::size_t i,
                 std::size_t j) {
  const TSurface& Surface = Road.aSections[i].aSurfaces[j];
  aThis = Surface.aPoints;
  nBefore = FindSurface(Surface.nLayer, Road.aSections[i - 1].aSurfaces);
  if (nBefore < 0) return false;
  aLast = Road.aSections[i - 1].aSurfaces[static_cast<std::size_t>(nBefore)].aPoints;
  return true;
}

std::vector<TGroup> GroupByDistance(const TPoints& aThis, const TPoints& aLast, double dTolerance) {
  std::vector<TGroup> aGroups(1);
  for (int i = 0; i < static_cast<int>(aThis.size()); ++i) {
    for (int j = 0; j < static_cast<int>(aLast.size()); ++j) {
      if (std::abs(At(aThis, i).dOffset - At(aLast, j).dOffset) >= dTolerance) continue;
      TGroup& Group = aGroups.back();
      if (Group.aThis.empty()) {
        Group = {{i}, {j}};
      } else if (std::abs(At(aThis, i).dOffset - At(aThis, Group.aThis.back()).dOffset) >= dTolerance) {
        aGroups.push_back({{i}, {j}});
      } else {
        if (std::find(Group.aLast.begin(), Group.aLast.end(), j) == Group.aLast.end())
          Group.aLast.push_back(j);
        if (i != Group.aThis.back()) Group.aThis.push_back(i);
      }
    }
  }
  return aGroups;
}

std::size_t NameGroups(TPoints& aThis, const TPoints& aLast, std::vector<TGroup>& aGroups) {
  std::size_t nNamed = 0;
  for (auto& Group : aGroups) {
    if (Group.aThis.size() != Group.aLast.size()) continue;
    SortByHeight(Group.aThis, aThis);
    SortByHeight(Group.aLast, aLast);
    for (std::size_t n = 0; n < Group.aThis.size(); ++n)
      At(aThis, Group.aThis[n]).sCode = At(aLast, Group.aLast[n]).sCode;
    nNamed += Group.aThis.size();
  }
  return nNamed;
}

void NamesByDistance(TRoad& Road, std::size_t i, std::size_t j) {
  TSurface& Surface = Road.aSections[i].aSurfaces[j];
  TPoints aThis, aLast;
  int nBefore = -1;
  std::size_t nNamed = 0;
  if (ThisAndLast(aThis, aLast, nBefore, Road, i, j)) {
    auto aGroups = GroupByDistance(aThis, aLast, 0.001);
    if (!aGroups[0].aThis.empty()) nNamed = NameGroups(aThis, aLast, aGroups);
    Surface.aPoints = aThis;
  } else {
    for (const TPoint& Point : aThis)
      FindOrNewCode(Road.aLayers[static_cast<std::size_t>(Surface.nLayer)], Point);
    nNamed = aThis.size();
  }
  if (nNamed == Surface.aPoints.size()) Surface.bDone = true;
}

void NameEnd(TPoints& aThis, const TPoints& aLast, bool bLastEnd) {
  const int nEnd = bLastEnd ? static_cast<int>(aThis.size()) - 1 : 0;
  TPoint& End = At(aThis, nEnd);
  if (!End.sCode.empty()) return;
  const TPoint& Last = bLastEnd ? aLast.back() : aLast.front();
  const int nInner = nEnd == 0 ? 1 : nEnd - 1;
  if (aThis.size() > 1 && At(aThis, nInner).sCode == Last.sCode) return;
  if (Sign(End.dOffset) != Sign(Last.dOffset)) return;
  End.sCode = Last.sCode;
}

void NamesByEnds(TRoad& Road, std::size_t i, std::size_t j) {
  TSurface& Surface = Road.aSections[i].aSurfaces[j];
  TPoints aThis, aLast;
  int nBefore = -1;
  if (!ThisAndLast(aThis, aLast, nBefore, Road, i, j)) return;
  NameEnd(aThis, aLast, false);
  NameEnd(aThis, aLast, true);
  Surface.aPoints = aThis;
  bool bAll = true;
  for (const TPoint& Point : aThis) bAll = bAll && !Point.sCode.empty();
  if (bAll) Surface.bDone = true;
}

TIndexes PointsBetweenCodes(const TPoints& a, const std::string& sA, const std::string& sB) {
  TIndexes aOrder, aTaken;
  for (int n = 0; n < static_cast<int>(a.size()); ++n) aOrder.push_back(n);
  SortBy(aOrder, [&](int n) { return At(a, n).dOffset; });
  bool bOn = false;
  for (int n : aOrder) {
    if (At(a, n).sCode == sA) {
      bOn = true;
    } else if (At(a, n).sCode == sB) {
      return aTaken;
    } else if (bOn) {
      aTaken.push_back(n);
    }
  }
  return {};
}

std::vector<TGroup> GetSegments(const TPoints& aThis, const TPoints& aLast) {
  TIndexes aAnchors;
  for (int n = 0; n < static_cast<int>(aThis.size()); ++n) {
    if (!At(aThis, n).sCode.empty()) aAnchors.push_back(n);
  }
  std::vector<TGroup> aSegments;
  for (std::size_t k = 1; k < aAnchors.size(); ++k) {
    TGroup Segment;
    for (int n = aAnchors[k - 1] + 1; n < aAnchors[k]; ++n) Segment.aThis.push_back(n);
    Segment.aLast = PointsBetweenCodes(aLast, At(aThis, aAnchors[k - 1]).sCode, At(aThis, aAnchors[k]).sCode);
    aSegments.push_back(Segment);
  }
  return aSegments;
}

std::vector<TRecord> MatchNearest(const TPoints& T, const TIndexes& t, const TPoints& S, const TIndexes& s,
                                  bool bWithContinue) {
  std::vector<TRecord> aRecords;
  for (int p : s) {
    const TIndexes aFound = FindNearest(t, At(S, p).dOffset, T, bWithContinue, true);
    if (aFound.empty()) continue;
    aRecords.push_back({p, aFound[0], std::abs(At(S, p).dOffset - At(T, aFound[0]).dOffset)});
  }
  SortBy(aRecords, [](const TRecord& Record) { return Record.dDistance; });
  return aRecords;
}

void SeveralToSeveral(TPoints& aThis, const TIndexes& t, const TPoints& aLast, const TIndexes& l) {
  if (t.size() == l.size()) {
    for (std::size_t n = 0; n < t.size(); ++n) {
      if (IsSameSide(At(aThis, t[n]).dOffset, At(aLast, l[n]).dOffset))
        At(aThis, t[n]).sCode = At(aLast, l[n]).sCode;
    }
    return;
  }
  const bool bEnding = l.size() > t.size();
  const auto aRecords =
      bEnding ? MatchNearest(aThis, t, aLast, l, false) : MatchNearest(aLast, l, aThis, t, true);
  TIndexes aUsed;
  for (const auto& [p, c, dDistance] : aRecords) {
    if (std::count(aUsed.begin(), aUsed.end(), c) > 0) continue;
    At(aThis, bEnding ? c : p).sCode = At(aLast, bEnding ? p : c).sCode;
    aUsed.push_back(c);
  }
}

void OneToSeveral(TPoints& aThis, int p, const TPoints& aLast, const TIndexes& l) {
  const TIndexes aFound = FindNearest(l, At(aThis, p).dOffset, aLast, true, true);
  if (aFound.empty()) return;
  At(aThis, p).sCode = At(aLast, aFound[0]).sCode;
  for (std::size_t n = 1; n < aFound.size(); ++n) {
    aThis.push_back({At(aThis, p).dOffset, At(aThis, p).dHeight, At(aLast, aFound[n]).sCode, "", true, true});
  }
}

void SeveralToOne(const TPoints& aLast, int q, TPoints& aThis, const TIndexes& t) {
  const TIndexes aFound = FindNearest(t, At(aLast, q).dOffset, aThis, false, false);
  if (aFound.empty()) return;
  At(aThis, aFound[0]).sCode = At(aLast, q).sCode;
  for (std::size_t n = 1; n < aFound.size(); ++n) At(aThis, aFound[n]).sLink = At(aLast, q).sCode;
}

void NamesByProximity(TRoad& Road, std::size_t i, std::size_t j) {
  TSurface& Surface = Road.aSections[i].aSurfaces[j];
  TPoints aThis, aLast;
  int nBefore = -1;
  if (Surface.bDone || !ThisAndLast(aThis, aLast, nBefore, Road, i, j)) return;
  for (const auto& [t, l] : GetSegments(aThis, aLast)) {
    if (t.empty() || l.empty()) continue;
    if (t.size() == 1 && l.size() == 1) {
      At(aThis, t[0]).sCode = At(aLast, l[0]).sCode;
    } else if (t.size() == 1) {
      OneToSeveral(aThis, t[0], aLast, l);
    } else if (l.size() == 1) {
      SeveralToOne(aLast, l[0], aThis, t);
    } else {
      SeveralToSeveral(aThis, t, aLast, l);
    }
  }
  SortByOffset(aThis);
  SortByOffset(aLast);
  Surface.aPoints = aThis;
  Road.aSections[i - 1].aSurfaces[static_cast<std::size_t>(nBefore)].aPoints = aLast;
}

void NamesToRest(TRoad& Road, std::size_t i, std::size_t j) {
  TSurface& Surface = Road.aSections[i].aSurfaces[j];
  for (TPoint& Point : Surface.aPoints) {
    if (Point.sCode.empty())
      Point.sCode = NewCode(Road.aLayers[static_cast<std::size_t>(Surface.nLayer)], Point);
  }
  Surface.bDone = true;
}

std::string Label(const std::string& sCode, const TLayer& Layer, int nLayer) {
  const auto nPlace = std::find(Layer.aCodes.begin(), Layer.aCodes.end(), sCode) - Layer.aCodes.begin();
  const std::string sSide = sCode[0] == '-' ? "L" : ST::ParseReal(sCode) == 0 ? "C" : "R";
  return sSide + std::to_string(nPlace) + ":" + std::to_string(nLayer);
}

bool HasCode(const std::vector<TSurface>& aSurfaces, int nLayer, const std::string& sCode,
             bool bWithContinue) {
  const int n = FindSurface(nLayer, aSurfaces);
  if (n < 0) return false;
  const TPoints& a = aSurfaces[static_cast<std::size_t>(n)].aPoints;
  return std::any_of(a.begin(), a.end(),
                     [&](const TPoint& P) { return (bWithContinue || !P.bContinue) && P.sCode == sCode; });
}

void Cut(std::string& s) {
  if (!s.empty()) s.pop_back();
}

std::string Tabs(int n, const std::string& sText) {
  return std::string(static_cast<std::size_t>(n), '\t') + sText + "\r\n";
}

std::string Feature(const std::string& sCode, const std::string& sText) {
  return sText.empty() ? "" : Tabs(7, "<Feature code=\"QN Vertex " + sCode + "\">" + sText + "</Feature>");
}

std::string ExportSurface(TRoad& Road, std::size_t i, TSurface& Surface) {
  const TLayer& Layer = Road.aLayers[static_cast<std::size_t>(Surface.nLayer)];
  std::string sPoints, sNames, sInterpolate, sContinue, sLink;
  for (TPoint& Point : Surface.aPoints) {
    if (!Point.bPhantom) sPoints += FormatReal(Point.dOffset, 6) + " " + FormatReal(Point.dHeight, 6) + " ";
    if (Point.sCode.empty()) {
      sNames += "NO_CODE,";
      continue;
    }
    const std::string sCode = Point.sCode;
    Point.sCode = Label(sCode, Layer, Surface.nLayer);
    if (!Point.bPhantom) sNames += Point.sCode + ",";
    if (i == 0) continue;
    if (HasCode(Road.aSections[i - 1].aSurfaces, Surface.nLayer, Point.sCode, false)) {
      if (Point.bPhantom || Point.bContinue) {
        sContinue += Point.sCode + ",";
      } else if (!Point.sLink.empty()) {
        sLink = Point.sLink;
      } else {
        sInterpolate += Point.sCode + "," + Point.sCode + ",";
      }
    } else if (i + 1 < Road.aSections.size()) {
      auto& aAhead = Road.aSections[i + 1].aSurfaces;
      const int n = FindSurface(Surface.nLayer, aAhead);
      if (n < 0 || HasCode(aAhead, Surface.nLayer, sCode, true)) continue;
      auto& aPoints = aAhead[static_cast<std::size_t>(n)].aPoints;
      aPoints.push_back({0, 0, sCode, "", true, true});
      SortByOffset(aPoints);
    }
  }
  for (auto* p : {&sPoints, &sNames, &sInterpolate, &sContinue}) Cut(*p);
  std::string sOut = Tabs(5, "<CrossSectSurf name=\"" + Layer.sName + "\">") +
                     Tabs(6, "<PntList2D>" + sPoints + "</PntList2D>") +
                     Tabs(6, "<Feature code=\"QN Vertex Name\">" + sNames + "</Feature>");
  if (i > 0) {
    sOut += Tabs(6, "<Feature code=\"QN Vertex Connections\">") + Feature("Interpolate", sInterpolate) +
            Feature("Link", sLink) + Feature("Continue", sContinue) + Tabs(6, "</Feature>");
  }
  return sOut + Tabs(5, "</CrossSectSurf>");
}

}  // namespace

TRoad FromData(const TCrData& Cr) {
  TRoad Road;
  for (const TCrLayer& Layer : Cr.Layers) {
    TLayer& Copy = Road.aLayers.emplace_back(TLayer{Layer.sName, {}});
    for (int n = 0; n < Layer.aCodes.size(); ++n) Copy.aCodes.emplace_back(Layer.aCodes.TextAt(n));
  }
  for (const TCrSection& Section : Cr.Sections) {
    TSection& Copy = Road.aSections.emplace_back(TSection{Section.dChainage, {}});
    for (const TCrSurface& Surface : Section.Surfaces) {
      TSurface& SurfaceCopy = Copy.aSurfaces.emplace_back(TSurface{Surface.nLayer, Surface.bDone, {}});
      const TCodes& aCodes = Cr.Layers.at(Surface.nLayer).aCodes;
      for (const TCrPoint& P : Surface.Points) {
        SurfaceCopy.aPoints.push_back({P.dOffset, P.dHeight, std::string(aCodes.Text(P.sCode)),
                                       std::string(aCodes.Text(P.sLink)), P.bContinue, P.bPhantom});
      }
    }
  }
  return Road;
}

void NameFirstSurfaces(TRoad& Road) {
  std::string sSeen;
  for (TSection& Section : Road.aSections) {
    for (TSurface& Surface : Section.aSurfaces) {
      TLayer& Layer = Road.aLayers[static_cast<std::size_t>(Surface.nLayer)];
      if (sSeen.find("$" + Layer.sName) != std::string::npos) continue;
      for (TPoint& Point : Surface.aPoints) Point.sCode = NewCode(Layer, Point);
      sSeen += "$" + Layer.sName;
    }
  }
}

void ApplyRules(TRoad& Road, const std::string& sLines, int nFailAt) {
  for (std::size_t i = 1; i < Road.aSections.size(); ++i) {
    if (static_cast<int>(i) == nFailAt) return;
    for (std::size_t j = 0; j < Road.aSections[i].aSurfaces.size(); ++j) {
      const auto nLayer = static_cast<std::size_t>(Road.aSections[i].aSurfaces[j].nLayer);
      if (!sLines.empty() && sLines.find("$" + Road.aLayers[nLayer].sName + "$") == std::string::npos)
        continue;
      NamesByDistance(Road, i, j);
      NamesByEnds(Road, i, j);
      NamesByProximity(Road, i, j);
      NamesToRest(Road, i, j);
    }
  }
  for (TLayer& Layer : Road.aLayers) {
    SortBy(Layer.aCodes, [](const std::string& s) { return ST::ParseReal(s); });
  }
}

std::string Export(TRoad& Road, const std::string& sLines, int nFirst, int nLast) {
  const auto IsSelected = [&](const TLayer& Layer) {
    return sLines.empty() || sLines.find("$" + Layer.sName) != std::string::npos;
  };
  if (std::none_of(Road.aLayers.begin(), Road.aLayers.end(), IsSelected)) return "";
  std::string sOut = Tabs(3, "<CrossSects>");
  for (auto i = static_cast<std::size_t>(nFirst); i <= static_cast<std::size_t>(nLast); ++i) {
    TSection& Section = Road.aSections[i];
    sOut += Tabs(4, "<CrossSect sta=\"" + FormatReal(Section.dChainage, 6) + "\">");
    for (TSurface& Surface : Section.aSurfaces) {
      if (IsSelected(Road.aLayers[static_cast<std::size_t>(Surface.nLayer)]))
        sOut += ExportSurface(Road, i, Surface);
    }
    sOut += Tabs(4, "</CrossSect>");
  }
  return sOut + Tabs(3, "</CrossSects>");
}

}  // namespace vrek::test::plain
