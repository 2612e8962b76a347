// The code pages that RTF documents are written in, byte sequences to code points.
#pragma once

#include <cstddef>
#include <map>
#include <string_view>

namespace vrek::Rtf {

/// The code page of a font's \fcharset; 0 where the font goes with the document.
int PageOfCharset(int nCharset);

/// Whether text in this page can be read at all.
bool IsKnownPage(int nPage);

/// How many bytes the character has that begins with this byte of 128 or more: 1 in most pages.
std::size_t LengthOfCharacter(int nPage, char cFirst);

/// Whether a character of more than one byte can go on with this byte.
bool CanContinue(int nPage, char cNext);

/// Decodes characters. Pages of several bytes go through the system's converter, which this object keeps
/// open.
class CDecoder {
 public:
  CDecoder() = default;
  CDecoder(const CDecoder&) = delete;
  CDecoder& operator=(const CDecoder&) = delete;
  ~CDecoder();

  /// The code point of one whole character that begins with a byte of 128 or more; U+FFFD where there is
  /// none.
  char32_t Decode(int nPage, std::string_view sCharacter);

 private:
  char32_t Convert(int nPage, std::string_view sCharacter);

  std::map<int, void*> m_aConverters;
};

}  // namespace vrek::Rtf
