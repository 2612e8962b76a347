// clsLanguageFile: the table of display texts. A line "TOKEN = text" with exactly one "=" counts; "#"
// comments, blank lines and everything else are passed over; \n in a text is a line break.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vrek {

struct TLanguageToken {
  std::string sToken;
  std::string sText;
};

class clsLanguageFile {
 public:
  /// Loads a file of the program's directory. On failure reports with the source "clsLanguageFile.ReadFile".
  bool ReadFile(std::string_view sFileLanguage);

  /// Text of the first token of that name, case counts; the name itself when there is none.
  std::string GetToken(std::string_view sToken) const;

  /// All tokens in the order of the file.
  const std::vector<TLanguageToken>& Tokens() const { return m_aTokens; }

 private:
  std::vector<TLanguageToken> m_aTokens;  // from 0
};

}  // namespace vrek
