// A tunnel file: the declaration and the root element stand on the first two lines.
//
//   <?xml version="1.0" encoding="ISO-8859-1"?>
//   <TunnelProfiles desc="...">
//     <TunnelProfile sta="726,773"> ... </TunnelProfile>
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

// All lines of the file in one, without line 1. Bytes of the code page.
void JoinLines(std::string& sBytes, CTextFile& File) {
  // Line 1 goes, declaration or not
  const std::string_view sFirst = File.AtEnd() ? std::string_view{} : File.NextLine();
  // Behind a declaration the root element must follow
  if (sFirst.starts_with("<?xml")) {
    const std::string_view sLine = File.NextLine();
    if (!sLine.starts_with("<TunnelProfiles")) Raise(Error::nNotTheExpectedFile);
    sBytes += sLine;
  }
  // The rest
  while (!File.AtEnd()) sBytes += File.NextLine();
}

}  // namespace

bool clsTunnel::Load(const std::string& sFilename) {
  return Guard("clsTunnel.Load", false, [&] {
    // The text
    m_sXml.clear();
    {
      CTextFile File = OpenTextFile(sFilename);
      std::string sBytes;
      JoinLines(sBytes, File);
      m_sXml = CodePage::ToUtf8(sBytes);
    }
    // The profiles
    const TXmlDocument Document = ReadXmlFile(sFilename, "TunnelProfile", Error::nNotTheExpectedFile);
    if (Document.sRootLocalName != "TunnelProfiles") Raise(Error::nNotTheExpectedFile);
    if (Document.aElements.empty()) Raise(Error::nXmlElementMissing);
    // Their chainages
    for (const auto& Element : Document.aElements)
      m_aChainages.push_back(ST::ParseReal(Element.Attribute("sta")));
    CovertData::SortDoubles(m_aChainages, 0);
    return true;
  });
}

double clsTunnel::GetChainageStart() const {
  return Checked::At(m_aChainages, 0);
}

double clsTunnel::GetChainageEnd() const {
  return Checked::At(m_aChainages, std::ssize(m_aChainages) - 1);
}

bool clsTunnel::IsWellFormed() const {
  return IsXmlContent(CodePage::FromUtf8(m_sXml));
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
