// Settings that last as long as the object: a run that must neither see nor change those of the user.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include "platform/Platform.h"

namespace vrek {

class MemorySettings final : public ISettingsStore {
 public:
  std::string Read(std::string_view sApplication, std::string_view sSection, std::string_view sKey,
                   std::string_view sDefault) override {
    const auto it = m_aTexts.find(Address(sApplication, sSection, sKey));
    return it == m_aTexts.end() ? std::string(sDefault) : it->second;
  }
  void Write(std::string_view sApplication, std::string_view sSection, std::string_view sKey,
             std::string_view sText) override {
    m_aTexts[Address(sApplication, sSection, sKey)] = sText;
  }

 private:
  using TAddress = std::tuple<std::string, std::string, std::string>;
  static TAddress Address(std::string_view sApplication, std::string_view sSection, std::string_view sKey) {
    return {std::string(sApplication), std::string(sSection), std::string(sKey)};
  }
  std::map<TAddress, std::string> m_aTexts;
};

}  // namespace vrek
