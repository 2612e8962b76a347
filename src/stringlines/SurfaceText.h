// The text of one surface of one section: points, labels, and which lines run on from the section before.
// Internal to this folder.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "records/CrossSections.h"

namespace vrek::CCrSec {

/// A set of codes of one layer, emptied and filled again for each surface.
class CCodeSet {
 public:
  explicit CCodeSet(const TCodes& aCodes) : m_aRound(static_cast<std::size_t>(aCodes.size()) + 1) {}
  void Clear() { ++m_nRound; }
  void Add(TCode sCode) { m_aRound.at(sCode.nIndex) = m_nRound; }
  bool Has(TCode sCode) const { return m_aRound.at(sCode.nIndex) == m_nRound; }

 private:
  std::vector<std::uint32_t> m_aRound;  // by handle: the round in which it was added last
  std::uint32_t m_nRound = 1;
};

/// Writes the surfaces of one layer, in the order of the sections, from section nFirst on.
class CSurfaceText {
 public:
  /// bSelected: whether the layer goes out at all. The codes must have their final places.
  CSurfaceText(const TCrLayer& Layer, std::size_t nLayer, bool bSelected, int nFirst);

  bool IsSelected() const { return m_bSelected; }

  /// Appends the lines of a surface, from <CrossSectSurf> to </CrossSectSurf>, each ended by CR LF. A line
  /// that is new here and has no point in the next section gets a phantom there. A point without a code is
  /// logged.
  void Append(std::string& sOut, TCrData& Cr, int nSection, int nSurface);

 private:
  void LookBack(const TCrSurface* pBefore, int nSection);
  void AppendPoint(const TCrPoint& Point, double dChainage);
  void AppendConnection(const TCrPoint& Point);
  void LookForward(TCrSurface& Next, TCode sCode);
  void AppendLines(std::string& sOut, bool bConnections) const;
  void WriteConnections(std::string& sOut) const;
  const std::string& Label(TCode sCode) const { return m_aLabels.at(sCode.nIndex); }

  bool m_bSelected;
  int m_nFirst;
  std::string m_sName;                 // as it goes out
  std::vector<std::string> m_aLabels;  // by handle
  const TCodes& m_aCodes;
  CCodeSet m_Before;  // lines with a true point in the section before
  CCodeSet m_Ahead;   // codes in the section behind
  bool m_bAheadKnown = false;
  bool m_bPhantomAdded = false;
  std::string m_sPoints, m_sNames, m_sInterpolate, m_sContinue, m_sLink;
};

}  // namespace vrek::CCrSec
