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
#include "wizard/ctlImporting.h"

namespace vrek::batch {
namespace {

std::string WithoutCr(std::string sText) {
  std::erase(sText, '\r');
  return sText;
}

// Which file is refused, and why, where a check knows.
void TellFiles(const TOutcome& Outcome, std::ostream& Err) {
  for (const auto& File : Outcome.aFiles) {
    if (File.nMark != static_cast<int>(EImage::eFailure)) continue;
    Err << "refused: " << File.sWhere << "\n";
    if (!File.sReport.empty()) Err << WithoutCr(File.sReport) << "\n";
  }
}

// Messages of the log tell where a file went wrong: of no use where none did.
void TellMessages(const TOutcome& Outcome, std::ostream& Err) {
  constexpr std::string_view sLogged = "Msg ";
  for (const auto& Message : Outcome.aMessages) {
    const auto sText = WithoutCr(Message.sText);
    if (Message.bBox) Err << sText << "\n";
    if (Message.bWarning) Err << "warning: " << sText << "\n";
    if (Message.bBox || Message.bWarning || Outcome.eStatus == eConverted) continue;
    if (sText.starts_with(sLogged)) Err << sText.substr(sLogged.size()) << "\n";
  }
}

void TellEnd(const TOutcome& Outcome, bool bCheckOnly, std::ostream& Err) {
  if (Outcome.bExported) Err << "written: " << Outcome.sOutput << "\n";
  if (Outcome.eStatus == eNotWritten && !Outcome.bExported)
    Err << "could not be written whole: " << Outcome.sOutput << "\n";
  if (Outcome.eStatus != eConverted) return;
  // A failure that is told and passed over left something out; what stands is right as far as it goes.
  if (const auto nFailures = CountFailures(Outcome); nFailures > 0) {
    Err << "failures were told above (" << nFailures << "): what they concern is missing\n";
  } else if (bCheckOnly) {
    Err << "all files are good\n";
  }
}

void Tell(const TOutcome& Outcome, bool bCheckOnly, std::ostream& Err) {
  TellMessages(Outcome, Err);
  if (!Outcome.bValid && !Outcome.sFaultText.empty()) Err << "refused: " << Outcome.sFaultText << "\n";
  TellFiles(Outcome, Err);
  TellEnd(Outcome, bCheckOnly, Err);
}

// What came of a job that never got to run; without one its file couldn't be read.
TOutcome NotRun(const TJob* pJob, EExitStatus eStatus, const std::string& sWhy) {
  TOutcome Outcome;
  if (pJob != nullptr) {
    Outcome.sJob = aJobNames[static_cast<std::size_t>(pJob->nJob)];
    Outcome.sOutput = pJob->sOutput;
  }
  Outcome.eStatus = eStatus;
  Outcome.aMessages.push_back({false, "", sWhy, false});
  return Outcome;
}

class CBatch {
 public:
  CBatch(const TArguments& Arguments, std::ostream& Out, std::ostream& Err, const std::string& sDirectory)
      : m_Arguments(Arguments), m_Out(Out), m_Err(Err) {
    m_Options.bCheckOnly = Arguments.bCheckOnly;
    m_Options.bProgress = ShowsProgress();
    m_Options.sLanguageFile = Configuration::sLanguageFile;
    m_Options.sProgramDirectory = sDirectory;
  }

  int Run() {
    if (m_Arguments.Job) {
      RunOne(*m_Arguments.Job, "");
      return End();
    }
    const auto aFiles = ReadJobFiles(m_Arguments.aJobFiles, !m_Arguments.bCheckOnly);
    const auto sLost = m_Arguments.bCheckOnly ? std::string() : Lost(aFiles);
    if (sLost.empty() && m_Arguments.nProcesses > 0) return RunInProcesses();
    for (const auto& File : aFiles) {
      if (!File.Job) {
        Refuse(nullptr, eUsage, File.sFault);
      } else if (sLost.empty()) {
        RunOne(*File.Job, aFiles.size() > 1 ? File.sPath : "");
      } else {
        Refuse(&*File.Job, eUsage, sLost);
      }
    }
    return End();
  }

 private:
  bool ShowsProgress() const { return !m_Arguments.bQuiet && isatty(STDERR_FILENO) != 0; }

  static std::string Lost(const std::vector<TJobFile>& aFiles) {
    std::vector<const TJob*> aJobs;
    for (const auto& File : aFiles) {
      if (File.Job) aJobs.push_back(&*File.Job);
    }
    return OverwrittenByOthers(aJobs);
  }

  // One fault of several jobs is told once.
  void Refuse(const TJob* pJob, EExitStatus eStatus, const std::string& sWhy) {
    if (sWhy != m_sTold) m_Err << "vrek-batch: " << sWhy << "\n";
    m_sTold = sWhy;
    m_aOutcomes.push_back(NotRun(pJob, eStatus, sWhy));
  }

  // Guards what a conversion can't foresee, such as a failure whose report fails too.
  void RunOne(const TJob& Job, const std::string& sHeading) {
    try {
      m_aOutcomes.push_back(RunJob(Job, m_Options));
      if (m_Arguments.bQuiet) return;
      const auto& Outcome = m_aOutcomes.back();
      if (!sHeading.empty()) {
        m_Err << sHeading << ": " << InWords(Outcome.eStatus, m_Options.bCheckOnly) << "\n";
      }
      Tell(Outcome, m_Options.bCheckOnly, m_Err);
    } catch (const UsageError& Error) {
      Refuse(&Job, eUsage, sHeading.empty() ? Error.what() : sHeading + ": " + Error.what());
    } catch (...) {
      Refuse(&Job, eNotWritten, CurrentFailure().sDescription);
    }
  }

  int RunInProcesses() {
    TManyJobs Jobs;
    Jobs.aJobFiles = m_Arguments.aJobFiles;
    Jobs.nAtOnce = m_Arguments.nProcesses;
    Jobs.bCheckOnly = m_Arguments.bCheckOnly;
    Jobs.bJson = m_Arguments.bJson;
    Jobs.bQuiet = m_Arguments.bQuiet;
    Jobs.bProgress = ShowsProgress();
    return RunManyJobs(Jobs, m_Out, m_Err);
  }

  int End() {
    if (m_Arguments.bJson) m_Out << OutcomesAsJson(m_aOutcomes);
    int nWorst = eConverted;
    for (const auto& Outcome : m_aOutcomes) nWorst = std::max<int>(nWorst, Outcome.eStatus);
    return nWorst;
  }

  const TArguments& m_Arguments;
  std::ostream& m_Out;
  std::ostream& m_Err;
  TConversionOptions m_Options;
  std::vector<TOutcome> m_aOutcomes;
  std::string m_sTold;
};

int Run(int argc, const char* const* argv, std::ostream& Out, std::ostream& Err,
        const std::string& sProgramDirectory) {
  int nStatus = eConverted;
  const auto Arguments = ReadArguments(argc, argv, Out, Err, nStatus);
  return Arguments ? CBatch(*Arguments, Out, Err, sProgramDirectory).Run() : nStatus;
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
