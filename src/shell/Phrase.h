// Sentences of the program in the user's language.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace vrek {

/// The text of the token in the language file, sEnglish where the file hasn't got it (or there is none yet),
/// with each "%1" to "%9" replaced by the part of that place. UTF-8. Parts are taken as they are; a place
/// without a part stays.
std::string Phrase(std::string_view sToken, std::string_view sEnglish,
                   std::initializer_list<std::string_view> aParts = {});

}  // namespace vrek
