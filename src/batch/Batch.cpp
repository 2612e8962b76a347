#include "batch/Batch.h"

#include <unistd.h>

#include <algorithm>
#include <ostream>

#include "base/Configuration.h"
#include "batch/Arguments.h"
#include "batch/Conversion.h"
#include "batch/JobFile.h"
#include "batch/ManyJobs.h"
#include "batch/OutcomeJson.h"
#include "shell/ErrHandler.h"

namespace vrek::batch {
namespace {

// "PAGE1@Vt rasante: refused" and, indented, the report.
void TellFiles(const TOutcome& Outcome, std::ostream& Err) {
  for (const auto& File : Outcome.aFiles) {
    if (File.nMark != 2) continue;
    Err << "refused: " << File.sName << " (" << File.sKey << ")\n";
    std::string sReport = File.sReport;
    std::erase(sReport, '\r');
    if (!sReport.empty()) Err << sReport << "\n";
  }
}

void Tell(const TOutcome& Outcome, bool bCheckOnly, std::ostream& Err) {
  for (const auto& Message : Outcome.aMessages) {
    std::string sText = Message.sText;
    std::erase(sText, '\r');
    if (Message.bBox) Err << sText << "\n";
    if (Message.bWarning) Err << "warning: " << sText << "\n";
  }
  if (!Outcome.bValid) Err << "refused: " << Outcome.sFaultText << "\n";
  TellFiles(Outcome, Err);
  if (Outcome.bExported) Err << "written: " << Outcome.sOutput << "\n";
  if (bCheckOnly && Outcome.eStatus == eConverted) Err << "all files are good\n";
  if (Outcome.eStatus == eNotWritten && !Outcome.bExported)
    Err << "could not be written whole: " << Outcome.sOutput << "\n";
}

// Guards what a conversion can't foresee, such as a failure whose report fails too.
int RunOne(const TJob& Job, const TConversionOptions& Options, bool bQuiet, std::vector<TOutcome>& aOutcomes,
           std::ostream& Err) {
  try {
    aOutcomes.push_back(RunJob(Job, Options));
    if (!bQuiet) Tell(aOutcomes.back(), Options.bCheckOnly, Err);
    return aOutcomes.back().eStatus;
  } catch (const UsageError& Error) {
    Err << "vrek-batch: " << Error.what() << "\n";
    return eUsage;
  } catch (...) {
    Err << "vrek-batch: " << CurrentFailure().sDescription << "\n";
    return eNotWritten;
  }
}

int RunInProcesses(const TArguments& Arguments, std::ostream& Out, std::ostream& Err) {
  TManyJobs Jobs;
  Jobs.aJobFiles = Arguments.aJobFiles;
  Jobs.nAtOnce = Arguments.nProcesses;
  Jobs.bCheckOnly = Arguments.bCheckOnly;
  Jobs.bJson = Arguments.bJson;
  Jobs.bQuiet = Arguments.bQuiet;
  Jobs.bProgress = !Arguments.bQuiet && isatty(STDERR_FILENO) != 0;
  try {
    return RunManyJobs(Jobs, Out, Err);
  } catch (const UsageError& Error) {
    Err << "vrek-batch: " << Error.what() << "\n";
    return eUsage;
  }
}

int Run(int argc, const char* const* argv, std::ostream& Out, std::ostream& Err,
        const std::string& sProgramDirectory) {
  int nStatus = eConverted;
  const auto Arguments = ReadArguments(argc, argv, Out, Err, nStatus);
  if (!Arguments) return nStatus;
  if (Arguments->nProcesses > 0) return RunInProcesses(*Arguments, Out, Err);
  TConversionOptions Options;
  Options.bCheckOnly = Arguments->bCheckOnly;
  Options.bProgress = !Arguments->bQuiet && isatty(STDERR_FILENO) != 0;
  Options.sLanguageFile = Configuration::sLanguageFile;
  Options.sProgramDirectory = sProgramDirectory;
  std::vector<TOutcome> aOutcomes;
  for (const auto& Job : Arguments->aJobs) {
    nStatus = std::max(nStatus, RunOne(Job, Options, Arguments->bQuiet, aOutcomes, Err));
  }
  if (Arguments->bJson) Out << OutcomesAsJson(aOutcomes, Arguments->bManyJobs);
  return nStatus;
}

}  // namespace

int RunBatch(int argc, const char* const* argv, std::ostream& Out, std::ostream& Err,
             const std::string& sProgramDirectory) {
  const int nStatus = Run(argc, argv, Out, Err, sProgramDirectory);
  if (Out.flush()) return nStatus;
  // Whoever reads the outcome must not take half of it for the whole.
  Err << "vrek-batch: standard output could not be written\n";
  return std::max(nStatus, static_cast<int>(eNotWritten));
}

}  // namespace vrek::batch
