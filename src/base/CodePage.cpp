#include "base/CodePage.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace vrek::CodePage {
namespace {

// Code points of the bytes 0x80 to 0x9F; all other bytes stand for the code point of the same value.
constexpr std::array<std::uint16_t, 32> aHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& sOut, std::uint32_t nCode) {
  if (nCode < 0x80) {
    sOut += static_cast<char>(nCode);
  } else if (nCode < 0x800) {
    sOut += static_cast<char>(0xC0 | (nCode >> 6));
    sOut += static_cast<char>(0x80 | (nCode & 0x3F));
  } else {
    sOut += static_cast<char>(0xE0 | (nCode >> 12));
    sOut += static_cast<char>(0x80 | ((nCode >> 6) & 0x3F));
    sOut += static_cast<char>(0x80 | (nCode & 0x3F));
  }
}

char ByteOf(std::uint32_t nCode) {
  if (nCode < 0x80 || (nCode >= 0xA0 && nCode <= 0xFF)) return static_cast<char>(nCode);
  const auto it = std::find(aHigh.begin(), aHigh.end(), nCode);
  return it == aHigh.end() ? '?' : static_cast<char>(0x80 + (it - aHigh.begin()));
}

}  // namespace

bool IsAscii(std::string_view sText) {
  return std::all_of(sText.begin(), sText.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string ToUtf8(std::string_view sBytes) {
  std::string sOut;
  sOut.reserve(sBytes.size());
  for (const char c : sBytes) {
    const auto nByte = static_cast<unsigned char>(c);
    AppendUtf8(sOut, nByte >= 0x80 && nByte < 0xA0 ? aHigh[nByte - 0x80] : nByte);
  }
  return sOut;
}

std::string FromUtf8(std::string_view sText) {
  std::string sOut;
  sOut.reserve(sText.size());
  for (std::size_t i = 0; i < sText.size();) {
    const auto nByte = static_cast<unsigned char>(sText[i]);
    const std::size_t nLen = nByte < 0x80 ? 1 : nByte >= 0xF0 && nByte < 0xF5 ? 4 : nByte >= 0xE0 ? 3 : nByte >= 0xC2 ? 2 : 0;
    bool bWhole = nLen > 0 && nByte < 0xF5 && i + nLen <= sText.size();
    for (std::size_t k = 1; bWhole && k < nLen; ++k) bWhole = (sText[i + k] & 0xC0) == 0x80;
    if (!bWhole) {
      sOut += '?';
      ++i;
      continue;
    }
    if (nLen == 4) {
      sOut += "??";
    } else {
      std::uint32_t nCode = nLen == 1 ? nByte : nByte & (0x7Fu >> nLen);
      for (std::size_t k = 1; k < nLen; ++k) nCode = (nCode << 6) | (sText[i + k] & 0x3Fu);
      sOut += ByteOf(nCode);
    }
    i += nLen;
  }
  return sOut;
}

}  // namespace vrek::CodePage
