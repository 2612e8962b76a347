#include "platform/RtfTokens.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>

namespace vrek::Rtf {
namespace {

// Which bytes end a run of text.
constexpr auto aEndsText = [] {
  std::array<bool, 256> aEnds{};
  for (std::size_t i = 128; i < aEnds.size(); ++i) aEnds[i] = true;
  for (const unsigned char c : {'\\', '{', '}', '\t', '\r', '\n'}) aEnds[c] = true;
  return aEnds;
}();

bool EndsText(char c) {
  return aEndsText[static_cast<unsigned char>(c)];
}
bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// How many characters at the start of the text the test holds for.
template <class Test>
std::size_t CountWhile(std::string_view s, Test test) {
  std::size_t n = 0;
  while (n < s.size() && test(s[n])) ++n;
  return n;
}

}  // namespace

EPiece CTokens::Next() {
  while (!m_sRest.empty()) {
    const std::size_t nRun = CountWhile(m_sRest, [](char c) { return !EndsText(c); });
    if (nRun > 0) {
      m_sText = m_sRest.substr(0, nRun);
      m_sRest.remove_prefix(nRun);
      return EPiece::eText;
    }
    m_cChar = m_sRest.front();
    m_sRest.remove_prefix(1);
    switch (m_cChar) {
      case '{':
        return EPiece::eOpen;
      case '}':
        return EPiece::eClose;
      case '\\':
        return ReadEscape();
      case '\t':
        return EPiece::eSymbol;
      case '\r':
      case '\n':
        break;
      default:
        return EPiece::eByte;
    }
  }
  return EPiece::eEnd;
}

EPiece CTokens::ReadEscape() {
  if (m_sRest.empty()) return EPiece::eEnd;
  const char c = m_sRest.front();
  if (IsLetter(c)) return ReadWord();
  m_sRest.remove_prefix(1);
  if (c == '\'') return ReadHex();
  if (c != '\r') return Symbol(c);
  if (m_sRest.starts_with('\n')) m_sRest.remove_prefix(1);
  return Symbol('\n');
}

EPiece CTokens::ReadWord() {
  const std::size_t nLetters = CountWhile(m_sRest, IsLetter);
  m_oWord = &FindWord(m_sRest.substr(0, nLetters));
  m_sRest.remove_prefix(nLetters);
  ReadParameter();
  if (m_sRest.starts_with(' ')) m_sRest.remove_prefix(1);
  return EPiece::eWord;
}

void CTokens::ReadParameter() {
  const bool bMinus = m_sRest.starts_with('-');
  const std::size_t nDigits = CountWhile(m_sRest.substr(bMinus), IsDigit);
  m_bParameter = nDigits > 0;
  if (!m_bParameter) return;
  const std::size_t nSize = bMinus + nDigits;
  const auto [pEnd, eError] = std::from_chars(m_sRest.data(), m_sRest.data() + nSize, m_nParameter);
  using Limits = std::numeric_limits<std::int32_t>;
  if (eError != std::errc()) m_nParameter = bMinus ? Limits::min() : Limits::max();
  m_sRest.remove_prefix(nSize);
}

EPiece CTokens::ReadHex() {
  unsigned char nByte = 0;
  const char* pStart = m_sRest.data();
  const char* pEnd = pStart + std::min<std::size_t>(m_sRest.size(), 2);
  const auto nDigits = std::from_chars(pStart, pEnd, nByte, 16).ptr - pStart;
  m_sRest.remove_prefix(static_cast<std::size_t>(nDigits));
  if (nDigits < 2) return Symbol('\0');
  m_cChar = static_cast<char>(nByte);
  return EPiece::eByte;
}

EPiece CTokens::Symbol(char c) {
  m_cChar = c;
  return EPiece::eSymbol;
}

void CTokens::SkipBytes(std::int32_t nCount) {
  m_sRest.remove_prefix(std::min(m_sRest.size(), static_cast<std::size_t>(std::max(nCount, 0))));
}

void CTokens::SkipGroup() {
  for (std::size_t nDepth = 0; !m_sRest.empty();) {
    m_sRest.remove_prefix(CountWhile(m_sRest, [](char c) { return c != '{' && c != '}' && c != '\\'; }));
    if (m_sRest.empty() || (m_sRest.front() == '}' && nDepth == 0)) return;
    const char c = m_sRest.front();
    m_sRest.remove_prefix(1);
    if (c == '{') ++nDepth;
    if (c == '}') --nDepth;
    if (c != '\\' || m_sRest.empty()) continue;
    if (!IsLetter(m_sRest.front())) {
      m_sRest.remove_prefix(1);
    } else if (ReadWord(); m_oWord->eAction == EAction::eBinary) {
      SkipBytes(Parameter(0));
    }
  }
}

}  // namespace vrek::Rtf
