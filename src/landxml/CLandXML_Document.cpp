// The open file, the depth, and the frame of the document: root, Application, Project, Units.
#include <ctime>
#include <memory>
#include <utility>

#include "base/CodePage.h"
#include "base/Configuration.h"
#include "landxml/CLandXML.h"
#include "landxml/Tags.h"
#include "shell/AppModel.h"
#include "shell/ErrHandler.h"

namespace vrek::CLandXML {
namespace {

struct TState {
  std::string sFile;                   // path of the output file
  std::unique_ptr<IOutputFile> pFile;  // the open file; empty when none is open
  int nTabs = 0;                       // current depth: tabs in front of a line of WriteTabbed
  bool bWhole = false;                 // every line since OpenFile has been taken by the file
  bool bRefusalTold = false;           // a line that the file didn't take has been reported
};

TState m_State;

// For the document at a path that isn't open yet. Keeps nothing of the one before.
void Reset(std::string sPath) {
  CloseFile();
  m_State = TState{};
  m_State.sFile = std::move(sPath);
}

IOutputFile& File() {
  if (!m_State.pFile) Raise(Error::nObjectNotSet);
  return *m_State.pFile;
}

// Runs a body that sends sText to the file. A failure tells the line (of several, the first) and the file,
// once: on a full disk each piece that the file gathers would fail anew.
template <class TBody>
bool Send(std::string_view sText, TBody Body) {
  return Guard("CLandXML.WriteLn", false, [&] {
    try {
      Body(File());
      return true;
    } catch (...) {
      m_State.bWhole = false;
      if (std::exchange(m_State.bRefusalTold, true)) return false;
      Failure Caught = CurrentFailure();
      Caught.sDescription.append("\r\nError to write: '")
          .append(sText.substr(0, sText.find("\r\n")))
          .append("' in file:")
          .append(m_State.sFile);
      throw Caught;
    }
  });
}

std::string Formatted(const std::tm& Time, const char* pFormat) {
  char aText[32];
  return {aText, std::strftime(aText, sizeof aText, pFormat, &Time)};
}

// <LandXML xmlns="..." xmlns:xsi="..." xsi:schemaLocation="... .../LandXML-1.0.xsd" version="1.0"
//   date="2026-01-02" time="03:04:05" readOnly="false" language="english">   all in one line
std::string RootLine() {
  static constexpr std::string_view sNamespace = "http://www.landxml.org/schema/LandXML-1.0";
  static constexpr std::string_view sInstance = "http://www.w3.org/2001/XMLSchema-instance";
  const std::tm Now = AppModel().Platform().pClock->DocumentTime();
  std::string sLine = "<LandXML xmlns=\"";
  sLine.append(sNamespace).append("\" xmlns:xsi=\"").append(sInstance);
  sLine.append("\" xsi:schemaLocation=\"").append(sNamespace).append(" ").append(sNamespace);
  sLine.append("/LandXML-1.0.xsd\" version=\"1.0\" date=\"").append(Formatted(Now, "%Y-%m-%d"));
  sLine.append("\" time=\"").append(Formatted(Now, "%H:%M:%S"));
  sLine.append("\" readOnly=\"false\" language=\"english\">");
  return sLine;
}

}  // namespace

void SetOutputFile(const std::string& sPath) {
  Reset(sPath);
}

bool OpenFile() {
  return Guard("CLandXML.OpenFile", false, [] {
    Reset(m_State.sFile);
    m_State.pFile = AppModel().Platform().pOutputFiles->Create(m_State.sFile);
    m_State.bWhole = true;
    return true;
  });
}

void CloseFile() {
  const auto pFile = std::exchange(m_State.pFile, nullptr);
  if (!pFile) return;
  try {
    pFile->Close();
  } catch (...) {
    m_State.bWhole = false;
  }
}

bool IsOpen() {
  return m_State.pFile != nullptr;
}
bool WroteWhole() {
  return m_State.bWhole;
}
int Tabs() {
  return m_State.nTabs;
}

bool WriteLn(std::string_view sText) {
  return Send(sText, [&](IOutputFile& Out) {
    if (CodePage::IsAscii(sText)) {
      Out.Write(sText);
    } else {
      Out.Write(CodePage::FromUtf8(sText));
    }
    Out.Write("\r\n");
  });
}

bool WriteTabbed(std::string_view sText) {
  return WriteParts({sText});
}

bool WriteParts(std::initializer_list<std::string_view> aParts) {
  std::string sLine(static_cast<std::size_t>(m_State.nTabs), '\t');
  for (const std::string_view sPart : aParts) sLine += sPart;
  return WriteLn(sLine);
}

bool WriteOpening(std::initializer_list<std::string_view> aParts) {
  const bool bWritten = WriteParts(aParts);
  ++m_State.nTabs;
  return bWritten;
}

bool WriteClosing(std::string_view sText) {
  if (m_State.nTabs > 0) --m_State.nTabs;
  return WriteTabbed(sText);
}

// <LandXML ...>
// </LandXML>
bool TagLandXML(bool bClose) {
  if (!IsOpen() && !OpenFile()) return false;
  if (!bClose) {
    const bool bWritten = WriteLn(RootLine());
    ++m_State.nTabs;
    return bWritten;
  }
  static constexpr std::string_view sClosing = "</LandXML>";
  if (m_State.nTabs > 0) --m_State.nTabs;
  const bool bWritten = WriteLn(sClosing);
  // The file gathers what it is given: without this a full disk could show only when nobody asks any more.
  return Send(sClosing, [](IOutputFile& Out) { Out.Flush(); }) && bWritten;
}

// 	<Application name="Quennel Converters" version="2.3.0" manufacturer="Branthe AG"
// 	  manufacturerURL="..."><Author createdBy="..." /></Application>   all in one line
bool TagApplication(std::string_view sCreator) {
  return WriteParts({"<Application name=\"Quennel Converters\" version=\"", Configuration::sVersion,
                     "\" manufacturer=\"Branthe AG\" manufacturerURL=\"", Configuration::sManufacturerUrl,
                     "\"><Author createdBy=\"", sCreator, "\" /></Application>"});
}

// 	<Project name="..." desc="..." />
bool TagProject(std::string_view sName, std::string_view sDescription) {
  return WriteParts(
      {"<Project name=\"", EncodeUtf8Text(sName), "\" desc=\"", EncodeUtf8Text(sDescription), "\" />"});
}

// 	<Units>
// 		<Metric areaUnit="squareMeter" ... pressureUnit="HPA" />
// 	</Units>
bool TagUnits() {
  const bool bOpened = WriteTabbed("<Units>");
  const bool bMetric = WriteTabbed(
      "\t<Metric areaUnit=\"squareMeter\" linearUnit=\"meter\" volumeUnit=\"cubicMeter\""
      " temperatureUnit=\"celsius\" pressureUnit=\"HPA\" />");
  return WriteTabbed("</Units>") && bOpened && bMetric;
}

}  // namespace vrek::CLandXML
