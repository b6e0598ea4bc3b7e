#include "power/frmSpeedGraph.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/Units.h"
#include "desk/ChartCommands.h"
#include "desk/ColourScheme.h"
#include "desk/Placement.h"
#include "power/SpeedChart.h"
#include "power/SpeedQuery.h"
#include "power/UnitNames.h"

namespace tarnview {
namespace {

constexpr double kMphInKmh = kMetresPerSecondInMph / kMetresPerSecondInKmh;
constexpr int kMostSpeed = 500;
constexpr double kOffsetStep = 0.1;  // seconds
constexpr double kMostOffset = 1e6;

/// Metres per second.
double UnitOf(bool imperial) {
  if (imperial) return kMetresPerSecondInMph;
  return kMetresPerSecondInKmh;
}

/// A field's number in the other units: a whole number.
void Convert(TextBox& field, double factor) {
  field.Text = FixedText(StringToDouble(field.Text()) * factor, 0);
}

}  // namespace

frmSpeedGraph::frmSpeedGraph(Host& itsHost, const Surroundings& surroundings, SpeedGraphInput input,
                             std::function<void(int ID)> closed)
    : Form(itsHost, "frmSpeedGraph", "Tarnview Speed Graph - " + FileTitle(input.file)),
      around_(surroundings),
      input_(std::move(input)),
      closed_(std::move(closed)),
      output_(itsHost, around_.messages, around_.errors),
      commands_(around_.errors, "frmSpeedGraph") {
  DefaultButton = &cmdCalc;
  CancelButton = &cmdClose;
  HelpTopic = "SpeedGraph";
  optSpeedUnits(0).Caption = std::string("&Miles Per Hour");
  optSpeedUnits(1).Caption = std::string("&Kilometers Per Hour");
  optSpeedUnits(input_.imperial ? 0 : 1).Value = true;
  shownImperial_ = input_.imperial;
  txtResYou.ReadOnly = txtResBench.ReadOnly = true;
  BindControls();
  BindArrows();
  commands_.Bind(Joined({CommandRows(), OutputCommands()}));
}

void frmSpeedGraph::BindControls() {
  for (const auto& option : optSpeedUnits) option->Click = [this] { UnitsChosen(); };
  txtOffset.Change = [this] { Draw(); };
  chSpeedGraph.RightClick = [this] { host.PopupMenu(mnuRightClick); };
}

void frmSpeedGraph::BindArrows() {
  for (const auto& [arrows, field] :
       {std::pair{&updSpeedFrom, &txtSpeedFrom}, std::pair{&updSpeedTo, &txtSpeedTo}}) {
    arrows->Max = kMostSpeed;
    const auto step = [arrows = arrows, field = field](int by) {
      field->Text =
          std::to_string(std::clamp(StringToLong(field->Text()) + by, arrows->Min, arrows->Max));
    };
    arrows->UpClick = [step] { step(1); };
    arrows->DownClick = [step] { step(-1); };
  }
  const auto shift = [this](double by) {
    txtOffset.Text = NumberText(RoundPlaces(StringToDouble(txtOffset.Text()) + by, 2));
  };
  updOffset.UpClick = [shift] { shift(kOffsetStep); };
  updOffset.DownClick = [shift] { shift(-kOffsetStep); };
}

std::vector<Command> frmSpeedGraph::CommandRows() {
  return {
      {&cmdCalc, [this] { cmdCalc_Click(); }, {}},
      {&cmdClose, [this] { Unload(); }, {}},
      {&mnuFileClose, [this] { Unload(); }, {}},
      {&mnuHelpHelp, [this] { host.ShowHelp(HelpTopic); }, {}},
  };
}

std::vector<Command> frmSpeedGraph::OutputCommands() {
  const ChartItems items{mnuEditCopy,        mnuRightClickCopy,   mnuFilePrint,
                         mnuRightClickPrint, mnuFilePrintPreview, mnuFileSavePicture};
  return ChartCommands(
      output_, items,
      {chSpeedGraph, [this] { return DetailsForPrint(); }, [this] { return input_.file; }, {}});
}

void frmSpeedGraph::Form_Load() {
  ApplyPlacement(around_.settings.windows.speedGraph, *this);
  for (Control* control : std::initializer_list<Control*>{&lblOffset, &txtOffset, &updOffset,
                                                          &lblResBench, &txtResBench})
    control->Visible = HasBenchmark();
  Draw();
}

void frmSpeedGraph::Form_Unload() {
  if (const auto placement = PlacementOf(*this)) around_.settings.windows.speedGraph = placement;
  closed_(ID);
}

std::vector<SpeedPoint> frmSpeedGraph::RunShown() const {
  return ShownSpeeds(input_.run, 1, UnitOf(Imperial()));
}

std::vector<SpeedPoint> frmSpeedGraph::BenchmarkShown() const {
  const double offset = std::clamp(StringToDouble(txtOffset.Text()), -kMostOffset, kMostOffset);
  return ShownSpeeds(input_.benchmark, UnitOf(input_.benchmarkImperial), UnitOf(Imperial()),
                     offset);
}

void frmSpeedGraph::Draw() {
  const std::vector<SpeedPoint> benchmark = BenchmarkShown();
  ChartDescription chart =
      SpeedChart(RunShown(), HasBenchmark() ? &benchmark : nullptr, Imperial());
  SetGraphColourScheme(chart, around_.settings.gintGraphColourScheme);
  chSpeedGraph.SetData(std::move(chart));
}

void frmSpeedGraph::UnitsChosen() {
  if (shownImperial_ == Imperial()) return;
  shownImperial_ = Imperial();
  for (TextBox* field : {&txtSpeedFrom, &txtSpeedTo})
    Convert(*field, Imperial() ? 1 / kMphInKmh : kMphInKmh);
  Draw();
}

void frmSpeedGraph::cmdCalc_Click() {
  if (StringToDouble(txtSpeedFrom.Text()) > StringToDouble(txtSpeedTo.Text()))
    txtSpeedTo.Text = txtSpeedFrom.Text();
  const double from = StringToDouble(txtSpeedFrom.Text()), to = StringToDouble(txtSpeedTo.Text());
  txtResYou.Text = TimeBetween(RunShown(), from, to);
  constexpr std::size_t kFewestPoints = 2;
  const std::vector<SpeedPoint> benchmark = BenchmarkShown();
  if (benchmark.size() >= kFewestPoints) txtResBench.Text = TimeBetween(benchmark, from, to);
}

PrintDetails frmSpeedGraph::DetailsForPrint() const {
  PrintDetails details{" Speed Graph", {{"File", input_.file}}};
  if (txtResYou.Text().empty()) return details;
  const std::string unit = UnitNamesOf(Imperial()).speed;
  details.rows.emplace_back("Acceleration", txtSpeedFrom.Text() + " - " + txtSpeedTo.Text() + unit);
  details.rows.emplace_back("You", txtResYou.Text());
  if (HasBenchmark()) details.rows.emplace_back("Benchmark", txtResBench.Text());
  return details;
}

}  // namespace tarnview
