// Roads and point lists for the tests of the stringline engine.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "base/ST.h"
#include "stringlines/CCrSec.h"
#include "stringlines/PointModel.h"

namespace vrek::test {

/// "-5A 2/11.5 0>B": offset, height behind "/", code (one letter), code of the link behind ">". "*": a
/// phantom.
inline CCrSec::TPoints List(const std::string& sText) {
  CCrSec::TPoints aPoints;
  std::istringstream Words(sText);
  for (std::string sWord; Words >> sWord;) {
    TCrPoint& Point = aPoints.emplace_back();
    const auto nNumber = sWord.find_first_not_of("+-.0123456789");
    Point.dOffset = ST::LeadingNumber(sWord);
    for (auto n = nNumber; n < sWord.size(); ++n) {
      if (sWord[n] == '/') {
        Point.dHeight = ST::LeadingNumber(std::string_view(sWord).substr(n + 1));
        n = std::min(sWord.find_first_not_of("+-.0123456789", n + 1), sWord.size()) - 1;
      } else if (sWord[n] == '>') {
        Point.sLink = {static_cast<std::uint32_t>(sWord[++n])};
      } else if (sWord[n] == '*') {
        Point.bContinue = Point.bPhantom = true;
      } else {
        Point.sCode = {static_cast<std::uint32_t>(sWord[n])};
      }
    }
  }
  return aPoints;
}

/// The text that List reads.
inline std::string Show(const CCrSec::TPoints& aPoints) {
  std::ostringstream Text;
  Text.imbue(std::locale::classic());
  for (const TCrPoint& Point : aPoints) {
    Text << (&Point == aPoints.data() ? "" : " ") << Point.dOffset;
    if (Point.dHeight != 0) Text << '/' << Point.dHeight;
    if (!Point.sCode.empty()) Text << static_cast<char>(Point.sCode.nIndex);
    if (!Point.sLink.empty()) Text << '>' << static_cast<char>(Point.sLink.nIndex);
    if (Point.bPhantom) Text << '*';
  }
  return Text.str();
}

/// The four layers that every reader makes.
inline TCrData EmptyRoad() {
  TCrData Cr;
  for (const char* sName : {"Taludes", "Cunetas", "Subrasante", "Rasante"})
    Cr.Layers.emplace_back().sName = sName;
  return Cr;
}

/// Appends a surface to the last section as a reader does: the first one of a layer is named.
inline void AddSurface(TCrData& Cr, std::uint8_t nLayer, CCrSec::TPoints aPoints) {
  TCrSurface& Surface = Cr.Sections.back().Surfaces.emplace_back();
  Surface.nLayer = nLayer;
  Surface.Points = std::move(aPoints);
  CCrSec::DeleteDuplicatedpoints(Surface.Points);
  if (Cr.Layers[nLayer].aCodes.empty()) CCrSec::NameSurface(Surface, Cr.Layers[nLayer]);
}

/// A road with the surface "Rasante" alone; an empty text is a section without surfaces. Chainages 100, 120,
/// ...
inline TCrData Road(std::initializer_list<const char*> aSections) {
  TCrData Cr = EmptyRoad();
  for (const char* sPoints : aSections) {
    Cr.Sections.push_back({100.0 + 20.0 * static_cast<double>(Cr.Sections.size()), {}});
    if (*sPoints) AddSurface(Cr, 3, List(sPoints));
  }
  return Cr;
}

/// "-3.500_2 0.000 (none)": the codes of a surface.
inline std::string CodesOf(const TCrData& Cr, std::size_t nSection, std::size_t nSurface = 0) {
  std::string sText;
  const TCrSurface& Surface = Cr.Sections.at(nSection).Surfaces.at(nSurface);
  for (const TCrPoint& Point : Surface.Points) {
    const auto sCode = Cr.Layers.at(Surface.nLayer).aCodes.Text(Point.sCode);
    sText += (sText.empty() ? "" : " ") + std::string(sCode.empty() ? "(none)" : sCode);
  }
  return sText;
}

/// Notes what a routine reports, and fails at one of its steps.
struct Recorder : IProgress {
  void Tittle(std::string_view) override {}
  void Info(std::string_view sText) override { sSteps += "info " + std::string(sText) + "; "; }
  void ShowCancel(bool) override {}
  void ShowProgressBar(bool) override {}
  void SetRanges(double dMin, double dMax) override { sSteps += Step(dMin) + " to " + Step(dMax) + "; "; }
  void SetValue(double dValue) override {
    if (dValue == dFailAt) Raise(Error::nOverflow);
    sSteps += Step(dValue) + "; ";
  }
  bool CancelPressed() const override { return false; }
  void Reset() override {}
  static std::string Step(double dValue) { return std::to_string(static_cast<int>(dValue)); }

  double dFailAt = -1;
  std::string sSteps;
};

/// A road of nSections sections with layers that wander, jump, vanish, return and are listed out of order,
/// with walls, ties and offsets on the axis. Depends on the seed alone.
class RandomRoad {
 public:
  explicit RandomRoad(unsigned nSeed) : m_Random(nSeed) {}

  TCrData Make(int nSections) {
    TCrData Cr = EmptyRoad();
    std::vector<CCrSec::TPoints> aShapes(4);
    for (auto& aShape : aShapes) aShape = NewShape();
    for (int i = 0; i < nSections; ++i) {
      Cr.Sections.push_back({20.0 * i, {}});
      const bool bBare = Chance(0.04);
      for (std::uint8_t nLayer = 0; nLayer < 4 && !bBare; ++nLayer) {
        if (nLayer == 1 ? Chance(0.5) : Chance(0.05)) continue;
        Change(aShapes[nLayer]);
        if (!aShapes[nLayer].empty()) AddSurface(Cr, nLayer, aShapes[nLayer]);
      }
    }
    return Cr;
  }

  int Below(int n) { return static_cast<int>(m_Random() % static_cast<unsigned>(n)); }
  bool Chance(double d) { return static_cast<double>(m_Random()) < d * 4294967296.0; }

 private:
  // On a coarse grid, so that ties and equal offsets are common; now and then near one, across the tolerance.
  double Offset() {
    const double dGrid = 0.5 * (Below(33) - 16);
    if (Chance(0.8)) return dGrid;
    const double aShift[] = {0.0004, -0.0006, 0.0009, 0.001, 0.0015, -0.00005, 0.00011};
    return dGrid + aShift[Below(7)];
  }
  double Height() { return 10 + 0.5 * Below(6); }

  CCrSec::TPoints NewShape() {
    CCrSec::TPoints aPoints;
    for (int n = 1 + Below(14); n > 0; --n) aPoints.push_back(At(Offset()));
    if (Chance(0.9)) CCrSec::SortCrSecByDistToCL(aPoints);
    return aPoints;
  }
  TCrPoint At(double dOffset) {
    TCrPoint Point;
    Point.dOffset = dOffset;
    Point.dHeight = Height();
    return Point;
  }

  void Change(CCrSec::TPoints& aPoints) {
    if (Chance(0.05)) aPoints = NewShape();
    for (auto& Point : aPoints) {
      if (Chance(0.3)) Point.dHeight = Height();
      if (Chance(0.2)) Point.dOffset = Offset();
    }
    if (!aPoints.empty() && Chance(0.3))
      aPoints.erase(aPoints.begin() + Below(static_cast<int>(aPoints.size())));
    if (Chance(0.35)) aPoints.push_back(At(Offset()));
    if (Chance(0.2) && !aPoints.empty()) aPoints.push_back(At(aPoints.front().dOffset));
    if (Chance(0.85)) CCrSec::SortCrSecByDistToCL(aPoints);
  }

  std::mt19937 m_Random;
};

}  // namespace vrek::test
