#include <algorithm>
#include <memory>
#include <span>

#include "base/Numbers.h"
#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/LogSession.h"
#include "model/Column.h"
#include "model/ItemUnits.h"
#include "model/clsFileTypes.h"
#include "zones/ZoneFlags.h"

namespace tarnview {
namespace {

Json TagsJson(const clsLogTags& tags) {
  Json out = Json::array();
  for (int n = 1; n <= tags.Count(); ++n)
    out.push_back({tags.Item(n).FromSequence, tags.Item(n).ToSequence});
  return out;
}

void AddZones(Json& out, const OpenLog& log) {
  const LoadedZones& zones = log.zones;
  const bool link = log.gintCurrentFileType == kFMLinkLog || log.gintCurrentFileType == kMAPFile;
  out["engine_size"] = ToJson(zones.chip.dblEngineSize);
  out["chip_date"] = DateText(zones.chip.datChipDate);
  out["chip_version"] = zones.chip.intChipVersion;
  out["atmospheric_pressure"] = zones.intAtmosphericPressure;
  out["normally_aspirated"] = link && IsNormallyAspirated(zones.zones[zone::kFlags]);
  out["zones"] = link ? Json(zones.zones) : Json::array();
  out["changes"] = log.gblnChangesLoaded ? Json{zones.changes, zones.original} : Json::array();
}

struct LoadOptions : LogOptions {
  bool summary = false;
};

std::string TakenAs(const Globals& globals) {
  const int type = globals.log.gintCurrentFileType;
  if (!globals.takenAs.empty()) return globals.takenAs;
  if (type == kUniversalLog) return "Universal: " + globals.gclsDataLogDefinition.strName;
  if (type > 0) return globals.kinds.gcolFileTypes.Item(type).GetSingularDescription();
  return "";
}

/// An item that the log delivers: its values as they are shown.
Json ItemJson(const OpenLog& log, const clsLogDataItem& item) {
  const std::span<const std::int32_t> cells = log.glngDataLog.Column(item.intSeq - 1);
  double lowest = 0, highest = 0;
  bool any = false;
  for (int row = 0; row < static_cast<int>(cells.size()); ++row) {
    if (!log.glngDataLog.IsLogged(item.intSeq - 1, row)) continue;
    const double value = item.GetRawData(cells[static_cast<std::size_t>(row)]);
    if (any) {
      lowest = std::min(lowest, value);
      highest = std::max(highest, value);
    } else {
      lowest = value;
      highest = value;
    }
    any = true;
  }
  const std::string unit = OrElse(item.strUnit, UnitOfFixedItem(item.intSeq));
  return {{"id", item.intSeq},
          {"name", ToUtf8(item.strShortName)},
          {"long_name", ToUtf8(item.strLongName)},
          {"unit", ToUtf8(unit)},
          {"title", ToUtf8(item.strColumnTitles)},
          {"values", log.glngDataLog.CountLogged(item.intSeq - 1)},
          {"lowest", ToJson(lowest)},
          {"highest", ToJson(highest)}};
}

/// Every item of the log's own, and those of the catalogue that hold anything or that a column of
/// the log feeds.
Json ItemsJson(const OpenLog& log) {
  Json items = Json::array();
  for (int n = 1; log.gblnSamplesLoaded && n <= log.gcolDataItems->Count(); ++n) {
    const clsLogDataItem& item = log.gcolDataItems->Item(n);
    const bool own = item.intSeq > kColumnCount && !item.strShortName.empty();
    if (own || !log.glngDataLog.Column(n - 1).empty()) items.push_back(ItemJson(log, item));
  }
  return items;
}

void AddSummary(Json& out, const Globals& globals) {
  const OpenLog& log = globals.log;
  out["taken_as"] = ToUtf8(TakenAs(globals));
  double span = 0;
  if (log.gblnSamplesLoaded) {
    const clsLogDataItem& seconds = log.gcolDataItems->Item(ItemOf(kSecs));
    const auto at = [&](int row) { return seconds.GetRawData(log.glngDataLog(kSecs, row)); };
    span = at(log.glngDataLog.Rows() - 1) - at(0);
  }
  out["span"] = ToJson(RoundPlaces(span, 4));
  out["items"] = ItemsJson(log);
}

int Load(const LoadOptions& options) {
  LogSession session(options);
  const bool ok = session.Open();
  const OpenLog& log = session.Log();
  if (ok) session.EnterRange();
  Json out{{"ok", ok},
           {"file_type", log.gintCurrentFileType},
           {"title", ShownAsUtf8(session.Window().Caption())},
           {"samples_loaded", log.gblnSamplesLoaded},
           {"zones_loaded", log.gblnZonesLoaded},
           {"changes_loaded", log.gblnChangesLoaded},
           {"samples", log.gblnSamplesLoaded ? log.glngDataLog.Rows() : 0},
           {"first_sample_time", log.glngFirstSampleTime},
           {"last_sample_time", log.glngLastSampleTime},
           {"plot_from", session.Window().PlotFrom()},
           {"plot_to", session.Window().PlotTo()},
           {"first_plot_sample", log.glngFirstPlotSample},
           {"lowest_air_temp", log.glngLowestAirTemp},
           {"tags", TagsJson(log.gcolLogTags)}};
  AddZones(out, log);
  const bool universal = log.gintCurrentFileType == kUniversalLog;
  out["definition"] = TextIf(universal, ToUtf8(session.Global().gclsDataLogDefinition.strName));
  out["messages"] = MessagesJson(session.Host().messages);
  if (options.summary) AddSummary(out, session.Global());
  Print(out);
  if (ok) return kDone;
  return kFailed;
}

}  // namespace

void AddLoadCommand(CLI::App& program, int& status) {
  CLI::App* command =
      program.add_subcommand("load", "Opens a log and tells what it holds, as JSON");
  command->footer("Example:\n  tarnview-cli load run.txt");
  auto options = std::make_shared<LoadOptions>();
  options->AddTo(*command);
  command->add_flag("--summary", options->summary, "Tell the kind, the span and each item as well");
  command->callback([options, &status] { status = Load(*options); });
}

}  // namespace tarnview
