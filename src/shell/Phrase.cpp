#include "shell/Phrase.h"

#include "shell/AppModel.h"

namespace vrek {
namespace {

std::string TextOf(std::string_view sToken, std::string_view sEnglish) {
  if (!HasAppModel()) return std::string(sEnglish);
  auto sText = AppModel().GetToken(sToken);
  return sText == sToken ? std::string(sEnglish) : sText;
}

}  // namespace

std::string Phrase(std::string_view sToken, std::string_view sEnglish,
                   std::initializer_list<std::string_view> aParts) {
  const auto sText = TextOf(sToken, sEnglish);
  std::string sOut;
  for (std::size_t n = 0; n < sText.size(); ++n) {
    const auto nPart = n + 1 < sText.size() ? static_cast<std::size_t>(sText[n + 1] - '1') : aParts.size();
    if (sText[n] != '%' || nPart >= aParts.size()) {
      sOut += sText[n];
      continue;
    }
    sOut += aParts.begin()[nPart];
    ++n;
  }
  return sOut;
}

}  // namespace vrek
