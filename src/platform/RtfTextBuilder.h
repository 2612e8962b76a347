// Puts the text of a document together: characters, and the ends of paragraphs, cells and rows.
//
// Many programs end the text of every cell with a paragraph end before the end of the cell itself; such a
// paragraph end adds nothing. So inside a table a paragraph end waits until it is known what comes next.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vrek::Rtf {

class CTextBuilder {
 public:
  explicit CTextBuilder(std::size_t nExpected) { m_sText.reserve(nExpected); }

  /// Characters below 128 that are no Tab and no line end.
  void Append(std::string_view sAscii);

  /// One code point. Two halves of a surrogate pair, one after the other, make one; a half alone, or what is
  /// no code point, becomes U+FFFD. CR ends the paragraph, LF adds nothing, Tab is a Tab.
  void AppendCode(char32_t nCode);

  void EndParagraph();
  void EndLine();
  void EndCell();
  void EndRow();
  void Tab();

  /// A new page: it ends a line that has begun, and adds nothing to a whole one.
  void BreakPage();

  /// The paragraph in hand stands in a table, or in none.
  void EnterTable() { m_bInTable = true; }
  void LeaveTable() { m_bInTable = false; }
  void StartRow();

  /// The text, UTF-8; this object is empty then.
  std::string Take();

 private:
  void Settle() {
    if (m_nWaitingEnds > 0 || m_nHighHalf != 0) AppendWaiting();
  }
  void AppendWaiting();
  bool PairWithHighHalf(char32_t nCode);
  void AppendUtf8(char32_t nCode);

  std::string m_sText;
  std::size_t m_nWaitingEnds = 0;
  char32_t m_nHighHalf = 0;
  bool m_bInTable = false;
  bool m_bRowOpen = false;
};

}  // namespace vrek::Rtf
