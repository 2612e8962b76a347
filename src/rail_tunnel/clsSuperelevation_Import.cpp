// Reads a cant table:
//
//   <?xml version="1.0"?>
//   <!-- Track table, version '2.0.1' -->
//   <Cant gauge="1.435" superelevationBase="1.500" rotationPoint="insideRail" coPlane="false">
//     <CantStation station="100.0" appliedCant="80" rotationPoint="insideRail" appliedGauge="1.435"
//                  appliedSuperelevation="1.500"/>
//
// or, in all rows, appliedCantLeft and appliedCantRight in place of appliedCant and rotationPoint.
#include <algorithm>

#include "base/ST.h"
#include "platform/XmlDocument.h"
#include "rail_tunnel/clsSuperelevation.h"
#include "shell/ErrHandler.h"

namespace vrek {
namespace {

constexpr double dMetresOfMillimetre = 0.001;

// Whether a comment's text matches "*'*.0.*'*": a version between apostrophes with 0 as its middle number.
bool HoldsKnownVersion(std::string_view sComment) {
  std::size_t nPos = 0;
  for (const std::string_view sPart : {"'", ".0.", "'"}) {
    nPos = sComment.find(sPart, nPos);
    if (nPos == sComment.npos) return false;
    nPos += sPart.size();
  }
  return true;
}

void CheckVersion(const std::vector<TXmlTopNode>& aTopNodes) {
  if (aTopNodes.size() < 2 || aTopNodes[1].eKind != EXmlNode::eComment) Raise(Error::nCantContent);
  if (!HoldsKnownVersion(aTopNodes[1].sText)) Raise(Error::nCantVersion);
}

double Number(const TXmlElement& Element, std::string_view sAttribute) {
  return ST::ParseReal(Element.Attribute(sAttribute));
}

}  // namespace

ERotationPoint clsSuperelevation::GetRotationPoint(std::string_view sText) {
  if (sText == "insideRail") return ERotationPoint::eInsideRail;
  if (sText == "outsideRail") return ERotationPoint::eOutsideRail;
  if (sText == "center") return ERotationPoint::eCenter;
  if (sText == "leftRail") return ERotationPoint::eLeftRail;
  if (sText == "rightRail") return ERotationPoint::eRightRail;
  if (sText == "platformAxis") return ERotationPoint::ePlatformAxis;
  return ERotationPoint::eGivenByRails;
}

bool clsSuperelevation::Import(const std::string& sFilename) {
  constexpr std::string_view sSource = "ImportSuperelevationTable";
  return Guard(sSource, false, [&] {
    // A table of a known version
    const TXmlDocument Document = ReadXmlFile(sFilename, "CantStation", Error::nXmlUnreadable);
    CheckVersion(Document.aTopNodes);
    if (Document.sRootLocalName != "Cant") Raise(Error::nNotTheExpectedFile);
    // What holds for the whole table
    m_dGauge = Number(Document.Root, "gauge");
    m_dSuperelevationBase = Number(Document.Root, "superelevationBase");
    m_eRotationPoint = GetRotationPoint(Document.Root.Attribute("rotationPoint"));
    m_bCoPlane = Document.Root.Attribute("coPlane") == "true";
    // The rows, all in the form of the first one
    if (Document.aElements.empty()) Raise(Error::nXmlElementMissing);
    const bool bSingleCant = Document.aElements.front().HasAttribute("appliedCant");
    for (const auto& Element : Document.aElements) {
      TCantStation Row;
      Row.dStation = Number(Element, "station");
      if (bSingleCant) {
        Row.dAppliedCant = Number(Element, "appliedCant") * dMetresOfMillimetre;
        Row.eRotationPoint = GetRotationPoint(Element.Attribute("rotationPoint"));
      } else {
        Row.dAppliedCantLeft = Number(Element, "appliedCantLeft") * dMetresOfMillimetre;
        Row.dAppliedCantRight = Number(Element, "appliedCantRight") * dMetresOfMillimetre;
      }
      Row.dAppliedGauge = Number(Element, "appliedGauge");
      Row.dAppliedSuperelevation = Number(Element, "appliedSuperelevation");
      m_aStations.push_back(Row);
    }
    m_bInOrder = std::is_sorted(m_aStations.begin(), m_aStations.end(),
                                [](const auto& a, const auto& b) { return a.dStation < b.dStation; });
    return true;
  });
}

}  // namespace vrek
