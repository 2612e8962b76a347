// The locale of the environment put in place as a toolkit does: a test run under LC_ALL=de_DE.UTF-8 meets the
// decimal comma wherever a number is read or written with the help of the C or C++ library.
#pragma once

#include <clocale>
#include <locale>

namespace vrek::test {

/// Leaves "C" in place where the environment names a locale that the machine hasn't got.
inline void TakeUsersLocale() {
  if (std::setlocale(LC_ALL, "")) std::locale::global(std::locale(""));
}

}  // namespace vrek::test
