#include "Project.h"

#include <algorithm>
#include <fstream>

#include "batch/JobFile.h"

namespace vrek::fuzz {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Split(std::string_view sText, char cEnd) {
  std::vector<std::string> aOut;
  for (std::size_t nEnd; (nEnd = sText.find(cEnd)) != sText.npos; sText.remove_prefix(nEnd + 1)) {
    aOut.emplace_back(sText.substr(0, nEnd));
  }
  aOut.emplace_back(sText);
  return aOut;
}

void WriteBytes(const fs::path& Path, std::string_view sBytes) {
  std::ofstream(Path, std::ios::binary) << sBytes;
}

// The paths of a job in the order of the files.
std::vector<std::string*> Slots(batch::TJob& Job) {
  auto& aFiles = Job.aFiles;
  if (Job.nJob != 3) {
    auto& sThird = Job.nJob == 2 ? aFiles[0].sCant : aFiles[0].sThird;
    return {&aFiles[0].sHorizontal, &aFiles[0].sVertical, &sThird};
  }
  std::vector<std::string*> aSlots{&aFiles[0].sHorizontal, &aFiles[0].sVertical};
  for (std::size_t n : {1u, 2u}) {
    aSlots.insert(aSlots.end(), {&aFiles[n].sHorizontal, &aFiles[n].sVertical, &aFiles[n].sCant});
  }
  return aSlots;
}

void ReadHead(const std::string& sHead, batch::TJob& Job) {
  const auto aParts = Split(sHead, ';');
  for (const char c : aParts[0]) {
    if (c >= '0' && c <= '3') Job.nJob = c - '0';
    if (c == 'c') Job.aFiles[0].bVerticalOption = true;
    if (c == 'l') Job.aFiles[1].bVerticalOption = true;
    if (c == 'r') Job.aFiles[2].bVerticalOption = true;
  }
  if (aParts.size() > 1 && !aParts[1].empty()) Job.sFrom = aParts[1];
  if (aParts.size() > 2 && !aParts[2].empty()) Job.sTo = aParts[2];
}

}  // namespace

TProject ReadProject(std::string_view sBytes) {
  auto aParts = Split(sBytes, cPartEnd);
  TProject Project{std::move(aParts.front()), {}};
  aParts.erase(aParts.begin());
  Project.aFiles = std::move(aParts);
  return Project;
}

batch::TJob LayOut(const TProject& Project, const fs::path& Folder) {
  batch::TJob Job;
  Job.nFormats = 7;
  ReadHead(Project.sHead, Job);
  const auto aSlots = Slots(Job);
  for (std::size_t n = 0; n < std::min(aSlots.size(), Project.aFiles.size()); ++n) {
    const auto& sBytes = Project.aFiles[n];
    if (sBytes.empty()) continue;
    const auto Path =
        Folder / ("file" + std::to_string(n) + (sBytes.starts_with("{\\rtf") ? ".rtf" : ".txt"));
    WriteBytes(Path, sBytes);
    *aSlots[n] = Path.string();
  }
  return Job;
}

batch::TOutcome Convert(const TProject& Project, const fs::path& Folder, const std::string& sOutput) {
  batch::TJob Job = LayOut(Project, Folder);
  Job.sOutput = sOutput;
  batch::TConversionOptions Options;
  Options.sLanguageFile = "QuennelV2.lng";
  Options.sProgramDirectory = Folder.string();
  if (!fs::exists(Folder / Options.sLanguageFile)) WriteBytes(Folder / Options.sLanguageFile, "#\r\n");
  try {
    return batch::RunJob(Job, Options);
  } catch (const batch::UsageError& Error) {
    batch::TOutcome Outcome;
    Outcome.eStatus = batch::eUsage;
    Outcome.aMessages.push_back({true, "critical", Error.what()});
    return Outcome;
  }
}

std::string Fault(const batch::TOutcome& Outcome) {
  const bool bConverted = Outcome.eStatus == batch::eConverted;
  if (bConverted != Outcome.bExported) return "status and document don't agree";
  if (bConverted && !(Outcome.bValid && Outcome.bImported)) return "written from refused files";
  const bool bMarked = std::any_of(Outcome.aFiles.begin(), Outcome.aFiles.end(),
                                   [](const batch::TFileResult& File) { return File.nMark == 2; });
  if (!bConverted && Outcome.aMessages.empty() && Outcome.sFault.empty() && !bMarked)
    return "refused without a word";
  return {};
}

}  // namespace vrek::fuzz
