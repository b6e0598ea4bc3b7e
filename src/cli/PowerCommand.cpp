#include <algorithm>
#include <cstdio>
#include <memory>

#include "base/Numbers.h"
#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/LogSession.h"
#include "cli/PictureOptions.h"
#include "power/frmCarDefinitionDetails.h"
#include "power/frmPowerBenchComments.h"

namespace tarnview {
namespace {

struct PowerOptions : LogOptions {
  std::string car, carFile;
  std::optional<int> gear, weight, smoothing;
  std::string units;
  std::vector<std::string> air;  ///< temperature, pressure, humidity
  std::string benchmark;
  bool average = false;
  PictureOptions picture;
  std::string save, comments;
  bool findRuns = false;
  bool json = false;
};

constexpr const char* kWetBulb = "wet:";

bool Refuse(const std::string& why) {
  std::fprintf(stderr, "tarnview-cli: %s\n", why.c_str());
  return false;
}

std::string CheckAir(const std::string& text) {
  std::string_view number = text;
  if (number.starts_with(kWetBulb)) number.remove_prefix(4);
  if (IsNumeric(number)) return "";
  return "the air is TEMPERATURE PRESSURE HUMIDITY, the last as 50 or wet:15";
}

/// Loads a car definition in its window, as a user does; it joins those of the settings, which are
/// not written.
bool LoadCar(LogSession& session, const std::string& path) {
  const std::size_t messages = session.Host().messages.size();
  session.Host().nextFile = Answer{Answer::Kind::File, path, 0, 0};
  session.Host().work = [](Form& form) {
    auto& window = dynamic_cast<frmCarDefinitionDetails&>(form);
    window.cmdLoad.Press();
    window.cmdOK.Press();
  };
  clsCarDef car;
  session.Window().Power().EditCar(car);
  session.Host().work = nullptr;
  if (session.Host().messages.size() > messages) return false;
  session.Global().gcolCarDefs.AddDirect(std::move(car));
  return true;
}

bool ChooseCar(frmPowerGraph& window, const PowerOptions& options) {
  const auto& names = window.cboCarDefs.Entries();
  if (!options.carFile.empty()) {
    window.cboCarDefs.SetListIndex(static_cast<int>(names.size()) - 1);
  } else if (!options.car.empty()) {
    if (!window.cboCarDefs.Choose(FromUtf8(options.car)))
      return Refuse("there is no car definition \"" + options.car + "\"");
  }
  return true;
}

void EnterAir(frmPowerGraph& window, const std::vector<std::string>& air) {
  if (air.empty()) return;
  const bool wetBulb = air[2].starts_with(kWetBulb);
  window.chkSAE.Value = true;
  window.txtAmbTemp.Text = air[0];
  window.txtAtmos.Text = air[1];
  window.cboHumidityType.SetListIndex(wetBulb ? 1 : 0);
  if (wetBulb)
    window.txtRH.Text = air[2].substr(4);
  else
    window.txtRH.Text = air[2];
}

/// Fills the window in as a user would; false, with the reason told, where that cannot be done.
bool FillIn(frmPowerGraph& window, const PowerOptions& options) {
  if (!ChooseCar(window, options)) return false;
  if (options.from) window.txtPlotRangeFrom.Text = *options.from;
  if (options.to) window.txtPlotRangeTo.Text = *options.to;
  if (options.gear) window.cboGear.SetListIndex(*options.gear - 1);
  if (options.weight) window.txtWeight.Text = std::to_string(*options.weight);
  if (options.smoothing) window.txtSmoothFactor.Text = std::to_string(*options.smoothing);
  if (!options.units.empty()) window.cboUnits.SetListIndex(options.units == "metric" ? 1 : 0);
  EnterAir(window, options.air);
  if (options.benchmark.empty()) return true;
  if (!window.LoadBenchmark(options.benchmark)) return false;
  if (options.average)
    window.cboBenchMarkAction.SetListIndex(static_cast<int>(BenchmarkAction::Average));
  return true;
}

bool Save(LogSession& session, frmPowerGraph& window, const PowerOptions& options) {
  if (options.save.empty()) return true;
  session.Host().nextFile = Answer{Answer::Kind::File, options.save, 0, 0};
  session.Host().work = [&](Form& form) {
    auto& dialog = dynamic_cast<frmPowerBenchComments&>(form);
    dialog.txtComments.Text = FromUtf8(options.comments);
    dialog.cmdOK.Press();
  };
  window.mnuFileSaveAs.Do({"click", {}});
  session.Host().work = nullptr;
  return window.Saved();
}

Json RunsJson(const OpenLog& log) {
  Json runs = Json::array();
  for (const FoundRun& run : FindRuns(log))
    runs.push_back({{"from", run.from},
                    {"to", run.to},
                    {"from_rpm", run.fromRpm},
                    {"to_rpm", run.toRpm},
                    {"seconds", RoundPlaces(run.seconds, 4)}});
  return {{"runs", runs}};
}

/// What the chart receives, then the peaks and speeds, then the messages.
Json ChartJson(const ChartDescription& chart, const std::vector<Box>& messages) {
  Json out = ToJson(Describe(chart));
  for (const char* key : {"peaks", "speed"}) {
    if (!out.contains(key)) continue;
    Json fact = std::move(out[key]);
    out.erase(key);
    out[key] = std::move(fact);
  }
  out["messages"] = MessagesJson(messages);
  return out;
}

int DrawPower(LogSession& session, const PowerOptions& options) {
  if (!options.carFile.empty() && !LoadCar(session, options.carFile)) {
    if (options.json) Print(ChartJson({}, session.Host().messages));
    return kFailed;
  }
  frmPowerGraph& window = session.Window().Power().Open();
  const bool filled = FillIn(window, options);
  if (filled) window.cmdDrawGraph.Press();
  constexpr int kWarningPanel = 4;
  const std::string& warning = window.staPowerGraph.Panel(kWarningPanel);
  if (!warning.empty()) std::fprintf(stderr, "tarnview-cli: %s\n", warning.c_str());
  const ChartDescription& chart = window.chPowerGraph.Data();
  if (options.json) Print(ChartJson(chart, session.Host().messages));
  if (!filled || !window.Drawn()) return kFailed;
  if (Save(session, window, options) && DrawPicture(chart, options.picture)) return kDone;
  return kFailed;
}

int Power(const PowerOptions& options) {
  LogSession session(options);
  if (options.picture.scheme)
    session.Global().settings.gintGraphColourScheme = *options.picture.scheme;
  if (!session.Open() || !session.Log().gblnSamplesLoaded) return kFailed;
  if (!options.findRuns) return DrawPower(session, options);
  Print(RunsJson(session.Log()));
  return kDone;
}

void AddRunOptions(CLI::App& command, PowerOptions& options) {
  command.add_option("--car", options.car, "Car definition of the settings");
  command.add_option("--car-file", options.carFile, "Car definition file (.car)")
      ->excludes("--car");
  command.add_option("--gear", options.gear, "Gear of the run, 1 to 6")->check(CLI::Range(1, 6));
  command.add_option("--weight", options.weight, "Driver and load, in the car's units");
  command.add_option("--smoothing", options.smoothing, "Points to either side of each");
  command.add_option("--units", options.units, "Of the result: imperial or metric")
      ->check(CLI::IsMember({"imperial", "metric"}));
  command
      .add_option("--sae", options.air,
                  "Correct to standard air: degrees C, kPa, and per cent of humidity or wet: and "
                  "the wet bulb's degrees")
      ->expected(3)
      ->check(CheckAir);
  command.add_option("--benchmark", options.benchmark,
                     "Saved power graph (.pow) to show beside the run");
  command.add_flag("--average", options.average, "Average the run with the benchmark")
      ->needs("--benchmark");
}

}  // namespace

void AddPowerCommand(CLI::App& program, int& status) {
  CLI::App* command =
      program.add_subcommand("power", "Works out power and torque of a run, or tells them as JSON");
  command->footer(
      "Example:\n  tarnview-cli power run.txt --from 4357 --to 4389 --gear 3 --out power.png");
  auto options = std::make_shared<PowerOptions>();
  options->AddTo(*command);
  AddRunOptions(*command, *options);
  options->picture.AddTo(*command);
  command->add_flag("--json", options->json,
                    "Print what the chart receives, the peaks and the speeds");
  command->add_option("--save", options->save, "Save the graph into this file (.pow)");
  command->add_option("--comments", options->comments, "What the saved graph says of itself")
      ->needs("--save");
  command->add_flag("--find-runs", options->findRuns,
                    "List the stretches of full throttle as JSON, and draw nothing");
  command->callback([options, &status] {
    if (options->picture.out.empty() && options->save.empty() && !options->json &&
        !options->findRuns)
      throw CLI::ValidationError("power", "needs --out, --save, --json or --find-runs");
    status = Power(*options);
  });
}

}  // namespace tarnview
