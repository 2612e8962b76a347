// Runs the built program and catches what it says.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace vrek {
namespace fs = std::filesystem;
}

namespace vrek::test {

struct TRun {
  int nStatus = -1;  ///< exit status
  int nSignal = 0;   ///< that ended it
  std::string sOut, sErr;
};

class ProgramTest : public ::testing::Test {
 protected:
  ProgramTest() {
    std::string sPath = (fs::temp_directory_path() / "vrek.cli.XXXXXX").string();
    Directory = ::mkdtemp(sPath.data());
  }
  ~ProgramTest() override {
    std::error_code Ignored;
    fs::permissions(Directory, fs::perms::owner_all, Ignored);
    fs::remove_all(Directory, Ignored);
  }

  static std::string Read(const fs::path& Path) {
    std::ifstream Stream(Path, std::ios::binary);
    return {std::istreambuf_iterator<char>(Stream), {}};
  }
  std::string Write(const std::string& sName, const std::string& sText) const {
    fs::create_directories((Directory / sName).parent_path());
    std::ofstream(Directory / sName, std::ios::binary) << sText;
    return (Directory / sName).string();
  }
  /// A copy of an example project; gives its job file.
  std::string Project(const std::string& sExample, const std::string& sAs) const {
    fs::create_directories((Directory / sAs).parent_path());
    fs::copy(fs::path(VREK_EXAMPLES) / sExample, Directory / sAs, fs::copy_options::recursive);
    for (const auto& Entry : fs::directory_iterator(Directory / sAs)) {
      fs::permissions(Entry, fs::perms::owner_write, fs::perm_options::add);
    }
    return (Directory / sAs / "job.toml").string();
  }
  static std::string Example(const std::string& sName) { return std::string(VREK_EXAMPLES) + "/" + sName; }

  /// The example road, written to out.xml.
  static std::vector<std::string> RoadArguments(const std::vector<std::string>& aMore = {}) {
    std::vector<std::string> aOut{"road", "--formats", "7", "--hz", Example("road/Axis 1.plt")};
    aOut.insert(aOut.end(), {"--vt", Example("road/Axis 1.alz"), "--cross", Example("road/Axis 1.trv")});
    aOut.insert(aOut.end(), {"-o", "out.xml"});
    aOut.insert(aOut.end(), aMore.begin(), aMore.end());
    return aOut;
  }

  /// Cross-sections enough to keep the program busy for seconds.
  std::string LongRoad(const std::string& sName) const {
    std::string sText = "*TRV\r\nSECTIONS\r\n";
    for (int n = 0; n < 60000; ++n) {
      sText += std::to_string(n / 80.0) + ",12\r\n";
      for (const char* sLayer : {"T", "C", "S", "P"}) {
        for (int nPoint = -1; nPoint <= 1; ++nPoint) {
          sText += std::to_string(nPoint * (3 + n % 7)) + ".000,10.000," + sLayer + "01\r\n";
        }
      }
    }
    return Write(sName, sText);
  }

  /// Starts the program with another working directory, the test's own; sShell: what stands before it, such
  /// as limits or variables.
  TRun Run(const std::vector<std::string>& aArguments, const std::string& sShell = "",
           const std::string& sProgram = VREK_PROGRAM) const {
    std::string sCommand = "cd '" + Directory.string() + "' && { " + sShell + " exec '" + sProgram + "'";
    for (const auto& sArgument : aArguments) sCommand += " '" + sArgument + "'";
    sCommand += "; } >.out 2>.err";
    TRun Result;
    const int nWait = std::system(sCommand.c_str());
    if (WIFEXITED(nWait)) Result.nStatus = WEXITSTATUS(nWait);
    if (WIFSIGNALED(nWait)) Result.nSignal = WTERMSIG(nWait);
    Result.sOut = Read(Directory / ".out");
    Result.sErr = Read(Directory / ".err");
    return Result;
  }
  /// Names of the files of the directory that are parts of documents not finished.
  std::vector<std::string> Leftovers() const {
    std::vector<std::string> aOut;
    for (const auto& Entry : fs::recursive_directory_iterator(Directory)) {
      if (Entry.path().filename().string().find(".vrek-") != std::string::npos) aOut.push_back(Entry.path());
    }
    return aOut;
  }

  fs::path Directory;
};

}  // namespace vrek::test
