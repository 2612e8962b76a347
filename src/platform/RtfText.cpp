#include "platform/RtfText.h"

#include "base/CodePage.h"
#include "platform/RtfReader.h"
#include "platform/RtfTokens.h"
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
  if (!IsRtf(sBytes)) return WithLineEnds(CodePage::ToUtf8(sBytes));
  return Rtf::CReader(sBytes).Read();
}

bool IsRtf(std::string_view sBytes) {
  return sBytes.starts_with("{\\rtf");
}

bool IsWholeRtf(std::string_view sBytes) {
  using Rtf::EPiece;
  Rtf::CTokens Tokens(sBytes);
  int nDepth = 0;
  for (auto ePiece = Tokens.Next(); ePiece != EPiece::eEnd; ePiece = Tokens.Next()) {
    if (ePiece == EPiece::eOpen) ++nDepth;
    if (ePiece == EPiece::eClose && --nDepth <= 0) return true;
    if (ePiece == EPiece::eWord && Tokens.Word().eAction == Rtf::EAction::eBinary)
      Tokens.SkipBytes(Tokens.Parameter(0));
  }
  return false;
}

std::string ReadRtfFile(const std::string& sPath) {
  return RtfToText(ReadWholeFile(sPath));
}

}  // namespace vrek
