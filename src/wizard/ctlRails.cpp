#include "wizard/ctlRails.h"

#include <cmath>

namespace vrek {
namespace {

constexpr int nRed = 255, nBlack = 0, nWhite = 16777215, nMarkedSleeper = 2960740, nRail = 7303008;

// One track at (x, y), w wide; nMarked is 1 left rail, 2 centre line, 4 right rail or 0.
void DrawTrack(std::vector<TRailsShape>& aOut, double x, double y, double w, double dHeight, bool bOn,
               int nMarked) {
  const double h = std::floor((dHeight - 250) / 4);
  if (h <= 0) return;
  for (double c = y + 125; c <= dHeight - 125; c += 3 * h) {
    aOut.push_back({false, x, c, x + w, c + h, bOn ? nMarkedSleeper : nWhite});
  }
  const auto Rail = [&](double r, bool bMarked) {
    aOut.push_back({false, r - h / 3, y, r + h / 3, y + dHeight - 25, bMarked ? nRed : nRail});
  };
  Rail(x + w / 7, nMarked == 1);
  aOut.push_back({true, x + w / 2, y, x + w / 2, dHeight, nMarked == 2 ? nRed : nBlack});
  Rail(x + w - w / 7, nMarked == 4);
}

// The lowest of the three bits of a track, as 1, 2, 4 or 0.
int Marked(int nRails, int nShift) {
  const int nBits = (nRails >> nShift) & 7;
  return nBits & -nBits;
}

}  // namespace

std::vector<TRailsShape> ctlRails::Draw(double dWidth, double dHeight) const {
  std::vector<TRailsShape> aOut;
  if (NumberOfTrack == 1) {
    DrawTrack(aOut, 10, 10, dWidth - 20, dHeight, m_nTracksOn == 1, Marked(m_nRailsOn, 0));
  } else if (NumberOfTrack == 2) {
    DrawTrack(aOut, 10, 10, dWidth / 4, dHeight, m_nTracksOn == 1, Marked(m_nRailsOn, 0));
    aOut.push_back({true, dWidth / 2, 0, dWidth / 2, dHeight, m_nRailsOn & 8 ? nRed : nBlack});
    DrawTrack(aOut, dWidth - 10 - dWidth / 4, 10, dWidth / 4, dHeight, m_nTracksOn == 2,
              Marked(m_nRailsOn, 4));
  }
  return aOut;
}

}  // namespace vrek
