#include "landxml/ElementLines.h"

#include "base/FormatReal.h"
#include "landxml/CLandXML.h"

namespace vrek::CLandXML {

void CElementLines::Begin(int nDeeper) {
  const int nTabs = Tabs() + nDeeper;
  m_sText.append(static_cast<std::size_t>(nTabs), '\t');
}

void CElementLines::Append(double dValue) {
  AppendReal(m_sText, dValue, nDecimals);
}

void CElementLines::Append(const THzPoint& Point) {
  Append(Point.dY);
  m_sText += ' ';
  Append(Point.dX);
}

bool CElementLines::Write() {
  const std::string_view sAll = m_sText;
  bool bWritten = true;
  std::size_t nStart = 0;
  for (const std::size_t nEnd : m_aEnds) {
    bWritten = WriteLn(sAll.substr(nStart, nEnd - nStart));
    nStart = nEnd;
  }
  m_sText.clear();
  m_aEnds.clear();
  return bWritten;
}

}  // namespace vrek::CLandXML
