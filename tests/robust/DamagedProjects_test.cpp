// Whole projects with one file damaged in every way that a text can be: cut off at every byte, a line lost,
// doubled or out of its place, a field replaced by what no field should be. Each ends with a message, a
// failure mark or a whole document.
#include "Damages.h"
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
    std::size_t nRuns = 0, nTried = 0, nConverted = 0;
    for (std::size_t nFile = 0; nFile < Whole.aFiles.size(); ++nFile) {
      Damages(Whole.aFiles[nFile], [&](const std::string& sDamaged, const std::string& sWhat) {
        if (nRuns++ % nEvery != 0 || HasFailure()) return;
        ++nTried;
        SCOPED_TRACE(std::string(GetParam()) + ", file " + std::to_string(nFile) + ", " + sWhat);
        auto Project = Whole;
        Project.aFiles[nFile] = sDamaged;
        nConverted += Run(Project).bExported ? 1 : 0;
      });
    }
    EXPECT_GT(nRuns, 10u);
    EXPECT_LT(nConverted, nTried) << "a damage that nothing refuses hasn't reached the readers";
  }
};

TEST_P(DamagedProject, CutOffAtEveryByte) {
  RunAll(CutOffAtEveryByte, 4);
}

TEST_P(DamagedProject, LinesLostDoubledAndSwapped) {
  RunAll(LinesLostDoubledAndSwapped, 1);
}

TEST_P(DamagedProject, FieldsThatAreNone) {
  RunAll(FieldsThatAreNone, 5);  // no divisor of the replacements: each has its turn
}

INSTANTIATE_TEST_SUITE_P(Examples, DamagedProject,
                         ::testing::Values("road", "printed", "rtf", "tunnel", "rail", "double", "generated"),
                         [](const auto& Info) { return std::string(Info.param); });

}  // namespace
}  // namespace vrek::test
