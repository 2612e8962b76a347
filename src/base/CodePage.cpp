#include "base/CodePage.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace vrek::CodePage {
namespace {

// Code points of the bytes 0x80 to 0x9F; all other bytes stand for the code point of the same value.
constexpr std::array<std::uint16_t, 32> aHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// A code point from 0x80 to 0xFFFF.
void AppendUtf8(std::string& sOut, std::uint32_t nCode) {
  if (nCode < 0x800) {
    sOut += static_cast<char>(0xC0 | (nCode >> 6));
    sOut += static_cast<char>(0x80 | (nCode & 0x3F));
  } else {
    sOut += static_cast<char>(0xE0 | (nCode >> 12));
    sOut += static_cast<char>(0x80 | ((nCode >> 6) & 0x3F));
    sOut += static_cast<char>(0x80 | (nCode & 0x3F));
  }
}

// Byte of a code point from 0x80 on; "?" without one.
char ByteOf(std::uint32_t nCode) {
  if (nCode >= 0xA0 && nCode <= 0xFF) return static_cast<char>(nCode);
  const auto it = std::find(aHigh.begin(), aHigh.end(), nCode);
  return it == aHigh.end() ? '?' : static_cast<char>(0x80 + (it - aHigh.begin()));
}

// How many bytes below 128 stand at the front.
std::size_t AsciiLength(std::string_view sText) {
  std::size_t n = 0;
  for (; n + 8 <= sText.size(); n += 8) {
    std::uint64_t nBytes = 0;
    std::memcpy(&nBytes, sText.data() + n, sizeof nBytes);
    if ((nBytes & 0x8080808080808080) != 0) break;
  }
  while (n < sText.size() && static_cast<unsigned char>(sText[n]) < 0x80) ++n;
  return n;
}

// Bytes of the character at the front of a text that begins with a byte from 128 on; 0 when it is no UTF-8:
// broken off, longer than need be, a surrogate or beyond U+10FFFF.
std::size_t CharacterLength(std::string_view sText) {
  const auto Byte = [&](std::size_t i) { return static_cast<unsigned char>(sText[i]); };
  const unsigned nFirst = Byte(0);
  const std::size_t nLength = nFirst < 0xC2 || nFirst > 0xF4 ? 0 : nFirst < 0xE0 ? 2 : nFirst < 0xF0 ? 3 : 4;
  if (nLength == 0 || nLength > sText.size()) return 0;
  for (std::size_t i = 1; i < nLength; ++i) {
    if ((Byte(i) & 0xC0) != 0x80) return 0;
  }
  const unsigned nSecond = Byte(1);
  const bool bTooLong = (nFirst == 0xE0 && nSecond < 0xA0) || (nFirst == 0xF0 && nSecond < 0x90);
  const bool bNoCharacter = (nFirst == 0xED && nSecond > 0x9F) || (nFirst == 0xF4 && nSecond > 0x8F);
  return bTooLong || bNoCharacter ? 0 : nLength;
}

// Code point of a character of two or three bytes.
std::uint32_t CodePoint(std::string_view sCharacter) {
  std::uint32_t nCode = static_cast<unsigned char>(sCharacter[0]) & (0x7Fu >> sCharacter.size());
  for (const char c : sCharacter.substr(1)) nCode = (nCode << 6) | (static_cast<unsigned char>(c) & 0x3Fu);
  return nCode;
}

}  // namespace

bool IsAscii(std::string_view sText) {
  return AsciiLength(sText) == sText.size();
}

std::string ToUtf8(std::string_view sBytes) {
  std::string sOut;
  sOut.reserve(sBytes.size());
  while (!sBytes.empty()) {
    const std::size_t nAscii = AsciiLength(sBytes);
    sOut.append(sBytes, 0, nAscii);
    sBytes.remove_prefix(nAscii);
    for (; !sBytes.empty() && static_cast<unsigned char>(sBytes[0]) >= 0x80; sBytes.remove_prefix(1)) {
      const auto nByte = static_cast<unsigned char>(sBytes[0]);
      AppendUtf8(sOut, nByte < 0xA0 ? aHigh[nByte - 0x80u] : nByte);
    }
  }
  return sOut;
}

std::string FromUtf8(std::string_view sText) {
  std::string sOut;
  sOut.reserve(sText.size());
  while (!sText.empty()) {
    const std::size_t nAscii = AsciiLength(sText);
    sOut.append(sText, 0, nAscii);
    sText.remove_prefix(nAscii);
    if (sText.empty()) break;
    const std::size_t nLength = CharacterLength(sText);
    if (nLength == 4) {
      sOut += "??";
    } else {
      sOut += nLength == 0 ? '?' : ByteOf(CodePoint(sText.substr(0, nLength)));
    }
    sText.remove_prefix(std::max<std::size_t>(nLength, 1));
  }
  return sOut;
}

}  // namespace vrek::CodePage
