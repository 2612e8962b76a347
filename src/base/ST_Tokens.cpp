#include <algorithm>

#include "base/ST.h"

namespace vrek::ST {
namespace {

constexpr std::size_t nScanWidth = 799;  // what lies behind it doesn't exist for the readers

}  // namespace

void ScanTokens(std::string_view sLine, char cSeparator, int& nCount, TTokens& aTokens) {
  sLine = sLine.substr(0, nScanWidth);
  nCount = 0;
  aTokens.resize(1);
  std::size_t nEnd = 0;  // last position of the field before
  while (nEnd < nScanWidth) {
    std::size_t nStart = nEnd + 1;
    while (nStart <= sLine.size() && sLine[nStart - 1] == cSeparator) ++nStart;
    const auto nNext = nStart > sLine.size() ? sLine.npos : sLine.find(cSeparator, nStart - 1);
    nEnd = nNext == sLine.npos ? nScanWidth : nNext;
    aTokens.push_back(
        {nStart > sLine.size() ? std::string_view{} : sLine.substr(nStart - 1, nEnd - nStart + 1),
         static_cast<int>(nStart), static_cast<int>(nEnd)});
    ++nCount;
  }
}

void SplitBySeparator(std::string_view sLine, char cSeparator, int& nLimit, TTokens& aTokens,
                      bool bSkipEmpty) {
  aTokens.resize(1);
  int nCount = 0;
  for (std::size_t i = 0; nCount <= nLimit;) {
    const std::size_t nSeparator = std::min(sLine.find(cSeparator, i), sLine.size());
    if (!bSkipEmpty || nSeparator > i) {
      aTokens.push_back(
          {sLine.substr(i, nSeparator - i), static_cast<int>(i + 1), static_cast<int>(nSeparator + 1)});
      ++nCount;
    }
    if (nSeparator == sLine.size()) break;
    i = nSeparator + 1;
  }
  nLimit = std::min(nLimit, nCount);
}

std::string_view NextTextLine(std::string_view sText, std::size_t& nPos, bool& bEnd) {
  bEnd = true;
  if (nPos == 0 || nPos >= sText.size()) return {};
  const auto nReturn = sText.find('\r', nPos);  // the character at nPos itself isn't looked at
  // The last position counts as the end, whatever stands there.
  if (nReturn == sText.npos || nReturn + 1 >= sText.size()) return {};
  bEnd = false;
  const auto sLine = sText.substr(nPos - 1, nReturn - (nPos - 1));
  nPos = nReturn + 1;
  return sLine;
}

}  // namespace vrek::ST
