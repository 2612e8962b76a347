#include "checks/Warnings.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "base/CodePage.h"
#include "base/FormatReal.h"

namespace vrek::Warnings {
namespace {

constexpr double dHalfStep = 0.0005;  // metres: half the last decimal that the range's boxes show

std::string Quoted(std::string_view sText) {
  return "\"" + std::string(sText) + "\"";
}

std::string Metres(double dValue) {
  return FormatReal(dValue, 3);
}

bool BreaksMarkup(std::string_view sText) {
  return std::any_of(sText.begin(), sText.end(), [](char c) {
    const auto n = static_cast<unsigned char>(c);
    return c == '&' || c == '<' || c == '"' || (n < 32 && c != '\t');
  });
}

// "" when the name reaches the document as it is.
std::string Harm(const TName& Name) {
  if (BreaksMarkup(Name.sText)) return "the document isn't well-formed XML";
  if (CodePage::IsAscii(Name.sText)) return {};
  if (CodePage::ToUtf8(CodePage::FromUtf8(Name.sText)) != Name.sText) {
    return "letters that the document can't hold stand as question marks";
  }
  return Name.bEncoded ? "" : "the document isn't valid UTF-8";
}

// "1.000, 2.000 and 3 more"
std::string List(const std::vector<double>& aValues) {
  constexpr std::size_t nShown = 5;
  std::string sOut;
  for (std::size_t n = 0; n < std::min(aValues.size(), nShown); ++n) {
    sOut += (n > 0 ? ", " : "") + Metres(aValues[n]);
  }
  if (aValues.size() > nShown) sOut += " and " + std::to_string(aValues.size() - nShown) + " more";
  return sOut;
}

template <class TElements>
TTexts OfElements(std::string_view sWhat, std::string_view sName, const TElements& aElements,
                  const TRange& Range) {
  std::vector<double> aLeftOut;
  for (std::size_t n = 1; n < aElements.size(); ++n) {
    const auto& Element = aElements[n];
    const double dEnd = Element.dChainage + std::fabs(Element.dLength);
    const bool bBefore = dEnd <= Range.dStart && n + 1 < aElements.size();
    if (bBefore || Element.dChainage > Range.dEnd) aLeftOut.push_back(Element.dChainage);
  }
  if (aLeftOut.empty()) return {};
  return {"The " + std::string(sWhat) + " " + Quoted(sName) + " has elements outside the range " +
          Metres(Range.dStart) + " to " + Metres(Range.dEnd) + " that was offered; they are left out: " +
          List(aLeftOut) + ". Widen the range if they are needed."};
}

}  // namespace

TTexts OfNames(const std::vector<TName>& aNames) {
  TTexts aOut;
  std::set<std::string> Told;
  for (const auto& Name : aNames) {
    const auto sHarm = Harm(Name);
    if (sHarm.empty() || !Told.insert(Name.sText + "\n" + sHarm).second) continue;
    aOut.push_back("The name " + Quoted(Name.sText) + " stands in the document as " + Name.sPlace + ": " +
                   sHarm + ". To avoid it, " + Name.sWhatToDo + ".");
  }
  return aOut;
}

TTexts OfChainages(std::string_view sWhat, std::string_view sName, const std::vector<double>& aChainages,
                   const TRange& Range, const TRange& Axis) {
  std::vector<double> aRounded, aOutside;
  for (const double dChainage : aChainages) {
    if (dChainage >= Range.dStart && dChainage <= Range.dEnd) continue;
    const bool bOnAxis = dChainage >= Axis.dStart - dHalfStep && dChainage <= Axis.dEnd + dHalfStep;
    (bOnAxis ? aRounded : aOutside).push_back(dChainage);
  }
  const auto sHead = [&](std::size_t n) {
    return std::to_string(n) + " " + std::string(sWhat) + (n > 1 ? "s" : "") + " of " + Quoted(sName);
  };
  TTexts aOut;
  if (!aRounded.empty()) {
    aOut.push_back(sHead(aRounded.size()) + " left out because the range was rounded to 3 decimals: " +
                   List(aRounded) + ". Type a range that is a millimetre wider.");
  }
  if (!aOutside.empty()) {
    aOut.push_back(sHead(aOutside.size()) +
                   " left out because the axis doesn't reach there: " + List(aOutside) + ".");
  }
  return aOut;
}

TTexts OfPlan(std::string_view sName, const THzElements& aHz, const TRange& Range) {
  return OfElements("plan", sName, aHz, Range);
}

TTexts OfProfile(std::string_view sName, const TVtElements& aVt, const TRange& Range) {
  return OfElements("profile", sName, aVt, Range);
}

TTexts OfLayers(const TCrData& Cr) {
  TTexts aOut;
  for (const auto& Layer : Cr.Layers) {
    if (Layer.aCodes.size() != 1) continue;
    aOut.push_back("The layer " + Quoted(Layer.sName) +
                   " isn't offered, so none of it is written: its first section has a single point. "
                   "Begin the listing with a section where the layer has two points or more.");
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
  return {"In the profile " + Quoted(sName) + " straight grades miss the height where they end, by up to " +
          Metres(dWorst) + " m, at " + List(aPlaces) +
          ". Heights in between are wrong: look at the gradients of the listing."};
}

TTexts OfLastRow(std::string_view sName, const THzElements& aHz) {
  if (aHz.size() < 2 || !(aHz.back().dLength > 0)) return {};
  const auto& Last = aHz.back();
  return {"The plan " + Quoted(sName) + " ends at " + Metres(Last.dChainage) +
          ", but the last row of its table makes the alignment " + Metres(Last.dLength) +
          " m longer. Don't work behind " + Metres(Last.dChainage) + "."};
}

}  // namespace vrek::Warnings
