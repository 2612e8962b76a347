#include "checks/Warnings.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include "base/CodePage.h"
#include "base/FormatReal.h"
#include "base/ST.h"
#include "checks/WarningTexts.h"
#include "shell/Phrase.h"

namespace vrek::Warnings {
namespace {

constexpr double dHalfStep = 0.0005;  // metres: half the last decimal that the range's boxes show
constexpr double dRounded = 0.0006;   // an end of the range nearer to the axis's is the axis's, rounded
constexpr double dInfinite = std::numeric_limits<double>::infinity();

bool BreaksMarkup(std::string_view sText) {
  return std::any_of(sText.begin(), sText.end(), [](char c) {
    const auto n = static_cast<unsigned char>(c);
    return c == '&' || c == '<' || c == '"' || (n < 32 && c != '\t');
  });
}

// "" when the name reaches the document as it is.
std::string Harm(const TName& Name) {
  if (BreaksMarkup(Name.sText)) return Phrase("WARN_NAME_MARKUP", "the document isn't well-formed XML");
  if (CodePage::IsAscii(Name.sText)) return {};
  if (CodePage::ToUtf8(CodePage::FromUtf8(Name.sText)) != Name.sText) {
    return Phrase("WARN_NAME_LETTERS", "letters that the document can't hold stand as question marks");
  }
  return Name.bEncoded ? "" : Phrase("WARN_NAME_UTF8", "the document isn't valid UTF-8");
}

// The range without the ends that were chosen.
TRange Unchosen(const TExtent& Extent) {
  const auto& [Range, Axis] = Extent;
  return {Range.dStart > Axis.dStart + dRounded ? -dInfinite : Range.dStart,
          Range.dEnd < Axis.dEnd - dRounded ? dInfinite : Range.dEnd};
}

// Where the elements start that the range leaves out.
template <class TElements>
std::vector<double> LeftOut(const TElements& aElements, const TExtent& Extent) {
  const auto Range = Unchosen(Extent);
  std::vector<double> aLeftOut;
  for (std::size_t n = 1; n < aElements.size(); ++n) {
    const auto& Element = aElements[n];
    const double dEnd = Element.dChainage + std::fabs(Element.dLength);
    const bool bBefore = dEnd <= Range.dStart && n + 1 < aElements.size();
    if (bBefore || Element.dChainage > Range.dEnd) aLeftOut.push_back(Element.dChainage);
  }
  return aLeftOut;
}

std::string CountOf(EChainages eWhat, std::size_t n) {
  const auto sCount = std::to_string(n);
  if (eWhat == eSections) {
    return n == 1 ? Phrase("WARN_SECTION", "1 cross-section")
                  : Phrase("WARN_SECTIONS", "%1 cross-sections", {sCount});
  }
  return n == 1 ? Phrase("WARN_STATION", "1 cant station")
                : Phrase("WARN_STATIONS", "%1 cant stations", {sCount});
}

}  // namespace

std::string Metres(double dValue) {
  if (std::isfinite(dValue)) return FormatReal(dValue, 3);
  return std::isnan(dValue) ? "?" : dValue > 0 ? "∞" : "-∞";
}

std::string List(const std::vector<double>& aValues) {
  constexpr std::size_t nShown = 5;
  std::string sOut;
  for (std::size_t n = 0; n < std::min(aValues.size(), nShown); ++n) {
    sOut += (n > 0 ? ", " : "") + Metres(aValues[n]);
  }
  if (aValues.size() <= nShown) return sOut;
  return Phrase("WARN_MORE", "%1 and %2 more", {sOut, std::to_string(aValues.size() - nShown)});
}

TTexts OfNames(const std::vector<TName>& aNames) {
  TTexts aOut;
  std::set<std::string> Told;
  for (const auto& Name : aNames) {
    const auto sHarm = Harm(Name);
    if (sHarm.empty() || !Told.insert(Name.sText + "\n" + sHarm).second) continue;
    aOut.push_back(Phrase("WARN_NAME", "The name \"%1\" stands in the document as %2: %3. To avoid it, %4.",
                          {Name.sText, Name.sPlace, sHarm, Name.sWhatToDo}));
  }
  return aOut;
}

TTexts OfRange(const TRange& Range, const std::vector<TAxis>& aAxes) {
  const auto sStart = Metres(Range.dStart), sEnd = Metres(Range.dEnd);
  if (Range.dStart > Range.dEnd) {
    const auto& Axis = aAxes.front().Range;
    return {Phrase("WARN_RANGE_FALLS",
                   "The range begins at %1, behind its end at %2, so the document is of no use. Give a range "
                   "that rises; the axis goes from %3 to %4.",
                   {sStart, sEnd, Metres(Axis.dStart), Metres(Axis.dEnd)})};
  }
  TTexts aOut;
  for (const auto& Axis : aAxes) {
    if (Range.dStart <= Axis.Range.dEnd && Range.dEnd >= Axis.Range.dStart) continue;
    aOut.push_back(Phrase("WARN_RANGE_OUTSIDE",
                          "The range %1 to %2 lies outside the plan \"%3\", which goes from %4 to %5, so the "
                          "document is of no use. Give a range on the plan.",
                          {sStart, sEnd, Axis.sName, Metres(Axis.Range.dStart), Metres(Axis.Range.dEnd)}));
  }
  return aOut;
}

TTexts OfRangeText(std::string_view sText) {
  if (ST::IsReal(sText)) return {};
  return {Phrase("WARN_RANGE_TEXT",
                 "Of the range, \"%1\" was read as %2. Type the chainage in metres, with a decimal point and "
                 "nothing else, as 1200.500.",
                 {sText, Metres(ST::ParseReal(sText))})};
}

TTexts OfChainages(EChainages eWhat, std::string_view sName, const std::vector<double>& aChainages,
                   const TExtent& Extent) {
  const auto Range = Unchosen(Extent);
  const auto& Axis = Extent.Axis;
  std::vector<double> aRounded, aOutside;
  for (const double dChainage : aChainages) {
    if (dChainage >= Range.dStart && dChainage <= Range.dEnd) continue;
    const bool bOnAxis = dChainage >= Axis.dStart - dHalfStep && dChainage <= Axis.dEnd + dHalfStep;
    (bOnAxis ? aRounded : aOutside).push_back(dChainage);
  }
  TTexts aOut;
  if (!aRounded.empty()) {
    aOut.push_back(Phrase("WARN_ROUNDED",
                          "%1 of \"%2\" left out because the range was rounded to 3 decimals: %3. Type a "
                          "range that is a millimetre wider.",
                          {CountOf(eWhat, aRounded.size()), sName, List(aRounded)}));
  }
  if (!aOutside.empty()) {
    aOut.push_back(Phrase("WARN_OUTSIDE", "%1 of \"%2\" left out because the axis doesn't reach there: %3.",
                          {CountOf(eWhat, aOutside.size()), sName, List(aOutside)}));
  }
  return aOut;
}

TTexts OfPlan(std::string_view sName, const THzElements& aHz, const TExtent& Extent) {
  const auto aLeftOut = LeftOut(aHz, Extent);
  if (aLeftOut.empty()) return {};
  return {Phrase("WARN_PLAN",
                 "The plan \"%1\" has elements outside the range %2 to %3; they are left out: %4. "
                 "Widen the range if they are needed.",
                 {sName, Metres(Extent.Range.dStart), Metres(Extent.Range.dEnd), List(aLeftOut)})};
}

TTexts OfProfile(std::string_view sName, const TVtElements& aVt, const TExtent& Extent) {
  const auto aLeftOut = LeftOut(aVt, Extent);
  if (aLeftOut.empty()) return {};
  return {Phrase("WARN_PROFILE",
                 "The profile \"%1\" has elements outside the range %2 to %3; they are left out: "
                 "%4. Widen the range if they are needed.",
                 {sName, Metres(Extent.Range.dStart), Metres(Extent.Range.dEnd), List(aLeftOut)})};
}

TTexts OfLayers(const TCrData& Cr) {
  TTexts aOut;
  for (const auto& Layer : Cr.Layers) {
    if (Layer.aCodes.size() != 1) continue;
    aOut.push_back(Phrase("WARN_LAYER",
                          "The layer \"%1\" isn't offered, so none of it is written: its first section has a "
                          "single point. Begin the listing with a section where the layer has two points or "
                          "more.",
                          {Layer.sName}));
  }
  return aOut;
}

TTexts OfGrades(std::string_view sName, const TVtElements& aVt, double dTolerance) {
  std::vector<double> aPlaces;
  double dWorst = 0;
  for (std::size_t n = 1; n + 1 < aVt.size(); ++n) {
    const auto& Grade = aVt[n];
    if (Grade.dKv != 0) continue;
    const double dMiss = std::fabs(Grade.dHeight + Grade.dSlope * Grade.dLength - aVt[n + 1].dHeight);
    if (!(dMiss > dTolerance)) continue;
    aPlaces.push_back(aVt[n + 1].dChainage);
    dWorst = std::max(dWorst, dMiss);
  }
  if (aPlaces.empty()) return {};
  return {
      Phrase("WARN_GRADES",
             "In the profile \"%1\" straight grades miss the height where they end, by up to %2 m, at %3. "
             "Heights in between are wrong: look at the gradients of the listing.",
             {sName, Metres(dWorst), List(aPlaces)})};
}

TTexts OfLastRow(std::string_view sName, const THzElements& aHz) {
  if (aHz.size() < 2 || !(aHz.back().dLength > 0)) return {};
  const auto& Last = aHz.back();
  return {Phrase("WARN_LAST_ROW",
                 "The plan \"%1\" ends at %2, but the last row of its table makes the alignment %3 m longer. "
                 "Don't work behind %2.",
                 {sName, Metres(Last.dChainage), Metres(Last.dLength)})};
}

}  // namespace vrek::Warnings
