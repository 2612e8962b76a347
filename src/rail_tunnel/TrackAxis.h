// The height of a track's axis at many chainages: its own profile, or that of the stringline that stands for
// it.
#pragma once

#include <string_view>

#include "geometry/AligmentIndex.h"
#include "records/StringLines.h"

namespace vrek {

class CTrackAxis {
 public:
  /// sStringLine: its name, empty for none. The store must stay as it is while this lives.
  CTrackAxis(int nAligment, std::string_view sStringLine);
  CTrackAxis(const CTrackAxis&) = delete;
  CTrackAxis& operator=(const CTrackAxis&) = delete;

  /// 0 where there is neither a profile nor a stringline.
  double Height(double dChainage) const { return m_Profile.Height(dChainage); }

 private:
  const TVtElements& Profile(int nAligment, std::string_view sStringLine);

  TStringLine m_StringLine;
  Alg::CVtIndex m_Profile;
};

}  // namespace vrek
