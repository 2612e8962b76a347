// What the Result page warns of, gathered from a whole wizard.
#include "wizard/WarningsOf.h"

#include <gmock/gmock.h>

#include "WizardTest.h"

namespace vrek {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class WarningsOfTest : public test::WizardTest {
 protected:
  /// The wizard at the Exporting page of a tunnel, its plan being a copy.
  void OpenTunnel(const std::string& sProfiles) {
    OpenFiles(eTunnel);
    Type(1, 1, WriteFile("bore.plt", ReadFile(Example("tunnel/Bore axis.plt"))));
    Type(1, 2, Example("tunnel/Bore axis.alz"));
    Type(1, 3, WriteFile("bore.xml", sProfiles));
    Next(3);
    ASSERT_EQ(Window.CurrentPage(), ePageExporting);
  }
  /// The example's profiles with one text replaced by another.
  std::string Profiles(std::string_view sFrom, std::string_view sTo) const {
    auto sText = ReadFile(Example("tunnel/Bore profiles.xml"));
    return sText.replace(sText.find(sFrom), sFrom.size(), sTo);
  }
};

TEST_F(WarningsOfTest, TellsProfilesThatBreakTheDocument) {
  OpenTunnel(Profiles("", ""));
  EXPECT_THAT(WarningsOf(Window), IsEmpty());
  const auto sLatin = Profiles("UTF-8", "ISO-8859-1");
  for (const auto& sProfiles :
       {Profiles(" name=", "\r\nname="), Profiles("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n", ""),
        std::string(sLatin).replace(sLatin.find("P2050"), 5,
                                    "Pe\xf1"
                                    "a")}) {
    OpenTunnel(sProfiles);
    EXPECT_THAT(WarningsOf(Window), ElementsAre(HasSubstr("The profiles of \"bore.xml\""))) << sProfiles;
  }
  OpenTunnel(Profiles("</TunnelProfile>\r\n", "</TunnelProfile>\n"));
  EXPECT_THAT(WarningsOf(Window), ElementsAre(HasSubstr("\"bore.xml\" mixes line ends: LF alone (1 times)")));
}

TEST_F(WarningsOfTest, TakesTheRangeFromThePage) {
  OpenTunnel(Profiles("", ""));
  auto& aBoxes = Window.ctlExporting.txtChainage;
  aBoxes[0].Text = "2100";
  EXPECT_THAT(WarningsOf(Window), IsEmpty()) << "who types a narrower range means it";
  aBoxes[1].Text = "2+200";
  EXPECT_THAT(WarningsOf(Window),
              ElementsAre(HasSubstr("begins at 2100.000, behind its end at 2.000"), HasSubstr("\"2+200\"")));
}

TEST_F(WarningsOfTest, LogsOneThatFailsAndGivesTheOthers) {
  OpenTunnel(Profiles(" name=", "\r\nname="));
  fs::remove(Directory / "bore.plt");
  Platform.aBoxes.clear();
  EXPECT_THAT(WarningsOf(Window), ElementsAre(HasSubstr("The profiles of")));
  EXPECT_THAT(Log(), HasSubstr("Error: 53 File not found in WarningsOf"));
  Platform.sTempDirectory = (Directory / "missing/").string();
  EXPECT_EQ(WarningsOf(Window).size(), 1U) << "without a log, too";
  EXPECT_TRUE(Platform.aBoxes.empty());
}

}  // namespace
}  // namespace vrek
