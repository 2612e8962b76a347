// Warnings of what a file itself shows: its bytes, the rows of a table.
#include <algorithm>
#include <cmath>

#include "checks/WarningTexts.h"
#include "checks/Warnings.h"
#include "platform/RtfText.h"
#include "shell/Phrase.h"

namespace vrek::Warnings {
namespace {

double LargestCant(const std::vector<TCantStation>& aStations) {
  double dLargest = 0;
  for (const auto& Row : aStations) {
    for (const double dCant : {Row.dAppliedCant, Row.dAppliedCantLeft, Row.dAppliedCantRight}) {
      dLargest = std::max(dLargest, std::fabs(dCant));
    }
  }
  return dLargest;
}

}  // namespace

TTexts OfRtf(std::string_view sFile, std::string_view sBytes) {
  if (!IsRtf(sBytes)) {
    return {Phrase("WARN_RTF_PLAIN",
                   "The file \"%1\" doesn't begin as RTF does, so it was read as plain text. Look at its "
                   "numbers, or save it as RTF again.",
                   {sFile})};
  }
  if (IsWholeRtf(sBytes)) return {};
  return {Phrase("WARN_RTF_CUT",
                 "The file \"%1\" ends in the middle of its RTF text: what stood behind is missing. Get the "
                 "whole file.",
                 {sFile})};
}

TTexts OfLineEnds(std::string_view sFile, std::size_t nStrayLfs) {
  if (nStrayLfs == 0) return {};
  return {
      Phrase("WARN_LINE_ENDS",
             "The file \"%1\" mixes line ends: LF alone (%2 times) ends no line in it, so rows may be lost. "
             "Save it with CR LF throughout.",
             {sFile, std::to_string(nStrayLfs)})};
}

TTexts OfTunnel(std::string_view sFile, const clsTunnel& Tunnel) {
  if (Tunnel.IsWellFormed()) return {};
  return {
      Phrase("WARN_TUNNEL",
             "The profiles of \"%1\" go to the document in one line, and there they are no well-formed XML "
             "in UTF-8. Save the file as UTF-8, with its declaration alone in line 1 and each tag within a "
             "line.",
             {sFile})};
}

TTexts OfCants(std::string_view sName, const std::vector<TCantStation>& aStations) {
  TTexts aOut;
  std::vector<double> aPlaces;
  for (std::size_t n = 1; n < aStations.size(); ++n) {
    if (!(aStations[n].dStation > aStations[n - 1].dStation)) aPlaces.push_back(aStations[n].dStation);
  }
  if (!aPlaces.empty()) {
    aOut.push_back(
        Phrase("WARN_CANT_ORDER",
               "In the cant table \"%1\" stations don't rise, at %2: the rails there are wrong. Put "
               "its rows in order.",
               {sName, List(aPlaces)}));
  }
  constexpr double dMillimetre = 0.001;
  const double dLargest = LargestCant(aStations);
  if (dLargest > 0 && dLargest < dMillimetre) {
    aOut.push_back(Phrase("WARN_CANT_UNIT",
                          "No cant of the table \"%1\" exceeds %2 mm. If its cants are metres, give them in "
                          "millimetres.",
                          {sName, Metres(dLargest / dMillimetre)}));
  }
  return aOut;
}

}  // namespace vrek::Warnings
