#include "batch/ManyJobs.h"

#include <algorithm>
#include <cstddef>
#include <iomanip>
#include <list>
#include <ostream>

#include "batch/ChildRun.h"
#include "batch/ExitStatus.h"
#include "batch/OutcomeJson.h"

namespace vrek::batch {
namespace {

std::string InWords(const TRunResult& Run, bool bCheckOnly) {
  if (Run.nSignal != 0) return "killed by signal " + std::to_string(Run.nSignal);
  if (!Run.bRan) return "could not be run";
  return batch::InWords(Run.nStatus, bCheckOnly);
}

class CManyJobs {
 public:
  CManyJobs(const TManyJobs& Jobs, std::ostream& Err)
      : m_Jobs(Jobs), m_Err(Err), m_aResults(Jobs.aJobFiles.size()) {}

  void Run() {
    std::list<CChildRun> aRunning;
    for (std::size_t nNext = 0; nNext < m_aResults.size() || !aRunning.empty();) {
      if (nNext < m_aResults.size() && aRunning.size() < static_cast<std::size_t>(m_Jobs.nAtOnce)) {
        aRunning.emplace_back(nNext, Arguments(m_Jobs.aJobFiles[nNext]));
        ++nNext;
        continue;
      }
      DrawProgress();
      Take(aRunning);
    }
    if (m_Jobs.bProgress) m_Err << "\r\033[K" << std::flush;
  }

  void TellTable() const {
    std::size_t nWidth = 0;
    for (const auto& sFile : m_Jobs.aJobFiles) nWidth = std::max(nWidth, sFile.size());
    m_Err << "\n";
    for (std::size_t n = 0; n < m_aResults.size(); ++n) {
      m_Err << std::left << std::setw(static_cast<int>(nWidth) + 2) << m_Jobs.aJobFiles[n]
            << InWords(m_aResults[n], m_Jobs.bCheckOnly) << "\n";
    }
  }

  int Worst() const {
    int nWorst = eConverted;
    for (const auto& Result : m_aResults) nWorst = std::max(nWorst, Result.nStatus);
    return nWorst;
  }

  std::vector<std::string> Outcomes() const {
    std::vector<std::string> aOut;
    for (std::size_t n = 0; n < m_aResults.size(); ++n) {
      aOut.push_back(!m_aResults[n].sOut.empty()
                         ? m_aResults[n].sOut
                         : OutcomeOfBrokenRun(m_Jobs.aJobFiles[n], InWords(m_aResults[n], m_Jobs.bCheckOnly),
                                              m_aResults[n].sErr));
    }
    return aOut;
  }

 private:
  std::vector<std::string> Arguments(const std::string& sJobFile) const {
    std::vector<std::string> aOut;
    if (m_Jobs.bJson) aOut.emplace_back("--json");
    if (m_Jobs.bCheckOnly) aOut.emplace_back("check");
    aOut.insert(aOut.end(), {"run", "--", sJobFile});
    return aOut;
  }

  // Waits until one of the running ends.
  void Take(std::list<CChildRun>& aRunning) {
    const auto it = WaitForOne(aRunning);
    const auto n = it->Number();
    m_aResults[n] = it->Result();
    aRunning.erase(it);
    ++m_nDone;
    if (m_Jobs.bQuiet) return;
    if (m_Jobs.bProgress) m_Err << "\r\033[K";
    m_Err << m_Jobs.aJobFiles[n] << ": " << InWords(m_aResults[n], m_Jobs.bCheckOnly) << "\n"
          << m_aResults[n].sErr << std::flush;
  }

  void DrawProgress() const {
    if (!m_Jobs.bProgress) return;
    m_Err << "\r" << m_nDone << " of " << m_aResults.size() << " projects\033[K" << std::flush;
  }

  const TManyJobs& m_Jobs;
  std::ostream& m_Err;
  std::vector<TRunResult> m_aResults;
  std::size_t m_nDone = 0;
};

}  // namespace

int RunManyJobs(const TManyJobs& Jobs, std::ostream& Out, std::ostream& Err) {
  CManyJobs Many(Jobs, Err);
  Many.Run();
  if (!Jobs.bQuiet) Many.TellTable();
  if (Jobs.bJson) Out << JoinOutcomes(Many.Outcomes()) << std::flush;
  return Many.Worst();
}

}  // namespace vrek::batch
