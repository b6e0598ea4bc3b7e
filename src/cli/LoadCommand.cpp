#include <memory>

#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/LogSession.h"
#include "model/clsFileTypes.h"
#include "zones/ZoneFlags.h"

namespace tarnview {
namespace {

Json TagsJson(const clsLogTags& tags) {
  Json out = Json::array();
  for (int n = 1; n <= tags.Count(); ++n) out.push_back({tags.Item(n).FromSequence, tags.Item(n).ToSequence});
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

int Load(const LogOptions& options) {
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
  out["definition"] = universal ? ToUtf8(session.Global().gclsDataLogDefinition.strName) : "";
  out["messages"] = MessagesJson(session.Host().messages);
  Print(out);
  return ok ? kDone : kFailed;
}

}  // namespace

void AddLoadCommand(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand("load", "Opens a log and tells what it holds, as JSON");
  command->footer("Example:\n  tarnview-cli load run.txt");
  auto options = std::make_shared<LogOptions>();
  options->AddTo(*command);
  command->callback([options, &status] { status = Load(*options); });
}

}  // namespace tarnview
