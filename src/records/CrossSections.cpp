#include "records/CrossSections.h"

#include <algorithm>
#include <numeric>

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
  m_aTexts.emplace_back(sText);
  const auto nIndex = static_cast<std::uint32_t>(m_aTexts.size());
  m_Index.emplace(m_aTexts.back(), nIndex);
  ++m_Beginning[std::string(sText.substr(0, sText.find('_')))];
  m_aPlaces.clear();
  m_aOrder.clear();
  return TCode{nIndex};
}

int TCodes::Place(TCode sCode) const {
  const int nMade = static_cast<int>(sCode.nIndex) - 1;
  return nMade < 0 || m_aPlaces.empty() ? nMade : m_aPlaces[static_cast<std::size_t>(nMade)];
}

std::string_view TCodes::TextAt(int nPlace) const {
  const auto n = static_cast<std::size_t>(nPlace);
  return m_aTexts.at(m_aOrder.empty() ? n : static_cast<std::size_t>(m_aOrder.at(n)));
}

void TCodes::SortByValue() {
  std::vector<double> aValues;
  aValues.reserve(m_aTexts.size());
  for (const auto& sText : m_aTexts) aValues.push_back(ST::ParseReal(sText));
  if (m_aOrder.empty()) {
    m_aOrder.resize(m_aTexts.size());
    std::iota(m_aOrder.begin(), m_aOrder.end(), 0);
  }
  std::stable_sort(m_aOrder.begin(), m_aOrder.end(), [&](int a, int b) {
    return aValues[static_cast<std::size_t>(a)] < aValues[static_cast<std::size_t>(b)];
  });
  m_aPlaces.resize(m_aOrder.size());
  for (std::size_t n = 0; n < m_aOrder.size(); ++n) m_aPlaces[static_cast<std::size_t>(m_aOrder[n])] = static_cast<int>(n);
}

}  // namespace vrek
