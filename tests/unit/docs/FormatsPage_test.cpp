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
  std::string Document() const { return ReadBytes(Folder / "out.xml"); }

  std::map<std::string, std::string> aSamples;
};

TEST_F(FormatsPage, RoadsInEveryForm) {
  ASSERT_GE(aSamples.size(), 12U);
  const char* aForms[][3] = {{"plan.plt", "profile.alz", "sections.trv"},
                             {"plan.plt", "profile-printed.alz", "sections-printed.trv"},
                             {"plan.rtf", "profile.rtf", "sections.rtf"}};
  for (const auto& aForm : aForms) {
    SCOPED_TRACE(aForm[1]);
    EXPECT_EQ(Run({"road", "--formats", "7", "--hz", File(aForm[0]), "--vt", File(aForm[1]), "--cross",
                   File(aForm[2]), "-o", File("out.xml")}),
              0)
        << sErr;
    for (const char* pTag : {"<Line ", "<Spiral ", "<Curve ", "<ParaCurve ", "<CrossSect "}) {
      EXPECT_NE(Document().find(pTag), std::string::npos) << pTag;
    }
  }
}

TEST_F(FormatsPage, SideFiles) {
  EXPECT_EQ(Run({"rail", "--hz", File("plan.plt"), "--vt", File("profile.alz"), "--cant", File("cant.xml"),
                 "-o", File("out.xml")}),
            0)
      << sErr;
  EXPECT_NE(Document().find(">Left,Right<"), std::string::npos);
  EXPECT_EQ(Run({"rail", "--hz", File("plan.plt"), "--vt", File("profile.alz"), "--cant",
                 File("cant-rails.xml"), "-o", File("out.xml")}),
            0)
      << sErr;
  EXPECT_EQ(Run({"tunnel", "--formats", "7", "--hz", File("plan.plt"), "--vt", File("profile.alz"),
                 "--tunnel", File("tunnel.xml"), "-o", File("out.xml")}),
            0)
      << sErr;
  EXPECT_NE(Document().find("<TunnelProfiles"), std::string::npos);
}

TEST_F(FormatsPage, JobFile) {
  EXPECT_EQ(Run({"run", File("job.toml")}), 0) << sErr;
  EXPECT_TRUE(fs::exists(Folder / "line4.xml"));
}

// A line of the sample language file shows on the files page of the outcome.
TEST_F(FormatsPage, LanguageFile) {
  fs::copy(Folder / "language.lng", Folder / "QuennelV2.lng");
  const std::string sJob = File("job.toml");
  const char* aArguments[] = {"vrek-batch", "run", sJob.c_str(), "--json", "--quiet"};
  std::ostringstream Out, Err;
  EXPECT_EQ(batch::RunBatch(5, aArguments, Out, Err, Folder.string()), 0);
  EXPECT_NE(Out.str().find("\"Files of the track\""), std::string::npos) << Out.str();
}

}  // namespace
}  // namespace vrek::test
