// The text of a tab form: its lines, and the fields of a line as a row of the table.
#pragma once

#include <string>
#include <string_view>

#include "base/ST.h"

namespace vrek::Entry {

/// Walks a text, which must outlive it, line by line. A last line without a line end is lost.
class CTabText {
 public:
  explicit CTabText(std::string_view sText) : m_sText(sText) {}

  /// False at the end of the text.
  bool NextLine(std::string_view& sLine) {
    bool bEnd = false;
    sLine = ST::NextTextLine(m_sText, m_nPos, bEnd);
    return !bEnd;
  }

 private:
  std::string_view m_sText;
  std::size_t m_nPos = 1;
};

class CTabRow {
 public:
  /// nLimit: how many fields of a row count at most.
  explicit CTabRow(int nLimit) : m_nLimit(nLimit) {}

  /// Takes a line, which must outlive the questions below.
  void Cut(std::string_view sLine);

  /// Number of fields, at least 1.
  int Count() const { return m_nCount; }

  /// Field 1 as it stands, without the line end of the row before.
  const std::string& FirstField() const { return m_sFirst; }

  /// A field (from 1) brought to the number form; "0" if the row hasn't got it. Valid until the next
  /// question.
  const std::string& Field(int n);

  double Number(int n) { return ST::LeadingNumber(Field(n)); }

  /// Plain or as kilometres and metres, in metres. Beyond the doubles: failure 6.
  double Chainage(int n);

 private:
  int m_nLimit;
  int m_nCount = 0;
  TTokens m_aFields;
  std::string m_sFirst;
  std::string m_sField;
};

}  // namespace vrek::Entry
