// A name of one character "ñ" (byte 241 of the code page) is to stand in the file as the bytes 195, 177. As
// all text goes out through the code page, its UTF-8 bytes have to be characters of it: "Ã±".
#include "base/CodePage.h"
#include "landxml/CLandXML.h"

namespace vrek::CLandXML {

std::string EncodeUtf8Text(std::string_view sText) {
  if (CodePage::IsAscii(sText)) return std::string(sText);
  // There and back: what the code page lacks is "?" now.
  const std::string sKnown = CodePage::ToUtf8(CodePage::FromUtf8(sText));
  // Each UTF-8 byte taken for one of the code page.
  return CodePage::ToUtf8(sKnown);
}

}  // namespace vrek::CLandXML
