// A fresh application object on an in-memory platform, for tests: boxes, log entries and settings are
// recorded, the clock stands still, the temporary directory is the test's own.
#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "shell/AppModel.h"
#include "shell/ErrHandler.h"

namespace vrek::test {

struct TBox {
  std::string sText;
  EIcon eIcon = EIcon::eWarning;
};

class TestPlatform : public IDialogs,
                     public IClock,
                     public IEnvironment,
                     public ISettingsStore,
                     public IProcesses,
                     public IEvents,
                     public IOutputFiles {
 public:
  void MessageBox(std::string_view sText, EIcon eIcon) override {
    aBoxes.push_back({std::string(sText), eIcon});
  }
  std::string OpenFile(std::string_view) override { return sOpenAnswer; }
  std::string SaveFile(std::string_view sFilter, std::string_view sFilename) override {
    sSaveFilter = sFilter;
    sSaveName = sFilename;
    return sSaveAnswer;
  }
  std::tm Now() const override { return Time; }
  std::string UserName() const override { return sUser; }
  std::string ProgramDirectory() const override { return sProgramDirectory; }
  std::string TempDirectory() const override { return sTempDirectory; }
  std::string Read(std::string_view, std::string_view sSection, std::string_view sKey,
                   std::string_view sDefault) override {
    const auto it = aSettings.find(std::string(sSection) + "/" + std::string(sKey));
    return it == aSettings.end() ? std::string(sDefault) : it->second;
  }
  void Write(std::string_view, std::string_view sSection, std::string_view sKey,
             std::string_view sText) override {
    aSettings[std::string(sSection) + "/" + std::string(sKey)] = sText;
  }
  void RunAndWait(std::string_view sCommand) override { aCommands.emplace_back(sCommand); }
  void ProcessMessages() override {
    if (OnMessages) OnMessages();
  }
  void WaitPointer(bool) override {}
  std::unique_ptr<IOutputFile> Create(const std::string& sPath) override { return CreateOutputFile(sPath); }

  TPlatform Parts() { return {this, this, this, this, this, this, this}; }

  std::vector<TBox> aBoxes;
  std::vector<std::string> aCommands;
  std::map<std::string, std::string> aSettings;  // "section/key"
  std::string sOpenAnswer, sSaveAnswer, sSaveFilter, sSaveName;
  std::string sUser = "tester", sProgramDirectory, sTempDirectory;
  std::function<void()> OnMessages;
  std::tm Time = [] {
    std::tm T{};
    T.tm_year = 126, T.tm_mon = 0, T.tm_mday = 2, T.tm_hour = 3, T.tm_min = 4, T.tm_sec = 5;
    return T;
  }();
};

/// Base of all tests that reach the application object. Directory is the test's own and goes with it.
class AppTest : public ::testing::Test {
 protected:
  AppTest() : Model(Platform.Parts()) {
    const auto* pInfo = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string sName = std::string(pInfo->test_suite_name()) + "." + pInfo->name();
    for (char& c : sName) {
      if (c == '/') c = '_';
    }
    Directory = std::filesystem::temp_directory_path() / ("vrek." + std::to_string(::getpid()) + "." + sName);
    std::filesystem::create_directories(Directory);
    Platform.sTempDirectory = Directory.string() + "/";
    Platform.sProgramDirectory = Directory.string();
    pBefore = SetAppModel(&Model);
  }
  ~AppTest() override {
    SetAppModel(pBefore);
    std::error_code Ignored;
    std::filesystem::remove_all(Directory, Ignored);
  }

  /// Writes a file of the test's directory as the bytes stand; gives its path.
  std::string WriteFile(const std::string& sName, std::string_view sBytes) const {
    const auto Path = Directory / sName;
    std::ofstream(Path, std::ios::binary) << sBytes;
    return Path.string();
  }
  /// The bytes of a file; "" when there is none.
  static std::string ReadFile(const std::filesystem::path& Path) {
    std::ifstream Stream(Path, std::ios::binary);
    return {std::istreambuf_iterator<char>(Stream), {}};
  }
  /// What stands in the log.
  std::string Log() const { return ReadFile(Directory / "KTVO_Converters.log"); }

  TestPlatform Platform;
  clsAppModel Model;
  std::filesystem::path Directory;

 private:
  clsAppModel* pBefore = nullptr;
};

/// "a\nb\n" with CR LF at each line end, as listings have it.
inline std::string CrLf(std::string_view sText) {
  std::string sOut;
  for (const char c : sText) {
    if (c == '\n') sOut += '\r';
    sOut += c;
  }
  return sOut;
}

}  // namespace vrek::test
