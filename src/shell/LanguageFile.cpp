#include "shell/LanguageFile.h"

#include <cstdint>
#include <limits>

#include "base/CodePage.h"
#include "base/Failure.h"
#include "base/ST.h"
#include "shell/AppModel.h"
#include "shell/ErrHandler.h"
#include "shell/Services.h"

namespace vrek {
namespace {

constexpr std::size_t nMostTokens = std::numeric_limits<std::int16_t>::max();

bool IsTokenLine(std::string_view sLine) {
  return !sLine.empty() && sLine.front() != '#' && sLine.find('=') != std::string_view::npos &&
         sLine.find('=') == sLine.rfind('=');
}

std::string WithLineBreaks(std::string_view sText) {
  std::string sOut;
  for (std::size_t nHit; (nHit = sText.find("\\n")) != std::string_view::npos;
       sText.remove_prefix(nHit + 2)) {
    sOut += sText.substr(0, nHit);
    sOut += "\r\n";
  }
  return sOut += sText;
}

TLanguageToken ParseToken(std::string_view sLine) {
  const std::size_t nSign = sLine.find('=');
  return {CodePage::ToUtf8(ST::Trim(sLine.substr(0, nSign))),
          CodePage::ToUtf8(ST::Trim(WithLineBreaks(sLine.substr(nSign + 1))))};
}

}  // namespace

bool clsLanguageFile::ReadFile(std::string_view sFileLanguage) {
  return Guard("clsLanguageFile.ReadFile", false, [&] {
    CTextFile File = OpenTextFile(AppModel().Platform().pEnvironment->ProgramDirectory() + "/" +
                                  std::string(sFileLanguage));
    m_aTokens.assign(1, {});
    std::size_t nCount = 0;
    do {
      const std::string_view sLine = ST::Trim(File.NextLine());
      if (!IsTokenLine(sLine)) continue;
      if (nCount == nMostTokens) Raise(Error::nOverflow);
      m_aTokens.resize(nCount + 1);
      m_aTokens[nCount++] = ParseToken(sLine);
    } while (!File.AtEnd());
    return true;
  });
}

std::string clsLanguageFile::GetToken(std::string_view sToken) const {
  for (const TLanguageToken& Token : m_aTokens) {
    if (Token.sToken == sToken) return Token.sText;
  }
  return std::string(sToken);
}

}  // namespace vrek
