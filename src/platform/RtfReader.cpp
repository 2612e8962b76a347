#include "platform/RtfReader.h"

#include <algorithm>

namespace vrek::Rtf {
namespace {

constexpr char32_t nReplacement = 0xFFFD;
constexpr char32_t nHardBlank = 0xA0;

}  // namespace

std::string CReader::Read() {
  while (ReadPiece()) {
  }
  DropPartialCharacter();
  return m_oText.Take();
}

// False at the end of the document.
bool CReader::ReadPiece() {
  switch (m_oTokens.Next()) {
    case EPiece::eEnd:
      return false;
    case EPiece::eOpen:
      OpenGroup();
      return true;
    case EPiece::eClose:
      return CloseGroup();
    case EPiece::eWord:
      ReadWord();
      break;
    case EPiece::eSymbol:
      ReadSymbol(m_oTokens.Char());
      return true;
    case EPiece::eByte:
      if (!IsStandIn()) ReadByte(m_oTokens.Char());
      break;
    case EPiece::eText:
      ReadText(m_oTokens.Text());
      break;
  }
  m_bGroupStart = m_bStarred = false;
  return true;
}

void CReader::OpenGroup() {
  DropPartialCharacter();
  if (m_aOuter.size() < nMaxDepth) {
    m_aOuter.push_back(m_Group);
  } else {
    ++m_nBeyondDepth;
  }
  m_nStandIns = 0;
  m_bGroupStart = true;
  m_bStarred = false;
}

bool CReader::CloseGroup() {
  DropPartialCharacter();
  m_nStandIns = 0;
  m_bGroupStart = m_bStarred = false;
  if (m_nBeyondDepth > 0) {
    --m_nBeyondDepth;
    return true;
  }
  if (m_aOuter.empty()) return false;
  m_Group = m_aOuter.back();
  m_aOuter.pop_back();
  return !m_aOuter.empty();
}

void CReader::ReadText(std::string_view sText) {
  if (m_nStandIns > 0) {
    const auto nDropped = std::min(sText.size(), static_cast<std::size_t>(m_nStandIns));
    m_nStandIns -= static_cast<std::int32_t>(nDropped);
    sText.remove_prefix(nDropped);
  }
  for (; !m_sCharacter.empty() && !sText.empty(); sText.remove_prefix(1)) ReadByte(sText.front());
  if (IsShown() && !sText.empty()) m_oText.Append(sText);
}

void CReader::ReadByte(char c) {
  if (!IsShown()) return;
  const int nPage = CurrentPage();
  if (!m_sCharacter.empty() && !CanContinue(nPage, c)) DropPartialCharacter();
  if (m_sCharacter.empty() && static_cast<unsigned char>(c) < 0x80) {
    return m_oText.AppendCode(static_cast<unsigned char>(c));
  }
  m_sCharacter += c;
  if (m_sCharacter.size() < LengthOfCharacter(nPage, m_sCharacter.front())) return;
  m_oText.AppendCode(m_oDecoder.Decode(nPage, m_sCharacter));
  m_sCharacter.clear();
}

void CReader::ReadSymbol(char c) {
  if (c == '*' && m_bGroupStart) {
    m_bStarred = true;
    return;
  }
  m_bGroupStart = m_bStarred = false;
  if (IsStandIn()) return;
  if (c == '\\' || c == '{' || c == '}') return ReadByte(c);
  DropPartialCharacter();
  if (!IsShown()) return;
  switch (c) {
    case '~':
      m_oText.AppendCode(nHardBlank);
      break;
    case '_':
      m_oText.AppendCode('-');
      break;
    case '\t':
      m_oText.Tab();
      break;
    case '\n':
      m_oText.EndParagraph();
      break;
    default:
      break;
  }
}

void CReader::ReadWord() {
  const TWord& Word = m_oTokens.Word();
  if (Word.eAction == EAction::eBinary) m_oTokens.SkipBytes(m_oTokens.Parameter(0));
  if (IsStandIn()) return;
  DropPartialCharacter();
  if (m_bGroupStart && !StartGroup(Word.eAction)) return m_oTokens.SkipGroup();
  if (Word.eAction < EAction::eCharacter) {
    ApplyWord(Word);
  } else if (IsShown()) {
    Put(Word);
  }
}

// The first word of a group tells what the group holds; false where it is no text of the page.
bool CReader::StartGroup(EAction eAction) {
  EContent& eContent = m_Group.eContent;
  switch (eAction) {
    case EAction::eSkip:
      return false;
    case EAction::eNestedRow:
      return true;
    case EAction::eUnicodeText:
      if (eContent == EContent::eHidden) eContent = EContent::eText;
      return true;
    case EAction::eFontTable:
      if (IsShown()) eContent = EContent::eFontTable;
      break;
    case EAction::eAlternatives:
      if (IsShown()) eContent = EContent::eHidden;
      break;
    default:
      break;
  }
  return !m_bStarred;
}

void CReader::ApplyWord(const TWord& Word) {
  const std::int32_t nParameter = m_oTokens.Parameter(Word.nValue);
  switch (Word.eAction) {
    case EAction::eFallback:
      m_Group.nFallback = std::max(nParameter, 0);
      break;
    case EAction::eFont:
      SetFont(nParameter);
      break;
    case EAction::eDefaultFont:
      m_nDocumentFont = nParameter;
      break;
    case EAction::ePlain:
      m_Group.nFont = nDefaultFont;
      break;
    case EAction::eCharset:
      SetFontPage(PageOfCharset(nParameter));
      break;
    case EAction::eFontPage:
      SetFontPage(nParameter);
      break;
    case EAction::eDocumentPage:
      if (IsKnownPage(nParameter)) m_nDocumentPage = nParameter;
      break;
    case EAction::eEnterTable:
      m_oText.EnterTable();
      break;
    case EAction::eLeaveTable:
      m_oText.LeaveTable();
      break;
    case EAction::eRowStart:
      m_oText.StartRow();
      break;
    default:
      break;
  }
}

void CReader::Put(const TWord& Word) {
  switch (Word.eAction) {
    case EAction::eCharacter:
      m_oText.AppendCode(static_cast<char32_t>(Word.nValue));
      break;
    case EAction::eUnicode:
      PutUnicode();
      break;
    case EAction::eParagraph:
      m_oText.EndParagraph();
      break;
    case EAction::eLine:
      m_oText.EndLine();
      break;
    case EAction::eBreak:
      m_oText.BreakPage();
      break;
    case EAction::eTab:
      m_oText.Tab();
      break;
    case EAction::eCell:
      m_oText.EndCell();
      break;
    case EAction::eRow:
      m_oText.EndRow();
      break;
    default:
      break;
  }
}

// Units above 32767 are written as negative numbers.
void CReader::PutUnicode() {
  if (!m_oTokens.HasParameter()) return;
  const std::int32_t nUnit = m_oTokens.Parameter(0);
  const bool bSigned = nUnit < 0 && nUnit >= -0x8000;
  m_oText.AppendCode(static_cast<char32_t>(bSigned ? nUnit + 0x10000 : nUnit));
  m_nStandIns = m_Group.nFallback;
}

void CReader::SetFont(std::int32_t nFont) {
  (m_Group.eContent == EContent::eFontTable ? m_nTableFont : m_Group.nFont) = nFont;
}

void CReader::SetFontPage(int nPage) {
  if (m_Group.eContent == EContent::eFontTable) m_aFontPages[m_nTableFont] = IsKnownPage(nPage) ? nPage : 0;
}

int CReader::CurrentPage() const {
  const auto it = m_aFontPages.find(m_Group.nFont == nDefaultFont ? m_nDocumentFont : m_Group.nFont);
  return it == m_aFontPages.end() || it->second == 0 ? m_nDocumentPage : it->second;
}

void CReader::DropPartialCharacter() {
  if (m_sCharacter.empty()) return;
  m_sCharacter.clear();
  m_oText.AppendCode(nReplacement);
}

bool CReader::IsStandIn() {
  if (m_nStandIns == 0) return false;
  --m_nStandIns;
  return true;
}

}  // namespace vrek::Rtf
