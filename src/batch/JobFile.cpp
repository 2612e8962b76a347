#include "batch/JobFile.h"

#include <toml++/toml.h>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <initializer_list>
#include <sstream>
#include <string_view>

#include "base/Failure.h"
#include "platform/TextFile.h"

namespace vrek::batch {
namespace {

// A table of the job file that knows where it stands, for messages.
class CReader {
 public:
  CReader(const toml::table& Table, std::string sFile, std::string sSection)
      : m_Table(Table), m_sFile(std::move(sFile)), m_sSection(std::move(sSection)) {}

  void AllowOnly(std::initializer_list<std::string_view> aKeys) const {
    for (const auto& [Key, Node] : m_Table) {
      if (std::find(aKeys.begin(), aKeys.end(), Key.str()) == aKeys.end()) {
        Fail(Node, "unknown key \"" + Name(Key.str()) + "\"");
      }
    }
  }

  std::optional<std::string> Text(std::string_view sKey) const {
    const auto* pNode = m_Table.get(sKey);
    if (!pNode) return {};
    if (!pNode->is_string()) Fail(*pNode, "\"" + Name(sKey) + "\" must be a text in quotes");
    return pNode->as_string()->get();
  }

  // A number as it would be typed, without an exponent.
  std::optional<std::string> Number(std::string_view sKey) const {
    const auto* pNode = m_Table.get(sKey);
    if (!pNode) return {};
    if (pNode->is_integer()) return std::to_string(pNode->as_integer()->get());
    if (!pNode->is_floating_point() || !std::isfinite(pNode->as_floating_point()->get())) {
      Fail(*pNode, "\"" + Name(sKey) + "\" must be a number");
    }
    char aText[400];
    const auto End = std::to_chars(aText, aText + sizeof aText, pNode->as_floating_point()->get(),
                                   std::chars_format::fixed);
    return std::string(aText, End.ptr);
  }

  std::optional<int> Integer(std::string_view sKey) const {
    const auto* pNode = m_Table.get(sKey);
    if (!pNode) return {};
    if (!pNode->is_integer()) Fail(*pNode, "\"" + Name(sKey) + "\" must be a whole number");
    const auto nValue = pNode->as_integer()->get();
    if (nValue < 0 || nValue > 32767) Fail(*pNode, "\"" + Name(sKey) + "\" is out of range");
    return static_cast<int>(nValue);
  }

  bool Flag(std::string_view sKey) const {
    const auto* pNode = m_Table.get(sKey);
    if (!pNode) return false;
    if (!pNode->is_boolean()) Fail(*pNode, "\"" + Name(sKey) + "\" must be true or false");
    return pNode->as_boolean()->get();
  }

  std::optional<std::vector<std::string>> Texts(std::string_view sKey) const {
    const auto* pNode = m_Table.get(sKey);
    if (!pNode) return {};
    std::vector<std::string> aOut;
    const auto* pArray = pNode->as_array();
    if (!pArray) Fail(*pNode, "\"" + Name(sKey) + "\" must be a list of texts");
    for (const auto& Item : *pArray) {
      if (!Item.is_string()) Fail(Item, "\"" + Name(sKey) + "\" must be a list of texts");
      aOut.push_back(Item.as_string()->get());
    }
    return aOut;
  }

  std::optional<CReader> Section(std::string_view sKey) const {
    const auto* pNode = m_Table.get(sKey);
    if (!pNode) return {};
    if (!pNode->is_table()) Fail(*pNode, "\"" + std::string(sKey) + "\" must be a section");
    return CReader(*pNode->as_table(), m_sFile, std::string(sKey));
  }

  [[noreturn]] void Fail(const toml::node& Node, const std::string& sWhat) const {
    throw UsageError(m_sFile + ":" + std::to_string(Node.source().begin.line) + ": " + sWhat);
  }

 private:
  std::string Name(std::string_view sKey) const {
    return m_sSection.empty() ? std::string(sKey) : m_sSection + "." + std::string(sKey);
  }

  const toml::table& m_Table;
  std::string m_sFile, m_sSection;
};

std::string Beside(const std::string& sJobFile, const std::optional<std::string>& sPath) {
  if (!sPath || sPath->empty()) return {};
  return (std::filesystem::path(sJobFile).parent_path() / *sPath).string();
}

TAligmentFiles ReadFiles(const CReader& Section, const std::string& sPath, std::string_view sOption) {
  TAligmentFiles Files;
  Files.sHorizontal = Beside(sPath, Section.Text("horizontal"));
  Files.sVertical = Beside(sPath, Section.Text("vertical"));
  Files.sCant = Beside(sPath, Section.Text("cant"));
  if (!sOption.empty()) Files.bVerticalOption = Section.Flag(sOption);
  return Files;
}

// Each job has its own sections and slots; a key that its page has no slot for is a mistake worth telling.
void ReadAligments(TJob& Job, const CReader& Root, const std::string& sPath) {
  if (Job.nJob != 3) {
    const auto Section = Root.Section("alignment");
    if (!Section) throw UsageError(sPath + ": the section [alignment] is missing");
    const char* sThird = Job.nJob == 0 ? "cross_sections" : Job.nJob == 1 ? "tunnel" : "cant";
    Section->AllowOnly({"horizontal", "vertical", sThird});
    Job.aFiles[0] = ReadFiles(*Section, sPath, "");
    if (Job.nJob != 2) Job.aFiles[0].sThird = Beside(sPath, Section->Text(sThird));
    return;
  }
  constexpr const char* aSections[] = {"centre", "left", "right"};
  for (std::size_t n = 0; n < 3; ++n) {
    const auto Section = Root.Section(aSections[n]);
    if (!Section) continue;
    const char* sOption = n == 0 ? "generate_track_verticals" : "vertical_from_other_track";
    if (n == 0) {
      Section->AllowOnly({"horizontal", "vertical", sOption});
    } else {
      Section->AllowOnly({"horizontal", "vertical", "cant", sOption});
    }
    Job.aFiles[n] = ReadFiles(*Section, sPath, sOption);
  }
}

TJob ReadJob(const toml::table& Table, const std::string& sPath) {
  const CReader Root(Table, sPath, "");
  TJob Job;
  const auto sJob = Root.Text("job");
  const auto it = std::find(aJobNames.begin(), aJobNames.end(), sJob.value_or(""));
  if (it == aJobNames.end()) {
    throw UsageError(sPath + ": \"job\" must be one of \"road\", \"tunnel\", \"rail\" and \"double\"");
  }
  Job.nJob = static_cast<int>(it - aJobNames.begin());
  if (Job.nJob == 3) {
    Root.AllowOnly({"job", "output", "plot", "name", "creator", "formats", "tolerance", "export", "centre",
                    "left", "right"});
  } else {
    Root.AllowOnly(
        {"job", "output", "plot", "name", "creator", "formats", "tolerance", "export", "alignment"});
  }
  Job.sOutput = Beside(sPath, Root.Text("output"));
  Job.sPlot = Beside(sPath, Root.Text("plot"));
  Job.sName = Root.Text("name").value_or("");
  Job.sCreator = Root.Text("creator").value_or("");
  Job.nFormats = Root.Integer("formats");
  if (const auto Section = Root.Section("tolerance")) {
    Section->AllowOnly({"horizontal", "vertical"});
    Job.sToleranceHz = Section->Number("horizontal");
    Job.sToleranceVt = Section->Number("vertical");
  }
  if (const auto Section = Root.Section("export")) {
    Section->AllowOnly({"from", "to", "layers"});
    Job.sFrom = Section->Number("from");
    Job.sTo = Section->Number("to");
    Job.aLayers = Section->Texts("layers");
  }
  ReadAligments(Job, Root, sPath);
  return Job;
}

// The text of a job file, of a shape that the parser, which goes deeper with each point of a key, can take.
std::string PlainText(const std::string& sPath) {
  constexpr std::size_t nMostBytes = 65536;
  constexpr std::ptrdiff_t nMostPoints = 256;
  auto sText = ReadWholeFile(sPath);
  if (sText.size() > nMostBytes) {
    throw UsageError(sPath + ": longer than " + std::to_string(nMostBytes) + " bytes");
  }
  std::istringstream Lines(sText);
  int nLine = 0;
  for (std::string sLine; std::getline(Lines, sLine);) {
    ++nLine;
    if (std::count(sLine.begin(), sLine.end(), '.') <= nMostPoints) continue;
    throw UsageError(sPath + ":" + std::to_string(nLine) + ": more than " + std::to_string(nMostPoints) +
                     " points in a line");
  }
  return sText;
}

}  // namespace

TJob ReadJobFile(const std::string& sPath) {
  std::error_code Ignored;
  if (std::filesystem::is_directory(sPath, Ignored))
    throw UsageError(sPath + ": is a folder, not a job file");
  try {
    auto Job = ReadJob(toml::parse(PlainText(sPath), sPath), sPath);
    Job.sJobFile = sPath;
    return Job;
  } catch (const toml::parse_error& Error) {
    const auto nLine = Error.source().begin.line;
    throw UsageError(sPath + (nLine > 0 ? ":" + std::to_string(nLine) : "") + ": " +
                     std::string(Error.description()));
  } catch (const Failure& Error) {
    throw UsageError(sPath + ": " + Error.sDescription);
  }
}

std::vector<TJobFile> ReadJobFiles(const std::vector<std::string>& aPaths, bool bNeedsOutput) {
  std::vector<TJobFile> aOut;
  for (const auto& sPath : aPaths) {
    aOut.push_back({sPath, {}, {}});
    try {
      auto Job = ReadJobFile(sPath);
      if (bNeedsOutput && Job.sOutput.empty()) throw UsageError(sPath + ": \"output\" is missing");
      aOut.back().Job = std::move(Job);
    } catch (const UsageError& Error) {
      aOut.back().sFault = Error.what();
    }
  }
  return aOut;
}

}  // namespace vrek::batch
