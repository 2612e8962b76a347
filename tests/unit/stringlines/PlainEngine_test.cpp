// The engine against its plain reference, on random roads.
#include "PlainEngine.h"

#include <gtest/gtest.h>

#include "Roads.h"
#include "landxml/CLandXML.h"
#include "support/TestApp.h"

namespace vrek::test {
namespace {

/// Where two texts part, with some of what stands before.
std::string Difference(const std::string& sA, const std::string& sB) {
  if (sA == sB) return "";
  const auto nAt =
      static_cast<std::size_t>(std::mismatch(sA.begin(), sA.end(), sB.begin(), sB.end()).first - sA.begin());
  const auto nFrom = nAt < 300 ? 0 : nAt - 300;
  return "at " + std::to_string(nAt) + "\n" + sA.substr(nFrom, 400) + "\n--- expected ---\n" +
         sB.substr(nFrom, 400);
}

class AgainstThePlainEngine : public AppTest, public ::testing::WithParamInterface<unsigned> {};

TEST_P(AgainstThePlainEngine, NamesAndWritesTheSame) {
  for (unsigned n = 0; n < 25; ++n) {
    RandomRoad Random(1000 * GetParam() + n);
    TCrData Cr = Random.Make(40);
    plain::TRoad Expected = plain::FromData(Cr);
    const char* aLines[] = {"", "$Taludes$Rasante$", "$Cunetas$", "__None__", "$Subrasante$Rasante"};
    const std::string sRules = aLines[Random.Below(5)];
    const std::string sExport = Random.Chance(0.8) ? sRules : aLines[Random.Below(5)];
    const int nFailAt = Random.Chance(0.1) ? 1 + Random.Below(39) : 0;
    Recorder Progress;
    if (nFailAt > 0) Progress.dFailAt = nFailAt;

    CCrSec::NameFirstSurfaces(Cr);
    CCrSec::ApplyRules(Cr, sRules, Progress);
    plain::NameFirstSurfaces(Expected);
    plain::ApplyRules(Expected, sRules, nFailAt);
    ASSERT_EQ(plain::FromData(Cr), Expected) << "road " << n;

    const int nFirst = Random.Chance(0.5) ? 0 : 1 + Random.Below(39);
    const int nLast = nFirst + Random.Below(40 - nFirst);
    const double dFrom = nFirst == 0 ? 0 : 20.0 * nFirst;
    const std::string sPath = (Directory / "out.xml").string();
    CLandXML::SetOutputFile(sPath);
    ASSERT_TRUE(CLandXML::OpenFile());
    CCrSec::SetExportData(Cr);
    double dStart = 0, dEnd = 0;
    NoProgress Quiet;
    const double dTo = nLast == 0 ? 0.001 : 20.0 * nLast;
    CCrSec::Export2LandXML(dStart, dEnd, Cr, sExport, dFrom, dTo, Quiet);
    CLandXML::CloseFile();
    const int nWrittenTo = nLast == 0 ? 1 : nLast;
    ASSERT_EQ(Difference(ReadFile(sPath), plain::Export(Expected, sExport, nFirst, nWrittenTo)), "")
        << "road " << n;
  }
}

INSTANTIATE_TEST_SUITE_P(RandomRoads, AgainstThePlainEngine, ::testing::Range(1U, 9U));

}  // namespace
}  // namespace vrek::test
