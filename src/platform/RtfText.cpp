#include "platform/RtfText.h"

#include "base/CodePage.h"
#include "platform/RtfReader.h"
#include "platform/TextFile.h"

namespace vrek {
namespace {

std::string WithLineEnds(std::string_view sText) {
  std::string sOut;
  sOut.reserve(sText.size() + sText.size() / 16);
  while (!sText.empty()) {
    const std::size_t nEnd = sText.find_first_of("\r\n");
    sOut += sText.substr(0, nEnd);
    if (nEnd == std::string_view::npos) break;
    sOut += "\r\n";
    sText.remove_prefix(nEnd);
    sText.remove_prefix(sText.starts_with("\r\n") ? 2 : 1);
  }
  return sOut;
}

}  // namespace

std::string RtfToText(std::string_view sBytes) {
  if (!sBytes.starts_with("{\\rtf")) return WithLineEnds(CodePage::ToUtf8(sBytes));
  return Rtf::CReader(sBytes).Read();
}

std::string ReadRtfFile(const std::string& sPath) {
  return RtfToText(ReadWholeFile(sPath));
}

}  // namespace vrek
