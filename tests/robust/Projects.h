// Small whole projects for tests that damage them, the packed examples of the fuzz targets.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "Project.h"

namespace vrek::test {

inline std::string ReadBytes(const std::filesystem::path& Path) {
  std::ifstream Stream(Path, std::ios::binary);
  return {std::istreambuf_iterator<char>(Stream), {}};
}

/// "road", "printed", "rtf", "tunnel", "rail", "double" (profiles from the centre), "generated" (left profile
/// from the right one).
inline fuzz::TProject ReadExample(const std::string& sName) {
  const auto Path = std::filesystem::path(VREK_PROJECTS) / ("example-" + sName);
  return fuzz::ReadProject(ReadBytes(Path));
}

/// The text with every place where sOld stands filled by sNew.
inline std::string Replaced(std::string sText, std::string_view sOld, std::string_view sNew) {
  for (std::size_t n = 0; (n = sText.find(sOld, n)) != sText.npos; n += sNew.size()) {
    sText.replace(n, sOld.size(), sNew);
  }
  return sText;
}

/// Why a document is not whole, or has a number that is none; "" if it is well.
inline std::string DocumentFault(const std::string& sDocument) {
  if (!sDocument.starts_with("<LandXML ") || !sDocument.ends_with("</LandXML>\r\n")) return "not whole";
  for (const char* sText : {"\"nan", "\"-nan", "\"inf", "\"-inf", " nan", " inf", ">nan", ">inf"}) {
    if (sDocument.find(sText) != sDocument.npos) return std::string("holds ") + sText;
  }
  return {};
}

/// A folder of the test's own, in memory where there is one, that goes with the test.
class ProjectTest : public ::testing::Test {
 protected:
  ProjectTest() {
    const std::filesystem::path Memory = "/dev/shm";
    const auto Parent =
        std::filesystem::is_directory(Memory) ? Memory : std::filesystem::temp_directory_path();
    std::string sPattern = (Parent / "vrek.XXXXXX").string();
    if (::mkdtemp(sPattern.data()) == nullptr) std::abort();
    Folder = sPattern;
    ::setenv("TMPDIR", Folder.c_str(), 1);  // the log goes there
  }
  ~ProjectTest() override {
    ::unsetenv("TMPDIR");
    std::error_code Ignored;
    std::filesystem::permissions(Folder, std::filesystem::perms::owner_all, Ignored);
    std::filesystem::remove_all(Folder, Ignored);
  }

  std::string Output() const { return (Folder / "out.xml").string(); }

  /// Converts and fails the test on what no input may lead to. The log starts afresh.
  batch::TOutcome Run(const fuzz::TProject& Project) {
    std::filesystem::remove(Output());
    std::filesystem::remove(Folder / "KTVO_Converters.log");
    const auto Start = std::chrono::steady_clock::now();
    const auto Outcome = fuzz::Convert(Project, Folder, Output());
    EXPECT_LT(std::chrono::steady_clock::now() - Start, std::chrono::seconds(10));
    EXPECT_EQ(fuzz::Fault(Outcome), "");
    EXPECT_EQ(Outcome.bExported, std::filesystem::exists(Output()));
    // The text of tunnel profiles passes through as it stands, whatever it says.
    if (Outcome.bExported && Outcome.sJob != "tunnel") {
      EXPECT_EQ(DocumentFault(ReadBytes(Output())), "");
    }
    return Outcome;
  }

  std::filesystem::path Folder;
};

}  // namespace vrek::test
