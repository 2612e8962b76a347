#include "rail_tunnel/TrackAxis.h"

#include "design_data/CAligmentsDatas.h"

namespace vrek {

CTrackAxis::CTrackAxis(int nAligment, std::string_view sStringLine)
    : m_Profile(Profile(nAligment, sStringLine)) {}

const TVtElements& CTrackAxis::Profile(int nAligment, std::string_view sStringLine) {
  if ((CAligmentsDatas::GetAligmentType(nAligment) & AligmentType::nVt) != 0)
    return CAligmentsDatas::GetAligmentVt(nAligment);
  CAligmentsDatas::GetAligmentStrLnWithName(nAligment, sStringLine, m_StringLine);
  return m_StringLine.Vt;
}

}  // namespace vrek
