// The order of the pages and the buttons, with a page logic that only takes notes.
#include "wizard/frmWizard.h"

#include "WizardTest.h"

namespace vrek {
namespace {

class FakeLogic final : public IPageLogic {
 public:
  struct TState {
    std::vector<std::string> aCalls;
    std::map<int, bool> aIntro, aExit;  // answers other than true
    std::function<void(const std::string&)> OnCall;
  };
  explicit FakeLogic(TState& State) : m_State(State) {}
  bool IntroPage(int nPage) override { return Note("in" + std::to_string(nPage), m_State.aIntro, nPage); }
  bool ExitPage(int nPage) override { return Note("out" + std::to_string(nPage), m_State.aExit, nPage); }
  void Release() override { m_State.aCalls.emplace_back("release"); }

 private:
  bool Note(const std::string& sCall, const std::map<int, bool>& aAnswers, int nPage) {
    m_State.aCalls.push_back(sCall);
    if (m_State.OnCall) m_State.OnCall(sCall);
    const auto it = aAnswers.find(nPage);
    return it == aAnswers.end() || it->second;
  }
  TState& m_State;
};

class Wizard : public test::WizardTest {
 protected:
  void Open(int nMask = 4) {
    Model.ConverterInfo = MakeConverterInfo(nMask);
    Window.Load([this](frmWizard& Frame) {
      for (const int nPage : {1, 3, 4, 5, 6}) Frame.AddPage(nPage);
      return std::make_unique<FakeLogic>(State);
    });
  }
  /// Opens the wizard and goes forward to a page.
  void OpenAt(int nPage) {
    Open();
    while (Window.CurrentPage() != nPage) Next();
    State.aCalls.clear();
  }
  std::string Calls() {
    std::string sOut;
    for (const auto& sCall : State.aCalls) sOut += (sOut.empty() ? "" : " ") + sCall;
    State.aCalls.clear();
    return sOut;
  }

  FakeLogic::TState State;
};

TEST_F(Wizard, MovesCallThePagesAndSetTheButtons) {
  // clang-format off
  const struct {
    int nFrom;
    char cButton;  // Back, Next or Cancel
    const char* sCalls;
    int nTo;
    bool bBack, bCancel;  // enabled then
    const char* sNext;
    std::vector<int> aStops;  // codes of the process
  } aMoves[] = {
      {0, 'B', "",         0, false, true,  "BT_NEXT",   {}},
      {0, 'C', "",         0, false, true,  "BT_NEXT",   {1}},
      {0, 'N', "out0 in1", 1, true,  true,  "BT_NEXT",   {}},
      {1, 'B', "",         0, false, true,  "BT_NEXT",   {}},
      {1, 'N', "out1 in3", 3, true,  true,  "BT_NEXT",   {}},
      {3, 'B', "",         1, true,  true,  "BT_NEXT",   {}},
      {5, 'N', "out5 in6", 6, true,  false, "BT_FINISH", {}},
      {5, 'C', "",         5, true,  true,  "BT_NEXT",   {1}},
      {6, 'B', "out6",     5, true,  true,  "BT_NEXT",   {}},
      {6, 'C', "",         6, true,  false, "BT_FINISH", {}},
      {6, 'N', "release",  6, true,  false, "BT_FINISH", {0}}};
  // clang-format on
  for (const auto& Move : aMoves) {
    SCOPED_TRACE(std::string(1, Move.cButton) + " on page " + std::to_string(Move.nFrom));
    aStops.clear();
    OpenAt(Move.nFrom);
    if (Move.cButton == 'B') Window.cmdBack_Click();
    if (Move.cButton == 'N') Window.cmdNext_Click();
    if (Move.cButton == 'C') Window.cmdCancel_Click();
    EXPECT_EQ(Calls(), Move.sCalls);
    EXPECT_EQ(Window.CurrentPage(), Move.nTo);
    EXPECT_EQ(Window.SSTabWizard.Tab, Move.nTo);
    EXPECT_EQ(Window.cmdBack.Enabled, Move.bBack);
    EXPECT_EQ(Window.cmdCancel.Enabled, Move.bCancel);
    EXPECT_EQ(Window.cmdNext.Caption, Move.sNext);
    EXPECT_EQ(aStops, Move.aStops);
  }
}

TEST_F(Wizard, StaysOnAPageThatMayNotBeLeft) {
  OpenAt(1);
  State.aExit[1] = false;
  Next();
  EXPECT_EQ(Calls(), "out1");
  EXPECT_EQ(Window.CurrentPage(), 1);
  State.aExit[1] = true;
  Next();
  EXPECT_EQ(Window.CurrentPage(), 3) << "it isn't busy any more";
}

TEST_F(Wizard, PassesOverAPageThatDeclinesAndComesBackToItWithItsTitle) {
  State.OnCall = [this](const std::string& sCall) { Window.lblTitle.Caption = sCall; };
  OpenAt(4);
  State.aIntro[5] = false;
  State.aIntro[6] = false;  // nobody asks the page behind it
  Next();
  EXPECT_EQ(Calls(), "out4 in5 in6");
  EXPECT_EQ(Window.CurrentPage(), 6);
  for (const int nPage : {5, 4}) {
    Window.cmdBack_Click();
    EXPECT_EQ(Window.CurrentPage(), nPage);
    EXPECT_EQ(Window.lblTitle.Caption, "in" + std::to_string(nPage));
  }
}

TEST_F(Wizard, WithOneJobTypeBeginsAtTheFiles) {
  for (const int nMask : {1, 2}) {
    State.aCalls.clear();
    Open(nMask);
    EXPECT_EQ(Calls(), "in1");
    for (int n = 0; n < 2; ++n) {
      EXPECT_EQ(Window.CurrentPage(), 1);
      EXPECT_FALSE(Window.cmdBack.Enabled);
      Window.cmdBack_Click();
    }
    Next();
    EXPECT_TRUE(Window.cmdBack.Enabled);
  }
}

TEST_F(Wizard, IgnoresPressesAndWaitsWithTheClosingWhileAPageWorks) {
  OpenAt(3);
  bool bClosed = true;
  Platform.OnMessages = [&] {
    Window.cmdNext_Click();
    Window.cmdBack_Click();
    Window.cmdCancel_Click();
    bClosed = Window.QueryClose();
  };
  State.OnCall = [this](const std::string& sCall) {
    if (sCall == "in4") Window.ctlProgress.Info("working");
  };
  Next();
  EXPECT_EQ(Calls(), "out3 in4");
  EXPECT_EQ(Window.CurrentPage(), 4);
  EXPECT_TRUE(aStops.empty());
  EXPECT_FALSE(bClosed);
  EXPECT_TRUE(Window.CloseWanted());
  EXPECT_TRUE(Window.ctlProgress.CancelPressed());
}

TEST_F(Wizard, StaysUsableWhenARoutineOfAPageFails) {
  OpenAt(3);
  State.OnCall = [this](const std::string& sCall) {
    Window.ctlProgress.Visible = true;
    if (sCall == "in4" || sCall == "out4") Raise(Error::nOverflow, "too much", "Reader");
  };
  Next();
  EXPECT_EQ(Window.CurrentPage(), 4) << "a page whose entry fails is shown";
  Next();
  EXPECT_EQ(Window.CurrentPage(), 4) << "one whose exit fails stays";
  ASSERT_EQ(Platform.aBoxes.size(), 2U);
  EXPECT_EQ(Platform.aBoxes[0].sText, "Unhandler Error in Reader\r\ntoo much");
  EXPECT_FALSE(Window.ctlProgress.Visible);
  EXPECT_FALSE(Window.Busy());
  State.OnCall = {};
  Next();
  EXPECT_EQ(Window.CurrentPage(), 5);
}

TEST_F(Wizard, ClosingTheWindowUnloads) {
  OpenAt(1);
  EXPECT_TRUE(Window.QueryClose());
  EXPECT_EQ(Calls(), "release");
  EXPECT_TRUE(aStops.empty());
  Next();  // a late press finds nobody behind the window
  Window.cmdBack_Click();
}

TEST_F(Wizard, PagesCanBeTakenOut) {
  Open();
  Window.DeletePage(4);
  Window.DeleteLastPage();
  EXPECT_EQ(Window.Pages(), (std::vector<int>{0, 1, 3, 5}));
}

}  // namespace
}  // namespace vrek
