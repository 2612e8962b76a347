// The cant table: reading it and the questions it answers.
#include "rail_tunnel/clsSuperelevation.h"

#include <algorithm>
#include <cmath>

#include "base/Checked.h"
#include "base/ST.h"
#include "geometry/GM.h"
#include "platform/XmlDocument.h"
#include "shell/ErrHandler.h"

namespace vrek {
namespace {

constexpr double dMetresPerMillimetre = 0.001;

// A version between apostrophes with 0 as its middle number.
bool HasKnownVersion(std::string_view sComment) {
  const auto nOpen = sComment.find('\'');
  if (nOpen == sComment.npos) return false;
  const auto nMiddle = sComment.find(".0.", nOpen + 1);
  return nMiddle != sComment.npos && sComment.find('\'', nMiddle + 3) != sComment.npos;
}

double Number(const TXmlElement& Element, std::string_view sAttribute) {
  return ST::ParseReal(Element.Attribute(sAttribute));
}

void CheckKind(const TXmlDocument& Document) {
  if (Document.aTopNodes.size() < 2 || Document.aTopNodes[1].eKind != EXmlNode::eComment) {
    Raise(Error::nCantContent);
  }
  if (!HasKnownVersion(Document.aTopNodes[1].sText)) Raise(Error::nCantVersion);
  if (Document.sRootLocalName != "Cant") Raise(Error::nNotTheExpectedFile);
}

}  // namespace

double clsSuperelevation::GetChainageStart() const {
  return Checked::At(m_aStations, 0).dStation;
}

double clsSuperelevation::GetChainageEnd() const {
  return Checked::At(m_aStations, static_cast<int>(m_aStations.size()) - 1).dStation;
}

std::vector<double> clsSuperelevation::GetChainages() const {
  std::vector<double> aChainages;
  for (const auto& Station : m_aStations) aChainages.push_back(Station.dStation);
  return aChainages;
}

ERotationPoint clsSuperelevation::GetRotationPoint(std::string_view sText) {
  constexpr std::string_view aTexts[] = {"insideRail", "outsideRail", "center",
                                         "leftRail",   "rightRail",   "platformAxis"};
  const auto it = std::find(std::begin(aTexts), std::end(aTexts), sText);
  return it == std::end(aTexts) ? ERotationPoint::eGivenByRails
                                : static_cast<ERotationPoint>(it - std::begin(aTexts) + 1);
}

bool clsSuperelevation::Import(const std::string& sFilename) {
  return Guard("ImportSuperelevationTable", false, [&] {
    // 1. - 3.
    const auto Document = ReadXmlFile(sFilename, "CantStation", Error::nXmlUnreadable);
    CheckKind(Document);
    // 4.
    m_dGauge = Number(Document.Root, "gauge");
    m_dSuperelevationBase = Number(Document.Root, "superelevationBase");
    m_eRotationPoint = GetRotationPoint(Document.Root.Attribute("rotationPoint"));
    m_bCoPlane = Document.Root.Attribute("coPlane") == "true";
    // 5., 6. the first row decides the form of all
    if (Document.aElements.empty()) Raise(Error::nXmlElementMissing);
    const bool bSingle = Document.aElements.front().HasAttribute("appliedCant");
    for (const auto& Row : Document.aElements) ReadRow(Row, bSingle);
    m_bInOrder = std::is_sorted(m_aStations.begin(), m_aStations.end(),
                                [](const auto& a, const auto& b) { return a.dStation < b.dStation; });
    return true;
  });
}

void clsSuperelevation::ReadRow(const TXmlElement& Row, bool bSingle) {
  TCantStation Station;
  Station.dStation = Number(Row, "station");
  if (bSingle) {
    Station.dAppliedCant = Number(Row, "appliedCant") * dMetresPerMillimetre;
    Station.eRotationPoint = GetRotationPoint(Row.Attribute("rotationPoint"));
  } else {
    Station.dAppliedCantLeft = Number(Row, "appliedCantLeft") * dMetresPerMillimetre;
    Station.dAppliedCantRight = Number(Row, "appliedCantRight") * dMetresPerMillimetre;
  }
  Station.dAppliedGauge = Number(Row, "appliedGauge");
  Station.dAppliedSuperelevation = Number(Row, "appliedSuperelevation");
  m_aStations.push_back(Station);
}

int clsSuperelevation::FindStation(double dChainage) const {
  const auto First = m_aStations.begin();
  if (m_bInOrder) {
    const auto Starts = [](const TCantStation& Station, double d) { return Station.dStation < d; };
    const auto Lower = std::lower_bound(First, m_aStations.end(), dChainage, Starts);
    const bool bEqual = Lower != m_aStations.end() && Lower->dStation == dChainage;
    return static_cast<int>(Lower - First) - (bEqual ? 0 : 1);
  }
  for (std::size_t i = 0; i < m_aStations.size(); ++i) {
    if (m_aStations[i].dStation > dChainage) return static_cast<int>(i) - 1;
    if (m_aStations[i].dStation == dChainage) return static_cast<int>(i);
  }
  return static_cast<int>(m_aStations.size()) - 1;
}

// Row i at a chainage: its cant between that of its station and that of the next.
TCantStation clsSuperelevation::Interpolated(int i, double dChainage) const {
  TCantStation Row = Checked::At(m_aStations, i);
  if (dChainage == Row.dStation || i + 1 >= static_cast<int>(m_aStations.size())) return Row;
  const TCantStation& Next = Checked::At(m_aStations, i + 1);
  if (Next.dStation == Row.dStation) return Row;
  const double dPart = (dChainage - Row.dStation) / (Next.dStation - Row.dStation);
  const auto Between = [dPart](double v, double w) { return v + (w - v) * dPart; };
  if (Row.eRotationPoint == ERotationPoint::eGivenByRails) {
    Row.dAppliedCantLeft = Between(Row.dAppliedCantLeft, Next.dAppliedCantLeft);
    Row.dAppliedCantRight = Between(Row.dAppliedCantRight, Next.dAppliedCantRight);
  } else {
    Row.dAppliedCant = Between(Row.dAppliedCant, Next.dAppliedCant);
  }
  return Row;
}

double clsSuperelevation::GetSlopeInChainage(double dChainage) const {
  const int i = FindStation(dChainage);
  if (i < 0) return 0;
  const TCantStation Row = Interpolated(i, dChainage);
  if (Row.eRotationPoint == ERotationPoint::eGivenByRails) {
    return std::atan(
        Checked::Divide(Row.dAppliedCantRight - Row.dAppliedCantLeft, Row.dAppliedSuperelevation));
  }
  return GM::ArcSin(Checked::Divide(Row.dAppliedCant, Row.dAppliedSuperelevation));
}

}  // namespace vrek
