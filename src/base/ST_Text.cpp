#include <algorithm>

#include "base/ST.h"

namespace vrek::ST {

std::string_view Trim(std::string_view sText) {
  const auto nFirst = sText.find_first_not_of(' ');
  if (nFirst == sText.npos) return {};
  return sText.substr(nFirst, sText.find_last_not_of(' ') - nFirst + 1);
}

std::string ToUpper(std::string_view sText) {
  std::string sOut(sText);
  for (char& c : sOut) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return sOut;
}

std::string_view GetFileExtension(std::string_view sPath) {
  const auto nPoint = sPath.rfind('.');
  return nPoint == sPath.npos ? std::string_view{} : sPath.substr(nPoint + 1);
}

std::string_view GetFileName(std::string_view sPath) {
  const auto nSlash = sPath.find_last_of("\\/");
  return nSlash == sPath.npos ? sPath : sPath.substr(nSlash + 1);
}

std::string_view GetFileBaseName(std::string_view sPath) {
  const auto sName = GetFileName(sPath);
  return sName.substr(0, sName.rfind('.'));
}

int CountOccurrences(std::string_view sText, std::string_view sSought) {
  if (sSought.empty()) return 0;
  int nCount = 0;
  for (auto nAt = sText.find(sSought); nAt != sText.npos; nAt = sText.find(sSought, nAt + 1)) ++nCount;
  return nCount;
}

std::string PadRight(std::string_view sText, int nWidth, std::string_view sPad) {
  const auto sTrimmed = Trim(sText);
  const auto nCharacters =
      std::count_if(sTrimmed.begin(), sTrimmed.end(), [](char c) { return (c & 0xC0) != 0x80; });
  std::string sOut;
  for (auto n = nCharacters; n < nWidth; ++n) sOut += sPad;
  return sOut.append(sTrimmed);
}

}  // namespace vrek::ST
