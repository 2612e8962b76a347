// Many projects at once, each in a process of its own.
#include <nlohmann/json.hpp>

#include "Program.h"

namespace vrek {
namespace {

using nlohmann::json;

class ManyProjects : public test::ProgramTest {
 protected:
  std::string BadJobFile() const { return Write("bad.toml", "job = \"train\"\n"); }
  static std::string Outcomes(const std::string& sJson) {
    std::string sOut;
    for (const auto& Outcome : json::parse(sJson)) {
      sOut += Outcome["job"].get<std::string>() + (Outcome["exported"].get<bool>() ? "+ " : "- ");
    }
    return sOut;
  }
};

TEST_F(ManyProjects, RunInOrderInOneProcess) {
  const auto Result = Run({"run", "--json", Project("rail", "a"), Project("faulty/gap-in-the-plan", "b"),
                           Project("double", "c")});
  EXPECT_EQ(Result.nStatus, 1) << "the worst of all";
  EXPECT_EQ(Outcomes(Result.sOut), "rail+ rail- double+ ");
}

TEST_F(ManyProjects, ABadOneTakesNothingElseDown) {
  const std::vector<std::string> aFiles = {Project("double", "c"), BadJobFile(), Project("rail", "a"),
                                           Project("faulty/broken-xml", "b")};
  for (const char* sAtOnce : {"1", "3", "8"}) {
    std::vector<std::string> aArguments = {"run", "--json", "--jobs", sAtOnce};
    aArguments.insert(aArguments.end(), aFiles.begin(), aFiles.end());
    fs::remove(Directory / "a/rail.xml");
    const auto Result = Run(aArguments);
    EXPECT_EQ(Result.nStatus, 2) << sAtOnce;
    EXPECT_EQ(Outcomes(Result.sOut), "double+ - rail+ rail- ") << "in the order given";
    EXPECT_NE(json::parse(Result.sOut)[1]["messages"].dump().find("must be one of"), std::string::npos);
    EXPECT_TRUE(fs::exists(Directory / "a/rail.xml"));
    const auto sTable = Result.sErr.substr(Result.sErr.find("\n\n"));
    EXPECT_LT(sTable.find("c/job.toml"), sTable.find("a/job.toml"));
    EXPECT_NE(sTable.find("wrong job file"), std::string::npos);
    EXPECT_EQ(Result.sErr.find('\r'), std::string::npos) << "no progress line without a terminal";
  }
}

TEST_F(ManyProjects, AProjectThatIsKilledIsToldApart) {
  const auto sLong = Project("road", "long");
  LongRoad("long/Axis 1.trv");
  const auto sGood = Project("rail", "good");
  const auto Result = Run({"run", "--jobs", "2", "--json", sLong, sGood}, "ulimit -f 4000;");
  EXPECT_EQ(Result.nStatus, 3);
  EXPECT_EQ(Outcomes(Result.sOut), "- rail+ ");
  EXPECT_NE(Result.sErr.find("long/job.toml: killed by signal"), std::string::npos) << Result.sErr;
}

TEST_F(ManyProjects, TwoMayNotWriteOneFile) {
  const auto sOne = Project("rail", "a");
  const auto sOther =
      Write("a/other.toml",
            "job = \"rail\"\noutput = \"../a/rail.xml\"\n[alignment]\nhorizontal = \"Track.plt\"\n");
  const auto Result = Run({"run", "-j", "2", sOne, sOther});
  EXPECT_EQ(Result.nStatus, 2);
  EXPECT_NE(Result.sErr.find("both write"), std::string::npos);
  EXPECT_EQ(Run({"check", "run", "-j", "2", "-q", sOne, sOther}).nStatus, 0) << "a check writes nothing";
}

TEST_F(ManyProjects, CheckWritesNothing) {
  const auto sJob = Project("rail", "a");
  fs::remove(Directory / "a/rail.xml");
  const auto Result = Run({"check", "run", "--jobs", "2", sJob, BadJobFile()});
  EXPECT_EQ(Result.nStatus, 2);
  EXPECT_NE(Result.sErr.find("a/job.toml: good"), std::string::npos) << Result.sErr;
  EXPECT_FALSE(fs::exists(Directory / "a/rail.xml"));
}

}  // namespace
}  // namespace vrek
