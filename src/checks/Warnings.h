// Warnings: what no check refuses and a field crew would still find out too late. They change nothing in the
// document. Each warning is a sentence or two for a person, in his language: what is wrong, where, and what
// to do.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/CrossSections.h"
#include "records/Elements.h"

namespace vrek::Warnings {

using TTexts = std::vector<std::string>;

/// A name on its way to the document.
struct TName {
  std::string sPlace;     ///< where it stands, as "the author"
  std::string sText;      ///< UTF-8
  bool bEncoded = true;   ///< goes out as UTF-8; else in the single-byte code page
  std::string sWhatToDo;  ///< as "rename the file"
};

/// A range of chainages, metres; both ends are inside.
struct TRange {
  double dStart = 0;
  double dEnd = 0;
};

/// A name that breaks the document ("&", "<", a quote, a control character), makes it no valid UTF-8 (a
/// letter outside ASCII that goes out in the code page) or is changed (a letter that the code page lacks).
TTexts OfNames(const std::vector<TName>& aNames);

enum EChainages { eSections, eCantStations };

/// Chainages of sections or table rows outside the range; Axis is the alignment as it is, before the range
/// was rounded. sName: of the file.
TTexts OfChainages(EChainages eWhat, std::string_view sName, const std::vector<double>& aChainages,
                   const TRange& Range, const TRange& Axis);

/// Elements of a plan or profile of which the range leaves everything out.
TTexts OfPlan(std::string_view sName, const THzElements& aHz, const TRange& Range);
TTexts OfProfile(std::string_view sName, const TVtElements& aVt, const TRange& Range);

/// Layers with points whose first surface has a single one: they aren't offered.
TTexts OfLayers(const TCrData& Cr);

/// Straight grades that miss the height of the next element by more than the tolerance, metres.
TTexts OfGrades(std::string_view sName, const TVtElements& aVt, double dTolerance);

/// The plan of an RTF table whose last row has a length: the alignment goes on behind its end point.
TTexts OfLastRow(std::string_view sName, const THzElements& aHz);

}  // namespace vrek::Warnings
