// Warnings: what no check refuses and a field crew would still find out too late. They change nothing in the
// document. Each warning is a sentence or two for a person, in his language: what is wrong, where, and what
// to do.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "rail_tunnel/clsSuperelevation.h"
#include "rail_tunnel/clsTunnel.h"
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

/// The range that goes out, and the axis from its first to its last chainage. The range as offered is the
/// axis rounded to 3 decimals. An end of the range that lies farther inside was chosen: nothing is told of
/// what stands beyond it.
struct TExtent {
  TRange Range;
  TRange Axis;
};

/// A plan and where it lies.
struct TAxis {
  std::string sName;
  TRange Range;
};

/// A range that falls, or that a plan lies wholly outside of. aAxes: at least one.
TTexts OfRange(const TRange& Range, const std::vector<TAxis>& aAxes);

/// A chainage as typed of which only a part was read.
TTexts OfRangeText(std::string_view sText);

enum EChainages { eSections, eCantStations };

/// Chainages of sections or table rows outside the range. sName: of the file.
TTexts OfChainages(EChainages eWhat, std::string_view sName, const std::vector<double>& aChainages,
                   const TExtent& Extent);

/// Elements of a plan or profile of which the range leaves everything out.
TTexts OfPlan(std::string_view sName, const THzElements& aHz, const TExtent& Extent);
TTexts OfProfile(std::string_view sName, const TVtElements& aVt, const TExtent& Extent);

/// Layers with points whose first surface has a single one: they aren't offered.
TTexts OfLayers(const TCrData& Cr);

/// Straight grades that miss the height of the next element by more than the tolerance, metres.
TTexts OfGrades(std::string_view sName, const TVtElements& aVt, double dTolerance);

/// The plan of an RTF table whose last row has a length: the alignment goes on behind its end point.
TTexts OfLastRow(std::string_view sName, const THzElements& aHz);

/// Stations of a cant table that don't rise, and cants so small that they look like metres.
TTexts OfCants(std::string_view sName, const std::vector<TCantStation>& aStations);

/// A file with the ending ".rtf" that is no RTF, or was cut off. sFile: its name with the ending.
TTexts OfRtf(std::string_view sFile, std::string_view sBytes);

/// A text file in which so many LF end no line.
TTexts OfLineEnds(std::string_view sFile, std::size_t nStrayLfs);

/// Tunnel profiles that make the document no well-formed XML.
TTexts OfTunnel(std::string_view sFile, const clsTunnel& Tunnel);

}  // namespace vrek::Warnings
