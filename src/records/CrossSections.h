// The cross-sections of one alignment. Offsets in metres from the axis, negative left.
//
// Stringline codes are short texts shared by many points. A layer keeps each text once (TCodes); a point
// holds a handle of four bytes (TCode), valid within its layer. Handles compare as the texts do.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vrek {

/// Handle of a code within its layer; the empty handle is the empty text.
struct TCode {
  std::uint32_t nIndex = 0;  ///< 0: empty; else 1 + index in order of making
  bool empty() const { return nIndex == 0; }
  friend bool operator==(TCode, TCode) = default;
};

/// Every code given out so far in a layer. A code made after SortByValue takes the place behind all others.
class TCodes {
 public:
  bool empty() const { return m_aTexts.empty(); }
  int size() const { return static_cast<int>(m_aTexts.size()); }

  /// Text of a handle; "" for the empty one.
  std::string_view Text(TCode sCode) const;

  /// Handle of a text; the empty handle when the layer has no such code.
  TCode Find(std::string_view sText) const;

  /// How many codes begin with an offset text (three decimals, no "_").
  int CountBeginning(std::string_view sOffsetText) const;

  /// Appends a code. The text must be new and be an offset text, alone or followed by "_" and a number.
  TCode Append(std::string_view sText);

  /// Place of a code, from 0: in order of making, or in order of value after SortByValue. -1 if empty.
  int Place(TCode sCode) const;

  /// Text at a place.
  std::string_view TextAt(int nPlace) const;

  /// Sorts the places by numeric value (ParseReal of the text), stable. Handles stay valid.
  void SortByValue();

 private:
  std::vector<std::string> m_aTexts;                       // by order of making
  std::vector<int> m_aPlaces;                              // by order of making: the place
  std::vector<int> m_aOrder;                               // by place: 0-based number in order of making
  std::unordered_map<std::string, std::uint32_t> m_Index;  // text to 1 + index
  std::unordered_map<std::string, int> m_Beginning;        // offset text to count
};

/// One of the four named layers.
struct TCrLayer {
  std::string sName;
  TCodes aCodes;
};

/// One point of a section.
struct TCrPoint {
  double dOffset = 0;
  double dHeight = 0;
  TCode sCode;             ///< the stringline the point belongs to; empty while unnamed
  TCode sLink;             ///< the line from which this point's own line branches off
  bool bContinue = false;  ///< a copy that marks a line ending or going on at another point
  bool bPhantom = false;   ///< no vertex of the surface
};

/// The points of one layer in one section.
struct TCrSurface {
  std::uint8_t nLayer = 0;       ///< index into Layers
  bool bDone = false;            ///< the rules need not look at this surface any more
  std::vector<TCrPoint> Points;  ///< from 0, in listing order
};

struct TCrSection {
  double dChainage = 0;
  std::vector<TCrSurface> Surfaces;  ///< one for each layer that has points here, in layer order
};

struct TCrData {
  std::vector<TCrSection> Sections;  ///< from 0, in the order of the listing
  std::vector<TCrLayer> Layers;      ///< 0 "Taludes", 1 "Cunetas", 2 "Subrasante", 3 "Rasante"
};

}  // namespace vrek
