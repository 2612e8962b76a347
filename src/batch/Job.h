// One conversion as a script describes it: what a person would choose and type on the pages of the wizard.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace vrek::batch {

/// The file slots of one page of the Files page. Empty paths leave a slot alone.
struct TAligmentFiles {
  std::string sHorizontal;
  std::string sVertical;
  std::string sThird;  ///< cross-sections or tunnel profiles
  std::string sCant;
  bool bVerticalOption = false;  ///< the option of the vertical slot
};

struct TJob {
  std::string sJobFile;  ///< where it was read from; empty: from the command line
  int nJob = 0;          ///< 0 road, 1 tunnel, 2 rail, 3 double
  std::string sOutput;
  std::string sName;     ///< empty: taken from the output file
  std::string sCreator;  ///< empty: the user's name
  std::string sPlot;     ///< SVG file for a drawing of what was written; empty: none
  std::optional<int> nFormats;
  // Numbers as typed into their boxes; unset leaves what the page shows.
  std::optional<std::string> sToleranceHz, sToleranceVt, sFrom, sTo;
  std::optional<std::vector<std::string>> aLayers;  ///< names to be checked, all others not
  std::array<TAligmentFiles, 3> aFiles;             ///< pages: the alignment; or centre, left, right
};

/// What would be lost when the job runs: an input or the job file that is the output or the drawing as well, or
/// both of these in one file, in words; empty when nothing would. Links count as what they lead to.
std::string Overwritten(const TJob& Job);

/// The same between jobs: two that write one file, or one that writes what another reads.
std::string OverwrittenByOthers(const std::vector<const TJob*>& aJobs);

inline constexpr std::array<const char*, 4> aJobNames = {"road", "tunnel", "rail", "double"};

}  // namespace vrek::batch
