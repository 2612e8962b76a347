// Runs the naming rules over all sections of an alignment, in the order on which the names depend.
#include <string>

#include "base/Checked.h"
#include "base/FormatReal.h"
#include "shell/RepeatedFailures.h"
#include "stringlines/CCrSec.h"
#include "stringlines/Rules.h"

namespace vrek::CCrSec {
namespace {

constexpr double dSameOffset = 0.001;  // metres

// Whether the rules name the surfaces of each layer. A name between two "$", or every layer for an empty
// text.
std::vector<char> LayersThatTakePart(const TCrData& Cr, std::string_view sLines) {
  std::vector<char> aTakePart;
  for (const TCrLayer& Layer : Cr.Layers) {
    aTakePart.push_back(sLines.empty() || sLines.find("$" + Layer.sName + "$") != sLines.npos);
  }
  return aTakePart;
}

void NamePoint(TCrPoint& Point, TCrLayer& Layer) {
  try {
    Point.sCode = NewCode(Layer, Point);
  } catch (const Failure&) {
    // a point without a number text keeps the code it has
  }
}

void ApplyRulesTo(TCrData& Cr, int nSection, int nSurface) {
  NamesByDistance(Cr, nSection, nSurface, dSameOffset);
  NamesByEnds(Cr, nSection, nSurface, true);
  NamesByProximity(Cr, nSection, nSurface);
  NamesToRest(Cr, nSection, nSurface);
}

void ReasignCodes(TCrData& Cr) {
  for (TCrLayer& Layer : Cr.Layers) {
    if (Layer.aCodes.size() > 1) Layer.aCodes.SortByValue();
  }
}

}  // namespace

void NameFirstSurfaces(TCrData& Cr) {
  std::string sSeen;
  std::size_t nSeen = 0;
  for (TCrSection& Section : Cr.Sections) {
    for (TCrSurface& Surface : Section.Surfaces) {
      TCrLayer& Layer = Checked::At(Cr.Layers, Surface.nLayer);
      const std::string sMark = "$" + Layer.sName;
      if (Surface.Points.empty() || sSeen.find(sMark) != std::string::npos) continue;
      for (TCrPoint& Point : Surface.Points) NamePoint(Point, Layer);
      sSeen += sMark;
      ++nSeen;
    }
    if (nSeen == Cr.Layers.size()) break;
  }
}

void ApplyRules(TCrData& Cr, std::string_view sLines, IProgress& Progress) {
  Guard("ApplyRules", [&] {
    const auto aTakePart = LayersThatTakePart(Cr, sLines);
    const int nLast = static_cast<int>(Cr.Sections.size()) - 1;
    Progress.SetRanges(0, nLast);
    const CRepeatedFailures OnceEach;
    for (int i = 1; i <= nLast; ++i) {
      const TCrSection& Section = Checked::At(Cr.Sections, i);
      Progress.SetValue(i);
      Progress.Info(FormatReal(Section.dChainage, 3));
      for (int j = 0; j < static_cast<int>(Section.Surfaces.size()); ++j) {
        if (Checked::At(aTakePart, Checked::At(Section.Surfaces, j).nLayer)) ApplyRulesTo(Cr, i, j);
      }
    }
    ReasignCodes(Cr);
  });
}

}  // namespace vrek::CCrSec
