// A whole project in one text, for fuzzing and for tests that damage projects. The parts stand one behind the
// other, byte 30 (record separator) between them:
//
//   head    job 0 to 3, letters of the options (c: both profiles from the centre, l: the left one from the
//           right, r: the right one from the left), then "from" and "to" behind a semicolon each
//   files   road, tunnel, rail: plan, profile, cross-sections or tunnel profiles or cant table
//           double: centre plan and profile, left plan, profile and cant, right plan, profile and cant
//
// An empty part is a file that isn't given. "{\rtf" at the beginning makes it an RTF file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "batch/Conversion.h"

namespace vrek::fuzz {

inline constexpr char cPartEnd = 30;

struct TProject {
  std::string sHead;
  std::vector<std::string> aFiles;
};

TProject ReadProject(std::string_view sBytes);

/// Writes the files into a folder and makes the job of them.
batch::TJob LayOut(const TProject& Project, const std::filesystem::path& Folder);

/// Converts a project whose files go into Folder; the document to sOutput. Makes the language file there,
/// too. What the conversion can't do at all (a chainage that is no number) is an outcome of status eUsage.
batch::TOutcome Convert(const TProject& Project, const std::filesystem::path& Folder,
                        const std::string& sOutput);

/// Why an outcome is one that no input may lead to; "" if it isn't: refused without a word, or both written
/// and refused.
std::string Fault(const batch::TOutcome& Outcome);

}  // namespace vrek::fuzz
