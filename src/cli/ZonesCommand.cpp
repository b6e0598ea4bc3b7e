#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>

#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/LogSession.h"
#include "zoneeditor/LogOnMap.h"
#include "zones/ChipIdentity.h"
#include "zones/MapFile.h"
#include "zones/ZoneGrid.h"
#include "zones/ZoneNames.h"
#include "zones/ZoneSheet.h"

namespace tarnview {
namespace {

struct ZonesOptions {
  LogOptions file;
  std::string compareWith, grid;
  std::string to;  ///< the map to write; with a grid, the last Sample of its range
  bool json = false;
};

/// The zones of a MAP file or a log; nothing, and the messages say why.
std::optional<ZoneMap> ZonesOf(const LogOptions& options) {
  LogSession session(options);
  if (!session.Open()) return std::nullopt;
  if (session.Log().gblnZonesLoaded) return MapOf(session.Log().zones);
  session.TellMessage(Message::ZonesNotLoaded);
  return std::nullopt;
}

/// "RPM" of "Rev Limit (RPM)"; "" for a label without.
std::string UnitOf(std::string_view label) {
  const auto open = label.find('('), close = label.find(')');
  if (open < close && close != label.npos)
    return std::string(label.substr(open + 1, close - open - 1));
  return "";
}

/// Of a cell its own name, "zf215".
std::string LabelOf(const ZoneSheet& sheet, int zone) {
  const std::string_view label = FieldLabel(sheet, zone);
  if (label.empty()) return GridCellName(zone);
  return std::string(label);
}

/// Flags have no number to show: their boxes stand beside.
bool IsShown(const ZoneSheet& sheet, int zone) { return !LabelOf(sheet, zone).empty(); }

Json ShownJson(const ZoneSheet& sheet) {
  Json shown = Json::array();
  for (int zone = 0; zone < static_cast<int>(sheet.shown.size()); ++zone) {
    if (!IsShown(sheet, zone)) continue;
    const std::string label = LabelOf(sheet, zone);
    const bool field = !FieldLabel(sheet, zone).empty();
    shown.push_back({{"index", zone},
                     {"name", ZoneName(zone)},
                     {"label", label},
                     {"value", FieldText(sheet, zone)},
                     {"unit", UnitOf(label)},
                     {"exists", !field || FieldExists(sheet, zone)}});
  }
  return shown;
}

Json BoxesJson(const ZoneSheet& sheet) {
  Json boxes = Json::array();
  for (int i = 0; i < kTicks; ++i)
    boxes.push_back({{"label", Trim(TickCaption(Tick{i}, sheet.chip))},
                     {"ticked", sheet.Ticked(Tick{i})},
                     {"exists", TickExists(sheet, Tick{i})}});
  return boxes;
}

Json ChipJson(const ZoneMap& map) {
  return {{"engine_size", ToJson(map.chip.dblEngineSize)},
          {"chip_date", DateText(map.chip.datChipDate)},
          {"chip_version", map.chip.intChipVersion},
          {"atmospheric_pressure", map.intAtmosphericPressure}};
}

Json MapJson(const ZoneMap& map) {
  const ZoneSheet sheet = OpenSheet(map);
  return {{"chip", ChipJson(map)},
          {"notes", ToUtf8(map.strNotes)},
          {"zones", map.zones},
          {"map_id", sheet.MAPID},
          {"auto_tune", sheet.autoTuneType},
          {"o2_sensor", sheet.O2Sensor},
          {"boost_unit", std::string(BoostUnit(sheet))},
          {"boxes", BoxesJson(sheet)},
          {"shown", ShownJson(sheet)}};
}

/// As the editor shows each side, by its own chip; flags as their bits.
std::string ShownText(const ZoneMap& map, const ZoneSheet& sheet, int zone) {
  const auto raw = map.zones[static_cast<std::size_t>(zone)];
  if (IsShown(sheet, zone)) return FieldText(sheet, zone);
  return std::to_string(raw);
}

Json DifferencesJson(const ZoneMap& here, const ZoneMap& there) {
  const ZoneSheet hereShown = OpenSheet(here), thereShown = OpenSheet(there);
  Json differences = Json::array();
  for (int zone = 0; zone < static_cast<int>(here.zones.size()); ++zone) {
    const auto at = static_cast<std::size_t>(zone);
    if (here.zones[at] == there.zones[at]) continue;
    differences.push_back({{"index", zone},
                           {"name", ZoneName(zone)},
                           {"here", ShownText(here, hereShown, zone)},
                           {"there", ShownText(there, thereShown, zone)}});
  }
  return {{"differences", std::move(differences)},
          {"chip_here", ChipJson(here)},
          {"chip_there", ChipJson(there)}};
}

int Compare(const ZonesOptions& options, const ZoneMap& here) {
  LogOptions other;
  other.log = options.compareWith;
  other.settings = options.file.settings;
  const auto there = ZonesOf(other);
  if (!there) return kFailed;
  Print(DifferencesJson(here, *there));
  return kDone;
}

struct ShowName {
  const char* name;
  GridShow show;
};
constexpr ShowName kShows[] = {
    {"visits", GridShow::Visits}, {"error", GridShow::Error}, {"knock", GridShow::Knock}};

std::vector<std::string> ShowNames() {
  std::vector<std::string> names;
  for (const ShowName& row : kShows) names.emplace_back(row.name);
  return names;
}

Json GridJson(const OpenLog& log, const LogOnMap& drive, GridShow show) {
  Json rows = Json::array(), columns = Json::array(), count = Json::array(), value = Json::array();
  for (int column = 1; column <= kGridColumns; ++column)
    columns.push_back(ZoneColumnHeading(column - 1));
  for (int row = 1; row <= kGridRows; ++row) {
    rows.push_back(ZoneRowHeading(log.zones.gblnZoneLayout6, row));
    Json counts = Json::array(), values = Json::array();
    for (int column = 1; column <= kGridColumns; ++column) {
      const auto told = drive.Value(show, row, column);
      counts.push_back(drive.At(row, column).samples);
      values.push_back(told ? ToJson(*told) : Json());
    }
    count.push_back(std::move(counts));
    value.push_back(std::move(values));
  }
  return {{"rows", rows}, {"columns", columns}, {"count", count}, {"value", value}};
}

/// What the drive of a log says of each cell.
int GridOfLog(const ZonesOptions& options) {
  LogOptions file = options.file;
  if (!options.to.empty()) {
    if (const std::string fault = CheckNumber(options.to); !fault.empty())
      throw CLI::ValidationError("--to", fault);
    file.to = options.to;
  }
  LogSession session(file);
  if (!session.Open()) return kFailed;
  if (!session.Log().gblnZonesLoaded || !session.Log().gblnSamplesLoaded) {
    session.TellMessage(session.Log().gblnZonesLoaded ? Message::TooFewRecords
                                                      : Message::ZonesNotLoaded);
    return kFailed;
  }
  session.EnterRange();
  const OpenLog& log = session.Log();
  const DrivenRange range =
      RangeOfSamples(log, session.Window().PlotFrom(), session.Window().PlotTo());
  const auto* shown = std::find_if(std::begin(kShows), std::end(kShows),
                                   [&](const ShowName& one) { return options.grid == one.name; });
  Print(GridJson(log, ReadLogOnMap(log, range), shown->show));
  return kDone;
}

int Zones(const ZonesOptions& options) {
  if (!options.grid.empty()) return GridOfLog(options);
  const auto map = ZonesOf(options.file);
  if (!map) return kFailed;
  if (!options.to.empty()) {
    RealFileSystem files;
    if (!WriteMapFile(files, options.to, *map, RealClock().Now())) {
      LogSession(options.file).TellMessage(Message::SomethingWentWrong);
      return kFailed;
    }
  }
  if (!options.compareWith.empty()) return Compare(options, *map);
  if (options.json || options.to.empty()) Print(MapJson(*map));
  return kDone;
}

}  // namespace

void AddZonesCommand(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand(
      "zones", "Tells, compares or writes the zone settings of a map or a log");
  command->footer(
      "Example:\n  tarnview-cli zones run.txt --to run.map\n"
      "  tarnview-cli zones run.txt --grid error --from 1200 --to 1900");
  auto options = std::make_shared<ZonesOptions>();
  options->file.AddOpeningTo(*command, "FILE", "A MAP file, or a log with zones");
  command->add_flag("--json", options->json, "Every value as the zone editor shows it");
  command->add_option("--compare", options->compareWith, "The differences to this map or log");
  command->add_option("--to", options->to,
                      "Write a MAP file; with --grid, the last Sample of the range");
  command
      ->add_option("--grid", options->grid,
                   "What the drive says of each cell: visits, error (air/fuel, per cent off its "
                   "target) or knock")
      ->check(CLI::IsMember(ShowNames()));
  command->callback([options, &status] { status = Zones(*options); });
}

}  // namespace tarnview
