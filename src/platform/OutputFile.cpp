#include "platform/OutputFile.h"

#include <fcntl.h>

#include "base/Failure.h"
#include "platform/Descriptor.h"

namespace vrek {
namespace {

constexpr std::size_t nBufferSize = std::size_t{1} << 20;

class COutputFile final : public IOutputFile {
 public:
  explicit COutputFile(int nFile) : m_File(nFile) { m_sBuffer.reserve(nBufferSize); }
  ~COutputFile() override { WriteOut(); }

  void Write(std::string_view sBytes) override {
    if (m_sBuffer.size() + sBytes.size() > nBufferSize) Flush();
    if (sBytes.size() > nBufferSize) {
      Check(WriteOut(sBytes));
    } else {
      m_sBuffer.append(sBytes);
    }
  }

  void Flush() override { Check(WriteOut()); }

  void Close() override {
    const bool bWritten = WriteOut();
    const int nErrno = errno;
    const bool bClosed = m_File.Close();  // also after a failed write
    if (!bWritten) errno = nErrno;
    Check(bWritten && bClosed);
  }

 private:
  static void Check(bool bWell) {
    if (!bWell) Raise(FailureNumber(errno));
  }

  // Empties the buffer in any case: after a failure the lines to come are tried afresh.
  bool WriteOut() {
    const bool bWell = WriteOut(m_sBuffer);
    m_sBuffer.clear();
    return bWell;
  }

  // False, with errno, when not all bytes reached the file.
  bool WriteOut(std::string_view sBytes) const {
    while (!sBytes.empty()) {
      const auto n = ::write(m_File.Get(), sBytes.data(), sBytes.size());
      if (n < 0 && errno == EINTR) continue;
      if (n == 0) errno = ENOSPC;
      if (n <= 0) return false;
      sBytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
  }

  Descriptor m_File;
  std::string m_sBuffer;
};

}  // namespace

std::unique_ptr<IOutputFile> CreateOutputFile(const std::string& sPath) {
  if (sPath.empty() || sPath.find('\0') != sPath.npos) Raise(Error::nPathFileAccess);
  const int nFile = ::open(sPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (nFile < 0) Raise(FailureNumber(errno));
  return std::make_unique<COutputFile>(nFile);
}

}  // namespace vrek
