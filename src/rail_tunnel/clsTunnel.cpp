#include "rail_tunnel/clsTunnel.h"

#include "base/Checked.h"
#include "base/CodePage.h"
#include "base/ST.h"
#include "design_data/CovertData.h"
#include "landxml/CLandXML.h"
#include "platform/XmlDocument.h"
#include "shell/ErrHandler.h"
#include "shell/Services.h"

namespace vrek {
namespace {

// The lines behind the declaration, joined. A first line that is no declaration goes too.
std::string ReadText(const std::string& sFilename) {
  CTextFile File = OpenTextFile(sFilename);
  std::string sText;
  if (!File.AtEnd() && File.NextLine().starts_with("<?xml")) {
    const auto sRoot = File.NextLine();
    if (!sRoot.starts_with("<TunnelProfiles")) Raise(Error::nNotTheExpectedFile);
    sText += sRoot;
  }
  while (!File.AtEnd()) sText += File.NextLine();
  return CodePage::ToUtf8(sText);
}

}  // namespace

bool clsTunnel::Load(const std::string& sFilename) {
  return Guard("clsTunnel.Load", false, [&] {
    // 1. - 3.
    m_sXml = ReadText(sFilename);
    // 4., 5.
    const auto Document = ReadXmlFile(sFilename, "TunnelProfile", Error::nNotTheExpectedFile);
    if (Document.sRootLocalName != "TunnelProfiles") Raise(Error::nNotTheExpectedFile);
    // 6. - 8.
    if (Document.aElements.empty()) Raise(Error::nXmlElementMissing);
    for (const auto& Profile : Document.aElements)
      m_aChainages.push_back(ST::ParseReal(Profile.Attribute("sta")));
    CovertData::SortDoubles(m_aChainages, 0);
    return true;
  });
}

double clsTunnel::GetChainageStart() const {
  return Checked::At(m_aChainages, 0);
}

double clsTunnel::GetChainageEnd() const {
  return Checked::At(m_aChainages, static_cast<int>(m_aChainages.size()) - 1);
}

bool clsTunnel::ExportToLandXml(double& rChainageStart, double& rChainageEnd, double /*dChStart*/,
                                double /*dChEnd*/) const {
  return Guard("clsTunnel.ExportToLandXml", false, [&] {
    rChainageStart = GetChainageStart();
    rChainageEnd = GetChainageEnd();
    return CLandXML::WriteTabbed(m_sXml);
  });
}

}  // namespace vrek
