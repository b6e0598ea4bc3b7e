#include <cstdio>
#include <memory>

#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/LogSession.h"
#include "cli/PictureOptions.h"

namespace tarnview {
namespace {

struct GraphOptions : LogOptions {
  std::string preset;
  std::string quick = "Y";
  std::optional<int> fixMax;
  PictureOptions picture;
  bool json = false;
};

/// Fills the window in as a user would and presses Draw; false if no graph came of it.
bool DrawInWindow(LogSession& session, const GraphOptions& options) {
  frmDataLogViewer& window = session.Window();
  window.chkQuickGraph.Value = options.quick == "Y";
  if (options.picture.scheme)
    session.Global().settings.gintGraphColourScheme = *options.picture.scheme;
  if (!session.Open() || !session.Log().gblnSamplesLoaded) return false;
  if (!options.items.empty()) window.Details().SetCheckedItems(session.Items(false));
  if (!options.preset.empty() && !window.Presets().ApplyNamed(FromUtf8(options.preset))) {
    std::fprintf(stderr, "tarnview-cli: this log has no preset graph \"%s\"\n",
                 options.preset.c_str());
    return false;
  }
  if (options.fixMax) {
    window.chkFixY.Value = true;
    window.txtYMax.Text = std::to_string(*options.fixMax);
  }
  session.EnterRange();
  window.cmdDrawGraph.Press();
  return !window.chSampleGraph.Data().Series().empty();
}

int Graph(const GraphOptions& options) {
  LogSession session(options);
  const bool drawn = DrawInWindow(session, options);
  const ChartDescription& chart = session.Window().chSampleGraph.Data();
  if (options.json && drawn) {
    Json out = ToJson(Describe(chart));
    out["messages"] = MessagesJson(session.Host().messages);
    Print(out);
  }
  if (drawn && DrawPicture(chart, options.picture)) return kDone;
  return kFailed;
}

}  // namespace

void AddGraphCommand(CLI::App& program, int& status) {
  CLI::App* command =
      program.add_subcommand("graph", "Draws the Sample Graph of a log, or tells it as JSON");
  command->footer(
      "Example:\n  tarnview-cli graph run.txt --items 3,5,20 --out run.png --size 1400x800");
  auto options = std::make_shared<GraphOptions>();
  options->AddTo(*command);
  command->add_option("--preset", options->preset, "Draw the first preset graph of this name")
      ->excludes(command->get_option("--items"));
  command->add_option("--quick", options->quick, "Quick Graph, Y or N (Y)")
      ->check(CLI::IsMember({"Y", "N"}));
  command->add_option("--fix-max", options->fixMax, "Fix the vertical maximum");
  options->picture.AddTo(*command);
  command->add_flag("--json", options->json, "Print what the chart receives");
  command->callback([options, &status] {
    if (options->picture.out.empty() && !options->json)
      throw CLI::ValidationError("graph", "needs --out or --json");
    status = Graph(*options);
  });
}

}  // namespace tarnview
