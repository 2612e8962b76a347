// Whole projects with one file damaged in every way that a text can be: cut off at every byte, a line lost,
// doubled or out of its place, a field replaced by what no field should be. Each ends with a message, a
// failure mark or a whole document.
#include "Projects.h"

namespace vrek::test {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t nStride = 5;  // under a sanitizer a part of the damages stands for all
#else
constexpr std::size_t nStride = 1;
#endif

class DamagedProject : public ProjectTest, public ::testing::WithParamInterface<const char*> {
 protected:
  /// Runs the example with each of the damages that Damages makes of a file's bytes.
  /// nDouble: one in how many for a double track, whose documents are long.
  template <class TDamages>
  void RunAll(TDamages&& Damages, std::size_t nDouble) {
    const auto Whole = ReadExample(GetParam());
    const std::size_t nEvery = Whole.sHead.starts_with('3') ? nDouble * nStride : nStride;
    std::size_t nRuns = 0, nConverted = 0;
    for (std::size_t nFile = 0; nFile < Whole.aFiles.size(); ++nFile) {
      Damages(Whole.aFiles[nFile], [&](const std::string& sDamaged, const std::string& sWhat) {
        if (nRuns++ % nEvery != 0 || HasFailure()) return;
        SCOPED_TRACE(std::string(GetParam()) + ", file " + std::to_string(nFile) + ", " + sWhat);
        auto Project = Whole;
        Project.aFiles[nFile] = sDamaged;
        nConverted += Run(Project).bExported ? 1 : 0;
      });
    }
    EXPECT_GT(nRuns, 10u);
    // Neither all nor none: the damages reach the readers, and the program isn't just refusing everything.
    EXPECT_LT(nConverted, nRuns / nEvery + 1);
  }
};

std::vector<std::string> Lines(const std::string& sBytes) {
  std::vector<std::string> aLines;
  for (std::size_t n = 0; n < sBytes.size();) {
    const auto nEnd = std::min(sBytes.find('\n', n), sBytes.size() - 1) + 1;
    aLines.push_back(sBytes.substr(n, nEnd - n));
    n = nEnd;
  }
  return aLines;
}

std::string Joined(const std::vector<std::string>& aLines) {
  std::string sBytes;
  for (const auto& sLine : aLines) sBytes += sLine;
  return sBytes;
}

TEST_P(DamagedProject, CutOffAtEveryByte) {
  RunAll(
      [](const std::string& sBytes, const auto& Try) {
        for (std::size_t n = 0; n < sBytes.size(); ++n) Try(sBytes.substr(0, n), "byte " + std::to_string(n));
      },
      4);
}

TEST_P(DamagedProject, LinesLostDoubledAndSwapped) {
  RunAll(
      [](const std::string& sBytes, const auto& Try) {
        const auto aLines = Lines(sBytes);
        for (std::size_t n = 0; n < aLines.size(); ++n) {
          const auto sLine = "line " + std::to_string(n + 1);
          const auto Here = static_cast<std::ptrdiff_t>(n);
          auto aLost = aLines;
          aLost.erase(aLost.begin() + Here);
          Try(Joined(aLost), sLine + " lost");
          auto aDoubled = aLines;
          aDoubled.insert(aDoubled.begin() + Here, aLines[n]);
          Try(Joined(aDoubled), sLine + " doubled");
          if (n + 1 == aLines.size()) continue;
          auto aSwapped = aLines;
          std::swap(aSwapped[n], aSwapped[n + 1]);
          Try(Joined(aSwapped), sLine + " swapped");
        }
      },
      1);
}

TEST_P(DamagedProject, FieldsThatAreNone) {
  const std::string sLong(100'000, '7');
  const auto Replace = [&](const std::string& sBytes, const auto& Try) {
    constexpr std::string_view sEnds = ", \t\r\n<>\"=\\{}";
    for (std::size_t n = 0; (n = sBytes.find_first_not_of(sEnds, n)) != sBytes.npos;) {
      const auto nLength = std::min(sBytes.find_first_of(sEnds, n), sBytes.size()) - n;
      for (const auto& sField : {std::string(), std::string("-"), std::string("1e999"), std::string("nan"),
                                 std::string("0x10"), std::string("-1e15"), sLong}) {
        auto sDamaged = sBytes;
        Try(sDamaged.replace(n, nLength, sField),
            "byte " + std::to_string(n) + ": \"" + sField.substr(0, 10) + "\"");
      }
      n += nLength;
    }
  };
  RunAll(Replace, 5);  // no divisor of the replacements: each has its turn
}

INSTANTIATE_TEST_SUITE_P(Examples, DamagedProject,
                         ::testing::Values("road", "printed", "rtf", "tunnel", "rail", "double", "generated"),
                         [](const auto& Info) { return std::string(Info.param); });

}  // namespace
}  // namespace vrek::test
