// Runs one job through the pages of the wizard, as a person would: the same controls, the same sequence.
#pragma once

#include <string>
#include <vector>

#include "batch/ExitStatus.h"
#include "batch/Job.h"

namespace vrek::batch {

struct TMessage {
  bool bBox = false;  ///< a message box, else a log entry or a warning
  std::string sIcon;  ///< "warning" or "critical" of a box
  std::string sText;
  bool bWarning = false;  ///< what no check refuses; neither shown in a box nor logged
};

struct TFileResult {
  std::string sKey;  ///< key of the tree's node
  std::string sName;
  int nMark = 0;        ///< 0 none, 1 success, 2 failure
  std::string sReport;  ///< what a click on a failed node shows
  std::string sWhere;   ///< page, slot and file, for people
};

struct TRowResult {
  int nRow = 0;
  std::string sLabel, sValue, sUnit;
};

struct TPageResult {
  int nPage = 0;
  std::string sTitle;
  std::vector<TRowResult> aRows;
};

struct TLayerResult {
  std::string sName;
  bool bSelected = false;
};

/// What came of a job.
struct TOutcome {
  std::string sJob, sOutput;
  bool bValid = false;     ///< the Files page could be left
  std::string sFaultText;  ///< the same in words: page, slot and path
  std::string sFault;      ///< "page,slot" where it couldn't
  bool bImported = false;  ///< every file was read and passed its checks
  bool bExported = false;  ///< the document is in its place
  std::vector<TFileResult> aFiles;
  std::vector<TPageResult> aSummary;
  std::vector<TLayerResult> aLayers;
  std::vector<TMessage> aMessages;
  EExitStatus eStatus = eRefused;
};

/// How many failures the messages tell: those of critical boxes.
int CountFailures(const TOutcome& Outcome);

struct TConversionOptions {
  bool bCheckOnly = false;        ///< import and check, write nothing
  bool bProgress = false;         ///< draw a progress bar on stderr
  std::string sLanguageFile;      ///< name of the language file in the program's directory
  std::string sProgramDirectory;  ///< empty: that of the executable
};

/// Runs a job. Wrong usage (a job that isn't on offer, a tolerance that is no number, no language file, an
/// output that is an input too): UsageError.
TOutcome RunJob(const TJob& Job, const TConversionOptions& Options);

}  // namespace vrek::batch
