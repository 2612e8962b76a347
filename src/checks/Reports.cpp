// The reports and their text:
//
//         P.K.<TAB>             X<TAB>             Y<TAB>Description
//
//     500.0000<TAB>        0.0120<TAB>       -0.0034<TAB>The elements don't meet
#include <algorithm>
#include <cmath>

#include "base/Checked.h"
#include "base/FormatReal.h"
#include "base/ST.h"
#include "checks/Reports.h"
#include "shell/AppModel.h"

namespace vrek::CAligmentCheck {
namespace {

constexpr int nWidth = 14;  // characters

// One for each file noted since InitReports, the last one is the current file's.
std::vector<TFileReport>& Reports() {
  static std::vector<TFileReport> aReports;
  return aReports;
}

std::string Column(std::string_view sText) {
  return ST::PadRight(sText, nWidth, " ") + "\t";
}
// A number beyond the doubles, as a broken side file may hold, says so.
std::string Column(double dValue) {
  return Column(std::isfinite(dValue) ? FormatReal(dValue, 4)
                                      : std::string(StandardDescription(Error::nOverflow)));
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

void InitReports() {
  Reports().clear();
}

void AddReportFile(std::string_view sName, EFileKind nKind) {
  Reports().push_back({nKind, std::string(sName), std::vector<TCheckError>(1), 0});
}

TFileReport& CurrentReport() {
  return Checked::At(Reports(), std::ssize(Reports()) - 1);
}

void AddReportError(double dChainage, bool bError, double dX, double dY, double dZ, double dDistance,
                    std::string_view sDescription) {
  TFileReport& Report = CurrentReport();
  if (Report.nErrors > 0) Report.Errors.emplace_back();
  if (bError) ++Report.nErrors;
  Report.Errors.back() = {dChainage, dX, dY, dZ, dDistance, bError, std::string(sDescription)};
}

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
