// Cuts the bytes of an RTF document into groups, control words, symbols, bytes and runs of text, in one pass.
//
//   {\b Peralte}\tab 1\'b0\par   gives   open, word b, text "Peralte", close, word tab, text "1", byte B0,
//   word par
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/RtfWords.h"

namespace vrek::Rtf {

enum class EPiece { eEnd, eOpen, eClose, eWord, eSymbol, eByte, eText };

class CTokens {
 public:
  /// The bytes must outlive this object.
  explicit CTokens(std::string_view sBytes) : m_sRest(sBytes) {}

  /// The next piece. Line ends of the source aren't any; at the end eEnd, as often as asked.
  EPiece Next();

  /// Of eText: characters below 128, none of them a brace, a backslash, a Tab or a line end.
  std::string_view Text() const { return m_sText; }

  /// Of eByte: a byte written as \'hh, or one above 127. Of eSymbol: the character behind the backslash, or a
  /// raw Tab; LF where a backslash stands before any line end, NUL for a \' without its two digits.
  char Char() const { return m_cChar; }

  /// Of eWord: the word, and its parameter or else what is given. Parameters are cut to 32 bits.
  const TWord& Word() const { return *m_oWord; }
  bool HasParameter() const { return m_bParameter; }
  std::int32_t Parameter(std::int32_t nElse) const { return m_bParameter ? m_nParameter : nElse; }

  /// Goes on behind the next nCount bytes, or at the end.
  void SkipBytes(std::int32_t nCount);

  /// Goes on at the brace that closes the group in hand, past groups and raw data inside it.
  void SkipGroup();

 private:
  EPiece ReadEscape();
  EPiece ReadWord();
  EPiece ReadHex();
  void ReadParameter();
  EPiece Symbol(char c);

  std::string_view m_sRest;
  std::string_view m_sText;
  const TWord* m_oWord = nullptr;
  std::int32_t m_nParameter = 0;
  bool m_bParameter = false;
  char m_cChar = 0;
};

}  // namespace vrek::Rtf
