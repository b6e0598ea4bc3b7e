#include <cstdio>
#include <memory>

#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/LogSession.h"
#include "cli/PictureLibrary.h"

namespace tarnview {
namespace {

struct GraphOptions : LogOptions {
  std::string preset;
  std::string quick = "Y";
  std::optional<int> fixMax;
  std::optional<int> scheme;
  std::string out;
  std::string size = "1400x800";
  bool json = false;
};

constexpr int kLeastSide = 50;
constexpr int kGreatestSide = 20000;  // pixels

/// "1400x800"; false for anything else.
bool ParseSize(const std::string& text, int& width, int& height) {
  char after = 0;
  return std::sscanf(text.c_str(), "%dx%d%c", &width, &height, &after) == 2 && width >= kLeastSide &&
         height >= kLeastSide && width <= kGreatestSide && height <= kGreatestSide;
}

std::string CheckSize(const std::string& text) {
  int width = 0, height = 0;
  return ParseSize(text, width, height) ? "" : "a size is WIDTHxHEIGHT in pixels, 50 to 20000";
}

std::string CheckPicture(const std::string& path) {
  for (const char* ending : {".png", ".svg", ".pdf"})
    if (path.ends_with(ending)) return "";
  return "a picture's name ends in .png, .svg or .pdf";
}

/// Fills the window in as a user would and presses Draw; false if no graph came of it.
bool DrawInWindow(LogSession& session, const GraphOptions& options) {
  frmDataLogViewer& window = session.Window();
  window.chkQuickGraph.Value = options.quick == "Y";
  if (options.scheme) session.Global().settings.gintGraphColourScheme = *options.scheme;
  if (!session.Open() || !session.Log().gblnSamplesLoaded) return false;
  if (!options.items.empty()) window.Details().SetCheckedItems(session.Items(false));
  if (!options.preset.empty() && !window.Presets().ApplyNamed(FromUtf8(options.preset))) {
    std::fprintf(stderr, "tarnview-cli: this log has no preset graph \"%s\"\n", options.preset.c_str());
    return false;
  }
  if (options.fixMax) {
    window.chkFixY.Value = true;
    window.txtYMax.Text = std::to_string(*options.fixMax);
  }
  session.EnterRange();
  window.cmdDrawGraph.Press();
  return !window.chSampleGraph.Data().series.empty();
}

bool DrawPicture(const ChartDescription& chart, const GraphOptions& options) {
  int width = 0, height = 0;
  ParseSize(options.size, width, height);
  std::string error;
  PictureMaker* pictures = LoadPictureMaker(error);
  if (pictures && pictures->Draw(chart, options.out, width, height, error)) return true;
  std::fprintf(stderr, "tarnview-cli: cannot draw %s: %s\n", options.out.c_str(), error.c_str());
  return false;
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
  if (!drawn) return kFailed;
  return options.out.empty() || DrawPicture(chart, options) ? kDone : kFailed;
}

}  // namespace

void AddGraphCommand(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand("graph", "Draws the Sample Graph of a log, or tells it as JSON");
  command->footer("Example:\n  tarnview-cli graph run.txt --items 3,5,20 --out run.png --size 1400x800");
  auto options = std::make_shared<GraphOptions>();
  options->AddTo(*command);
  command->add_option("--preset", options->preset, "Draw the first preset graph of this name")
      ->excludes(command->get_option("--items"));
  command->add_option("--quick", options->quick, "Quick Graph, Y or N (Y)")->check(CLI::IsMember({"Y", "N"}));
  command->add_option("--fix-max", options->fixMax, "Fix the vertical maximum");
  command->add_option("--scheme", options->scheme, "1 grey, 2 black, 3 white")->check(CLI::Range(1, 3));
  command->add_option("--size", options->size, "WIDTHxHEIGHT in pixels (1400x800)")->check(CheckSize);
  auto* out =
      command->add_option("--out", options->out, "Draw into this file: .png, .svg or .pdf")->check(CheckPicture);
  auto* json = command->add_flag("--json", options->json, "Print what the chart receives");
  command->callback([options, out, json, &status] {
    if (out->empty() && json->empty()) throw CLI::ValidationError("graph", "needs --out or --json");
    status = Graph(*options);
  });
}

}  // namespace tarnview
