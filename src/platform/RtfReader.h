// Walks the pieces of an RTF document and builds its text: groups, fonts with their code pages, and the
// characters that stand in for others.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/RtfCodePages.h"
#include "platform/RtfTextBuilder.h"
#include "platform/RtfTokens.h"

namespace vrek::Rtf {

/// Reads one document, to the end of its outermost group; what stands behind that is no part of it.
class CReader {
 public:
  explicit CReader(std::string_view sBytes) : m_oTokens(sBytes), m_oText(sBytes.size() / 2) {}

  /// The text, UTF-8. To be called once.
  std::string Read();

 private:
  enum class EContent : std::uint8_t { eText, eFontTable, eHidden };

  // What a group inherits and gives back at its end.
  struct TGroup {
    std::int32_t nFont = nDefaultFont;
    std::int32_t nFallback = 1;  // characters behind a \u that stand in for it
    EContent eContent = EContent::eText;
  };

  static constexpr std::int32_t nDefaultFont = -1;
  static constexpr std::size_t nMaxDepth = 10000;  // deeper groups share what they inherit

  bool ReadPiece();
  void OpenGroup();
  bool CloseGroup();
  void ReadText(std::string_view sText);
  void ReadByte(char c);
  void ReadSymbol(char c);
  void ReadWord();
  bool StartGroup(EAction eAction);
  void ApplyWord(const TWord& Word);
  void Put(const TWord& Word);
  void PutUnicode();
  void SetFont(std::int32_t nFont);
  void SetFontPage(int nPage);
  void DropPartialCharacter();
  bool IsStandIn();
  bool IsShown() const { return m_Group.eContent == EContent::eText; }
  int CurrentPage() const;

  CTokens m_oTokens;
  CTextBuilder m_oText;
  CDecoder m_oDecoder;
  std::vector<TGroup> m_aOuter;
  TGroup m_Group;
  std::size_t m_nBeyondDepth = 0;
  std::int32_t m_nStandIns = 0;  // characters still to be passed over behind a \u
  bool m_bGroupStart = false;    // nothing but \* has been seen of this group
  bool m_bStarred = false;       // the group began with \*: only who knows its word may read it
  std::string m_sCharacter;      // the first bytes of a character of several
  std::unordered_map<std::int32_t, int> m_aFontPages;
  std::int32_t m_nDocumentFont = 0;
  std::int32_t m_nTableFont = 0;  // the font that the font table is describing
  int m_nDocumentPage = 1252;
};

}  // namespace vrek::Rtf
