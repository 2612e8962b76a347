// Numbers beyond all measure: whatever stands in a file, the conversion ends soon and needs little memory.
#include <sys/resource.h>

#include "Projects.h"

namespace vrek::test {
namespace {

struct TMonster {
  const char* sLabel;
  const char* sExample;
  std::size_t nFile;
  const char* sOld;
  const char* sNew;
  bool bExported;
};

std::ostream& operator<<(std::ostream& Out, const TMonster& Monster) {
  return Out << Monster.sLabel;
}

// clang-format off
constexpr TMonster aMonsters[] = {
    {"PlanEndsAt1e12",             "rail",      0, "\r\n11",          "\r\n1e12,11", false},
    {"PlanStartsAt1e15",           "rail",      0, "*PLT\r\n",        "*PLT\r\n1e15", false},
    {"PlanStartsAtMinus1e15",      "rail",      0, "*PLT\r\n",        "*PLT\r\n-1e15,0,0,0,0,0\r\n", false},
    {"PlanBeyondTheDoubles",       "rail",      0, "*PLT\r\n",        "*PLT\r\n1e999", false},
    {"PlanOfNoNumbers",            "rail",      0, ".000,",           "nan,", true},
    {"PlanOfInfiniteNumbers",      "rail",      0, ".000,",           "inf,", true},
    {"ProfileEndsAt1e300",         "rail",      1, "11330.000",       "1e300", true},
    {"ProfileHeight1e300",         "rail",      1, "404.2300",        "1e300", true},
    {"CantAt1e15",                 "rail",      2, "10640.000",       "1e15", false},
    {"CantOf1e300",                "rail",      2, "95.0",            "1e300", true},
    {"CantOfNoNumber",             "rail",      2, "95.0",            "nan", true},
    {"CantBaseOfNothing",          "rail",      2, "1.500",           "0", true},
    {"GeneratedOverABillionMetres","double",    0, "*PLT\r\n",        "*PLT\r\n-1e9,0,0,0,0,0\r\n", false},
    {"GeneratedAt1e15",            "double",    0, "*PLT\r\n",        "*PLT\r\n-1e15,0,0,0,0,0\r\n", false},
    {"GeneratedAt1e17",            "generated", 5, "*PLT\r\n",        "*PLT\r\n-1e17,0,0,0,0,0\r\n", false},
    {"SectionOfTwoBillionPoints",  "road",      2, "10.000,12",       "10.000,2000000000", false},
    {"SectionOf1e300Points",       "road",      2, "10.000,12",       "10.000,1e300", false},
    {"SectionOfMinusPoints",       "road",      2, "10.000,12",       "10.000,-2000000000", false},
    {"SkipsTwoBillionLines",       "road",      2, "10.000,12",       "10.000E,2000000000", false},
    {"SectionAt1e15",              "road",      2, "10.000,12",       "1e15,12", true},
    {"PointsFarAway",              "road",      2, "-3.500",          "-1e300", true},
    {"TunnelAt1e300",              "tunnel",    2, "sta=\"2100.000\"","sta=\"1e300\"", false},
};
// clang-format on

class MonsterNumbers : public ProjectTest, public ::testing::WithParamInterface<TMonster> {};

long PeakKilobytes() {
  rusage Usage{};
  getrusage(RUSAGE_SELF, &Usage);
  return Usage.ru_maxrss;
}

TEST_P(MonsterNumbers, EndSoonAndNeedLittle) {
  const auto& Monster = GetParam();
  auto Project = ReadExample(Monster.sExample);
  auto& sBytes = Project.aFiles.at(Monster.nFile);
  const auto sBefore = sBytes;
  sBytes = Replaced(sBytes, Monster.sOld, Monster.sNew);
  ASSERT_NE(sBytes, sBefore);
  const long nBefore = PeakKilobytes();
  const auto Outcome = Run(Project);
  EXPECT_EQ(Outcome.bExported, Monster.bExported);
  EXPECT_LT(PeakKilobytes() - nBefore, 100 * 1024);
}

INSTANTIATE_TEST_SUITE_P(Table, MonsterNumbers, ::testing::ValuesIn(aMonsters),
                         [](const auto& Info) { return Info.param.sLabel; });

class TypedNumbers : public ProjectTest {};

TEST_F(TypedNumbers, InTheRangeEndSoon) {
  for (const char* sExample : {"road", "rail", "double", "tunnel"}) {
    for (const char* sNumber : {"1e15", "-1e15", "1e308", "1e999", "nan", "0x10", "-", "-9999999.9999"}) {
      SCOPED_TRACE(std::string(sExample) + " " + sNumber);
      auto Project = ReadExample(sExample);
      const auto sJob = Project.sHead.substr(0, Project.sHead.find(';'));
      Project.sHead = sJob + ";" + sNumber;
      Run(Project);
      Project.sHead = sJob + ";;" + sNumber;
      Run(Project);
    }
  }
}

// A plan of impossible numbers fails each of the 50,000 samples of a generated profile in two routines.
TEST_F(TypedNumbers, ThatFailEverySampleAreToldOnce) {
  const auto Outcome = Run(fuzz::ReadProject(ReadBytes(VREK_PROJECTS "/found-every-sample-fails")));
  EXPECT_LT(Outcome.aMessages.size(), 10u);
  EXPECT_LT(std::filesystem::file_size(Folder / "KTVO_Converters.log"), 1000u);
}

TEST_F(TypedNumbers, RefusesAGenerationThatWouldNeverEnd) {
  auto Project = ReadExample("double");
  Project.aFiles[0] = Replaced(Project.aFiles[0], "*PLT\r\n", "*PLT\r\n-1e12,0,0,0,0,0\r\n");
  const auto Outcome = Run(Project);
  EXPECT_FALSE(Outcome.bExported);
  bool bTold = false;
  for (const auto& Message : Outcome.aMessages) bTold |= Message.sText.find("Overflow") != std::string::npos;
  EXPECT_TRUE(bTold);
}

}  // namespace
}  // namespace vrek::test
