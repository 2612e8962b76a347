#include "rail_tunnel/GenerateVt.h"

#include <cmath>

#include "base/Checked.h"
#include "design_data/CAligmentsDatas.h"
#include "geometry/AligmentIndex.h"
#include "rail_tunnel/clsSuperelevation.h"

namespace vrek::CAligmentsDatas {
namespace {

constexpr double dMostSamples = 20000000;

// A step that gets nowhere, or a source too long for it, is refused before the work begins.
void CheckWork(const THzElements& aSource, double dStep) {
  double dSamples = 0;
  for (std::size_t i = 1; i < aSource.size(); ++i) {
    const double dEnd = aSource[i].dChainage + aSource[i].dLength;
    const bool bMoves = aSource[i].dChainage + dStep > aSource[i].dChainage && dEnd + dStep > dEnd;
    dSamples += 1 + std::fmax(0, aSource[i].dLength) / dStep;
    if (!bMoves || !(dSamples <= dMostSamples)) Raise(Error::nOverflow);
  }
}

void Append(TVtElements& aVt, double dChainage, double dHeight) {
  if (aVt.size() > 1) {
    TVtElement& Before = aVt.back();
    Before.dLength = dChainage - Before.dChainage;
    if (Before.dLength != 0) Before.dSlope = (dHeight - Before.dHeight) / std::fabs(Before.dLength);
  }
  TVtElement Element;
  Element.nId = static_cast<std::int32_t>(aVt.size());
  Element.dChainage = dChainage;
  Element.dHeight = dHeight;
  aVt.push_back(Element);
}

}  // namespace

bool GenerateVtAligment(int nTarget, int nSource, int nSup, double dStep, IProgress& Progress,
                        bool bIsVtAligmentSourceChainageCL) {
  // 1.
  const auto oCant = GetAligmentSup(nSup);
  const THzElements& aSource = GetAligmentHz(nSource);
  const TVtElements& aSourceVt = GetAligmentVt(nSource);
  const THzElements& aTarget = GetAligmentHz(nTarget);
  if (!oCant) Raise(Error::nObjectNotSet);
  CheckWork(aSource, dStep);
  const Alg::CHzIndex Source(aSource), Target(aTarget);
  const Alg::CVtIndex SourceVt(aSourceVt);
  TVtElements aGenerated(1);
  // 2., 3.
  Progress.SetRanges(0, UpperBound(aTarget));
  int i = 1;
  double ch = Checked::At(aSource, i).dChainage;
  const THzElement& Last = Checked::At(aSource, UpperBound(aSource));
  // 4.
  while (true) {
    Progress.SetValue(i);
    if (Progress.CancelPressed()) return false;
    double dOffset = 0, dChainPjt = 0;
    if (Alg::ProjectChainToAnotherAligment(ch, Source, Target, dOffset, dChainPjt)) {
      double z = SourceVt.Height(ch);
      if (oCant->IsCoplaneTrack()) {
        oCant->CalcHeightVtAligmentCoplane(nTarget, dChainPjt, dOffset, z, bIsVtAligmentSourceChainageCL);
      }
      Append(aGenerated, dChainPjt, z);
    }
    ch += dStep;
    const THzElement& Element = Checked::At(aSource, i);
    if (ch > Element.dChainage + Element.dLength) {
      if (++i > UpperBound(aSource)) break;
      ch = Checked::At(aSource, i).dChainage;
    }
    if (ch > Last.dChainage + Last.dLength) break;
  }
  // 5.
  SetAligmentVt(nTarget, std::move(aGenerated));
  return true;
}

}  // namespace vrek::CAligmentsDatas
