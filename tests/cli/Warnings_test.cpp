// What the program warns of: the same whether it converts or only checks.
#include <algorithm>
#include <sstream>

#include "Program.h"

namespace vrek {
namespace {

class CommandWarnings : public test::ProgramTest {
 protected:
  /// The warnings of a conversion, a line each, once a check has been seen to give the same.
  std::string Of(std::vector<std::string> aArguments) {
    const auto sChecked = Told(aArguments, true);
    const auto sTold = Told(aArguments, false);
    EXPECT_EQ(sChecked, sTold);
    return sTold;
  }

 private:
  std::string Told(std::vector<std::string> aArguments, bool bCheck) {
    if (bCheck) aArguments.insert(aArguments.begin(), "check");
    const auto Result = Run(aArguments);
    EXPECT_EQ(Result.nStatus, 0) << Result.sErr;
    std::string sOut;
    std::istringstream Lines(Result.sErr);
    for (std::string sLine; std::getline(Lines, sLine);) {
      if (sLine.starts_with("warning: ")) sOut += sLine.substr(9) + "\n";
    }
    return sOut;
  }
};

TEST_F(CommandWarnings, OfTheRange) {
  EXPECT_EQ(Of(RoadArguments()), "");
  EXPECT_EQ(Of(RoadArguments({"--from", "100", "--to", "400"})), "") << "who asks for less means it";
  EXPECT_EQ(
      Of(RoadArguments({"--from", "900", "--to", "1000"})),
      "The range 900.000 to 1000.000 lies outside the plan \"Axis 1\", which goes from 0.000 to 800.000, so "
      "the document is of no use. Give a range on the plan.\n");
  EXPECT_EQ(
      Of(RoadArguments({"--from", "500", "--to", "100"})),
      "The range begins at 500.000, behind its end at 100.000, so the document is of no use. Give a range "
      "that rises; the axis goes from 0.000 to 800.000.\n");
  EXPECT_EQ(Of(RoadArguments({"--from", "1e400"})).substr(0, 36), "The range begins at ∞, behind its ");
}

TEST_F(CommandWarnings, OfWhatTheAxisLeavesOut) {
  Write("short.plt",
        "*PLT\r\n0.000,431200.0000,4581300.0000,44.444444,0.000,0.0000\r\n"
        "120.000,431277.1345,4581391.9253,44.444444,0.000,0.0000\r\n");
  auto aArguments = RoadArguments();
  *std::find(aArguments.begin(), aArguments.end(), Example("road/Axis 1.plt")) = "short.plt";
  EXPECT_EQ(Of(aArguments).substr(0, 60), "The profile \"Axis 1\" has elements outside the range 0.000 to");
}

TEST_F(CommandWarnings, OfALayerThatIsNotOnOffer) {
  EXPECT_EQ(Of(RoadArguments({"--layers", " Rasante , Taludes"})), "")
      << "blanks around a name aren't part of it";
  EXPECT_EQ(Of(RoadArguments({"--layers", "Rasante,Cunetes"})),
            "The layer \"Cunetes\" isn't on offer, so nothing of it is written. On offer: Taludes, Cunetas, "
            "Subrasante, Rasante.\n");
  EXPECT_EQ(Of({"rail", "--hz", Example("rail/Track.plt"), "-o", "out.xml", "--layers", "A"}),
            "The layer \"A\" isn't on offer, so nothing of it is written. On offer: none.\n");
}

}  // namespace
}  // namespace vrek
