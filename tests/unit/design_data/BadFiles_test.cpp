// Listings with one defect each, under tests/data/bad: what the user gets to see, and what the log says of
// it.
#include "ReaderTest.h"

namespace vrek::test {
namespace {

struct TBadFile {
  const char* sName;
  const char* sReader;       // the source of the failure; null: refused without a word
  const char* sDescription;  // of the failure
  const char* sLogged;       // the line that the log shows; "" for none
  friend void PrintTo(const TBadFile& File, std::ostream* pOut) { *pOut << File.sName; }
};

class BadListing : public ReaderTest, public ::testing::WithParamInterface<TBadFile> {};

bool Read(const std::string& sPath) {
  const std::string_view sForm = std::string_view(sPath).substr(sPath.size() - 4);
  THzElements aHz;
  TVtElements aVt;
  TCrData Cr;
  if (sForm == ".plt") return Entry::ImportHzAligment(aHz, sPath);
  return sForm == ".trv" ? Entry::ImportCrAligment(Cr, sPath) : Entry::ImportVtAligment(aVt, sPath);
}

TEST_P(BadListing, IsRefused) {
  const TBadFile& File = GetParam();
  const std::string sPath = std::string(VREK_TEST_DATA) + "/bad/" + File.sName;
  ASSERT_TRUE(std::filesystem::exists(sPath) || File.sDescription == std::string_view("File not found"));
  EXPECT_FALSE(Read(sPath));
  EXPECT_EQ(BoxText(), File.sReader == nullptr
                           ? ""
                           : "Unhandler Error in " + std::string(File.sReader) + "\r\n" + File.sDescription);
  const bool bLogged = File.sLogged[0] != 0;
  const std::string sMessage = bLogged ? "Msg " + sPath + ", " + File.sLogged + "\r\n" : "Msg ";
  EXPECT_EQ(Log().find(sMessage) != std::string::npos, bLogged) << Log();
}

constexpr const char* sSubscript = "Subscript out of range";
constexpr const char* sPastEnd = "Input past end of file";
constexpr const char* sInvalid = "Invalid procedure call or argument";

// clang-format off
const TBadFile aBadFiles[] = {
    {"NoSuchFile.plt",                 "ImportHzMarked",   "File not found", ""},
    {"NoSuchFile.alz",                 "ImportVtAligment", "File not found", ""},
    {"NoSuchFile.trv",                 "ImportCrAligment", "File not found", ""},
    {"NoSuchFile.rtf",                 "ImportVtAligment", "File not found", ""},
    {"Empty.rtf",                      nullptr,            "",         ""},
    {"Empty.plt",                      "ImportHzMarked",   sPastEnd,   ""},
    {"Empty.alz",                      nullptr,            "",         ""},
    {"Empty.trv",                      nullptr,            "",         ""},
    {"NoMarker.plt",                   nullptr,            "",         ""},
    {"NothingBehindTheMarker.plt",     "ImportHzMarked",   sPastEnd,   ""},
    {"BlankLineBehindTheMarker.plt",   "ImportHzMarked",   sSubscript, "line 2: "},
    {"ThreeFieldsOnAPointLine.plt",    "ImportHzMarked",   sSubscript, "line 3: 120.000,1084.853,2084.853"},
    {"EndsInsideAClothoid.plt",        "ImportHzMarked",   sSubscript, "line 4: 180.000,1128.913,2125.523,57.6394,250.000,122.474"},
    {"ChainageBeyondAllNumbers.plt",   "ImportHzMarked",   "Overflow", ""},
    {"UnknownMarker.alz",              nullptr,            "",         ""},
    {"NoRuleLine.alz",                 nullptr,            "",         ""},
    {"EndsBehindAPageEnd.alz",         nullptr,            "",         ""},
    {"BlankCurveField.alz",            "ImportVtMarked",   sInvalid,   "line 3: 100,1P,  "},
    {"CurveOnTheLastVertex.alz",       "ImportVtMarked",   sSubscript, "line 3: 100,1P,30T"},
    {"EmptyLineInABlock.alz",          "ImportVtPrinted",  sInvalid,   "line 8: "},
    {"EndsWithItsRuleLine.alz",        "ImportVtPrinted",  sPastEnd,   ""},
    {"NoCount.trv",                    "ImportCrMarked",   sSubscript, "line 3: 1000.000"},
    {"CountBeyond32Bits.trv",          "ImportCrMarked",   "Overflow", "line 3: 1000.000,2147483648"},
    {"TwoFieldsOnAPointLine.trv",      "ImportCrMarked",   sSubscript, "line 5: 3.0,512.1"},
    {"SkipsMoreThanThereIs.trv",       "ImportCrMarked",   sPastEnd,   ""},
    {"OneSection.trv",                 nullptr,            "",         ""},
    {"EndsBehindASection.trv",         "ImportCrPrinted",  sPastEnd,   ""},
    {"SevenColumns.trv",               "ImportCrPrinted",  sSubscript, "line 3:  1.0 2.0"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Files, BadListing, ::testing::ValuesIn(aBadFiles), [](const auto& Info) {
  std::string sName = Info.param.sName;
  std::replace(sName.begin(), sName.end(), '.', '_');
  return sName;
});

TEST_F(ReaderTest, AnUnwritableLogDoesNotHideWhatIsWrong) {
  const std::string sPath = WriteFile("a.plt", "*PLT\r\n1,2\r\n3,4\r\n");
  Platform.sTempDirectory = "/no/such/directory/";
  THzElements aHz;
  EXPECT_ANY_THROW(Entry::ImportHzAligment(aHz, sPath));
  EXPECT_EQ(BoxText(), "Unhandler Error in ImportHzMarked\r\nSubscript out of range");
}

}  // namespace
}  // namespace vrek::test
