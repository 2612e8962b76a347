// The tree of the Importing page, the marks of its files and their reports.
#include "WizardTest.h"
#include "design_data/CAligmentsDatas.h"

namespace vrek {
namespace {

class Importing : public test::WizardTest {
 protected:
  /// One track with the files given; "" leaves a slot alone.
  void Import(const std::string& sPlan, const std::string& sProfile, const std::string& sCant = "") {
    OpenFiles(eRailSingle);
    const std::string* aPaths[] = {&sPlan, &sProfile, nullptr, &sCant};
    for (int n = 1; n <= 4; ++n) {
      if (const auto* pPath = aPaths[n - 1]; pPath && !pPath->empty()) Type(1, n, *pPath);
    }
    Next(2);
    ASSERT_EQ(Window.CurrentPage(), ePageImporting);
  }
};

TEST_F(Importing, LaysOutTheTreeOfTheJob) {
  const auto sFile = [this](const std::string& sName) { return WriteFile(sName, "x"); };
  const char* aRoots[] = {"FR_FILES_ROAD", "FR_FILES_TUNNEL", "FR_FILES_RAILSINGLE"};
  for (int nJob = 0; nJob < 3; ++nJob) {
    OpenFiles(nJob);
    Type(1, 1, sFile("h.plt"));
    Type(1, 2, sFile("v.alz"));
    Type(1, nJob == 2 ? 4 : 3, sFile("t.xml"));
    Next();
    EXPECT_EQ(Tree(), std::string("PAGE1=") + aRoots[nJob] + " PAGE1@Hz=h PAGE1@Vt=v PAGE1@Cr=t");
  }
  OpenFiles(eRailDouble);
  Type(2, 1, sFile("l.plt"));
  Next();
  EXPECT_EQ(Tree(), "PAGE2=FR_FILES_RAILLEFT PAGE2@Hz=l");

  OpenFiles(eRailDouble);
  Type(1, 1, sFile("h.plt"));
  SetOption(1);
  Slot(2).txtFileName_Change(sFile("v.alz"));
  Type(2, 1, sFile("l.plt"));
  Type(3, 1, sFile("r.plt"));
  Type(3, 4, sFile("rc.xml"));
  Next();
  EXPECT_EQ(Tree(),
            "PAGE1=FR_FILES_RAILCENTER PAGE1@Hz=h PAGE1@Vt=v PAGE2=FR_FILES_RAILLEFT PAGE2@Hz=l PAGE2@Vt=l "
            "PAGE3=FR_FILES_RAILRIGHT PAGE3@Hz=r PAGE3@Vt=r PAGE3@Cr=rc");
}

TEST_F(Importing, MarksGoodFilesAndLetsOn) {
  Import(Plan("a.plt"), Profile("a.alz"), Cant("c.xml"));
  for (const char* sKey : {"PAGE1@Hz", "PAGE1@Vt", "PAGE1@Cr"}) EXPECT_EQ(Image(sKey), 1) << sKey;
  EXPECT_EQ(Image("PAGE1"), 0);
  EXPECT_FALSE(Window.ctlProgress.Visible);
  Window.ctlImporting.trFiles_NodeClick("PAGE1@Hz");
  Window.ctlImporting.trFiles_NodeClick("PAGE1");
  Window.ctlImporting.trFiles_NodeClick("nobody");
  EXPECT_FALSE(Window.ctlImporting.Report.Visible);
  Next();
  EXPECT_EQ(Window.CurrentPage(), ePageExporting);
}

TEST_F(Importing, AGapInThePlanStaysUntilTheToleranceAllowsIt) {
  Import(Plan("gap.plt", 0.05), Profile("a.alz"));
  EXPECT_EQ(Image("PAGE1@Hz"), 2);
  EXPECT_EQ(Image("PAGE1@Vt"), 1) << "all files are tried";
  Window.ctlImporting.trFiles_NodeClick("PAGE1@Hz");
  EXPECT_TRUE(Window.ctlImporting.Report.Visible);
  EXPECT_EQ(Window.ctlImporting.Report.Title, "gap");
  EXPECT_NE(Window.ctlImporting.Report.txtReport.find("60.0000"), std::string::npos);
  EXPECT_NE(Window.ctlImporting.Report.txtReport.find("E_TOLE_HZ"), std::string::npos);
  Next();
  EXPECT_EQ(Window.CurrentPage(), ePageImporting);
  Window.cmdBack_Click();
  Window.ctlPreferences.ctlTolerance[0].txtNumber_Change("0,1");
  Next();
  EXPECT_EQ(Image("PAGE1@Hz"), 1) << "checked anew";
  Next();
  EXPECT_EQ(Window.CurrentPage(), ePageExporting);
}

TEST_F(Importing, EveryFaultOfTheExamplesIsMarked) {
  const struct {
    const char *sFolder, *sKey;
    bool bCant, bBox;
  } aRows[] = {{"gap-in-the-plan", "PAGE1@Hz", false, false},
               {"kink-in-the-profile", "PAGE1@Vt", false, false},
               {"wrong-marker", "PAGE1@Hz", false, false},
               {"cant-outside-the-profile", "PAGE1@Cr", true, false},
               {"broken-xml", "PAGE1@Cr", true, true}};
  for (const auto& Row : aRows) {
    Platform.aBoxes.clear();
    const auto sFolder = "faulty/" + std::string(Row.sFolder);
    Import(Example(sFolder + "/axis.plt"), Example(sFolder + "/axis.alz"),
           Row.bCant ? Example(sFolder + "/cant.xml") : "");
    int nFailures = 0;
    for (const auto& Node : Window.ctlImporting.trFiles) nFailures += Node.eImage == EImage::eFailure;
    EXPECT_EQ(nFailures, 1) << Row.sFolder;
    EXPECT_EQ(Image(Row.sKey), 2) << Row.sFolder;
    EXPECT_EQ(!Platform.aBoxes.empty(), Row.bBox) << Row.sFolder;
  }
}

TEST_F(Importing, ChecksTheCantAgainstThePageItBelongsTo) {
  Import(Plan("a.plt"), Profile("a.alz"), Cant("c.xml", "-5.000"));
  EXPECT_EQ(Image("PAGE1@Cr"), 2);
  EXPECT_FALSE(CAligmentsDatas::GetAligmentType(1) & AligmentType::nSup) << "a refused table isn't stored";
  Window.ctlImporting.trFiles_NodeClick("PAGE1@Cr");
  EXPECT_NE(Window.ctlImporting.Report.txtReport.find("-5.0000"), std::string::npos);
}

TEST_F(Importing, FailedSectionsShowThatTheFileIsEmpty) {
  OpenFiles(eRoad);
  Type(1, 1, Plan("a.plt"));
  Type(1, 2, Profile("a.alz"));
  Type(1, 3, WriteFile("bad.trv", "no marker\r\n"));
  Next(2);
  EXPECT_EQ(Image("PAGE1@Cr"), 2);
  Window.ctlImporting.trFiles_NodeClick("PAGE1@Cr");
  EXPECT_NE(Window.ctlImporting.Report.txtReport.find("E_EMPTYFILE"), std::string::npos);
}

TEST_F(Importing, GeneratesNothingFromABadCantTable) {
  OpenFiles(eRailDouble);
  Type(2, 1, Plan("l.plt"));
  SetOption(2);
  Type(2, 4, WriteFile("bad.xml", "<Cant"));
  Type(3, 1, Plan("r.plt"));
  Type(3, 2, Profile("r.alz"));
  Next(2);
  ASSERT_EQ(Window.CurrentPage(), ePageImporting);
  EXPECT_EQ(Image("PAGE2@Cr"), 2);
  EXPECT_EQ(Image("PAGE2@Vt"), 2);
  EXPECT_EQ(Image("PAGE3@Vt"), 1);
  EXPECT_FALSE(CAligmentsDatas::GetAligmentType(2) & AligmentType::nVt);
}

TEST_F(Importing, ACancelledGenerationIsMarkedAsFailed) {
  OpenFiles(eRailDouble);
  Type(2, 1, Plan("l.plt"));
  SetOption(2);
  Type(2, 4, Cant("l.xml"));
  Type(3, 1, Plan("r.plt"));
  Type(3, 2, Profile("r.alz"));
  Next();
  Platform.OnMessages = [this] {
    if (Window.ctlProgress.cmbCancel.Visible) Window.ctlProgress.cmbCancel_Click();
  };
  Next();
  EXPECT_EQ(Image("PAGE2@Vt"), 2);
  Platform.OnMessages = {};
  Window.cmdBack_Click();
  Next();
  EXPECT_EQ(Image("PAGE2@Vt"), 1);
  EXPECT_TRUE(CAligmentsDatas::GetAligmentType(2) & AligmentType::nVt);
}

TEST_F(Importing, TheTreeRefusesAKeyTwice) {
  auto& Tree = Window.ctlImporting;
  ASSERT_TRUE(Tree.AddRoot("PAGE1", "one"));
  ASSERT_TRUE(Tree.AddRoot("PAGE2", "two"));
  EXPECT_FALSE(Tree.AddRoot("PAGE1", "again"));
  EXPECT_TRUE(Tree.AddNode("PAGE1", "Cr", "a", EImage::eNone));
  EXPECT_FALSE(Tree.AddNode("PAGE1", "Cr", "b", EImage::eNone));
  EXPECT_FALSE(Tree.AddNode("PAGE3", "Cr", "c", EImage::eNone));
  Tree.SetImage("PAGE3", "Vt", EImage::eFailure);
  EXPECT_TRUE(Tree.IsAllOk());
  EXPECT_EQ(this->Tree(), "PAGE1=one PAGE1@Cr=a PAGE2=two");
  EXPECT_EQ(Tree.GetText("PAGE3"), "");
}

}  // namespace
}  // namespace vrek
