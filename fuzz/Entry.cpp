// The entry point that libFuzzer calls: VREK_FUZZ_TARGET names the target of this program.
#include <cstddef>
#include <cstdint>

#include "Targets.h"

namespace {

constexpr auto FindTarget(std::string_view sName) {
  for (const auto& Target : vrek::fuzz::aTargets) {
    if (Target.sName == sName) return Target.Run;
  }
  return static_cast<void (*)(std::string_view)>(nullptr);
}

constexpr auto RunTarget = FindTarget(VREK_FUZZ_TARGET);
static_assert(RunTarget != nullptr, "no such target");

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pBytes, std::size_t nBytes);

int LLVMFuzzerTestOneInput(const std::uint8_t* pBytes, std::size_t nBytes) {
  RunTarget({reinterpret_cast<const char*>(pBytes), nBytes});
  return 0;
}
