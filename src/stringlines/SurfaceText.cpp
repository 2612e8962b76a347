#include "stringlines/SurfaceText.h"

#include "base/Checked.h"
#include "base/FormatReal.h"
#include "base/ST.h"
#include "landxml/CLandXML.h"
#include "shell/ErrHandler.h"
#include "stringlines/PointModel.h"

namespace vrek::CCrSec {
namespace {

char SideLetter(std::string_view sCode) {
  if (sCode.front() == '-') return 'L';
  return ST::ParseReal(sCode) == 0 ? 'C' : 'R';
}

// "-3.500_2" at place 1 of layer 3: L1:3. By handle; the empty handle has no label.
std::vector<std::string> MakeLabels(const TCodes& aCodes, std::size_t nLayer) {
  std::vector<std::string> aLabels(static_cast<std::size_t>(aCodes.size()) + 1);
  const std::string sLayer = std::string(1, ':').append(std::to_string(nLayer));
  for (std::uint32_t n = 1; n < aLabels.size(); ++n) {
    const TCode sCode{n};
    aLabels[n] = SideLetter(aCodes.Text(sCode));
    aLabels[n].append(std::to_string(aCodes.Place(sCode))).append(sLayer);
  }
  return aLabels;
}

void LogPointWithoutCode(const TCrPoint& Point, double dChainage) {
  LogMessage("Point without code in Export2LandXml function  Ch : " + FormatReal(dChainage, 6) +
             "\r\n Offset: " + FormatReal(Point.dOffset, 6) + "\r\n Height: " + FormatReal(Point.dHeight, 6));
}

// Each of these texts ends in a separator until it is written.
std::string_view WithoutSeparator(const std::string& sText) {
  return std::string_view(sText).substr(0, sText.empty() ? 0 : sText.size() - 1);
}

void AppendFeature(std::string& sOut, std::string_view sTabsAndCode, std::string_view sValue) {
  sOut.append(sTabsAndCode).append("\">").append(sValue).append("</Feature>\r\n");
}

TCrSurface* SurfaceOfLayer(TCrData& Cr, int nSection, std::uint8_t nLayer) {
  if (nSection < 0 || nSection >= static_cast<int>(Cr.Sections.size())) return nullptr;
  auto& aSurfaces = Checked::At(Cr.Sections, nSection).Surfaces;
  const int nSurface = FindSurface(nLayer, aSurfaces);
  return nSurface < 0 ? nullptr : &Checked::At(aSurfaces, nSurface);
}

}  // namespace

CSurfaceText::CSurfaceText(const TCrLayer& Layer, std::size_t nLayer, bool bSelected, int nFirst)
    : m_bSelected(bSelected),
      m_nFirst(nFirst),
      m_sName(bSelected ? CLandXML::EncodeUtf8Text(Layer.sName) : ""),
      m_aLabels(bSelected ? MakeLabels(Layer.aCodes, nLayer) : std::vector<std::string>{}),
      m_aCodes(Layer.aCodes),
      m_Before(Layer.aCodes),
      m_Ahead(Layer.aCodes) {}

void CSurfaceText::Append(std::string& sOut, TCrData& Cr, int nSection, int nSurface) {
  const TCrSection& Section = Checked::At(Cr.Sections, nSection);
  const TCrSurface& Surface = Checked::At(Section.Surfaces, nSurface);
  TCrSurface* pNext = SurfaceOfLayer(Cr, nSection + 1, Surface.nLayer);
  for (auto* pText : {&m_sPoints, &m_sNames, &m_sInterpolate, &m_sContinue, &m_sLink}) pText->clear();
  LookBack(SurfaceOfLayer(Cr, nSection - 1, Surface.nLayer), nSection);
  m_bAheadKnown = m_bPhantomAdded = false;
  for (const TCrPoint& Point : Surface.Points) {
    AppendPoint(Point, Section.dChainage);
    if (Point.sCode.empty() || nSection == 0) continue;
    if (m_Before.Has(Point.sCode)) {
      AppendConnection(Point);
    } else if (pNext) {
      LookForward(*pNext, Point.sCode);
    }
  }
  if (m_bPhantomAdded) SortCrSecByDistToCL(pNext->Points);
  AppendLines(sOut, nSection > 0);
}

// A section before the first one written has no labels: there every line is new.
void CSurfaceText::LookBack(const TCrSurface* pBefore, int nSection) {
  m_Before.Clear();
  if (!pBefore || nSection - 1 < m_nFirst) return;
  for (const TCrPoint& Point : pBefore->Points) {
    if (!Point.bContinue) m_Before.Add(Point.sCode);
  }
}

void CSurfaceText::AppendPoint(const TCrPoint& Point, double dChainage) {
  if (!Point.bPhantom) {
    AppendReal(m_sPoints, Point.dOffset, 6);
    m_sPoints += ' ';
    AppendReal(m_sPoints, Point.dHeight, 6);
    m_sPoints += ' ';
  }
  if (Point.sCode.empty()) {
    m_sNames += "NO_CODE,";
    LogPointWithoutCode(Point, dChainage);
  } else if (!Point.bPhantom) {
    m_sNames.append(Label(Point.sCode)) += ',';
  }
}

void CSurfaceText::AppendConnection(const TCrPoint& Point) {
  const std::string& sLabel = Label(Point.sCode);
  if (Point.bPhantom || Point.bContinue) {
    m_sContinue.append(sLabel) += ',';
  } else if (!Point.sLink.empty()) {
    m_sLink = m_aCodes.Text(Point.sLink);
  } else {
    m_sInterpolate.append(sLabel) += ',';
    m_sInterpolate.append(sLabel) += ',';
  }
}

// A new line that the section behind doesn't know gets a second place to stand there. The phantoms are sorted
// in once all are there: the order is the same as that of sorting after each.
void CSurfaceText::LookForward(TCrSurface& Next, TCode sCode) {
  if (!m_bAheadKnown) {
    m_Ahead.Clear();
    for (const TCrPoint& Point : Next.Points) m_Ahead.Add(Point.sCode);
    m_bAheadKnown = true;
  }
  if (m_Ahead.Has(sCode)) return;
  TCrPoint Phantom;
  Phantom.sCode = sCode;
  Phantom.bContinue = Phantom.bPhantom = true;
  Next.Points.push_back(Phantom);
  m_Ahead.Add(sCode);
  m_bPhantomAdded = true;
}

void CSurfaceText::AppendLines(std::string& sOut, bool bConnections) const {
  sOut.append("\t\t\t\t\t<CrossSectSurf name=\"").append(m_sName).append("\">\r\n");
  sOut.append("\t\t\t\t\t\t<PntList2D>").append(WithoutSeparator(m_sPoints)).append("</PntList2D>\r\n");
  AppendFeature(sOut, "\t\t\t\t\t\t<Feature code=\"QN Vertex Name", WithoutSeparator(m_sNames));
  if (bConnections) WriteConnections(sOut);
  sOut.append("\t\t\t\t\t</CrossSectSurf>\r\n");
}

void CSurfaceText::WriteConnections(std::string& sOut) const {
  const auto Inner = [&](std::string_view sCode, std::string_view sValue) {
    if (!sValue.empty()) AppendFeature(sOut, sCode, sValue);
  };
  sOut.append("\t\t\t\t\t\t<Feature code=\"QN Vertex Connections\">\r\n");
  Inner("\t\t\t\t\t\t\t<Feature code=\"QN Vertex Interpolate", WithoutSeparator(m_sInterpolate));
  Inner("\t\t\t\t\t\t\t<Feature code=\"QN Vertex Link", m_sLink);
  Inner("\t\t\t\t\t\t\t<Feature code=\"QN Vertex Continue", WithoutSeparator(m_sContinue));
  sOut.append("\t\t\t\t\t\t</Feature>\r\n");
}

}  // namespace vrek::CCrSec
