// The elements of a profile as polylines.
#include <algorithm>
#include <cmath>

#include "base/Failure.h"
#include "preview/Preview.h"

namespace vrek::Preview {
namespace {

constexpr double dHeightTolerance = 0.001;  // metres between the curve and its chords
constexpr int nMostChords = 1000;

// The rise of a chord c over a parabola is c^2 / 8 Kv.
int Chords(const TVtElement& Element, double dLength) {
  if (Element.dKv == 0) return 1;
  const double nChords = std::ceil(dLength / std::sqrt(8 * std::fabs(Element.dKv) * dHeightTolerance));
  return static_cast<int>(std::clamp(nChords, 1.0, double{nMostChords}));
}

// A grade runs to where the next element starts: the document holds the vertices, and behind a sharp vertex
// the element's own slope may be that of the grade before it.
void AddElement(std::vector<TProfileRun>& aOut, const TVtElement& Element, const TVtElement* pNext) {
  const double dLength = std::fabs(Element.dLength);
  const bool bCurve = Element.dKv != 0;
  if (aOut.empty() || aOut.back().bCurve != bCurve) aOut.push_back({bCurve, {}});
  auto& aPoints = aOut.back().aPoints;
  if (!bCurve && pNext) {
    aPoints.push_back({Element.dChainage, Element.dHeight});
    aPoints.push_back({pNext->dChainage, pNext->dHeight});
    return;
  }
  const int nChords = Chords(Element, dLength);
  for (int n = 0; n <= nChords; ++n) {
    const double dAlong = dLength * n / nChords;
    const double dHeight = GM::GetHeightInElement(Element, dAlong);
    if (std::isfinite(dHeight)) aPoints.push_back({Element.dChainage + dAlong, dHeight});
  }
}

}  // namespace

std::vector<TProfileRun> MakeProfile(const TVtElements& aVt, int nFirst, int nLast) {
  std::vector<TProfileRun> aOut;
  for (int i = std::max(nFirst, 1); i <= std::min(nLast, UpperBound(aVt)); ++i) {
    try {
      const auto n = static_cast<std::size_t>(i);
      AddElement(aOut, aVt[n], i < UpperBound(aVt) ? &aVt[n + 1] : nullptr);
    } catch (const Failure&) {
      // An element that can't be worked out leaves a gap.
    }
  }
  std::erase_if(aOut, [](const TProfileRun& Run) { return Run.aPoints.size() < 2; });
  return aOut;
}

}  // namespace vrek::Preview
