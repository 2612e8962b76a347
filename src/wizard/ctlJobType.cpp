#include "wizard/ctlJobType.h"

#include "shell/AppModel.h"

namespace vrek {
namespace {

constexpr std::array<const char*, 4> aOptionTokens = {"OPT_JOB_ROAD", "OPT_JOB_TUNNEL", "OPT_JOB_RAILSINGLE",
                                                      "OPT_JOB_RAILDOUBLE"};
constexpr std::array<const char*, 4> aInfoTokens = {"TXT_JOB_ROAD", "TXT_JOB_TUNNEL", "TXT_JOB_RAILSINGLE",
                                                    "TXT_JOB_RAILDOUBLE"};
constexpr std::array<int, 4> aMaskBits = {1, 2, 4, 4};

}  // namespace

void ctlJobType::UpdateText() {
  frJobType.Caption = AppModel().GetToken("FR_JOBTYPE");
  frJobInfo.Caption = AppModel().GetToken("FR_JOB_INFO");
  for (std::size_t n = 0; n < 4; ++n) optDesign[n].Caption = AppModel().GetToken(aOptionTokens[n]);
}

void ctlJobType::ShowJobByTypes(int nJobTypes) {
  int nFirst = -1;
  for (int n = 0; n < 4; ++n) {
    auto& Option = optDesign[static_cast<std::size_t>(n)];
    Option.Enabled = (nJobTypes & aMaskBits[static_cast<std::size_t>(n)]) != 0;
    if (Option.Enabled && nFirst < 0) nFirst = n;
  }
  if (nFirst >= 0) optDesign_Click(nFirst);
}

int ctlJobType::JobType() const {
  const auto& Info = AppModel().ConverterInfo;
  if (Info.nJobTypesNumber == 1) return Info.nFormatsSupport & 1 ? eRoad : eTunnel;
  for (int n = 0; n < 4; ++n) {
    if (optDesign[static_cast<std::size_t>(n)].Value) return n;
  }
  return eRoad;
}

void ctlJobType::SetJobType(int nJob) {
  if (nJob >= 0 && nJob < 4) optDesign_Click(nJob);
}

void ctlJobType::optDesign_Click(int nIndex) {
  const auto nSelected = static_cast<std::size_t>(nIndex);
  if (!optDesign[nSelected].Enabled) return;
  for (std::size_t n = 0; n < 4; ++n) optDesign[n].Value = n == nSelected;
  txtJobInfo.Text = AppModel().GetToken(aInfoTokens[nSelected]);
}

}  // namespace vrek
