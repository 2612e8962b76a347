#include "platform/CommandLineText.h"

#include <string_view>

namespace vrek {
namespace {

bool TakesValue(std::string_view sOption) {
  return sOption == "-o" || sOption == "-n";
}

std::string Quoted(std::string_view sValue) {
  if (sValue.find('"') != std::string_view::npos) return std::string(sValue);
  return "\"" + std::string(sValue) + "\"";
}

}  // namespace

std::string CommandLineText(int nArguments, const char* const* aArguments) {
  std::string sText;
  bool bIsValue = false;
  for (int i = 1; i < nArguments; ++i) {
    if (i > 1) sText += ' ';
    sText += bIsValue ? Quoted(aArguments[i]) : std::string(aArguments[i]);
    bIsValue = !bIsValue && TakesValue(aArguments[i]);
  }
  return sText;
}

}  // namespace vrek
