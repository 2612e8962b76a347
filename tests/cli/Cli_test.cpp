// The program on the command line: what it writes, what it says, how it ends.
#include <algorithm>
#include <nlohmann/json.hpp>

#include "Program.h"

namespace vrek {
namespace {

using nlohmann::json;

class Command : public test::ProgramTest {
 protected:
  static bool Has(const std::string& sText, const std::string& sPart) {
    return sText.find(sPart) != std::string::npos;
  }
  std::vector<std::string> RailArguments(const std::string& sOutput) const {
    return {"rail", "--hz", Example("rail/Track.plt"), "--vt", Example("rail/Track.alz"), "-o", sOutput};
  }
};

TEST_F(Command, ConvertsEveryJob) {
  const std::vector<std::vector<std::string>> aCommands = {
      {"road", "--formats", "1", "--hz", Example("road/Axis 1.plt"), "--vt", Example("road/Axis 1.alz"),
       "--cross", Example("road/Axis 1.trv")},
      {"tunnel", "--formats", "2", "--hz", Example("tunnel/Bore axis.plt"), "--vt",
       Example("tunnel/Bore axis.alz"), "--tunnel", Example("tunnel/Bore profiles.xml")},
      {"rail", "--hz", Example("rail/Track.plt"), "--vt", Example("rail/Track.alz"), "--cant",
       Example("rail/Track cant.xml")},
      {"double", "--centre-hz", Example("double/Axis.plt"), "--centre-vt", Example("double/Axis.alz"),
       "--left-hz", Example("double/Left track.plt"), "--left-cant", Example("double/Left cant.xml"),
       "--right-hz", Example("double/Right track.plt"), "--vt-from-centre", "--right-cant",
       Example("double/Right cant.xml")}};
  for (auto aArguments : aCommands) {
    aArguments.insert(aArguments.end(), {"-o", "out.xml", "-n", "Line 4"});
    const auto Result = Run(aArguments);
    EXPECT_EQ(Result.nStatus, 0) << aArguments[0] << ": " << Result.sErr;
    EXPECT_TRUE(Has(Result.sErr, "written: out.xml"));
    EXPECT_EQ(Result.sOut, "");
    const auto sDocument = Read(Directory / "out.xml");
    EXPECT_TRUE(Has(sDocument, "<Project name=\"Line 4\"")) << aArguments[0];
    EXPECT_TRUE(sDocument.ends_with("</LandXML>\r\n")) << aArguments[0];
    fs::remove(Directory / "out.xml");

    aArguments.insert(aArguments.begin(), "check");
    const auto Checked = Run(aArguments);
    EXPECT_EQ(Checked.nStatus, 0) << Checked.sErr;
    EXPECT_FALSE(fs::exists(Directory / "out.xml")) << "check writes nothing";
  }
}

TEST_F(Command, AnOutcomeThatCanNotBeWrittenIsAFailure) {
  const auto Result = Run({"run", "--json", Project("rail", "a")}, "exec 1>/dev/full;");
  EXPECT_EQ(Result.nStatus, 3);
  EXPECT_TRUE(Has(Result.sErr, "standard output could not be written")) << Result.sErr;
  EXPECT_TRUE(Read(Directory / "a/rail.xml").ends_with("</LandXML>\r\n"));
}

TEST_F(Command, WarnsOfAFileThatIsNotUsed) {
  const auto sCant = Example("rail/Track cant.xml");
  const auto Result = Run({"rail", "--hz", Example("rail/Track.plt"), "--cant", sCant, "-o", "out.xml"});
  EXPECT_EQ(Result.nStatus, 0);
  EXPECT_TRUE(Has(Result.sErr, "warning: " + sCant + " is not used: it needs a vertical alignment"))
      << Result.sErr;
}

TEST_F(Command, TellsWrongUsage) {
  Write("unknown.toml", "job = \"rail\"\noutput = \"o.xml\"\n[alignment]\nhorizontal = \"a\"\nhorizon = 1\n");
  Write("badjob.toml", "job = \"train\"\n");
  Write("nooutput.toml", "job = \"rail\"\n[alignment]\nhorizontal = \"a\"\n");
  Write("kind.toml", "job = \"rail\"\noutput = 4\n[alignment]\n");
  Write("broken.toml", "job = \"rail\"\noutput =\n");
  Write("section.toml", "job = \"rail\"\noutput = \"o\"\n");
  Write("side.toml", "job = \"double\"\noutput = \"o\"\n\n[centre]\ncant = \"c\"\n");
  Write("range.toml", "job = \"rail\"\noutput = \"o\"\nformats = 99999\n[alignment]\n");
  std::string sDeep = "job = \"rail\"\na";
  for (int n = 0; n < 50'000; ++n) sDeep += ".a";
  Write("deep.toml", sDeep.substr(0, 60'000) + " = 1\n");
  Write("long.toml", std::string(70'000, '\n'));
  Write("itself.toml", "job = \"rail\"\noutput = \"itself.toml\"\n[alignment]\nhorizontal = \"a\"\n");
  const std::string sPlan = Example("rail/Track.plt");
  const struct {
    std::vector<std::string> aArguments;
    const char* sSays;
  } aRows[] = {
      {{}, "subcommand"},
      {{"bridge"}, "unknown command \"bridge\""},
      {{"rail", "--hz", sPlan}, "--output is required"},
      {{"rail", "--hz"}, "--hz"},
      {{"rail", "--cross", "x", "-o", "o"}, "--cross"},
      {{"rail", "--hz", sPlan, "-o", "o", "--from", "ten"}, "\"ten\" is no number"},
      {{"rail", "--hz", sPlan, "-o", "o", "--from", "0+200"}, "\"0+200\" is no number: write metres"},
      {{"rail", "--hz", sPlan, "-o", "o", "--to", "1,000.5"}, "\"1,000.5\" is no number"},
      {{"rail", "--hz", sPlan, "-o", "o", "--tolerance-hz", "1e-3"}, "no number"},
      {{"rail", "--hz", sPlan, "-o", "o", "--formats", "-1"}, "--formats"},
      {{"road", "--hz", sPlan, "-o", "o"}, "the job \"road\" isn't on offer with formats 4"},
      {{"double", "-o", "o", "--vt-from-centre", "--left-vt-from-right"}, "excludes"},
      {{"run"}, "job"},
      {{"run", "--jobs", "0", "x.toml"}, "--jobs"},
      {{"run", "nowhere.toml"}, "nowhere.toml"},
      {{"run", "."}, "is a folder"},
      {{"run", "unknown.toml"}, "unknown.toml:5: unknown key \"alignment.horizon\""},
      {{"run", "badjob.toml"}, "badjob.toml: \"job\" must be one of"},
      {{"run", "nooutput.toml"}, "nooutput.toml: \"output\" is missing"},
      {{"run", "kind.toml"}, "kind.toml:2: \"output\" must be a text in quotes"},
      {{"run", "broken.toml"}, "broken.toml:2: "},
      {{"run", "section.toml"}, "[alignment] is missing"},
      {{"run", "side.toml"}, "side.toml:5: unknown key \"centre.cant\""},
      {{"run", "deep.toml"}, "deep.toml:2: more than 256 points"},
      {{"run", "long.toml"}, "long.toml: longer than 65536 bytes"},
      {{"run", "itself.toml"}, "itself.toml is the job file: it would be overwritten"},
      {{"run", "range.toml"}, "range.toml:3: \"formats\" is out of range"},
  };
  for (const auto& Row : aRows) {
    const auto Result = Run(Row.aArguments);
    EXPECT_EQ(Result.nStatus, 2) << Row.sSays << "\n" << Result.sErr;
    EXPECT_TRUE(Has(Result.sErr, Row.sSays)) << Row.sSays << "\n" << Result.sErr;
  }
}

TEST_F(Command, HelpAndVersionAreNoFaults) {
  EXPECT_EQ(Run({"--version"}).sOut, "vrek-batch 2.3.0\n");
  for (const char* sCommand : {"road", "tunnel", "rail", "double", "run", "check"}) {
    const auto Result = Run({sCommand, "--help"});
    EXPECT_EQ(Result.nStatus, 0);
    EXPECT_TRUE(Has(Result.sOut, sCommand));
    EXPECT_EQ(Result.sErr, "");
  }
}

TEST_F(Command, ARefusedFileLeavesAnEarlierOutputAlone) {
  for (const char* sFolder :
       {"broken-xml", "cant-outside-the-profile", "gap-in-the-plan", "kink-in-the-profile", "wrong-marker"}) {
    const auto sJob = Project("faulty/" + std::string(sFolder), sFolder);
    const auto Output = Directory / sFolder / (std::string(sFolder) + ".xml");
    Write(Output.lexically_relative(Directory), "earlier");
    const auto Result = Run({"run", sJob});
    EXPECT_EQ(Result.nStatus, 1) << sFolder;
    EXPECT_TRUE(Has(Result.sErr, "refused: ")) << Result.sErr;
    EXPECT_EQ(Read(Output), "earlier") << sFolder;
    EXPECT_EQ(Run({"check", "run", sJob}).nStatus, 1) << sFolder;
  }
  const auto Missing = Run({"rail", "--hz", "nowhere.plt", "-o", "out.xml"});
  EXPECT_EQ(Missing.nStatus, 1);
  EXPECT_TRUE(Has(Missing.sErr, "can't open nowhere.plt"));
}

TEST_F(Command, AnInputIsNeverTheOutput) {
  const auto sJob = Project("rail", "rail");
  const auto sPlan = (Directory / "rail" / "Track.plt").string();
  const auto sBefore = Read(sPlan);
  for (const std::string& sOutput : {sPlan, (Directory / "rail" / ".." / "rail" / "Track.plt").string()}) {
    const auto Result = Run({"rail", "--hz", sPlan, "-o", sOutput});
    EXPECT_EQ(Result.nStatus, 2);
    EXPECT_TRUE(Has(Result.sErr, "is an input"));
    EXPECT_EQ(Read(sPlan), sBefore);
  }
  fs::create_symlink(sPlan, Directory / "link.xml");
  EXPECT_EQ(Run({"rail", "--hz", sPlan, "-o", "link.xml"}).nStatus, 2);
  fs::create_symlink("later.xml", Directory / "early.xml");
  EXPECT_EQ(Run({"rail", "--hz", sPlan, "-o", "early.xml", "--plot", "later.xml"}).nStatus, 2);
  EXPECT_EQ(Run({"rail", "--hz", sPlan, "-o", "o.xml", "--plot", "./o.xml"}).nStatus, 2);
}

TEST_F(Command, AFullDiskIsToldAndLeavesNothingHalf) {
  const auto Full = Run(RailArguments("/dev/full"));
  EXPECT_EQ(Full.nStatus, 3);
  EXPECT_TRUE(Has(Full.sErr, "could not be written whole: /dev/full")) << Full.sErr;
  Write("out.xml", "earlier");
  // A file may grow to 1 KiB only, which the document doesn't fit into.
  const auto Limited = Run(RailArguments("out.xml"), "trap '' XFSZ; ulimit -f 1;");
  EXPECT_EQ(Limited.nStatus, 3) << Limited.sErr;
  EXPECT_EQ(Read(Directory / "out.xml"), "earlier");
  EXPECT_TRUE(Leftovers().empty());
  EXPECT_EQ(Run(RailArguments("no folder/out.xml")).nStatus, 3);
}

TEST_F(Command, NeedsItsLanguageFile) {
  fs::copy_file(VREK_PROGRAM, Directory / "alone");
  for (const char* sShell : {"", "TMPDIR=/nowhere "}) {
    const auto Result = Run(RailArguments("out.xml"), sShell, (Directory / "alone").string());
    EXPECT_EQ(Result.nStatus, 2) << Result.sErr;
    EXPECT_TRUE(Has(Result.sErr, "the language file QuennelV2.lng isn't beside the program"));
  }
  EXPECT_FALSE(fs::exists(Directory / "out.xml"));
}

TEST_F(Command, TellsTheOutcomeAsJson) {
  const auto Result = Run({"run", Project("rail", "rail"), "--json", "--quiet"});
  ASSERT_EQ(Result.nStatus, 0);
  EXPECT_EQ(Result.sErr, "");
  const auto Json = json::parse(Result.sOut);
  EXPECT_EQ(Json["job"], "rail");
  EXPECT_EQ(Json["valid"], true);
  EXPECT_EQ(Json["fault"], "");
  EXPECT_EQ(Json["imported"], true);
  EXPECT_EQ(Json["exported"], true);
  EXPECT_EQ(Json["files"][1]["key"], "PAGE1@Hz");
  EXPECT_EQ(Json["files"][1]["name"], "Track");
  EXPECT_EQ(Json["files"][1]["mark"], 1);
  EXPECT_EQ(Json["summary"][0]["page"], 1);
  const auto& Row = Json["summary"][0]["rows"][1];
  EXPECT_EQ(Row["row"], 2);
  EXPECT_EQ(Row["value"], "11330.000000");
  EXPECT_EQ(Row["unit"], "m.");
  EXPECT_TRUE(Json["layers"].is_array());
  EXPECT_TRUE(Json["messages"].empty());

  const auto Refused = json::parse(Run({"run", Project("faulty/gap-in-the-plan", "gap"), "--json"}).sOut);
  EXPECT_EQ(Refused["imported"], false);
  EXPECT_EQ(Refused["exported"], false);
  EXPECT_EQ(Refused["files"][1]["mark"], 2);
  EXPECT_TRUE(Has(Refused["files"][1]["report"], "320.0000"));
  const auto Fault = json::parse(Run({"check", "double", "--json"}).sOut);
  EXPECT_EQ(Fault["valid"], false);
  EXPECT_EQ(Fault["fault"], "2,1");
}

TEST_F(Command, JsonHoldsAlsoNamesThatAreNoText) {
  const auto Result = Run({"rail", "--hz", "\xff\xfe.plt", "-o", "\xe9.xml", "--json"});
  EXPECT_EQ(Result.nStatus, 1);
  EXPECT_FALSE(json::parse(Result.sOut, nullptr, false).is_discarded());
}

TEST_F(Command, TheDateComesFromTheEnvironment) {
  const auto Result = Run(RailArguments("out.xml"), "SOURCE_DATE_EPOCH=86400 TZ=UTC");
  ASSERT_EQ(Result.nStatus, 0);
  const auto sDocument = Read(Directory / "out.xml");
  EXPECT_TRUE(Has(sDocument, "date=\"1970-01-02\" time=\"00:00:00\""));
  Run(RailArguments("again.xml"), "SOURCE_DATE_EPOCH=86400 TZ=UTC");
  auto sAgain = Read(Directory / "again.xml");
  sAgain.replace(sAgain.find("name=\"again\""), 12, "name=\"out\"");
  EXPECT_EQ(sAgain, sDocument) << "the output is a function of its input";
}

TEST_F(Command, PathsOfAJobFileAreRelativeToIt) {
  Project("rail", "deep/rail");
  fs::rename(Directory / "deep/rail/job.toml", Directory / "deep/job.toml");
  Write("deep/job.toml",
        "job = \"rail\"\noutput = \"here.xml\"\n[alignment]\nhorizontal = \"rail/Track.plt\"\n"
        "[export]\nfrom = 10100\nto = 10210.5\n[tolerance]\nhorizontal = 0.5\n");
  EXPECT_EQ(Run({"run", "deep/job.toml"}).nStatus, 0);
  EXPECT_TRUE(Has(Read(Directory / "deep/here.xml"), "length=\"310.000000\" staStart=\"10000.000000\""));
  EXPECT_FALSE(fs::exists(Directory / "here.xml"));
}

TEST_F(Command, LayersAreChosenByName) {
  auto aRoad = RoadArguments({"--json", "--layers", "Rasante,Taludes"});
  const auto Json = json::parse(Run(aRoad).sOut);
  std::string sSelected;
  for (const auto& Layer : Json["layers"]) sSelected += Layer["selected"].get<bool>() ? '1' : '0';
  EXPECT_EQ(sSelected, "1001");
  aRoad.back() = "";
  EXPECT_EQ(Run(aRoad).nStatus, 0);
  EXPECT_FALSE(Has(Read(Directory / "out.xml"), "<CrossSects"));
}

}  // namespace
}  // namespace vrek
