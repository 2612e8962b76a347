#include "rail_tunnel/GenerateVt.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/Checked.h"
#include "design_data/CAligmentsDatas.h"
#include "geometry/AligmentIndex.h"
#include "rail_tunnel/clsSuperelevation.h"
#include "shell/RepeatedFailures.h"

namespace vrek::CAligmentsDatas {
namespace {

constexpr double dMaxSamples = 20'000'000;

double EndOf(const THzElement& Element) {
  return Element.dChainage + Element.dLength;
}

// Whether adding the step always gives a larger number, up to dLargest in magnitude.
bool Moves(double dStep, double dLargest) {
  const double dGap = std::nextafter(dLargest, std::numeric_limits<double>::infinity()) - dLargest;
  return 2 * dStep > dGap;
}

// How many samples an element takes, up to dLimit.
double SamplesOf(double dStart, double dLimit, double dStep) {
  const double dEnd = std::max(dStart, dLimit);
  if (!Moves(dStep, std::max(std::fabs(dStart), std::fabs(dEnd)))) Raise(Error::nOverflow);
  return std::floor((dEnd - dStart) / dStep) + 1;
}

// How many samples the source takes. Too many, or a step that leads nowhere: failure 6.
std::size_t CountSamples(const THzElements& aHz, double dStep) {
  const double dSourceEnd = EndOf(Checked::At(aHz, UpperBound(aHz)));
  double dSamples = 0;
  for (int i = 1; i <= UpperBound(aHz); ++i) {
    const THzElement& Element = Checked::At(aHz, i);
    if (i > 1 && Element.dChainage > dSourceEnd) break;
    dSamples += SamplesOf(Element.dChainage, std::min(EndOf(Element), dSourceEnd), dStep);
    if (!(dSamples <= dMaxSamples)) Raise(Error::nOverflow);
  }
  return static_cast<std::size_t>(dSamples);
}

// Appends a straight grade and ends the one before it there.
void Append(TVtElements& aVt, double dChainage, double dHeight) {
  if (UpperBound(aVt) >= 1) {
    TVtElement& Before = aVt.back();
    Before.dLength = Checked::Finite(dChainage - Before.dChainage);
    if (Before.dLength != 0)
      Before.dSlope = Checked::Finite((dHeight - Before.dHeight) / std::fabs(Before.dLength));
  }
  TVtElement& Element = aVt.emplace_back();
  Element.nId = UpperBound(aVt);
  Element.dChainage = dChainage;
  Element.dHeight = dHeight;
}

// The alignments of one generation, and how a sample of the source gets onto the target.
class Generation {
 public:
  Generation(int nTarget, int nSource, int nSup, bool bFromCentre)
      : m_nTarget(nTarget),
        m_bFromCentre(bFromCentre),
        m_oSup(GetAligmentSup(nSup)),
        m_SourceHz(GetAligmentHz(nSource)),
        m_SourceVt(GetAligmentVt(nSource)),
        m_TargetHz(GetAligmentHz(nTarget)) {}

  const THzElements& SourceHz() const { return m_SourceHz.Elements(); }
  const THzElements& TargetHz() const { return m_TargetHz.Elements(); }

  // Appends the sample at a chainage of the source, unless it has no foot on the target.
  void Sample(double dChainage, TVtElements& aVt) {
    double dOffset = 0, dChainPjt = 0;
    if (!Alg::ProjectChainToAnotherAligment(dChainage, m_SourceHz, m_TargetHz, dOffset, dChainPjt)) return;
    double z = m_SourceVt.Height(dChainage);
    if (!m_oSup) Raise(Error::nObjectNotSet);
    if (m_oSup->IsCoplaneTrack())
      m_oSup->CalcHeightVtAligmentCoplane(m_nTarget, dChainPjt, dOffset, z, m_bFromCentre, &m_Radius);
    Append(aVt, dChainPjt, z);
  }

 private:
  int m_nTarget;
  bool m_bFromCentre;
  std::shared_ptr<clsSuperelevation> m_oSup;
  Alg::CHzIndex m_SourceHz;
  Alg::CVtIndex m_SourceVt;
  Alg::CHzIndex m_TargetHz;
  TRowRadius m_Radius;
};

}  // namespace

bool GenerateVtAligment(int nTarget, int nSource, int nSup, double dStep, IProgress& Progress,
                        bool bIsVtAligmentSourceChainageCL) {
  // What it is made from
  Generation Work(nTarget, nSource, nSup, bIsVtAligmentSourceChainageCL);
  const THzElements& aHz = Work.SourceHz();
  Progress.SetRanges(0, UpperBound(Work.TargetHz()));
  // From the start of element 1
  int i = 1;
  double ch = Checked::At(aHz, i).dChainage;
  const double dSourceEnd = EndOf(aHz.back());
  TVtElements aVt;
  aVt.reserve(CountSamples(aHz, dStep) + 1);
  aVt.emplace_back();
  // The samples, afresh at each element
  const CRepeatedFailures OnceEach;
  for (;;) {
    Progress.SetValue(i);
    if (Progress.CancelPressed()) return false;
    Work.Sample(ch, aVt);
    ch += dStep;
    if (ch > EndOf(Checked::At(aHz, i))) {
      if (++i > UpperBound(aHz)) break;
      ch = Checked::At(aHz, i).dChainage;
    }
    if (ch > dSourceEnd) break;
  }
  SetAligmentVt(nTarget, std::move(aVt));
  return true;
}

}  // namespace vrek::CAligmentsDatas
