#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <optional>

#include "platform/PosixPlatform.h"

namespace vrek {
namespace {

/// The moment that reproducible builds and tests ask for; nothing if it isn't set or is no whole number.
std::optional<std::time_t> FixedMoment() {
  const char* pText = std::getenv("SOURCE_DATE_EPOCH");
  if (pText == nullptr) return std::nullopt;
  const std::string_view sText = pText;
  std::int64_t nSeconds = 0;
  const auto [pEnd, eError] = std::from_chars(sText.data(), sText.data() + sText.size(), nSeconds);
  if (eError != std::errc{} || pEnd != sText.data() + sText.size()) return std::nullopt;
  return static_cast<std::time_t>(nSeconds);
}

}  // namespace

std::tm SystemClock::Now() const {
  const std::time_t nNow = std::time(nullptr);
  ::tzset();
  std::tm Local{};
  ::localtime_r(&nNow, &Local);
  return Local;
}

std::tm SystemClock::DocumentTime() const {
  const auto nMoment = FixedMoment();
  ::tzset();
  std::tm Local{};
  return nMoment && ::localtime_r(&*nMoment, &Local) != nullptr ? Local : Now();
}

}  // namespace vrek
