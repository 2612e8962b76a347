// The control words of RTF that a plain text depends on, and what each of them does. All others are
// formatting.
#pragma once

#include <cstdint>
#include <string_view>

namespace vrek::Rtf {

/// What a control word does to the text. Those from eCharacter on put something into it.
enum class EAction : std::uint8_t {
  eNone,          ///< formatting, or unknown
  eSkip,          ///< opens a group that holds no text of the page
  eFontTable,     ///< opens the table that tells the code page of each font
  eAlternatives,  ///< \upr: opens a group with the same text twice, the second time as eUnicodeText
  eUnicodeText,   ///< \ud
  eNestedRow,     ///< \nesttableprops: opens a group with the end of a nested row
  eFallback,      ///< \ucN: so many characters behind each \u stand in for it
  eFont,
  eDefaultFont,
  ePlain,
  eCharset,
  eFontPage,
  eDocumentPage,
  eEnterTable,
  eLeaveTable,
  eRowStart,
  eBinary,     ///< \binN: N raw bytes follow
  eCharacter,  ///< one character, in nValue
  eUnicode,    ///< \uN
  eParagraph,
  eLine,
  eBreak,  ///< a new page or column
  eTab,
  eCell,
  eRow
};

struct TWord {
  std::string_view sName;
  EAction eAction = EAction::eNone;
  std::int32_t nValue =
      0;  ///< eCharacter: the code point; eDocumentPage: the page where no parameter tells it
};

/// The word of that name, without backslash and parameter; one of action eNone where no text depends on it.
const TWord& FindWord(std::string_view sName);

}  // namespace vrek::Rtf
