#include "batch/Arguments.h"

#include <CLI/CLI.hpp>
#include <ostream>

#include "base/Configuration.h"
#include "base/ST.h"
#include "batch/Completion.h"
#include "batch/ExitStatus.h"

namespace vrek::batch {
namespace {

// What the options of one conversion are read into.
struct TConvertOptions {
  TJob Job;
  std::vector<std::string> aJobFiles;
  int nProcesses = 0;
  bool bFromCentre = false, bLeftFromRight = false, bRightFromLeft = false;
};

// A number as a person would type it; the text is kept as given.
void AddNumber(CLI::App& App, const std::string& sName, std::optional<std::string>& sValue,
               const std::string& sHelp) {
  App.add_option_function<std::string>(
         sName, [&sValue](const std::string& sText) { sValue = sText; }, sHelp)
      ->type_name("METRES")
      ->check([](const std::string& sText) {
        return ST::IsReal(sText) ? std::string()
                                 : "\"" + sText + "\" is no number: write metres, as 1200 or 1200.5";
      });
}

void AddFile(CLI::App& App, const std::string& sName, std::string& sPath, const std::string& sHelp) {
  App.add_option(sName, sPath, sHelp)->type_name("FILE");
}

void AddCommon(CLI::App& App, TConvertOptions& Options, bool bCheckOnly) {
  auto& Job = Options.Job;
  auto* pOutput = App.add_option("-o,--output", Job.sOutput, "the LandXML file to write")->type_name("FILE");
  if (!bCheckOnly) pOutput->required();
  App.add_option("-n,--name", Job.sName, "name of the data; the output file's name without it")
      ->type_name("TEXT");
  App.add_option("--creator", Job.sCreator, "author of the document; the user's name without it")
      ->type_name("TEXT");
  App.add_option("--plot", Job.sPlot, "draw what was written, plan over profile, into an SVG file")
      ->type_name("FILE.svg");
  AddNumber(App, "--tolerance-hz", Job.sToleranceHz, "tolerance of the plan's check (0.010)");
  AddNumber(App, "--tolerance-vt", Job.sToleranceVt, "tolerance of the profile's check (0.010)");
  AddNumber(App, "--from", Job.sFrom, "first chainage");
  AddNumber(App, "--to", Job.sTo, "last chainage");
  App.add_option_function<std::string>(
         "--layers",
         [&Job](const std::string& sText) {
           Job.aLayers.emplace();
           for (const auto& sName : CLI::detail::split(sText, ',')) {
             if (const auto sTrimmed = ST::Trim(sName); !sTrimmed.empty())
               Job.aLayers->emplace_back(sTrimmed);
           }
         },
         "cross-section layers to write, separated by commas")
      ->type_name("A,B");
  App.add_option("--formats", Job.nFormats, "jobs on offer: 1 road, 2 tunnel, 4 rail, or their sum")
      ->type_name("MASK")
      ->check(CLI::Range(0, 32767));
}

void AddRoad(CLI::App& App, TConvertOptions& Options) {
  auto& Files = Options.Job.aFiles[0];
  AddFile(App, "--hz", Files.sHorizontal, "horizontal alignment listing");
  AddFile(App, "--vt", Files.sVertical, "vertical alignment listing");
  AddFile(App, "--cross", Files.sThird, "cross-section listing");
}

void AddTunnel(CLI::App& App, TConvertOptions& Options) {
  auto& Files = Options.Job.aFiles[0];
  AddFile(App, "--hz", Files.sHorizontal, "horizontal alignment listing");
  AddFile(App, "--vt", Files.sVertical, "vertical alignment listing");
  AddFile(App, "--tunnel", Files.sThird, "tunnel profiles");
}

void AddRail(CLI::App& App, TConvertOptions& Options) {
  auto& Files = Options.Job.aFiles[0];
  AddFile(App, "--hz", Files.sHorizontal, "horizontal alignment listing");
  AddFile(App, "--vt", Files.sVertical, "vertical alignment listing");
  AddFile(App, "--cant", Files.sCant, "cant table");
}

void AddDouble(CLI::App& App, TConvertOptions& Options) {
  constexpr const char* aSides[] = {"centre", "left", "right"};
  for (std::size_t n = 0; n < 3; ++n) {
    const std::string sSide = aSides[n];
    auto& Files = Options.Job.aFiles[n];
    AddFile(App, "--" + sSide + "-hz", Files.sHorizontal, "horizontal alignment listing, " + sSide);
    AddFile(App, "--" + sSide + "-vt", Files.sVertical, "vertical alignment listing, " + sSide);
    if (n > 0) AddFile(App, "--" + sSide + "-cant", Files.sCant, "cant table, " + sSide + " track");
  }
  auto* pCentre = App.add_flag("--vt-from-centre", Options.Job.aFiles[0].bVerticalOption,
                               "generate the tracks' vertical alignments from the centre's");
  auto* pLeft = App.add_flag("--left-vt-from-right", Options.Job.aFiles[1].bVerticalOption,
                             "generate the left track's vertical alignment from the right one's");
  auto* pRight = App.add_flag("--right-vt-from-left", Options.Job.aFiles[2].bVerticalOption,
                              "generate the right track's vertical alignment from the left one's");
  pCentre->excludes(pLeft)->excludes(pRight);
  pLeft->excludes(pRight);
}

// The five commands, below the program itself or below "check".
struct TCommands {
  std::vector<CLI::App*> aJobs;  // in the order of the jobs
  CLI::App* pRun = nullptr;
};

TCommands AddCommands(CLI::App& App, TConvertOptions& Options, bool bCheckOnly) {
  constexpr const char* aHelp[] = {"a road with its cross-sections", "a tunnel with its profiles",
                                   "a single track with its cant table", "a double track"};
  constexpr std::array<void (*)(CLI::App&, TConvertOptions&), 4> aAdd = {AddRoad, AddTunnel, AddRail,
                                                                         AddDouble};
  TCommands Commands;
  for (std::size_t n = 0; n < 4; ++n) {
    auto* pCommand =
        App.add_subcommand(aJobNames[n], std::string(bCheckOnly ? "check " : "convert ") + aHelp[n]);
    aAdd[n](*pCommand, Options);
    AddCommon(*pCommand, Options, bCheckOnly);
    Commands.aJobs.push_back(pCommand);
  }
  Commands.pRun = App.add_subcommand("run", bCheckOnly ? "check what job files name" : "run job files");
  Commands.pRun->add_option("job", Options.aJobFiles, "job files (TOML)")->required()->type_name("JOB.toml");
  Commands.pRun
      ->add_option("-j,--jobs", Options.nProcesses,
                   "run so many job files at a time, each in a process of its own")
      ->type_name("N")
      ->check(CLI::Range(1, 256));
  return Commands;
}

void TakeJobs(const TCommands& Commands, const TConvertOptions& Options, TArguments& Arguments) {
  for (std::size_t n = 0; n < Commands.aJobs.size(); ++n) {
    if (!Commands.aJobs[n]->parsed()) continue;
    Arguments.Job = Options.Job;
    Arguments.Job->nJob = static_cast<int>(n);
  }
  Arguments.aJobFiles = Options.aJobFiles;
  Arguments.nProcesses = Options.nProcesses;
}

}  // namespace

std::optional<TArguments> ReadArguments(int argc, const char* const* argv, std::ostream& Out,
                                        std::ostream& Err, int& nStatus) {
  TArguments Arguments;
  TConvertOptions Options, CheckOptions;
  CLI::App App("Converts road, rail and tunnel listings to LandXML 1.0.", "vrek-batch");
  App.set_version_flag("--version", "vrek-batch " + std::string(Configuration::sVersion));
  App.require_subcommand(1);
  App.fallthrough();
  App.add_flag("--json", Arguments.bJson, "tell the outcome as JSON on the standard output");
  App.add_flag("-q,--quiet", Arguments.bQuiet, "say nothing on the standard error");
  const auto Convert = AddCommands(App, Options, false);
  auto* pCheck = App.add_subcommand("check", "import and check only, write nothing");
  pCheck->require_subcommand(1);
  pCheck->fallthrough();
  const auto Check = AddCommands(*pCheck, CheckOptions, true);
  AddCompletion(App, Out);
  try {
    App.parse(argc, argv);
    Arguments.bCheckOnly = pCheck->parsed();
    TakeJobs(Arguments.bCheckOnly ? Check : Convert, Arguments.bCheckOnly ? CheckOptions : Options,
             Arguments);
    return Arguments;
  } catch (const CLI::ParseError& Error) {
    if (App.get_subcommands().empty() && argc > 1 && argv[1][0] != '-') {
      Err << "vrek-batch: unknown command \"" << argv[1] << "\"\n";
    }
    nStatus = App.exit(Error, Out, Err) == 0 ? eConverted : eUsage;
  }
  return {};
}

}  // namespace vrek::batch
