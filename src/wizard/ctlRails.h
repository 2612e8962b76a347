// ctlRails: a small plan of the tracks that tells which alignment a page is about, as boxes and lines in the
// units of the control.
#pragma once

#include <vector>

namespace vrek {

/// A filled box, or a line where bLine is set. Colours as 0xBBGGRR.
struct TRailsShape {
  bool bLine = false;
  double dX1 = 0, dY1 = 0, dX2 = 0, dY2 = 0;
  int nColor = 0;
};

class ctlRails {
 public:
  int NumberOfTrack = 2;  ///< tracks drawn: 0, 1 or 2

  int TracksOn() const { return m_nTracksOn; }
  void SetTracksOn(int nTrack) { m_nTracksOn = nTrack; }
  int RailsOn() const { return m_nRailsOn; }
  void SetRailsOn(int nRails) { m_nRailsOn = nRails; }

  /// The drawing in an area of inner width and height, in the order of painting.
  std::vector<TRailsShape> Draw(double dWidth, double dHeight) const;

 private:
  int m_nTracksOn = 0;  // marked track: 0 none, 1 the first, 2 the second
  int m_nRailsOn =
      0;  // bits: 1, 2, 4 left rail, centre, right rail of the first track; 16, 32, 64 of the second; 8 axis
};

}  // namespace vrek
