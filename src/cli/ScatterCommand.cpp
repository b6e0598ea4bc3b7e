#include <algorithm>
#include <cstdio>
#include <memory>

#include "base/Numbers.h"
#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/LogSession.h"
#include "cli/PictureOptions.h"
#include "presets/ScatterFilters.h"
#include "scatter/frmScatterFilter.h"

namespace tarnview {
namespace {

struct ScatterOptions : LogOptions {
  std::optional<int> x, y, colourBy, shape, size, colour;
  bool density = false;
  std::vector<std::string> filters;
  std::string preset;
  PictureOptions picture;
  std::string exportFile;
  bool json = false;
};

std::string CheckFilter(const std::string& text) {
  const auto parts = Split(text, ':');
  if (parts.size() != 3 || !IsNumeric(parts[0]))
    return "a filter is ITEM:FROM:TO, a bound may be empty";
  for (const std::string& bound : {parts[1], parts[2]})
    if (!Trim(bound).empty() && !IsNumeric(bound)) return "\"" + bound + "\" is no number";
  return "";
}

clsScatterFilter ParseFilter(const std::string& text) {
  const auto parts = Split(text, ':');
  const auto bound = [](std::string_view word) {
    if (Trim(word).empty()) return kBoundNotSet;
    return StringToDouble(word);
  };
  return {bound(parts[2]), bound(parts[1]), StringToLong(parts[0])};
}

bool Refuse(const char* what, const std::string& which) {
  std::fprintf(stderr, "tarnview-cli: %s %s\n", what, which.c_str());
  return false;
}

/// Enters a filter into the window's own; false if it was refused.
bool EnterFilter(LogSession& session, frmScatterGraph& window, const clsScatterFilter& filter) {
  const int family =
      session.Global().kinds.gcolLogFamilies.FirstLogFamily(session.Log().gintCurrentFileType);
  const DataItemList items = FilterItems(session.Global().catalogue, family);
  if (std::none_of(items.begin(), items.end(),
                   [&](auto* item) { return item->intSeq == filter.lngDataItemSeq; }))
    return Refuse("no filter can be on data item", std::to_string(filter.lngDataItemSeq));
  const int before = window.objFilters().Count();
  session.Host().work = [&](Form& form) {
    auto& dialog = dynamic_cast<frmScatterFilter&>(form);
    dialog.SetScatterFilter(filter, family, true);
    dialog.cmdOK.Press();
  };
  window.cmdFilterNew.Press();
  session.Host().work = nullptr;
  return window.objFilters().Count() > before;
}

/// Fills the window in as a user would; false, with the reason told, where that cannot be done.
bool FillIn(LogSession& session, frmScatterGraph& window, const ScatterOptions& options) {
  if (!options.preset.empty() && !window.ApplyNamed(FromUtf8(options.preset)))
    return Refuse("this log has no preset scatter graph", "\"" + options.preset + "\"");
  const ScatterRequest set = window.Request();
  const int x = options.x.value_or(set.xItem), y = options.y.value_or(set.yItem);
  if (!window.ChooseAxes(x, y))
    return Refuse("the axes cannot be data items", NumberText(x) + " and " + NumberText(y));
  if (options.colourBy && !window.ChooseColourBy(*options.colourBy))
    return Refuse("the points cannot be coloured by data item", std::to_string(*options.colourBy));
  window.mnuViewDensity.Checked = options.density;
  window.Style().Show({options.shape.value_or(set.style.lngPointShape),
                       options.size.value_or(set.style.lngPointSize),
                       options.colour.value_or(set.style.lngPointColour)});
  return std::all_of(options.filters.begin(), options.filters.end(), [&](const std::string& text) {
    return EnterFilter(session, window, ParseFilter(text));
  });
}

/// What the chart received; without points where nothing was drawn.
Json Tell(LogSession& session, const frmScatterGraph& window) {
  ChartDescription chart = window.chScatterGraph.Data();
  if (!chart.Cloud()) {
    const ScatterRequest set = window.Request();
    PointCloud& none = chart.kind.emplace<PointCloud>();
    none.xItem = set.xItem;
    none.yItem = set.yItem;
    List filters;
    for (const clsScatterFilter& filter : set.objFilters)
      filters.emplace_back(FilterPrintString(filter, *session.Log().gcolDataItems));
    chart.facts = {{"filters", std::move(filters)}};
  }
  Json out = ToJson(Describe(chart));
  out["messages"] = MessagesJson(session.Host().messages);
  return out;
}

bool Export(LogSession& session, frmScatterGraph& window, const ScatterOptions& options) {
  if (options.exportFile.empty()) return true;
  session.Host().nextFile = Answer{Answer::Kind::File, options.exportFile, 0, 0};
  window.mnuFileExport.Do({"click", {}});
  return window.Exported();
}

int Scatter(const ScatterOptions& options) {
  LogSession session(options);
  if (options.picture.scheme)
    session.Global().settings.gintGraphColourScheme = *options.picture.scheme;
  if (!session.Open() || !session.Log().gblnSamplesLoaded) return kFailed;
  if (!options.items.empty()) {
    session.Window().Details().SetCheckedItems(session.Items(false));
    session.Window().chkShowCheckedOnly.Value = true;
  }
  session.EnterRange();
  frmScatterGraph& window = session.Window().Scatter().OpenScatterGraph();
  const bool filled = FillIn(session, window, options);
  if (filled) window.cmdDrawGraph.Press();
  const ChartDescription& chart = window.chScatterGraph.Data();
  if (options.json) Print(Tell(session, window));
  if (chart.Cloud() && Export(session, window, options) && DrawPicture(chart, options.picture))
    return kDone;
  return kFailed;
}

void AddStyleOptions(CLI::App& command, ScatterOptions& options) {
  command.add_option("--shape", options.shape, "Shape of the points, 0 to 9")
      ->check(CLI::Range(0, 9));
  command.add_option("--size-of-points", options.size, "1 to 10")->check(CLI::Range(1, 10));
  command.add_option("--colour", options.colour, "Of the points: blue x 65536 + green x 256 + red")
      ->check(CLI::Range(0, 0x1000000));
  command.add_option("--colour-by", options.colourBy,
                     "Data item that gives the points their colours");
  command.add_flag("--density", options.density, "Shade the points that fall together");
}

}  // namespace

void AddScatterCommand(CLI::App& program, int& status) {
  CLI::App* command =
      program.add_subcommand("scatter", "Draws one data item against another, or tells it as JSON");
  command->footer(
      "Example:\n  tarnview-cli scatter run.txt --x 3 --y 36 --filter 5:100: --out af.png");
  auto options = std::make_shared<ScatterOptions>();
  options->AddTo(*command);
  command->add_option("--x", options->x, "Data item of the X axis");
  command->add_option("--y", options->y, "Data item of the Y axis");
  command
      ->add_option("--filter", options->filters,
                   "ITEM:FROM:TO keeps samples within bounds, one of which may be empty; may stand "
                   "often. Of an item "
                   "with listed values FROM is the value's place")
      ->allow_extra_args(false)
      ->check(CheckFilter);
  command->add_option("--preset", options->preset,
                      "Start from the first preset scatter graph of this name");
  AddStyleOptions(*command, *options);
  options->picture.AddTo(*command);
  command->add_flag("--json", options->json, "Print what the chart receives");
  command->add_option("--export", options->exportFile,
                      "Write the points into this file, as Export does");
  command->callback([options, &status] {
    if (options->picture.out.empty() && options->exportFile.empty() && !options->json)
      throw CLI::ValidationError("scatter", "needs --out, --export or --json");
    status = Scatter(*options);
  });
}

}  // namespace tarnview
