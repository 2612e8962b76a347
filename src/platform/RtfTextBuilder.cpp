#include "platform/RtfTextBuilder.h"

#include <utility>

namespace vrek::Rtf {
namespace {

constexpr std::string_view sLineEnd = "\r\n";
constexpr char32_t nReplacement = 0xFFFD;

bool IsHighHalf(char32_t n) {
  return n >= 0xD800 && n < 0xDC00;
}
bool IsLowHalf(char32_t n) {
  return n >= 0xDC00 && n < 0xE000;
}

}  // namespace

void CTextBuilder::Append(std::string_view sAscii) {
  Settle();
  m_sText.append(sAscii);
}

void CTextBuilder::AppendCode(char32_t nCode) {
  if (nCode == '\n') return;
  if (nCode == '\r') return EndParagraph();
  if (PairWithHighHalf(nCode)) return;
  Settle();
  if (IsHighHalf(nCode)) {
    m_nHighHalf = nCode;
  } else {
    AppendUtf8(IsLowHalf(nCode) || nCode > 0x10FFFF ? nReplacement : nCode);
  }
}

bool CTextBuilder::PairWithHighHalf(char32_t nCode) {
  if (m_nHighHalf == 0 || !IsLowHalf(nCode)) return false;
  AppendUtf8(0x10000 + ((m_nHighHalf - 0xD800) << 10) + (nCode - 0xDC00));
  m_nHighHalf = 0;
  return true;
}

void CTextBuilder::AppendUtf8(char32_t nCode) {
  const auto next = [&](int nShift) { m_sText += static_cast<char>(0x80 | ((nCode >> nShift) & 0x3F)); };
  if (nCode < 0x80) {
    m_sText += static_cast<char>(nCode);
  } else if (nCode < 0x800) {
    m_sText += static_cast<char>(0xC0 | (nCode >> 6));
    next(0);
  } else if (nCode < 0x10000) {
    m_sText += static_cast<char>(0xE0 | (nCode >> 12));
    next(6), next(0);
  } else {
    m_sText += static_cast<char>(0xF0 | (nCode >> 18));
    next(12), next(6), next(0);
  }
}

void CTextBuilder::AppendWaiting() {
  if (m_nHighHalf != 0) AppendUtf8(nReplacement);
  m_nHighHalf = 0;
  for (; m_nWaitingEnds > 0; --m_nWaitingEnds) m_sText += sLineEnd;
}

void CTextBuilder::EndParagraph() {
  if (!m_bInTable && !m_bRowOpen) return EndLine();
  if (m_nHighHalf != 0) AppendWaiting();
  ++m_nWaitingEnds;
}

void CTextBuilder::EndLine() {
  Settle();
  m_sText += sLineEnd;
}

void CTextBuilder::Tab() {
  Settle();
  m_sText += '\t';
}

void CTextBuilder::EndCell() {
  m_nWaitingEnds = 0;
  Tab();
  m_bRowOpen = true;
}

void CTextBuilder::EndRow() {
  EndLine();
  m_bInTable = m_bRowOpen = false;
}

void CTextBuilder::StartRow() {
  Settle();
  m_bRowOpen = true;
}

void CTextBuilder::BreakPage() {
  Settle();
  if (!m_sText.empty() && m_sText.back() != '\n') m_sText += sLineEnd;
}

std::string CTextBuilder::Take() {
  Settle();
  return std::exchange(m_sText, {});
}

}  // namespace vrek::Rtf
