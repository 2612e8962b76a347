// A document in memory: what the writer sends to its file, with a disk that can be full and a path that can
// be bad.
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "landxml/CLandXML.h"
#include "support/TestApp.h"

namespace vrek::test {

/// The disk. A file takes bytes up to nRoom and fails (61) beyond; a buffered one tells it only when flushed.
struct TMemoryDisk {
  std::string sPath, sBytes;
  std::size_t nRoom = std::numeric_limits<std::size_t>::max();
  std::int32_t nCreateFailure = 0;
  bool bBuffered = false, bCloseFails = false, bClosed = false;
};

class MemoryFile : public IOutputFile {
 public:
  explicit MemoryFile(TMemoryDisk& Disk) : m_Disk(Disk) {}
  void Write(std::string_view sBytes) override {
    m_sPending += sBytes;
    if (!m_Disk.bBuffered) Flush();
  }
  void Flush() override {
    const bool bFits = m_Disk.sBytes.size() + m_sPending.size() <= m_Disk.nRoom;
    if (bFits) m_Disk.sBytes += m_sPending;
    m_sPending.clear();
    if (!bFits) Raise(Error::nDiskFull);
  }
  void Close() override {
    Flush();
    m_Disk.bClosed = true;
    if (m_Disk.bCloseFails) Raise(Error::nPathFileAccess);
  }

 private:
  TMemoryDisk& m_Disk;
  std::string m_sPending;
};

class MemoryFiles : public IOutputFiles {
 public:
  std::unique_ptr<IOutputFile> Create(const std::string& sPath) override {
    if (Disk.nCreateFailure != 0) Raise(Disk.nCreateFailure);
    Disk.sPath = sPath;
    Disk.sBytes.clear();
    return std::make_unique<MemoryFile>(Disk);
  }
  TMemoryDisk Disk;
};

class LandXmlTest : public AppTest {
 protected:
  LandXmlTest() : m_Model(PartsWith(m_Files)) {
    SetAppModel(&m_Model);
    CLandXML::SetOutputFile("road.xml");
  }
  ~LandXmlTest() override { CLandXML::CloseFile(); }

  TMemoryDisk& Disk() { return m_Files.Disk; }

  /// What one routine writes into a document of its own, line ends as "\n".
  template <class TWrite>
  std::string Written(TWrite Write) {
    EXPECT_TRUE(CLandXML::OpenFile());
    Write();
    return WithoutCr(Disk().sBytes);
  }

  /// The text of the only message box; "" without one, "several" with more.
  std::string OnlyBox() const {
    if (Platform.aBoxes.empty()) return "";
    return Platform.aBoxes.size() == 1 ? Platform.aBoxes.front().sText : "several";
  }

  /// What that box says of a line that the file didn't take.
  static std::string NotWritten(const std::string& sLine, const std::string& sWhy = "Disk full") {
    return "Unhandler Error in CLandXML.WriteLn\r\n" + sWhy + "\r\nError to write: '" + sLine +
           "' in file:road.xml";
  }

  /// Every CR has to stand before a LF, and the other way round.
  static std::string WithoutCr(const std::string& sBytes) {
    std::string sOut;
    for (const char c : sBytes) {
      if (c != '\r') sOut += c;
    }
    EXPECT_EQ(CrLf(sOut), sBytes);
    return sOut;
  }

 private:
  TPlatform PartsWith(MemoryFiles& Files) {
    TPlatform Parts = Platform.Parts();
    Parts.pOutputFiles = &Files;
    return Parts;
  }

  MemoryFiles m_Files;
  clsAppModel m_Model;
};

/// What stands between two texts, at each place where they stand.
inline std::vector<std::string> Between(const std::string& sText, const std::string& sBefore,
                                        const std::string& sAfter) {
  std::vector<std::string> aFound;
  for (auto n = sText.find(sBefore); n != sText.npos; n = sText.find(sBefore, n)) {
    n += sBefore.size();
    aFound.push_back(sText.substr(n, sText.find(sAfter, n) - n));
  }
  return aFound;
}

}  // namespace vrek::test
