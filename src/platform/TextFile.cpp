#include "platform/TextFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <filesystem>

#include "base/Failure.h"
#include "platform/Descriptor.h"

namespace vrek {
namespace {

// A name that the system would cut short, or that is none at all, is no path.
bool IsPath(const std::string& sPath) {
  return !sPath.empty() && sPath.find('\0') == sPath.npos;
}

[[noreturn]] void RaiseOpenFailure(const std::string& sPath, int nErrno) {
  if (nErrno == ENOENT) {
    const auto Folder = std::filesystem::path(sPath).parent_path();
    std::error_code Ignored;
    if (Folder.empty() || std::filesystem::is_directory(Folder, Ignored)) Raise(Error::nFileNotFound);
  }
  Raise(FailureNumber(nErrno));
}

// Beyond any listing; a file of this size would take the machine's memory with it.
constexpr std::size_t nMostBytes = std::size_t{1} << 31;

int Open(const std::string& sPath) {
  if (!IsPath(sPath)) Raise(Error::nPathFileAccess);
  const int nFile = ::open(sPath.c_str(), O_RDONLY | O_CLOEXEC);
  if (nFile < 0) RaiseOpenFailure(sPath, errno);
  return nFile;
}

// A device may have no end.
void RefuseDevice(int nFile) {
  struct stat Status {};
  if (::fstat(nFile, &Status) == 0 && S_ISCHR(Status.st_mode)) Raise(Error::nPathFileAccess);
}

// Where the system knows it, else 0.
std::size_t SizeOf(int nFile) {
  struct stat Status {};
  const bool bKnown = ::fstat(nFile, &Status) == 0 && S_ISREG(Status.st_mode) && Status.st_size > 0;
  return bKnown ? static_cast<std::size_t>(Status.st_size) : 0;
}

std::size_t ReadPart(int nFile, char* pTo, std::size_t nMost) {
  for (;;) {
    const auto n = ::read(nFile, pTo, nMost);
    if (n >= 0) return static_cast<std::size_t>(n);
    if (errno != EINTR) Raise(FailureNumber(errno));
  }
}

// Reads until the system says that there is no more: a size that changes or isn't known does no harm.
std::string ReadToEnd(int nFile, std::size_t nExpected) {
  if (nExpected > nMostBytes) Raise(Error::nOutOfMemory);
  std::string sBytes(nExpected + 1, '\0');
  std::size_t nRead = 0;
  for (;;) {
    const auto n = ReadPart(nFile, sBytes.data() + nRead, sBytes.size() - nRead);
    if (n == 0) break;
    nRead += n;
    if (nRead > nMostBytes) Raise(Error::nOutOfMemory);
    if (nRead == sBytes.size()) sBytes.resize(2 * nRead + 65536);
  }
  sBytes.resize(nRead);
  return sBytes;
}

}  // namespace

std::string ReadWholeFile(const std::string& sPath) {
  const Descriptor File(Open(sPath));
  RefuseDevice(File.Get());
  return ReadToEnd(File.Get(), SizeOf(File.Get()));
}

std::size_t CountStrayLfs(const std::string& sPath) {
  const Descriptor File(Open(sPath));
  RefuseDevice(File.Get());
  std::string sPart(262'144, '\0');
  std::size_t nStray = 0;
  bool bCr = false;
  for (char cBefore = '\0';;) {
    const auto nRead = ReadPart(File.Get(), sPart.data(), sPart.size());
    if (nRead == 0) return bCr ? nStray : 0;
    const auto sBytes = std::string_view(sPart).substr(0, nRead);
    bCr = bCr || sBytes.find('\r') != sBytes.npos;
    nStray += sBytes.front() == '\n' && cBefore != '\r' ? 1 : 0;
    // Without branches, so that many bytes are looked at at once.
    for (std::size_t n = 1; n < sBytes.size(); ++n) {
      const std::size_t nLf = sBytes[n] == '\n' ? 1 : 0, nAlone = sBytes[n - 1] == '\r' ? 0 : 1;
      nStray += nLf & nAlone;
    }
    cBefore = sBytes.back();
  }
}

bool CanOpenForReading(const std::string& sPath) {
  if (!IsPath(sPath)) return false;
  // Without waiting for whoever would write to a pipe.
  const Descriptor File(::open(sPath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat Status {};
  return File.Get() >= 0 && ::fstat(File.Get(), &Status) == 0 && !S_ISDIR(Status.st_mode);
}

CTextFile::CTextFile(const std::string& sPath) : m_sBytes(ReadWholeFile(sPath)) {
  if (m_sBytes.find('\r') == m_sBytes.npos && m_sBytes.find('\n') != m_sBytes.npos) m_cLineEnd = '\n';
}

std::string_view CTextFile::NextLine() {
  if (AtEnd()) Raise(Error::nInputPastEnd);
  const std::string_view sRest = std::string_view(m_sBytes).substr(m_nPos);
  const auto nLength = sRest.find(m_cLineEnd);
  if (nLength == sRest.npos) {
    m_nPos = m_sBytes.size();
    return sRest;
  }
  const bool bCrLf = m_cLineEnd == '\r' && nLength + 1 < sRest.size() && sRest[nLength + 1] == '\n';
  m_nPos += nLength + (bCrLf ? 2 : 1);
  return sRest.substr(0, nLength);
}

}  // namespace vrek
