#include "shell/ErrHandler.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "shell/RepeatedFailures.h"
#include "support/TestApp.h"

namespace vrek {
namespace {

using ErrHandlerTest = test::AppTest;

TEST_F(ErrHandlerTest, ShowsAndLogsByTheNumber) {
  const std::string sUnhandled = "Unhandler Error in Where\r\nWhat happened";
  const auto eWarning = EIcon::eWarning, eCritical = EIcon::eCritical;
  // clang-format off
  const struct {
    int nNumber;
    bool bDebugMode;
    std::string sBox;  // "" for none
    EIcon eIcon;
    bool bLogged;
  } aCases[] = {
      {10000, false, "E_NOTFILLALL",                     eWarning,  false},
      {10001, false, "E_SAMENAME",                       eWarning,  false},
      {10002, false, "E_NOTFINDXMLELM",                  eWarning,  false},
      {10003, false, "E_OPENLANDXML\r\nWhat happened",   eWarning,  false},
      {10011, true,  "E_NOVALIDFILE",                    eWarning,  false},
      {20001, false, "E_FILE_SUPER",                     eWarning,  false},
      {20002, true,  "E_FILE_SUPER_VER",                 eWarning,  false},
      {20000, false, "",                                 eWarning,  true},   // an assertion
      {20000, true,  "ASSERT in Where\r\nWhat happened", eWarning,  false},
      {2222,  false, sUnhandled,                         eCritical, true},   // cancelled
      {53,    true,  sUnhandled,                         eCritical, true},
      {-7,    false, sUnhandled,                         eCritical, true}};
  // clang-format on
  for (const auto& Case : aCases) {
    SCOPED_TRACE(std::to_string(Case.nNumber) + (Case.bDebugMode ? " by hand" : " hosted"));
    std::filesystem::remove(Directory / "KTVO_Converters.log");
    Platform.aBoxes.clear();
    Model.DebugMode = Case.bDebugMode;
    ErrHandler({Case.nNumber, "What happened", "Where"});
    ASSERT_EQ(Platform.aBoxes.size(), Case.sBox.empty() ? 0u : 1u);
    for (const auto& Box : Platform.aBoxes) {
      EXPECT_EQ(Box.sText, Case.sBox);
      EXPECT_EQ(Box.eIcon, Case.eIcon);
    }
    const auto sEntry = "==== 01-02-2026  03:04:05 ====\r\nError: " + std::to_string(Case.nNumber) +
                        " What happened in Where\r\n";
    EXPECT_EQ(Log(), Case.bLogged ? sEntry : "");
  }
}

TEST_F(ErrHandlerTest, AppendsCodePageBytesToTheLogAndTellsOfEachEntry) {
  std::vector<std::string> aTold;
  Model.OnLogged = [&](std::string_view sText) { aTold.emplace_back(sText); };
  LogMessage("Peñón €");
  LogError({5, "Ω", "Aquí"});
  EXPECT_EQ(Log(), "Msg Pe\xF1\xF3n \x80\r\n==== 01-02-2026  03:04:05 ====\r\nError: 5 ? in Aqu\xED\r\n");
  EXPECT_EQ(aTold, (std::vector<std::string>{"Msg Peñón €", "Error: 5 Ω in Aquí"}));
}

TEST_F(ErrHandlerTest, PassesOnThatTheLogCanNotBeOpened) {
  Platform.sTempDirectory = (Directory / "missing/").string();
  try {
    Guard("Reader", [] { Raise(Error::nOverflow); });
    ADD_FAILURE() << "no failure came out";
  } catch (const Failure& Caught) {
    EXPECT_EQ(Caught.nNumber, Error::nPathNotFound);
  }
  EXPECT_EQ(Platform.aBoxes.size(), 1u);  // the user saw the first failure all the same
}

TEST_F(ErrHandlerTest, GuardNamesTheRoutineAndGivesItsFallback) {
  EXPECT_EQ(Guard("Reader", -1, []() -> int { Raise(Error::nTypeMismatch, "Type mismatch", "Inner"); }), -1);
  EXPECT_EQ(Guard("Reader", -1, []() -> int { throw std::bad_alloc(); }), -1);
  EXPECT_EQ(Guard("Reader", -1, []() -> int { throw std::out_of_range("x"); }), -1);
  EXPECT_EQ(Guard("Reader", -1, [] { return 4; }), 4);
  ASSERT_EQ(Platform.aBoxes.size(), 3u);
  EXPECT_EQ(Platform.aBoxes[0].sText, "Unhandler Error in Reader\r\nType mismatch");
  EXPECT_EQ(Platform.aBoxes[1].sText, "Unhandler Error in Reader\r\nOut of memory");
  EXPECT_EQ(Platform.aBoxes[2].sText, "Unhandler Error in Reader\r\nInvalid procedure call or argument");
}

TEST_F(ErrHandlerTest, TellsARepeatedFailureOnceWhileALoopIsWatched) {
  const auto Fail = [](const char* sSource) { Guard(sSource, [] { Raise(Error::nOverflow); }); };
  {
    const CRepeatedFailures OnceEach;
    for (int i = 0; i < 4; ++i) {
      const CRepeatedFailures Inner;
      Fail("Sample");
    }
    Fail("Other");
    EXPECT_EQ(Platform.aBoxes.size(), 2u);
  }
  EXPECT_THAT(Log(), ::testing::EndsWith("in Other\r\nMsg Overflow in Sample: 3 times more\r\n"));
  Fail("Other");
  EXPECT_EQ(Platform.aBoxes.size(), 3u) << "afterwards each is told again";

  Platform.sTempDirectory = (Directory / "missing/").string();
  EXPECT_NO_THROW({
    const CRepeatedFailures OnceEach;
    EXPECT_ANY_THROW(Fail("Sample")) << "no log";
    Fail("Sample");
  });
}

TEST_F(ErrHandlerTest, TopLevelReportsWhateverRisesToIt) {
  EXPECT_TRUE(TopLevel([] {}));
  EXPECT_FALSE(TopLevel([] { Raise(Error::nXmlElementMissing, "Element missing", "Deep"); }));
  ASSERT_EQ(Platform.aBoxes.size(), 1u);
  EXPECT_EQ(Platform.aBoxes[0].sText, "Unhandler Error in Deep\r\nElement missing");
  EXPECT_NE(Log().find("Error: 10002 Element missing in Deep"), std::string::npos);

  Platform.sTempDirectory = (Directory / "missing/").string();
  EXPECT_FALSE(TopLevel([] { Raise(Error::nOverflow); }));
  EXPECT_EQ(Platform.aBoxes.size(), 2u);
}

TEST_F(ErrHandlerTest, ReportsToTheConsoleBeforeThereIsAnApplicationObject) {
  SetAppModel(nullptr);
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(TopLevel([] { AppModel(); }));
  EXPECT_EQ(Guard("Early", 3, []() -> int { Raise(Error::nOverflow); }), 3);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            "Unhandler Error in \nObject variable or With block variable not set\n"
            "Unhandler Error in Early\nOverflow\n");
}

}  // namespace
}  // namespace vrek
