// CAligmentCheck: tests each file just after it was read and keeps, per file, the list of what it found.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/NotGiven.h"
#include "records/Elements.h"

namespace vrek {

enum class EFileKind { eHorizontal = 1, eVertical = 2, eTunnel = 3, eCrossSections = 4, eCant = 5 };

/// One finding. A value that doesn't apply holds dNotGiven.
struct TCheckError {
  double dChainage = 0;
  double dX = 0;
  double dY = 0;
  double dZ = 0;
  double dDistance = 0;
  bool bError = false;
  std::string sDescription;
};

struct TFileReport {
  EFileKind nKind = EFileKind::eHorizontal;
  std::string sName;                ///< base name of the file, as it stands in the tree
  std::vector<TCheckError> Errors;  ///< from 0; one unused element while nErrors is 0
  int nErrors = 0;
};

namespace CAligmentCheck {

void InitReports();
void AddReportFile(std::string_view sName, EFileKind nKind);
void AddReportError(double dChainage, bool bError, double dX, double dY, double dZ, double dDistance,
                    std::string_view sDescription);

/// Elements that don't meet within the tolerance (metres), and clothoids of no length. Gives the number of
/// errors.
int CheckHz(const THzElements& aHz, double dTolerance);
/// Vertical curves that don't meet the next element within the tolerance. Straight grades aren't tested.
int CheckVt(const TVtElements& aVt, double dTolerance);
/// Chainages of a side file outside the range of the vertical alignment. True when something is wrong.
bool CheckTunnel(const TVtElements& aVt, const std::vector<double>& aChainages);
/// The same for a cant table; an array without any elements passes.
bool CheckSuperelevation(const TVtElements& aVt, const std::vector<double>& aChainages);

/// The report of a tree node, by its text and key: lines in CR LF, columns 14 wide. "" when there is none.
std::string GetReportText(std::string_view sNodeText, std::string_view sNodeKey);

}  // namespace CAligmentCheck
}  // namespace vrek
