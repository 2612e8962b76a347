#include "shell/CommandLine.h"

#include <cstdint>
#include <limits>
#include <vector>

#include "base/Failure.h"
#include "shell/AppModel.h"
#include "shell/ErrHandler.h"

namespace vrek {
namespace {

int nFormatsOnOffer = 0;

struct TFormatWord {
  int nBit;
  std::string_view sWord;
};
constexpr TFormatWord aFormatWords[] = {{1, "Road"}, {2, "Tunnel"}, {4, "Rail"}, {8, "PLA"}, {16, "DTM"}};

constexpr std::string_view sSaveFilter = "File xml (*.XML)|*.XML|";
constexpr std::string_view sQuote = "\"";

/// "Road,Tunnel": one word for each bit that is set, lowest first.
std::string FormatWords(int nMask) {
  std::string sWords;
  for (const TFormatWord& Word : aFormatWords) {
    if ((nMask & Word.nBit) == 0) continue;
    if (!sWords.empty()) sWords += ',';
    sWords += Word.sWord;
  }
  return sWords;
}

std::vector<std::string_view> SplitAtBlanks(std::string_view sText) {
  std::vector<std::string_view> aArgs;
  for (std::size_t nBlank; (nBlank = sText.find(' ')) != std::string_view::npos;
       sText.remove_prefix(nBlank + 1)) {
    aArgs.push_back(sText.substr(0, nBlank));
  }
  aArgs.push_back(sText);
  return aArgs;
}

std::string ValueBehind(const std::vector<std::string_view>& aArgs, std::size_t nOption) {
  if (nOption + 1 >= aArgs.size()) Raise(Error::nSubscript);
  return GetBetween(aArgs[nOption + 1], sQuote, sQuote, 1);
}

/// Stores the values of -o and -n; gives whether -reg stands among the tokens.
bool ReadOptions(const std::vector<std::string_view>& aArgs) {
  bool bRegister = false;
  for (std::size_t i = 0; i < aArgs.size(); ++i) {
    if (aArgs[i] == "-reg") bRegister = true;
    if (aArgs[i] == "-o") AppModel().XmlFileToExport = ValueBehind(aArgs, i);
    if (aArgs[i] == "-n") AppModel().ConversionInfo.sJobName = ValueBehind(aArgs, i);
  }
  return bRegister;
}

bool AskForOutputFile() {
  AppModel().DebugMode = true;
  const std::string sName = "out_v" + std::string(Configuration::sVersion) + ".xml";
  const std::string sAnswer = AppModel().Platform().pDialogs->SaveFile(sSaveFilter, sName);
  if (sAnswer.empty()) return false;
  AppModel().XmlFileToExport = sAnswer;
  return true;
}

void WriteRegistration(const std::string& sPath) {
  const auto File = AppModel().Platform().pOutputFiles->Create(sPath);
  File->Write("[Info]\r\n");
  File->Write("Name=" + std::string(Configuration::sName) + "\r\n");
  File->Write("Description=" + std::string(Configuration::sDescription) + "\r\n");
  File->Write("Format=" + FormatWords(FormatsSupport()) + "\r\n");
  File->Close();
}

constexpr std::size_t nNotFound = 0;

/// Position (from 1) of the first sSought at or behind nStart, or 0.
std::size_t FindFrom(std::string_view sText, std::string_view sSought, std::size_t nStart) {
  const std::size_t nHit = sText.find(sSought, nStart - 1);
  return nHit == std::string_view::npos ? nNotFound : nHit + 1;
}

/// Positions are 16-bit numbers.
std::size_t Position(std::size_t nValue) {
  if (nValue > std::numeric_limits<std::int16_t>::max()) Raise(Error::nOverflow);
  return nValue;
}

}  // namespace

bool InitFormats(int nMask) {
  nFormatsOnOffer = nMask;
  return true;
}

int FormatsSupport() {
  return nFormatsOnOffer;
}

bool ReadLineCommand(std::string_view sCommandLine) {
  return Guard("ReadLineCommand", false, [&] {
    const std::vector<std::string_view> aArgs = SplitAtBlanks(sCommandLine);
    if (aArgs.size() < 2) return AskForOutputFile();
    if (!ReadOptions(aArgs)) return true;
    WriteRegistration(AppModel().XmlFileToExport);
    return false;
  });
}

std::string GetBetween(std::string_view sText, std::string_view sOpen, std::string_view sClose, int nStart) {
  if (nStart < 1) Raise(Error::nInvalidCall);
  const std::size_t nOpen = FindFrom(sText, sOpen, static_cast<std::size_t>(nStart));
  const std::size_t nFrom = Position(nOpen + sOpen.size());
  if (nFrom == 0) return {};
  const std::size_t nClose = Position(FindFrom(sText, sClose, nFrom));
  if (nClose <= nFrom) return {};
  return std::string(sText.substr(nFrom - 1, nClose - nFrom));
}

}  // namespace vrek
