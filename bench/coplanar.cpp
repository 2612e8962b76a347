// Time of the rail work that goes along a whole double track: the vertical alignments of both tracks
// generated from the centre line over the plane of the cant, and the rails written from them.
//
//   vrek_bench_coplanar [KILOMETRES...]      25, 50 and 100 without arguments
//
// Ends with status 1 where twice the length takes more than 2.1 times the time.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "BenchPlatform.h"
#include "design_data/CAligmentsDatas.h"
#include "geometry/Alg.h"
#include "landxml/CLandXML.h"
#include "rail_tunnel/GenerateVt.h"
#include "rail_tunnel/clsSuperelevation.h"

namespace {

using namespace vrek;

constexpr double dMostForTwice = 2.1;
constexpr int nRuns = 3;  // the best of them counts

// Curves of both senses, with their transitions, some 1.4 km each.
THzElements MakePlan(double dX, double dY, double dLength) {
  THzElements aHz(1);
  THzElement Next{.nId = 1, .dX = dX, .dY = dY, .dAzimuth = 50};
  const auto Add = [&](double dRadius, double dParameter, double dPiece, double dEndRadius) {
    Next.dRadius = dRadius;
    Next.dParameter = dParameter;
    Next.dLength = dPiece;
    aHz.push_back(Next);
    const auto Element = Alg::InRadians(Next);
    const THzPoint End = dRadius == 0      ? Alg::GetPointOnLine(dPiece, Element)
                         : dParameter == 0 ? Alg::GetPointOnArc(dPiece, Element)
                                           : Alg::GetPointOnClothoid(dPiece, dEndRadius, Element);
    ++Next.nId;
    Next.dChainage += dPiece;
    Next.dX = End.dX;
    Next.dY = End.dY;
    Next.dAzimuth = End.dAzimuth / GM::dGonToRadians;
  };
  for (int nSense = 1; Next.dChainage < dLength; nSense = -nSense) {
    Add(0, 0, 400, 0);
    Add(nSense * 0.001, 400, 160, 1000);
    Add(nSense * 1000, 0, 680, 0);
    Add(nSense * 1000, 400, 160, 0);
  }
  return aHz;
}

TVtElements MakeProfile(double dLength) {
  TVtElements aVt(1);
  for (double d = 0; d < dLength; d += 1000) {
    const double dSlope = 0.01 * ((static_cast<int>(d) / 1000) % 3 - 1);
    aVt.push_back(
        {.nId = UpperBound(aVt) + 1, .dChainage = d, .dHeight = 100, .dSlope = dSlope, .dLength = 1000});
  }
  return aVt;
}

// A coplanar table with a row each 20 m.
std::shared_ptr<clsSuperelevation> MakeCant(const std::string& sPath, double dLength) {
  std::ofstream Stream(sPath, std::ios::binary);
  Stream << "<?xml version='1.0'?><!--'2.0.1'-->"
            "<Cant gauge='1.435' superelevationBase='1.5' rotationPoint='insideRail' coPlane='true'>\n";
  for (int d = 0; d < dLength; d += 20) {
    Stream << "<CantStation station='" << d << "' appliedCant='" << d / 20 % 15 * 10
           << "' rotationPoint='insideRail' appliedGauge='1.435' appliedSuperelevation='1.5'/>\n";
  }
  Stream << "</Cant>\n";
  Stream.close();
  auto oCant = std::make_shared<clsSuperelevation>();
  if (!oCant->Import(sPath)) std::exit(1);
  std::remove(sPath.c_str());
  return oCant;
}

struct TTimes {
  double dGenerate = 1e9;
  double dRails = 1e9;
  std::size_t nSamples = 0;
};

void SetTracks(const std::string& sPath, double dLength) {
  CAligmentsDatas::InitAligments();
  const auto oCant = MakeCant(sPath, dLength);
  for (int n = 1; n <= 3; ++n) {
    CAligmentsDatas::AddAligment();
    CAligmentsDatas::SetAligmentHz(n, MakePlan(n == 1   ? 0
                                               : n == 2 ? -1.4
                                                        : 1.4,
                                               n == 1   ? 0
                                               : n == 2 ? 1.4
                                                        : -1.4,
                                               dLength));
    CAligmentsDatas::SetAligmentSup(n, oCant);
  }
  CAligmentsDatas::SetAligmentVt(1, MakeProfile(dLength));
}

TTimes Measure(const std::string& sPath, double dLength) {
  TTimes Times;
  SetTracks(sPath, dLength);
  const auto Seconds = [](auto From) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - From).count();
  };
  for (int n = 0; n < nRuns; ++n) {
    NoProgress Progress;
    const auto Start = std::chrono::steady_clock::now();
    for (int nTrack = 2; nTrack <= 3; ++nTrack)
      CAligmentsDatas::GenerateVtAligment(nTrack, 1, nTrack, 0.5, Progress, true);
    Times.dGenerate = std::min(Times.dGenerate, Seconds(Start));
    CLandXML::SetOutputFile(sPath);
    CLandXML::OpenFile();
    const auto Generated = std::chrono::steady_clock::now();
    for (int nTrack = 2; nTrack <= 3; ++nTrack) {
      double dFirst = 0, dLast = 0;
      CAligmentsDatas::GetAligmentSup(nTrack)->ExportToLandXml(dFirst, dLast, "Track", nTrack);
    }
    CLandXML::CloseFile();
    Times.dRails = std::min(Times.dRails, Seconds(Generated));
    std::remove(sPath.c_str());
  }
  Times.nSamples = CAligmentsDatas::GetAligmentVt(2).size() + CAligmentsDatas::GetAligmentVt(3).size() - 2;
  return Times;
}

}  // namespace

int main(int nArguments, char** aArguments) {
  std::vector<double> aKilometres;
  for (int n = 1; n < nArguments; ++n) aKilometres.push_back(std::atof(aArguments[n]));
  if (aKilometres.empty()) aKilometres = {25, 50, 100};
  BenchPlatform Surroundings;
  const std::string sPath =
      Surroundings.Environment.TempDirectory() + "vrek_bench_coplanar." + std::to_string(getpid());

  bool bLinear = true;
  TTimes Before;
  double dBefore = 0;
  for (const double dKilometres : aKilometres) {
    const TTimes Times = Measure(sPath, dKilometres * 1000);
    std::printf("%6.1f km  %8zu samples  generate %7.3f s  rails %7.3f s", dKilometres, Times.nSamples,
                Times.dGenerate, Times.dRails);
    if (dBefore > 0) {
      const double dMost = dMostForTwice * dKilometres / dBefore / 2;
      const double dRatio = Times.dGenerate / Before.dGenerate;
      std::printf("  ratios %.2f and %.2f", dRatio, Times.dRails / Before.dRails);
      bLinear = bLinear && dRatio <= dMost;
    }
    std::printf("\n");
    std::fflush(stdout);
    Before = Times;
    dBefore = dKilometres;
  }
  return bLinear ? 0 : 1;
}
