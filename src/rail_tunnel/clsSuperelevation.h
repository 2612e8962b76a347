// clsSuperelevation: the cant table of one track, and the rails worked out from it. Metres; cant is
// millimetres in the file. Stations are taken to be in rising chainage.
//
//   clsSuperelevation.cpp          what the table answers
//   clsSuperelevation_Import.cpp   the file
//   clsSuperelevation_Rails.cpp    rails and cant plane
//   clsSuperelevation_Export.cpp   the sections
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/NotGiven.h"

namespace vrek {

/// The point about which the track rotates.
enum class ERotationPoint {
  eGivenByRails = 0,
  eInsideRail,
  eOutsideRail,
  eCenter,
  eLeftRail,
  eRightRail,
  ePlatformAxis
};

struct TCantStation {
  double dStation = 0;           ///< chainage
  double dAppliedCant = 0;       ///< used unless eRotationPoint is eGivenByRails
  double dAppliedCantLeft = 0;   ///< lift of the left rail, used with eGivenByRails
  double dAppliedCantRight = 0;  ///< lift of the right rail, used with eGivenByRails
  ERotationPoint eRotationPoint = ERotationPoint::eGivenByRails;
  double dAppliedGauge = 0;
  double dAppliedSuperelevation = 0;  ///< base of the cant: the distance over which it is measured
};

/// The plan's radius at the station of the row asked for last: for callers that go along the track step by
/// step.
struct TRowRadius {
  int nRow = -1;  ///< none yet
  double dRadius = 0;
};

class CTrackAxis;

class clsSuperelevation {
 public:
  /// Chainage of the first and of the last row. Without rows: failure 9.
  double GetChainageStart() const;
  double GetChainageEnd() const;
  bool IsCoplaneTrack() const { return m_bCoPlane; }
  std::vector<double> GetChainages() const;

  /// Signed cross slope at a chainage, radians, positive where the right rail is the higher one in the form
  /// with both lifts, else with the sign of the cant; 0 before the table. A base of 0: failure 11; a single
  /// cant beyond its base: failure 5.
  double GetSlopeInChainage(double dChainage) const;

  /// Reads a cant file. Failures are reported with the source "ImportSuperelevationTable" and give false.
  bool Import(const std::string& sFilename);

  /// Writes CrossSects with one two-point section at every chainage where something changes. Gives the first
  /// and last chainage (0 when nothing was written). Limited only if both limits are given. sStringLine: name
  /// of the stringline that stands for the axis, empty for none.
  void ExportToLandXml(double& rChainageStart, double& rChainageEnd, std::string_view sCrossSectName,
                       int nAligment, double dChStart = dNotGiven, double dChEnd = dNotGiven,
                       std::string_view sStringLine = {}) const;

  /// Half distance between the rails and the height of each at a chainage; arguments of rows that set nothing
  /// stay as they were. False before the table or on a failure (reported with the source "ComputeRails").
  bool ComputeRails(double& r_dDist2CL, double& r_dHeightLeft, double& r_dHeightRight, int nAligment,
                    double dChainage, std::string_view sStringLine = {}) const;

  /// Moves a height from one track to the other over the plane of the cant. nAligment: 2 left, 3 right track.
  /// dOffset: distance of the tracks, its sign ignored. The last argument but one tells that the height comes
  /// from the centre line. False before the table (the height stays) or on a failure, reported with the
  /// source "ModifyHeightVtAligmentCoplane". pRadius: where given, saves looking up the plan for each step.
  bool CalcHeightVtAligmentCoplane(int nAligment, double dChainage, double dOffset, double& dHeightCL,
                                   bool bIsVtAligmentSourceChainageCL, TRowRadius* pRadius = nullptr) const;

  const std::vector<TCantStation>& Stations() const { return m_aStations; }

 private:
  int FindStation(double dChainage) const;
  /// ComputeRails, for many chainages of one track.
  bool RailsAt(double& r_dDist2CL, double& r_dHeightLeft, double& r_dHeightRight, int nAligment,
               double dChainage, const CTrackAxis& Axis) const;
  static ERotationPoint GetRotationPoint(std::string_view sText);

  double m_dGauge = 0;
  double m_dSuperelevationBase = 0;
  ERotationPoint m_eRotationPoint = ERotationPoint::eGivenByRails;
  bool m_bCoPlane = false;
  bool m_bInOrder = false;                // the stations rise, or stay: found by halving
  std::vector<TCantStation> m_aStations;  // from 0, in the order of the file
};

}  // namespace vrek
