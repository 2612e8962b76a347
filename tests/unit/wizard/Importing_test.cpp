// The tree of the Importing page, the marks of its files and their reports.
#include "WizardTest.h"
#include "design_data/CAligmentsDatas.h"

namespace vrek {
namespace {

class Importing : public test::WizardTest {
 protected:
  /// Goes to the Preferences page of a double track whose left profile is generated from the right one.
  void OpenGenerated(const std::string& sLeftCant) {
    OpenFiles(eRailDouble);
    Type(2, 1, Example("double/Left track.plt"));
    SetOption(2);
    Type(2, 4, sLeftCant);
    Type(3, 1, Example("double/Right track.plt"));
    Type(3, 2, Example("double/Axis.alz"));
    Next();
  }
  /// What the report of a node says.
  const std::string& Report(const std::string& sKey) {
    Window.ctlImporting.trFiles_NodeClick(sKey);
    return Window.ctlImporting.Report.txtReport;
  }
};

TEST_F(Importing, LaysOutTheTreeOfTheJob) {
  const auto sFile = WriteFile("x.plt", "x");
  OpenFiles(eTunnel);
  for (const int nFile : {1, 2, 3}) Type(1, nFile, sFile);
  Next();
  EXPECT_EQ(Tree(), "PAGE1=FR_FILES_TUNNEL PAGE1@Hz=x PAGE1@Vt=x PAGE1@Cr=x");

  OpenFiles(eRailDouble);
  Type(1, 1, sFile);
  SetOption(1);
  Slot(2).txtFileName_Change(sFile);
  Type(2, 1, WriteFile("l.plt", "x"));
  Type(3, 1, WriteFile("r.plt", "x"));
  Type(3, 4, sFile);
  Next();
  EXPECT_EQ(Tree(),
            "PAGE1=FR_FILES_RAILCENTER PAGE1@Hz=x PAGE1@Vt=x PAGE2=FR_FILES_RAILLEFT PAGE2@Hz=l PAGE2@Vt=l "
            "PAGE3=FR_FILES_RAILRIGHT PAGE3@Hz=r PAGE3@Vt=r PAGE3@Cr=x");
}

TEST_F(Importing, AGapInThePlanStaysUntilTheToleranceAllowsIt) {
  const std::string sFolder = "faulty/gap-in-the-plan/axis";
  OpenFiles(eRailSingle);
  Type(1, 1, Example(sFolder + ".plt"));
  Type(1, 2, Example(sFolder + ".alz"));
  Next(2);
  ASSERT_EQ(Window.CurrentPage(), ePageImporting);
  EXPECT_EQ(Image("PAGE1"), 0);
  EXPECT_EQ(Image("PAGE1@Hz"), 2);
  EXPECT_EQ(Image("PAGE1@Vt"), 1) << "all files are tried";
  EXPECT_FALSE(Window.ctlProgress.Visible);
  for (const char* sKey : {"PAGE1", "PAGE1@Vt", "nobody"}) EXPECT_EQ(Report(sKey), "") << sKey;
  EXPECT_FALSE(Window.ctlImporting.Report.Visible);
  EXPECT_NE(Report("PAGE1@Hz").find("320.0000"), std::string::npos);
  EXPECT_TRUE(Window.ctlImporting.Report.Visible);
  EXPECT_EQ(Window.ctlImporting.Report.Title, "axis");
  Next();
  EXPECT_EQ(Window.CurrentPage(), ePageImporting);
  Window.cmdBack_Click();
  Window.ctlPreferences.ctlTolerance[0].txtNumber_Change("0,4");
  Next();
  EXPECT_EQ(Image("PAGE1@Hz"), 1) << "checked anew";
  Next();
  EXPECT_EQ(Window.CurrentPage(), ePageExporting);
}

TEST_F(Importing, GeneratesNothingFromABadCantTable) {
  OpenGenerated(Example("faulty/broken-xml/cant.xml"));
  Next();
  ASSERT_EQ(Window.CurrentPage(), ePageImporting);
  EXPECT_EQ(Image("PAGE2@Cr"), 2);
  EXPECT_EQ(Image("PAGE2@Vt"), 2);
  EXPECT_EQ(Image("PAGE3@Vt"), 1);
  EXPECT_EQ(CAligmentsDatas::GetAligmentType(2), AligmentType::nHz) << "a refused table isn't stored";
}

TEST_F(Importing, ACancelledGenerationIsMarkedAsFailed) {
  OpenGenerated(Example("double/Left cant.xml"));
  CancelAtOnce();
  Next();
  EXPECT_EQ(Image("PAGE2@Vt"), 2);
  Platform.OnMessages = {};
  Window.cmdBack_Click();
  Next();
  EXPECT_EQ(Image("PAGE2@Vt"), 1);
  EXPECT_TRUE(CAligmentsDatas::GetAligmentType(2) & AligmentType::nVt);
}

// Without its mark the document would go out without that profile.
TEST_F(Importing, AGenerationThatFailsIsMarkedAndHoldsUpNext) {
  OpenGenerated(Example("double/Left cant.xml"));
  Window.cmdBack_Click();
  Type(3, 1,
       WriteFile("endless.plt",
                 "*PLT\r\n0.000,437500.0000,4570900.0000,100.000000,0.000,0.0000\r\n"
                 "11000000.000,11437500.0000,4570900.0000,100.000000,0.000,0.0000\r\n"));
  Next();
  Next();
  ASSERT_EQ(Window.CurrentPage(), ePageImporting);
  EXPECT_EQ(Platform.aBoxes.size(), 1U);
  EXPECT_EQ(Image("PAGE2@Vt"), 2);
  Next();
  EXPECT_EQ(Window.CurrentPage(), ePageImporting);
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
}

}  // namespace
}  // namespace vrek
