// The text report of a file:
//
//         P.K.<TAB>             X<TAB>             Y<TAB>Description
//
//     500.0000<TAB>        0.0120<TAB>       -0.0034<TAB>The elements don't meet
#include <algorithm>
#include <cmath>

#include "base/Failure.h"
#include "base/FormatReal.h"
#include "base/ST.h"
#include "checks/Reports.h"
#include "shell/AppModel.h"

namespace vrek::CAligmentCheck {
namespace {

constexpr int nWidth = 14;

std::string Column(std::string_view sText) {
  return ST::PadRight(sText, nWidth, " ") + "\t";
}
std::string Column(double dValue) {
  return Column(FormatReal(dValue, 4));
}
std::string Heading(std::string_view sToken) {
  return Column(AppModel().GetToken(sToken));
}

// Filled with blanks on the right; a longer text stays whole.
std::string LastHeading(std::string sText) {
  const auto nCharacters =
      std::count_if(sText.begin(), sText.end(), [](char c) { return (c & 0xC0) != 0x80; });
  if (nCharacters < nWidth) sText.append(static_cast<std::size_t>(nWidth - nCharacters), ' ');
  return sText;
}

std::string HeadLine(EFileKind nKind) {
  std::string sLine = Heading("E_CH");
  if (nKind == EFileKind::eHorizontal) sLine += Heading("E_X") + Heading("E_Y");
  if (nKind == EFileKind::eVertical) sLine += Heading("E_Z");
  return sLine + LastHeading(AppModel().GetToken("E_DESCRIPTION"));
}

std::string ErrorLine(EFileKind nKind, const TCheckError& Error) {
  std::string sLine = Column(Error.dChainage);
  if (nKind == EFileKind::eHorizontal) sLine += Column(Error.dX) + Column(Error.dY);
  if (nKind == EFileKind::eVertical) sLine += Column(Error.dZ);
  return sLine + Error.sDescription;
}

// Whether a file of a kind stands behind a node with this key.
bool Fits(EFileKind nKind, std::string_view sNodeKey) {
  if (sNodeKey.ends_with("Hz")) return nKind == EFileKind::eHorizontal;
  if (sNodeKey.ends_with("Vt")) return nKind == EFileKind::eVertical;
  return sNodeKey.ends_with("Cr") && nKind != EFileKind::eHorizontal && nKind != EFileKind::eVertical;
}

}  // namespace

std::string GetReportText(std::string_view sNodeText, std::string_view sNodeKey) {
  const auto& aReports = Reports();
  const auto Found = std::find_if(aReports.begin(), aReports.end(), [&](const TFileReport& Report) {
    return Report.sName == sNodeText && Fits(Report.nKind, sNodeKey);
  });
  if (Found == aReports.end()) return {};
  if (Found->nErrors == 0) return AppModel().GetToken("E_EMPTYFILE");
  std::string sText = HeadLine(Found->nKind) + "\r\n";
  for (const auto& Error : Found->Errors) sText += "\r\n" + ErrorLine(Found->nKind, Error);
  return sText;
}

}  // namespace vrek::CAligmentCheck
