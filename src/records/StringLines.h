// Stringlines as alignments of their own.
#pragma once

#include <string>
#include <vector>

#include "records/Elements.h"

namespace vrek {

struct TStringLine {
  std::string sName;
  int nPrev = 0;           ///< 0 alone; above 0: continues another one; -1: head of a chain
  int nNext = 0;           ///< following stringline of the chain, 0 at its end
  bool bExported = false;  ///< set when the export has written it
  double dChainageStart = 0;
  double dChainageEnd = 0;
  THzElements Hz;
  TVtElements Vt;
};

struct TStringLines {
  int nCount = 0;                  ///< last index of Lines
  std::string sSelected;           ///< numbers of those chosen, as "$3$7$"
  std::vector<TStringLine> Lines;  ///< from 1
};

}  // namespace vrek
