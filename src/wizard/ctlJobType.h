// ctlJobType: the Job page: one of up to four job types.
#pragma once

#include <array>

#include "wizard/Parts.h"

namespace vrek {

enum EJobType { eRoad = 0, eTunnel = 1, eRailSingle = 2, eRailDouble = 3 };

class ctlJobType {
 public:
  void UpdateText();

  /// Disables the jobs that a mask doesn't offer and selects the first that it does.
  void ShowJobByTypes(int nJobTypes);

  /// The job chosen; a converter with one job type answers from its mask.
  int JobType() const;
  /// Selects a job, as a click on its option does; one that isn't offered is left alone.
  void SetJobType(int nJob);

  /// A click on an option.
  void optDesign_Click(int nIndex);

  TPart frJobType, frJobInfo;
  std::array<TCheckBox, 4> optDesign;
  TTextBox txtJobInfo;  ///< read-only explanation of the selected job
};

}  // namespace vrek
