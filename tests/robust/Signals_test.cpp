// The batch command ended from outside in the middle of a document.
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <thread>

#include "Projects.h"

namespace vrek::test {
namespace {

namespace fs = std::filesystem;

class Ended : public ProjectTest {
 protected:
  // A road with so many sections that its document takes a while.
  void LayOutLongRoad() {
    auto Project = ReadExample("road");
    const auto& sSections = Project.aFiles[2];
    const auto nHead = sSections.find("\r\n", sSections.find("\r\n") + 2) + 2;
    const auto nBody = sSections.find("\r\n", nHead) + 2;
    const auto sPoints = sSections.substr(nBody, sSections.find("10.000,12") - nBody);
    std::string sMany = sSections.substr(0, nHead);
    for (int n = 0; n < 16000; ++n) sMany += std::to_string(n * 0.05) + ",12\r\n" + sPoints;
    Project.aFiles[2] = sMany;
    Files = fuzz::LayOut(Project, Folder).aFiles[0];
    std::ofstream(Output()) << "earlier";
  }

  std::vector<std::string> Strays() const {
    std::vector<std::string> aNames;
    for (const auto& Entry : fs::directory_iterator(Folder)) {
      const auto sName = Entry.path().filename().string();
      if (sName.find(".vrek-") != sName.npos) aNames.push_back(sName);
    }
    return aNames;
  }

  pid_t Start() const {
    std::vector<std::string> aWords{
        VREK_BATCH,  "road", "--hz", Files.sHorizontal, "--vt",   Files.sVertical, "--cross", Files.sThird,
        "--formats", "7",    "-o",   Output(),          "--quiet"};
    std::vector<char*> aArguments;
    for (auto& sWord : aWords) aArguments.push_back(sWord.data());
    aArguments.push_back(nullptr);
    pid_t nChild = 0;
    EXPECT_EQ(::posix_spawn(&nChild, VREK_BATCH, nullptr, nullptr, aArguments.data(), ::environ), 0);
    return nChild;
  }

  /// Sends the signal, twice as some do, as soon as the new document is on its way; gives the child's wait
  /// status.
  int EndInTheMiddle(int nSignal) {
    LayOutLongRoad();
    const pid_t nChild = Start();
    int nStatus = 0;
    for (int n = 0; n < 60000 && Strays().empty(); ++n) {
      if (::waitpid(nChild, &nStatus, WNOHANG) == nChild) return nStatus;
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    ::kill(nChild, nSignal);
    ::kill(nChild, nSignal);
    ::waitpid(nChild, &nStatus, 0);
    return nStatus;
  }

  batch::TAligmentFiles Files;
};

TEST_F(Ended, ByAPleaLeavesTheEarlierDocumentAndNothingElse) {
  for (const int nSignal : {SIGTERM, SIGINT, SIGHUP, SIGQUIT, SIGPIPE, SIGXCPU}) {
    const int nStatus = EndInTheMiddle(nSignal);
    ASSERT_TRUE(WIFSIGNALED(nStatus)) << nStatus;
    EXPECT_EQ(WTERMSIG(nStatus), nSignal);
    EXPECT_TRUE(Strays().empty());
    EXPECT_EQ(ReadBytes(Output()), "earlier");
  }
}

TEST_F(Ended, ByNoLimitOfTheFileSizeButToldOfIt) {
  LayOutLongRoad();
  rlimit Before{};
  ::getrlimit(RLIMIT_FSIZE, &Before);
  const rlimit Small{100'000, Before.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &Small);
  const pid_t nChild = Start();
  ::setrlimit(RLIMIT_FSIZE, &Before);
  int nStatus = 0;
  ASSERT_EQ(::waitpid(nChild, &nStatus, 0), nChild);
  ASSERT_TRUE(WIFEXITED(nStatus)) << nStatus;
  EXPECT_EQ(WEXITSTATUS(nStatus), batch::eNotWritten);
  EXPECT_TRUE(Strays().empty());
  EXPECT_EQ(ReadBytes(Output()), "earlier");
}

TEST_F(Ended, ByForceLeavesTheEarlierDocumentAndTheNextRunWorks) {
  const int nStatus = EndInTheMiddle(SIGKILL);
  ASSERT_TRUE(WIFSIGNALED(nStatus)) << nStatus;
  EXPECT_EQ(ReadBytes(Output()), "earlier");
  Run(ReadExample("road"));
}

}  // namespace
}  // namespace vrek::test
