#include "batch/Job.h"

#include <sys/stat.h>

#include <map>

#include "platform/StagedFile.h"

namespace vrek::batch {
namespace {

// Equal for two paths that are one file, whatever links lead there.
std::string FileKey(const std::string& sPath) {
  struct stat Status {};
  if (::stat(sPath.c_str(), &Status) == 0) {
    return std::to_string(Status.st_dev) + ":" + std::to_string(Status.st_ino);
  }
  return ResolvedTarget(sPath);
}

template <class TBody>
void ForEachInput(const TJob& Job, TBody Body) {
  for (const auto& Files : Job.aFiles) {
    for (const auto* pPath : {&Files.sHorizontal, &Files.sVertical, &Files.sThird, &Files.sCant}) {
      if (!pPath->empty()) Body(*pPath);
    }
  }
}

template <class TBody>
void ForEachOutput(const TJob& Job, TBody Body) {
  for (const auto* pPath : {&Job.sOutput, &Job.sPlot}) {
    if (!pPath->empty()) Body(*pPath);
  }
}

}  // namespace

std::string Overwritten(const TJob& Job) {
  std::map<std::string, std::string> aRead;
  ForEachInput(Job, [&](const std::string& sPath) { aRead.emplace(FileKey(sPath), "an input"); });
  if (!Job.sJobFile.empty()) aRead.emplace(FileKey(Job.sJobFile), "the job file");
  std::string sLost;
  ForEachOutput(Job, [&](const std::string& sPath) {
    const auto it = aRead.find(FileKey(sPath));
    if (it != aRead.end()) sLost = sPath + " is " + it->second + ": it would be overwritten";
  });
  if (!sLost.empty() || Job.sOutput.empty() || Job.sPlot.empty()) return sLost;
  if (FileKey(Job.sOutput) != FileKey(Job.sPlot)) return "";
  return Job.sPlot + " is the document: the drawing would replace it";
}

std::string OverwrittenByOthers(const std::vector<const TJob*>& aJobs) {
  std::map<std::string, const TJob*> aWriters;
  std::string sLost;
  for (const auto* pJob : aJobs) {
    ForEachOutput(*pJob, [&](const std::string& sPath) {
      const auto* pOther = aWriters.emplace(FileKey(sPath), pJob).first->second;
      if (pOther != pJob) sLost = pOther->sJobFile + " and " + pJob->sJobFile + " both write " + sPath;
    });
  }
  for (const auto* pJob : aJobs) {
    const auto Look = [&](const std::string& sPath) {
      const auto it = aWriters.find(FileKey(sPath));
      if (it == aWriters.end() || it->second == pJob) return;
      sLost = it->second->sJobFile + " would overwrite " + sPath + ", which " + pJob->sJobFile + " reads";
    };
    ForEachInput(*pJob, Look);
    Look(pJob->sJobFile);
  }
  return sLost;
}

}  // namespace vrek::batch
