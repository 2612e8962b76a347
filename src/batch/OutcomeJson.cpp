#include "batch/OutcomeJson.h"

#include <nlohmann/json.hpp>

namespace vrek::batch {
namespace {

using nlohmann::ordered_json;

ordered_json AsJson(const TOutcome& Outcome) {
  ordered_json Json{{"job", Outcome.sJob},           {"output", Outcome.sOutput},
                    {"valid", Outcome.bValid},       {"fault", Outcome.sFault},
                    {"imported", Outcome.bImported}, {"exported", Outcome.bExported}};
  Json["files"] = ordered_json::array();
  for (const auto& File : Outcome.aFiles) {
    Json["files"].push_back(
        {{"key", File.sKey}, {"name", File.sName}, {"mark", File.nMark}, {"report", File.sReport}});
  }
  Json["summary"] = ordered_json::array();
  for (const auto& Page : Outcome.aSummary) {
    auto Rows = ordered_json::array();
    for (const auto& Row : Page.aRows) {
      Rows.push_back({{"row", Row.nRow}, {"label", Row.sLabel}, {"value", Row.sValue}, {"unit", Row.sUnit}});
    }
    Json["summary"].push_back({{"page", Page.nPage}, {"title", Page.sTitle}, {"rows", Rows}});
  }
  Json["layers"] = ordered_json::array();
  for (const auto& Layer : Outcome.aLayers) {
    Json["layers"].push_back({{"name", Layer.sName}, {"selected", Layer.bSelected}});
  }
  Json["messages"] = ordered_json::array();
  for (const auto& Message : Outcome.aMessages) {
    ordered_json Entry{{"kind", Message.bBox ? "message box" : Message.bWarning ? "warning" : "log"}};
    if (Message.bBox) Entry["icon"] = Message.sIcon;
    Entry["text"] = Message.sText;
    Json["messages"].push_back(Entry);
  }
  return Json;
}

std::string AsText(const ordered_json& Json) {
  // A path may hold bytes that are no UTF-8: these show as replacement characters.
  return Json.dump(1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

}  // namespace

std::string OutcomesAsJson(const std::vector<TOutcome>& aOutcomes) {
  if (aOutcomes.size() == 1) return AsText(AsJson(aOutcomes.front()));
  auto Json = ordered_json::array();
  for (const auto& Outcome : aOutcomes) Json.push_back(AsJson(Outcome));
  return AsText(Json);
}

std::string JoinOutcomes(const std::vector<std::string>& aOutcomes) {
  auto Json = ordered_json::array();
  for (const auto& sOutcome : aOutcomes) {
    auto Outcome = ordered_json::parse(sOutcome, nullptr, false);
    if (!Outcome.is_discarded()) Json.push_back(std::move(Outcome));
  }
  return AsText(Json);
}

std::string OutcomeOfBrokenRun(const std::string& sJobFile, const std::string& sWords,
                               const std::string& sSaid) {
  TOutcome Outcome;
  Outcome.aMessages.push_back({false, "", sJobFile + ": " + sWords, false});
  if (!sSaid.empty()) Outcome.aMessages.push_back({false, "", sSaid, false});
  return AsText(AsJson(Outcome));
}

}  // namespace vrek::batch
