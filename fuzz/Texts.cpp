// The texts that people and hosts write: language file, command lines, job files.
#include <sstream>
#include <string>
#include <vector>

#include "Surroundings.h"
#include "Targets.h"
#include "batch/Arguments.h"
#include "batch/ExitStatus.h"
#include "batch/JobFile.h"
#include "platform/CommandLineText.h"
#include "platform/PosixPlatform.h"
#include "shell/CommandLine.h"

namespace vrek::fuzz {
namespace {

// Lines as arguments, the program's name in front.
std::vector<std::string> Arguments(std::string_view sBytes) {
  std::vector<std::string> aOut{"vrek"};
  std::istringstream Lines{std::string(sBytes)};
  for (std::string sLine; std::getline(Lines, sLine);) aOut.emplace_back(sLine.c_str());
  return aOut;
}

void ReadBatchArguments(const std::vector<const char*>& aArguments) {
  std::ostringstream Out, Err;
  int nStatus = 0;
  const auto Read =
      batch::ReadArguments(static_cast<int>(aArguments.size()), aArguments.data(), Out, Err, nStatus);
  if (Read) {
    Require(Read->Job.has_value() == Read->aJobFiles.empty());
  } else {
    Require(nStatus == batch::eUsage ? !Err.str().empty() : !Out.str().empty());
  }
}

}  // namespace

void Language(std::string_view sBytes) {
  Surroundings Around;
  clsLanguageFile File;
  if (!File.ReadFile(MemoryFile(sBytes).Name())) return;
  for (const auto& Token : File.Tokens()) File.GetToken(Token.sToken);
}

void CommandLine(std::string_view sBytes) {
  Surroundings Around;
  const auto aTexts = Arguments(sBytes);
  std::vector<const char*> aArguments;
  for (const auto& sText : aTexts) aArguments.push_back(sText.c_str());
  ReadLineCommand(CommandLineText(static_cast<int>(aArguments.size()), aArguments.data()));
  ReadLineCommand(sBytes);
  SplitCommand(sBytes);
  ReadBatchArguments(aArguments);
}

void JobFile(std::string_view sBytes) {
  try {
    const batch::TJob Job = batch::ReadJobFile(MemoryFile(sBytes).Path());
    Require(Job.nJob >= 0 && Job.nJob <= 3);
  } catch (const batch::UsageError& Error) {
    Require(*Error.what() != '\0');
  }
}

}  // namespace vrek::fuzz
