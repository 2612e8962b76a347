#include "batch/Job.h"

#include <filesystem>

namespace vrek::batch {
namespace {

bool IsSameFile(const std::string& sOne, const std::string& sOther) {
  if (sOne.empty() || sOther.empty()) return false;
  std::error_code Ignored;
  if (std::filesystem::equivalent(sOne, sOther, Ignored)) return true;
  return std::filesystem::absolute(sOne).lexically_normal() ==
         std::filesystem::absolute(sOther).lexically_normal();
}

}  // namespace

std::string Overwritten(const TJob& Job) {
  for (const auto& sWritten : {Job.sOutput, Job.sPlot}) {
    for (const auto& Files : Job.aFiles) {
      for (const auto& sRead : {Files.sHorizontal, Files.sVertical, Files.sThird, Files.sCant}) {
        if (IsSameFile(sWritten, sRead)) return sWritten + " is an input: it would be overwritten";
      }
    }
  }
  return IsSameFile(Job.sOutput, Job.sPlot) ? Job.sPlot + " is the document: the drawing would replace it"
                                            : "";
}

}  // namespace vrek::batch
