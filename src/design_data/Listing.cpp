#include "design_data/Listing.h"

#include "base/CodePage.h"
#include "base/ST.h"
#include "shell/ErrHandler.h"
#include "shell/Services.h"

namespace vrek {

namespace {

constexpr std::size_t nShownBytes = 120;  // of a refused line

// A line as one line of the log shows it.
std::string Shown(std::string_view sLine) {
  std::string sShown(sLine.substr(0, nShownBytes));
  for (char& c : sShown) {
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  return CodePage::ToUtf8(sShown) + (sLine.size() > nShownBytes ? "..." : "");
}

}  // namespace

CListing::CListing(const std::string& sPath) : m_sPath(sPath), m_File(OpenTextFile(sPath)) {}

std::string_view CListing::NextFilledLine() {
  while (NextLine().empty() && !AtEnd()) {
  }
  return m_Line.sText;
}

std::string_view CListing::NextLineNotBlank() {
  while (ST::Trim(NextLine()).empty() && !AtEnd()) {
  }
  return m_Line.sText;
}

void CListing::Refuse(std::int32_t nNumber, const TLine& Line) const {
  try {
    LogMessage(m_sPath + ", line " + std::to_string(Line.nNumber) + ": " + Shown(Line.sText));
  } catch (const Failure&) {
    // A log that can't be written must not hide what is wrong with the listing.
  }
  Raise(nNumber);
}

}  // namespace vrek
