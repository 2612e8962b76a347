#include "design_data/TabText.h"

#include "base/Checked.h"

namespace vrek::Entry {

void CTabRow::Cut(std::string_view sLine) {
  m_nCount = m_nLimit;
  ST::SplitBySeparator(sLine, '\t', m_nCount, m_aFields, false);
  m_sFirst = m_aFields[1].sText;
  std::erase_if(m_sFirst, [](char c) { return c == '\r' || c == '\n'; });
}

const std::string& CTabRow::Field(int n) {
  if (n > m_nCount) return m_sField = "0";
  m_sField = n == 1 ? m_sFirst : m_aFields[static_cast<std::size_t>(n)].sText;
  ST::NormalizeNumberText(m_sField);
  return m_sField;
}

double CTabRow::Chainage(int n) {
  Field(n);
  return Checked::Finite(ST::ParseChainage(m_sField));
}

}  // namespace vrek::Entry
