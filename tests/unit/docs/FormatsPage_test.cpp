// docs/formats.md: every sample of the page goes through the real readers and becomes a document.
#include "DocsTest.h"

namespace vrek::test {
namespace {

class FormatsPage : public DocsTest {
 protected:
  FormatsPage() {
    aSamples = Samples(VREK_ROOT "/docs/formats.md");
    for (const auto& [sName, sText] : aSamples) std::ofstream(Folder / sName, std::ios::binary) << sText;
  }
  std::string File(const char* pName) const { return (Folder / pName).string(); }

  std::map<std::string, std::string> aSamples;
};

TEST_F(FormatsPage, ConvertsItsListingsAndSideFiles) {
  ASSERT_GE(aSamples.size(), 12U);
  const std::vector<const char*> aRoadTags = {"<Line ", "<Spiral ", "<Curve ", "<ParaCurve ", "<CrossSect "};
  // clang-format off
  const struct { const char *pJob, *pHz, *pVt, *pOption, *pThird; std::vector<const char*> aTexts; } aRows[] = {
      {"road",   "plan.plt", "profile.alz",         "--cross",  "sections.trv",         aRoadTags},
      {"road",   "plan.plt", "profile-printed.alz", "--cross",  "sections-printed.trv", aRoadTags},
      {"road",   "plan.rtf", "profile.rtf",         "--cross",  "sections.rtf",         aRoadTags},
      {"rail",   "plan.plt", "profile.alz",         "--cant",   "cant.xml",             {">Left,Right<"}},
      {"rail",   "plan.plt", "profile.alz",         "--cant",   "cant-rails.xml",       {}},
      {"tunnel", "plan.plt", "profile.alz",         "--tunnel", "tunnel.xml",           {"<TunnelProfiles"}}};
  // clang-format on
  for (const auto& Row : aRows) {
    SCOPED_TRACE(Row.pThird);
    std::vector<std::string> aArguments{Row.pJob, "--formats", "7", "-o", File("out.xml")};
    aArguments.insert(aArguments.end(), {"--hz", File(Row.pHz), "--vt", File(Row.pVt)});
    aArguments.insert(aArguments.end(), {Row.pOption, File(Row.pThird)});
    EXPECT_EQ(Run(aArguments), 0) << sErr;
    const auto sDocument = ReadBytes(Folder / "out.xml");
    for (const char* pText : Row.aTexts) EXPECT_NE(sDocument.find(pText), std::string::npos) << pText;
  }
}

// A line of the sample language file shows on the files page of the outcome.
TEST_F(FormatsPage, TakesItsJobFileAndItsLanguageFile) {
  fs::copy(Folder / "language.lng", Folder / "QuennelV2.lng");
  EXPECT_EQ(Run({"run", File("job.toml"), "--json"}, Folder), 0) << sErr;
  EXPECT_TRUE(fs::exists(Folder / "line4.xml"));
  EXPECT_NE(sOut.find("\"Files of the track\""), std::string::npos) << sOut;
}

}  // namespace
}  // namespace vrek::test
