// Every way in which a text can be damaged. Each routine hands all its damages to Try(damaged text, what was
// done).
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace vrek::test {

constexpr auto CutOffAtEveryByte = [](const std::string& sBytes, const auto& Try) {
  for (std::size_t n = 0; n < sBytes.size(); ++n) Try(sBytes.substr(0, n), "byte " + std::to_string(n));
};

inline std::vector<std::string> Lines(const std::string& sBytes) {
  std::vector<std::string> aLines;
  for (std::size_t n = 0; n < sBytes.size();) {
    const auto nEnd = std::min(sBytes.find('\n', n), sBytes.size() - 1) + 1;
    aLines.push_back(sBytes.substr(n, nEnd - n));
    n = nEnd;
  }
  return aLines;
}

inline std::string Joined(const std::vector<std::string>& aLines) {
  std::string sBytes;
  for (const auto& sLine : aLines) sBytes += sLine;
  return sBytes;
}

constexpr auto LinesLostDoubledAndSwapped = [](const std::string& sBytes, const auto& Try) {
  const auto aLines = Lines(sBytes);
  for (std::size_t n = 0; n < aLines.size(); ++n) {
    const auto sLine = "line " + std::to_string(n + 1);
    const auto Here = static_cast<std::ptrdiff_t>(n);
    auto aLost = aLines;
    aLost.erase(aLost.begin() + Here);
    Try(Joined(aLost), sLine + " lost");
    auto aDoubled = aLines;
    aDoubled.insert(aDoubled.begin() + Here, aLines[n]);
    Try(Joined(aDoubled), sLine + " doubled");
    if (n + 1 == aLines.size()) continue;
    auto aSwapped = aLines;
    std::swap(aSwapped[n], aSwapped[n + 1]);
    Try(Joined(aSwapped), sLine + " swapped");
  }
};

constexpr auto FieldsThatAreNone = [](const std::string& sBytes, const auto& Try) {
  constexpr std::string_view sEnds = ", \t\r\n<>\"=\\{}";
  const std::string aFields[] = {"", "-", "1e999", "nan", "0x10", "-1e15", std::string(100'000, '7')};
  for (std::size_t n = 0; (n = sBytes.find_first_not_of(sEnds, n)) != sBytes.npos;) {
    const auto nLength = std::min(sBytes.find_first_of(sEnds, n), sBytes.size()) - n;
    for (const auto& sField : aFields) {
      auto sDamaged = sBytes;
      Try(sDamaged.replace(n, nLength, sField),
          "byte " + std::to_string(n) + ": \"" + sField.substr(0, 10) + "\"");
    }
    n += nLength;
  }
};

}  // namespace vrek::test
