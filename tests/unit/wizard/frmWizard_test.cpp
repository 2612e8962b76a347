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

struct TMove {
  int nFrom;
  char cButton;  // B, N or C
  const char* sCalls;
  int nTo;
  bool bBack, bCancel;  // enabled then
  const char* sNext;
  int nStop;  // code of the process, -1: it lives on
  friend void PrintTo(const TMove& Case, std::ostream* pOut) {
    *pOut << Case.cButton << " on page " << Case.nFrom;
  }
};

class Moves : public Wizard, public ::testing::WithParamInterface<TMove> {};

TEST_P(Moves, CallThePagesAndSetTheButtons) {
  const auto& Move = GetParam();
  OpenAt(Move.nFrom);
  switch (Move.cButton) {
    case 'B':
      Window.cmdBack_Click();
      break;
    case 'N':
      Window.cmdNext_Click();
      break;
    default:
      Window.cmdCancel_Click();
  }
  EXPECT_EQ(Calls(), Move.sCalls);
  EXPECT_EQ(Window.CurrentPage(), Move.nTo);
  EXPECT_EQ(Window.SSTabWizard.Tab, Move.nTo);
  EXPECT_EQ(Window.cmdBack.Enabled, Move.bBack);
  EXPECT_EQ(Window.cmdCancel.Enabled, Move.bCancel);
  EXPECT_EQ(Window.cmdNext.Caption, Move.sNext);
  EXPECT_EQ(aStops, Move.nStop < 0 ? std::vector<int>{} : std::vector<int>{Move.nStop});
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Table, Moves, ::testing::Values(
    TMove{0, 'B', "",         0, false, true,  "BT_NEXT",   -1},
    TMove{0, 'N', "out0 in1", 1, true,  true,  "BT_NEXT",   -1},
    TMove{0, 'C', "",         0, false, true,  "BT_NEXT",    1},
    TMove{1, 'B', "",         0, false, true,  "BT_NEXT",   -1},
    TMove{1, 'N', "out1 in3", 3, true,  true,  "BT_NEXT",   -1},
    TMove{1, 'C', "",         1, true,  true,  "BT_NEXT",    1},
    TMove{3, 'B', "",         1, true,  true,  "BT_NEXT",   -1},
    TMove{3, 'N', "out3 in4", 4, true,  true,  "BT_NEXT",   -1},
    TMove{4, 'B', "",         3, true,  true,  "BT_NEXT",   -1},
    TMove{4, 'N', "out4 in5", 5, true,  true,  "BT_NEXT",   -1},
    TMove{5, 'B', "",         4, true,  true,  "BT_NEXT",   -1},
    TMove{5, 'N', "out5 in6", 6, true,  false, "BT_FINISH", -1},
    TMove{5, 'C', "",         5, true,  true,  "BT_NEXT",    1},
    TMove{6, 'B', "out6",     5, true,  true,  "BT_NEXT",   -1},
    TMove{6, 'N', "release",  6, true,  false, "BT_FINISH",  0},
    TMove{6, 'C', "",         6, true,  false, "BT_FINISH", -1}));
// clang-format on

TEST_F(Wizard, StaysOnAPageThatMayNotBeLeft) {
  OpenAt(1);
  State.aExit[1] = false;
  Next();
  EXPECT_EQ(Calls(), "out1");
  EXPECT_EQ(Window.CurrentPage(), 1);
  EXPECT_FALSE(Window.Busy());
  State.aExit[1] = true;
  Next();
  EXPECT_EQ(Window.CurrentPage(), 3);
}

TEST_F(Wizard, PassesOverAPageThatDeclinesAndComesBackToItWithItsTitle) {
  OpenAt(4);
  State.aIntro[5] = false;
  State.aIntro[6] = false;  // nobody asks the page behind it
  State.OnCall = [this](const std::string& sCall) {
    if (sCall == "in5") Window.lblTitle.Caption = "five";
  };
  Next();
  EXPECT_EQ(Calls(), "out4 in5 in6");
  EXPECT_EQ(Window.CurrentPage(), 6);
  Window.cmdBack_Click();
  EXPECT_EQ(Window.CurrentPage(), 5);
  EXPECT_EQ(Window.lblTitle.Caption, "five");
}

TEST_F(Wizard, BringsThePagesTitleBack) {
  State.OnCall = [this](const std::string& sCall) { Window.lblTitle.Caption = sCall; };
  Open();
  Next(2);
  Window.cmdBack_Click();
  EXPECT_EQ(Window.lblTitle.Caption, "in1");
}

TEST_F(Wizard, WithOneJobTypeBeginsAtTheFiles) {
  for (const int nMask : {1, 2}) {
    State.aCalls.clear();
    Open(nMask);
    EXPECT_EQ(Calls(), "in1");
    EXPECT_EQ(Window.CurrentPage(), 1);
    EXPECT_FALSE(Window.cmdBack.Enabled);
    Window.cmdBack_Click();
    EXPECT_EQ(Window.CurrentPage(), 1);
    Next();
    EXPECT_TRUE(Window.cmdBack.Enabled);
    Window.cmdBack_Click();
    EXPECT_FALSE(Window.cmdBack.Enabled);
  }
}

TEST_F(Wizard, IgnoresPressesWhileAPageWorks) {
  OpenAt(3);
  Platform.OnMessages = [this] {
    Window.cmdNext_Click();
    Window.cmdBack_Click();
    Window.cmdCancel_Click();
  };
  State.OnCall = [this](const std::string& sCall) {
    if (sCall == "in4") Window.ctlProgress.Info("working");
  };
  Next();
  EXPECT_EQ(Calls(), "out3 in4");
  EXPECT_EQ(Window.CurrentPage(), 4);
  EXPECT_TRUE(aStops.empty());
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

TEST_F(Wizard, ClosingTheWindowUnloadsAndWaitsForWork) {
  OpenAt(1);
  EXPECT_TRUE(Window.QueryClose());
  EXPECT_EQ(Calls(), "release");
  EXPECT_TRUE(aStops.empty());
  Next();  // a late press finds nobody behind the window
  Window.cmdBack_Click();

  OpenAt(3);
  bool bClosed = true;
  State.OnCall = [&](const std::string&) { bClosed = Window.QueryClose(); };
  Next();
  EXPECT_FALSE(bClosed);
  EXPECT_TRUE(Window.CloseWanted());
  EXPECT_TRUE(Window.ctlProgress.CancelPressed());
}

TEST_F(Wizard, PagesCanBeTakenOut) {
  Open();
  Window.DeletePage(4);
  Window.DeleteLastPage();
  EXPECT_EQ(Window.Pages(), (std::vector<int>{0, 1, 3, 5}));
}

}  // namespace
}  // namespace vrek
