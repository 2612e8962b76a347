#include "platform/IniText.h"

#include <algorithm>
#include <charconv>

namespace vrek {
namespace {

std::string_view Stripped(std::string_view sText) {
  constexpr std::string_view sBlanks = " \t\r";
  const std::size_t nFirst = sText.find_first_not_of(sBlanks);
  if (nFirst == std::string_view::npos) return {};
  return sText.substr(nFirst, sText.find_last_not_of(sBlanks) - nFirst + 1);
}

std::string HexEscape(char c) {
  constexpr std::string_view sDigits = "0123456789ABCDEF";
  const auto nByte = static_cast<unsigned char>(c);
  return {'\\', 'x', sDigits[nByte >> 4], sDigits[nByte & 15]};
}

/// sSpecial: characters that have a meaning of their own where the text is to stand.
std::string Escape(std::string_view sText, std::string_view sSpecial) {
  std::string sOut;
  for (std::size_t i = 0; i < sText.size(); ++i) {
    const char c = sText[i];
    const bool bAtAnEnd = i == 0 || i + 1 == sText.size();
    if (c == '\\') {
      sOut += "\\\\";
    } else if (c == '\n') {
      sOut += "\\n";
    } else if (c == '\r') {
      sOut += "\\r";
    } else if (static_cast<unsigned char>(c) < ' ' || (c == ' ' && bAtAnEnd) ||
               sSpecial.find(c) != sSpecial.npos) {
      sOut += HexEscape(c);
    } else {
      sOut += c;
    }
  }
  return sOut;
}

/// The character of the two digits behind "\x"; false where they aren't two hexadecimal digits.
bool ReadHex(std::string_view sText, char& r_cChar) {
  if (sText.size() < 2) return false;
  unsigned char nByte = 0;
  const auto [pEnd, eError] = std::from_chars(sText.data(), sText.data() + 2, nByte, 16);
  r_cChar = static_cast<char>(nByte);
  return eError == std::errc{} && pEnd == sText.data() + 2;
}

/// An escape that Escape doesn't make, from another hand, stands for itself.
std::string Unescape(std::string_view sText) {
  std::string sOut;
  for (std::size_t i = 0; i < sText.size(); ++i) {
    const char cNext = sText[i] == '\\' && i + 1 < sText.size() ? sText[i + 1] : '\0';
    char cHex = 0;
    if (cNext == '\\' || cNext == 'n' || cNext == 'r') {
      sOut += cNext == 'n' ? '\n' : cNext == 'r' ? '\r' : '\\';
      ++i;
    } else if (cNext == 'x' && ReadHex(sText.substr(i + 2), cHex)) {
      sOut += cHex;
      i += 3;
    } else {
      sOut += sText[i];
    }
  }
  return sOut;
}

std::string HeadLine(std::string_view sSection) {
  return "[" + Escape(sSection, "[]") + "]";
}

std::string KeyLine(std::string_view sKey, std::string_view sValue) {
  return Escape(sKey, "=[#;") + "=" + Escape(sValue, "");
}

bool IsHead(std::string_view sLine) {
  return Stripped(sLine).starts_with('[');
}

bool IsKey(std::string_view sLine, std::string_view sKey) {
  const std::string_view sText = Stripped(sLine);
  const std::size_t nSign = sText.find('=');
  if (nSign == std::string_view::npos || sText.front() == '#' || sText.front() == ';') return false;
  return Unescape(Stripped(sText.substr(0, nSign))) == sKey;
}

}  // namespace

IniText::IniText(std::string_view sText) {
  while (!sText.empty()) {
    const std::size_t nEnd = std::min(sText.find('\n'), sText.size());
    m_aLines.emplace_back(sText.substr(0, nEnd));
    sText.remove_prefix(std::min(nEnd + 1, sText.size()));
  }
}

std::optional<std::string> IniText::Find(std::string_view sSection, std::string_view sKey) const {
  const std::size_t nHead = FindSection(sSection);
  const std::size_t nLine = FindKey(nHead, sKey);
  if (nLine == EndOfSection(nHead)) return std::nullopt;
  const std::string& sLine = m_aLines[nLine];
  return Unescape(Stripped(std::string_view(sLine).substr(sLine.find('=') + 1)));
}

void IniText::Set(std::string_view sSection, std::string_view sKey, std::string_view sValue) {
  std::size_t nHead = FindSection(sSection);
  if (nHead == m_aLines.size()) m_aLines.push_back(HeadLine(sSection));
  const std::size_t nLine = FindKey(nHead, sKey);
  if (nLine != EndOfSection(nHead)) {
    m_aLines[nLine] = KeyLine(sKey, sValue);
  } else {
    m_aLines.insert(m_aLines.begin() + static_cast<std::ptrdiff_t>(nLine), KeyLine(sKey, sValue));
  }
}

std::string IniText::Text() const {
  std::string sText;
  for (const std::string& sLine : m_aLines) sText += sLine + "\n";
  return sText;
}

std::size_t IniText::FindSection(std::string_view sSection) const {
  std::size_t nLine = 0;
  while (nLine < m_aLines.size()) {
    const std::string_view sLine = Stripped(m_aLines[nLine]);
    if (IsHead(sLine) && Unescape(sLine.substr(1, sLine.find(']') - 1)) == sSection) break;
    ++nLine;
  }
  return nLine;
}

std::size_t IniText::EndOfSection(std::size_t nHead) const {
  std::size_t nLine = nHead + 1;
  while (nLine < m_aLines.size() && !IsHead(m_aLines[nLine])) ++nLine;
  return std::min(nLine, m_aLines.size());
}

std::size_t IniText::FindKey(std::size_t nHead, std::string_view sKey) const {
  std::size_t nLine = nHead + 1;
  const std::size_t nEnd = EndOfSection(nHead);
  while (nLine < nEnd && !IsKey(m_aLines[nLine], sKey)) ++nLine;
  return std::min(nLine, nEnd);
}

}  // namespace vrek
