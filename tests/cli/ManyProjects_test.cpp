// Many projects, in sequence and at once, each in a process of its own.
#include <chrono>
#include <csignal>
#include <nlohmann/json.hpp>
#include <thread>

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
  /// Waits for the process whose last argument this is; 0: it never came.
  static pid_t ProcessOf(const std::string& sArgument) {
    for (int n = 0; n < 10'000; ++n) {
      for (const auto& Entry : fs::directory_iterator("/proc")) {
        const auto sCommand = Read(Entry.path() / "cmdline");
        if (sCommand.ends_with('\0' + sArgument + '\0')) return std::stoi(Entry.path().filename());
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return 0;
  }
};

TEST_F(ManyProjects, RunInOrderInOneProcess) {
  const auto Result = Run({"run", "--json", Project("rail", "a"), BadJobFile(),
                           Project("faulty/gap-in-the-plan", "b"), Project("double", "c")});
  EXPECT_EQ(Result.nStatus, 2) << "the worst of all";
  EXPECT_EQ(Outcomes(Result.sOut), "rail+ - rail- double+ ");
  std::string sSaid;
  std::istringstream Lines(Result.sErr);
  for (std::string sLine; std::getline(Lines, sLine);) {
    const auto nAt = sLine.find(Directory.string());
    if (nAt != sLine.npos) sSaid += sLine.erase(nAt, Directory.string().size()) + "\n";
  }
  EXPECT_EQ(sSaid,
            "/a/job.toml: converted\n"
            "written: /a/rail.xml\n"
            "vrek-batch: /bad.toml: \"job\" must be one of \"road\", \"tunnel\", \"rail\" and \"double\"\n"
            "/b/job.toml: refused\n"
            "/c/job.toml: converted\n"
            "written: /c/double.xml\n");
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
  std::thread Killer([&] {
    const pid_t nProcess = ProcessOf(sLong);
    ASSERT_NE(nProcess, 0);
    ::kill(nProcess, SIGKILL);
  });
  const auto Result = Run({"run", "--jobs", "2", "--json", sLong, sGood});
  Killer.join();
  EXPECT_EQ(Result.nStatus, 3);
  EXPECT_EQ(Outcomes(Result.sOut), "- rail+ ");
  EXPECT_NE(Result.sErr.find("long/job.toml: killed by signal 9"), std::string::npos) << Result.sErr;
}

// In sequence the last to write would win, at once nobody knows who.
TEST_F(ManyProjects, NoneMayReplaceWhatIsAnothers) {
  const auto sOne = Project("rail", "a");
  const auto sPlan = (Directory / "a/Track.plt").string(), sBefore = Read(sPlan);
  const struct {
    const char *sOutput, *sSays;
  } aRows[] = {
      {"../a/rail.xml", "both write"}, {"Track.plt", "would overwrite"}, {"job.toml", "would overwrite"}};
  for (const auto& Row : aRows) {
    const auto sOther = Write("a/other.toml", "job = \"rail\"\noutput = \"" + std::string(Row.sOutput) +
                                                  "\"\n[alignment]\nhorizontal = \"../b.plt\"\n");
    for (const char* sAtOnce : {"", "--jobs=2"}) {
      std::vector<std::string> aArguments{"run", "--json", sOne, sOther};
      if (*sAtOnce != '\0') aArguments.emplace_back(sAtOnce);
      fs::remove(Directory / "a/rail.xml");
      const auto Result = Run(aArguments);
      EXPECT_EQ(Result.nStatus, 2) << Row.sOutput << sAtOnce;
      EXPECT_EQ(Outcomes(Result.sOut), "rail- rail- ");
      EXPECT_NE(Result.sErr.find(Row.sSays), std::string::npos) << Result.sErr;
      EXPECT_FALSE(fs::exists(Directory / "a/rail.xml"));
    }
  }
  EXPECT_EQ(Read(sPlan), sBefore);
  EXPECT_EQ(Run({"check", "run", "-q", sOne, sOne}).nStatus, 0) << "a check writes nothing";
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
