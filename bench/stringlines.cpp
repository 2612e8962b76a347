// Time and memory of the stringline engine: a road made in memory, named and written to a file.
//
//   vrek_bench_stringlines [SECTIONS POINTS [random]]
//
// Without arguments: 5,000, 10,000 and 20,000 sections of 60 points, whose times must grow no faster than the
// sections, and 200 sections of 5,000 points. Each case runs in a process of its own, so that its peak is its
// own.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

#include "BenchPlatform.h"
#include "landxml/CLandXML.h"
#include "stringlines/CCrSec.h"

namespace {

using namespace vrek;

struct TCase {
  int nSections = 0;
  int nPoints = 0;
  bool bRandom = false;  // every offset new in every section: no line goes on by its offset
};

/// A roadway whose lines keep their offsets, and slopes on both sides where one point in ten moves, comes or
/// goes from section to section.
class RoadMaker {
 public:
  explicit RoadMaker(const TCase& Case) : m_Case(Case) {}

  TCrData Make() {
    TCrData Cr;
    for (const char* sName : {"Taludes", "Cunetas", "Subrasante", "Rasante"})
      Cr.Layers.emplace_back().sName = sName;
    for (int i = 0; i < m_Case.nSections; ++i) {
      TCrSection& Section = Cr.Sections.emplace_back();
      Section.dChainage = 20.0 * i;
      for (const std::uint8_t nLayer : {std::uint8_t{0}, std::uint8_t{3}}) {
        TCrSurface& Surface = Section.Surfaces.emplace_back();
        Surface.nLayer = nLayer;
        Surface.Points = Points();
        if (i == 0) CCrSec::NameSurface(Surface, Cr.Layers[nLayer]);
      }
    }
    return Cr;
  }

 private:
  std::vector<TCrPoint> Points() {
    std::vector<TCrPoint> aPoints;
    const int nCount = m_Case.nPoints / 2;
    for (int n = 0; n < nCount; ++n) {
      const bool bMoves = m_Case.bRandom || (n % 3 == 0 && Below(10) == 0);
      if (bMoves && Below(5) == 0) continue;
      TCrPoint& Point = aPoints.emplace_back();
      Point.dOffset = (n - nCount / 2) * 1.25 + (bMoves ? Below(1200) / 1000.0 : 0);
      Point.dHeight = 500 + Below(20000) / 1000.0;
    }
    return aPoints;
  }
  int Below(int n) { return static_cast<int>(m_Random() % static_cast<unsigned>(n)); }

  TCase m_Case;
  std::mt19937 m_Random{1};
};

void Run(const TCase& Case) {
  BenchPlatform Surroundings;
  TCrData Cr = RoadMaker(Case).Make();
  const std::string sPath =
      Surroundings.Environment.TempDirectory() + "vrek_bench_stringlines." + std::to_string(getpid());
  NoProgress Progress;
  double dStart = 0, dEnd = 0;

  const auto Start = std::chrono::steady_clock::now();
  CCrSec::NameFirstSurfaces(Cr);
  CCrSec::ApplyRules(Cr, "", Progress);
  const auto Named = std::chrono::steady_clock::now();
  CLandXML::SetOutputFile(sPath);
  CLandXML::OpenFile();
  CCrSec::SetExportData(Cr);
  CCrSec::Export2LandXML(dStart, dEnd, Cr, "", 0, 0, Progress);
  CLandXML::CloseFile();
  const auto Written = std::chrono::steady_clock::now();
  std::remove(sPath.c_str());

  const auto Seconds = [](auto From, auto To) { return std::chrono::duration<double>(To - From).count(); };
  int nCodes = 0;
  for (const TCrLayer& Layer : Cr.Layers) nCodes += Layer.aCodes.size();
  rusage Usage{};
  getrusage(RUSAGE_SELF, &Usage);
  std::printf("%6d x %-5d %-7s rules %7.3f s  export %7.3f s  %9.0f points/s  %8d codes  peak %5ld MB\n",
              Case.nSections, Case.nPoints, Case.bRandom ? "random" : "", Seconds(Start, Named),
              Seconds(Named, Written), Case.nSections * double(Case.nPoints) / Seconds(Start, Written),
              nCodes, Usage.ru_maxrss / 1024);
  std::fflush(stdout);
}

bool RunApart(const TCase& Case) {
  const pid_t nChild = fork();
  if (nChild == 0) {
    Run(Case);
    _exit(0);
  }
  int nStatus = 1;
  waitpid(nChild, &nStatus, 0);
  return nStatus == 0;
}

}  // namespace

int main(int nArguments, char** aArguments) {
  if (nArguments > 2) {
    const bool bRandom = nArguments > 3 && std::string_view(aArguments[3]) == "random";
    return RunApart({std::atoi(aArguments[1]), std::atoi(aArguments[2]), bRandom}) ? 0 : 1;
  }
  bool bAll = true;
  for (const TCase& Case : {TCase{5000, 60}, TCase{10000, 60}, TCase{20000, 60}, TCase{20000, 60, true},
                            TCase{200, 5000}, TCase{200, 5000, true}}) {
    bAll = RunApart(Case) && bAll;
  }
  return bAll ? 0 : 1;
}
