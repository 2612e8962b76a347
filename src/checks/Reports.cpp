// The reports and their text.
//
//          Chainage	             X	             Y	Description
//
//          120.0000	        0.3500	       -0.0000	Elements don't meet
#include "checks/Reports.h"

#include <algorithm>

#include "base/Checked.h"
#include "base/FormatReal.h"
#include "base/ST.h"
#include "shell/AppModel.h"

namespace vrek::CAligmentCheck {
namespace {

constexpr int nColumn = 14;  // characters

struct TReports {
  std::vector<TFileReport> aFiles{1};  // one unused record while nCurrent is -1
  int nCurrent = -1;                   // index of the file noted last
};

TReports& Reports() {
  static TReports All;
  return All;
}

std::string Column(std::string_view sText) {
  return ST::PadRight(sText, nColumn, " ");
}
std::string Column(double dValue) {
  return Column(FormatReal(dValue, 4));
}
std::string HeadColumn(const char* sToken) {
  return Column(AppModel().GetToken(sToken));
}

// The last heading is filled on its right.
std::string LastHead() {
  auto sHead = AppModel().GetToken("E_DESCRIPTION");
  const auto nCharacters =
      std::count_if(sHead.begin(), sHead.end(), [](char c) { return (c & 0xC0) != 0x80; });
  if (nCharacters < nColumn) sHead.append(static_cast<std::size_t>(nColumn - nCharacters), ' ');
  return sHead;
}

std::string HeadLine(EFileKind nKind) {
  std::string sLine = HeadColumn("E_CH") + "\t";
  if (nKind == EFileKind::eHorizontal) sLine += HeadColumn("E_X") + "\t" + HeadColumn("E_Y") + "\t";
  if (nKind == EFileKind::eVertical) sLine += HeadColumn("E_Z") + "\t";
  return sLine + LastHead();
}

std::string ErrorLine(EFileKind nKind, const TCheckError& Error) {
  std::string sLine = Column(Error.dChainage) + "\t";
  if (nKind == EFileKind::eHorizontal) sLine += Column(Error.dX) + "\t" + Column(Error.dY) + "\t";
  if (nKind == EFileKind::eVertical) sLine += Column(Error.dZ) + "\t";
  return sLine + Error.sDescription;
}

bool Fits(EFileKind nKind, std::string_view sKey) {
  if (sKey.ends_with("Hz")) return nKind == EFileKind::eHorizontal;
  if (sKey.ends_with("Vt")) return nKind == EFileKind::eVertical;
  return sKey.ends_with("Cr") && nKind != EFileKind::eHorizontal && nKind != EFileKind::eVertical;
}

}  // namespace

void InitReports() {
  Reports() = {};
  Reports().aFiles.front().Errors.resize(1);
}

void AddReportFile(std::string_view sName, EFileKind nKind) {
  auto& All = Reports();
  if (All.nCurrent >= 0) All.aFiles.emplace_back();
  All.aFiles.back() = {nKind, std::string(sName), std::vector<TCheckError>(1), 0};
  ++All.nCurrent;
}

TFileReport& CurrentReport() {
  return Checked::At(Reports().aFiles, Reports().nCurrent);
}

void AddReportError(double dChainage, bool bError, double dX, double dY, double dZ, double dDistance,
                    std::string_view sDescription) {
  auto& File = CurrentReport();
  if (File.nErrors > 0) File.Errors.emplace_back();
  if (bError) ++File.nErrors;
  File.Errors.back() = {dChainage, dX, dY, dZ, dDistance, bError, std::string(sDescription)};
}

std::string GetReportText(std::string_view sNodeText, std::string_view sNodeKey) {
  const auto& aFiles = Reports().aFiles;
  const auto it = std::find_if(aFiles.begin(), aFiles.end(), [&](const TFileReport& File) {
    return File.sName == sNodeText && Fits(File.nKind, sNodeKey);
  });
  if (it == aFiles.end()) return {};
  if (it->nErrors == 0) return AppModel().GetToken("E_EMPTYFILE");
  std::string sText = HeadLine(it->nKind) + "\r\n";
  for (const auto& Error : it->Errors) sText += "\r\n" + ErrorLine(it->nKind, Error);
  return sText;
}

}  // namespace vrek::CAligmentCheck
