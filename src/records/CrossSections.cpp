#include "records/CrossSections.h"

#include <algorithm>

#include "base/ST.h"

namespace vrek {

std::string_view TCodes::Text(TCode sCode) const {
  return sCode.empty() ? std::string_view{} : std::string_view(m_aTexts.at(sCode.nIndex - 1));
}

TCode TCodes::Find(std::string_view sText) const {
  const auto it = m_Index.find(std::string(sText));
  return it == m_Index.end() ? TCode{} : TCode{it->second};
}

int TCodes::CountBeginning(std::string_view sOffsetText) const {
  const auto it = m_Beginning.find(std::string(sOffsetText));
  return it == m_Beginning.end() ? 0 : it->second;
}

TCode TCodes::Append(std::string_view sText) {
  const int nMade = size();
  m_aTexts.emplace_back(sText);
  m_aPlaces.push_back(nMade);
  m_aOrder.push_back(nMade);
  const TCode sCode{static_cast<std::uint32_t>(nMade) + 1};
  m_Index.emplace(m_aTexts.back(), sCode.nIndex);
  ++m_Beginning[std::string(sText.substr(0, sText.find('_')))];
  return sCode;
}

int TCodes::Place(TCode sCode) const {
  return sCode.empty() ? -1 : m_aPlaces.at(sCode.nIndex - 1);
}

std::string_view TCodes::TextAt(int nPlace) const {
  return m_aTexts.at(static_cast<std::size_t>(m_aOrder.at(static_cast<std::size_t>(nPlace))));
}

void TCodes::SortByValue() {
  std::vector<double> aValues(m_aTexts.size());
  std::transform(m_aTexts.begin(), m_aTexts.end(), aValues.begin(), ST::ParseReal);
  std::stable_sort(m_aOrder.begin(), m_aOrder.end(), [&](int a, int b) {
    return aValues[static_cast<std::size_t>(a)] < aValues[static_cast<std::size_t>(b)];
  });
  for (int n = 0; n < size(); ++n)
    m_aPlaces[static_cast<std::size_t>(m_aOrder[static_cast<std::size_t>(n)])] = n;
}

}  // namespace vrek
