#include "platform/RtfWords.h"

#include <array>
#include <cstddef>

namespace vrek::Rtf {
namespace {

using enum EAction;

// clang-format off
constexpr TWord aWords[] = {
    // Tables of the head and facts about the document.
    {"colortbl", eSkip}, {"stylesheet", eSkip}, {"info", eSkip}, {"listtable", eSkip}, {"revtbl", eSkip},
    {"listoverridetable", eSkip}, {"rsidtbl", eSkip}, {"filetbl", eSkip}, {"generator", eSkip}, {"xmlnstbl", eSkip},
    {"template", eSkip}, {"nextfile", eSkip}, {"private", eSkip}, {"latentstyles", eSkip}, {"datastore", eSkip},
    {"themedata", eSkip}, {"colorschememapping", eSkip}, {"userprops", eSkip}, {"background", eSkip},
    // What stands at the edge of a page or floats over it.
    {"header", eSkip}, {"headerl", eSkip}, {"headerr", eSkip}, {"headerf", eSkip},
    {"footer", eSkip}, {"footerl", eSkip}, {"footerr", eSkip}, {"footerf", eSkip},
    {"footnote", eSkip}, {"ftnsep", eSkip}, {"ftnsepc", eSkip}, {"ftncn", eSkip},
    {"aftnsep", eSkip}, {"aftnsepc", eSkip}, {"aftncn", eSkip}, {"annotation", eSkip}, {"atnid", eSkip},
    {"atnauthor", eSkip}, {"shpinst", eSkip}, {"shprslt", eSkip}, {"shptxt", eSkip},
    // Pictures, objects, instructions of fields, marks for indexes, bullets of lists.
    {"pict", eSkip}, {"objdata", eSkip}, {"objclass", eSkip}, {"objname", eSkip}, {"objalias", eSkip},
    {"fldinst", eSkip}, {"datafield", eSkip}, {"formfield", eSkip}, {"bkmkstart", eSkip}, {"bkmkend", eSkip},
    {"xe", eSkip}, {"rxe", eSkip}, {"txe", eSkip}, {"tc", eSkip}, {"tcn", eSkip},
    {"listtext", eSkip}, {"pntext", eSkip}, {"pntxta", eSkip}, {"pntxtb", eSkip},
    // What a reader that knows nested tables passes over.
    {"nonesttables", eSkip},

    {"fonttbl", eFontTable}, {"upr", eAlternatives}, {"ud", eUnicodeText}, {"nesttableprops", eNestedRow},
    {"uc", eFallback}, {"f", eFont}, {"deff", eDefaultFont}, {"plain", ePlain}, {"fcharset", eCharset},
    {"cpg", eFontPage}, {"ansicpg", eDocumentPage}, {"ansi", eDocumentPage, 1252}, {"mac", eDocumentPage, 10000},
    {"pc", eDocumentPage, 437}, {"pca", eDocumentPage, 850}, {"intbl", eEnterTable}, {"pard", eLeaveTable},
    {"trowd", eRowStart}, {"bin", eBinary},

    {"emdash", eCharacter, 0x2014}, {"endash", eCharacter, 0x2013}, {"emspace", eCharacter, 0x2003},
    {"enspace", eCharacter, 0x2002}, {"qmspace", eCharacter, 0x2005}, {"bullet", eCharacter, 0x2022},
    {"lquote", eCharacter, 0x2018}, {"rquote", eCharacter, 0x2019}, {"ldblquote", eCharacter, 0x201C},
    {"rdblquote", eCharacter, 0x201D}, {"ltrmark", eCharacter, 0x200E}, {"rtlmark", eCharacter, 0x200F},
    {"zwj", eCharacter, 0x200D}, {"zwnj", eCharacter, 0x200C}, {"zwbo", eCharacter, 0x200B},
    {"zwnbo", eCharacter, 0x2060},
    {"u", eUnicode}, {"par", eParagraph}, {"line", eLine}, {"lbr", eLine}, {"sect", eLine}, {"page", eBreak},
    {"column", eBreak}, {"tab", eTab}, {"cell", eCell}, {"nestcell", eCell}, {"row", eRow}, {"nestrow", eRow}};
// clang-format on

constexpr std::size_t nSlots = 512;  // four for each word, so that unknown words mostly meet an empty one
constexpr std::uint8_t nEmpty = 0xFF;
static_assert(std::size(aWords) < nEmpty);

// Length, first, middle and last letter keep nearly all of the words apart.
constexpr std::size_t SlotOf(std::string_view s) {
  const auto letter = [&](std::size_t i) { return static_cast<unsigned char>(s[i]); };
  return (letter(0) * 7u + letter(s.size() / 2) * 61u + letter(s.size() - 1) * 23u + s.size() * 131u) %
         nSlots;
}

constexpr auto MakeSlots() {
  std::array<std::uint8_t, nSlots> aSlots{};
  aSlots.fill(nEmpty);
  for (std::size_t i = 0; i < std::size(aWords); ++i) {
    std::size_t nSlot = SlotOf(aWords[i].sName);
    while (aSlots[nSlot] != nEmpty) nSlot = (nSlot + 1) % nSlots;
    aSlots[nSlot] = static_cast<std::uint8_t>(i);
  }
  return aSlots;
}

constexpr auto aSlots = MakeSlots();
constexpr TWord Formatting;

}  // namespace

const TWord& FindWord(std::string_view sName) {
  if (sName.empty()) return Formatting;
  for (std::size_t n = SlotOf(sName); aSlots[n] != nEmpty; n = (n + 1) % nSlots) {
    if (aWords[aSlots[n]].sName == sName) return aWords[aSlots[n]];
  }
  return Formatting;
}

}  // namespace vrek::Rtf
