#include "power/frmPowerGraph.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"
#include "base/Text.h"
#include "desk/ColourScheme.h"
#include "desk/Placement.h"
#include "power/Drag.h"
#include "power/RunWarning.h"
#include "power/frmPowerBenchDetails.h"

namespace tarnview {
namespace {

/// "Division by zero" of the run-time errors.
constexpr long kDivisionByZero = 11;

/// Panels of the status bar beside those of every window.
enum Panel { kReadingPanel = 3, kWarningPanel = 4 };

std::string InWindow(const std::string& fault) {
  if (fault.empty()) return "Car definition: its numbers lead nowhere";
  return "Car definition: check " + fault;
}

}  // namespace

frmPowerGraph::frmPowerGraph(Host& itsHost, const Surroundings& surroundings,
                             MainWindow& mainWindow)
    : PowerGraphControls(itsHost),
      around_(surroundings),
      mainWindow_(mainWindow),
      fields_(*this, around_.log, around_.settings, around_.cars,
              [this] { return mainWindow_.AutoGearSpeedFactor(); }),
      output_(itsHost, around_.messages, around_.errors),
      commands_(around_.errors, "frmPowerGraph") {
  DefaultButton = &cmdDrawGraph;
  HelpTopic = "PowerGraph";
  chPowerGraph.Visible = false;
  BindControls();
  commands_.Bind(Joined({CommandRows(), FileCommandRows(), OutputCommands()}));
}

void frmPowerGraph::BindControls() {
  lvwRuns.ItemClick = [this](int row) {
    const FoundRun& run = runs_[static_cast<std::size_t>(StringToLong(lvwRuns.At(row).tag))];
    fields_.SetRange({run.from, run.to});
  };
  lvwRuns.DblClick = [this](int) { cmdDrawGraph.Press(); };
  chPowerGraph.RightClick = [this] { host.PopupMenu(mnuRightClick); };
  chPowerGraph.PointSelected = [this](int series, int point) {
    const auto& curve = chPowerGraph.Data().Series()[static_cast<std::size_t>((series - 1) / 2)];
    ShowReadingAt(curve.x[static_cast<std::size_t>(point - 1)]);
  };
  chPowerGraph.Hover = [this](double rpm) { chPowerGraph.HairLine = ShowReadingAt(rpm); };
  chPowerGraph.HoverEnd = [this] { HideReading(); };
}

std::vector<Command> frmPowerGraph::CommandRows() {
  const auto loaded = [this] { return around_.log.gblnSamplesLoaded; };
  const auto drawn = [this] { return Drawn(); };
  return {
      // clang-format off
      {&cmdDrawGraph, [this] { cmdDrawGraph_Click(); },
       [this] { return around_.log.gblnSamplesLoaded && fields_.Car(); }},
      {&cmdFindRuns, [this] { FindTheRuns(); }, loaded},
      {&mnuToolsFindRuns, [this] { FindTheRuns(); }, loaded},
      {&mnuBenchCalcDet, [this] { frmPowerBenchDetails(host, benchmark_->graph).ShowModal(); },
       [this] { return benchmark_.has_value(); }},
      {&mnuToolsSpeed, [this] { mnuToolsSpeed_Click(); }, drawn},
      {&mnuToolsCopy, [this] { mnuToolsCopy_Click(); },
       [this] { return Drawn() && drawn_->ofOpenLog; }},
      {&mnuHelpHelp, [this] { host.ShowHelp(HelpTopic); }, {}},
      // clang-format on
  };
}

void frmPowerGraph::Form_Load() {
  ApplyPlacement(around_.settings.windows.powerGraph, *this);
  fraPicture.BackgroundPicture = around_.settings.gstrAlternativeBackgroundPicture;
  fields_.Load();
  ListRecentFiles();
  DropBenchmark();
  LogIsOpen();
}

void frmPowerGraph::Form_Unload() {
  if (const auto placement = PlacementOf(*this)) around_.settings.windows.powerGraph = placement;
  mainWindow_.PowerGraphClosed(ID);
}

void frmPowerGraph::SetCaption() {
  const std::string& title = around_.log.gstrCurrentFileTitle;
  Caption = "Tarnview Power Graph" + WithLead(" - ", title);
}

void frmPowerGraph::LogIsClosing() {
  if (drawn_) drawn_->ofOpenLog = false;
  runs_.clear();
  lvwRuns.Clear();
  commands_.Update();
}

void frmPowerGraph::LogIsOpen() {
  if (around_.log.gblnSamplesLoaded) fields_.SetRange(mainWindow_.MainRange());
  if (!Drawn()) SetCaption();
  commands_.Update();
}

void frmPowerGraph::ListCars() {
  fields_.ListCars();
  commands_.Update();
}

std::optional<SampleRange> frmPowerGraph::TakeRange() {
  const OpenLog& log = around_.log;
  const SampleRange whole{log.glngFirstSampleTime, log.glngLastSampleTime};
  const RunRange checked = CheckedRange(fields_.Range(), whole, mainWindow_.MainRange());
  if (checked.message) around_.messages.ShowMessage(*checked.message);
  fields_.SetRange(checked.range);
  if (checked.drawable) return std::optional(checked.range);
  return std::nullopt;
}

void frmPowerGraph::cmdDrawGraph_Click() {
  const auto range = TakeRange();
  if (!range) return;
  {
    const AtWork work(*this, status_);
    status_.Say("Preparing to draw graph");
    Draw(*range);
  }
  commands_.Update();
}

std::optional<ShownBenchmark> frmPowerGraph::BenchmarkToShow(const PowerRun& run) const {
  if (!benchmark_ || fields_.Action() == BenchmarkAction::Hide) return std::nullopt;
  const PowerFile& graph = benchmark_->graph;
  // Of a file that does not tell its units, nothing is converted.
  const bool fileImperial = graph.UnitsKnown() ? graph.imperial() : run.imperial;
  ShownBenchmark shown;
  shown.points = InUnits(graph.points, fileImperial, run.imperial);
  shown.peaks = PeaksOf(shown.points);
  if (const auto k = DragOf(graph, run.air)) {
    const double speed = RoundPlaces(TopSpeed(shown.peaks.power, *k, run.imperial), 1);
    if (std::isfinite(speed)) shown.peaks.topSpeed = speed;
  }
  return shown;
}

void frmPowerGraph::Draw(const SampleRange& range) {
  PowerRun run = fields_.Run();
  run.samples = SamplesOfRun(around_.log, static_cast<std::int32_t>(range.from),
                             static_cast<std::int32_t>(range.to));
  const auto benchmark = BenchmarkToShow(run);
  const bool average = benchmark && fields_.Action() == BenchmarkAction::Average;
  status_.Say("Smoothing curves");
  if (average) status_.Say("Averaging with Benchmark");
  PowerCurves curves = CurvesOf(run, average ? &benchmark->points : nullptr);
  if (curves.failed) return TellFault(curves.fault);
  ShowGraph(curves, benchmark);
  staPowerGraph.SetPanel(kWarningPanel, RunWarning(run.samples));
  drawn_ = DrawnRun{std::move(run), std::move(curves), range, around_.log.gstrCurrentFile,
                    txtCorrFactor.Text};
  SetCaption();
  status_.Say("Graph draw complete");
}

void frmPowerGraph::TellFault(const std::string& fault) {
  around_.errors.LogError("frmPowerGraph", "cmdDrawGraph_Click",
                          RuntimeError(kDivisionByZero, "Division by zero: " + fault), false);
  status_.Say("");
  staPowerGraph.SetPanel(kWarningPanel, InWindow(fault));
  around_.messages.ShowMessage(Message::PowerGraphNotDrawn);
}

void frmPowerGraph::ShowGraph(const PowerCurves& curves,
                              const std::optional<ShownBenchmark>& benchmark) {
  ChartDescription chart = PowerChart(curves, benchmark);
  SetGraphColourScheme(chart, around_.settings.gintGraphColourScheme);
  HideReading();
  chPowerGraph.SetData(std::move(chart));
  fraPicture.Visible = false;
  chPowerGraph.Visible = true;
}

void frmPowerGraph::FindTheRuns() {
  runs_ = FindRuns(around_.log);
  std::vector<ListView::Row> rows;
  for (const FoundRun& run : runs_) {
    ListView::Row row;
    row.texts = {std::to_string(run.from), std::to_string(run.to),
                 FixedText(run.fromRpm, 0) + "-" + FixedText(run.toRpm, 0),
                 FixedText(run.seconds, 1)};
    row.tag = std::to_string(rows.size());
    rows.push_back(std::move(row));
  }
  lvwRuns.SetRows(std::move(rows));
  if (runs_.empty())
    status_.Say("No run at full throttle found");
  else
    status_.Say(std::to_string(runs_.size()) + " found");
}

std::optional<double> frmPowerGraph::ShowReadingAt(double rpm) {
  if (!drawn_ || drawn_->curves.points.empty()) return std::nullopt;
  const auto& points = drawn_->curves.points;
  const auto nearest =
      std::min_element(points.begin(), points.end(), [rpm](const auto& a, const auto& b) {
        return std::fabs(a.rpm - rpm) < std::fabs(b.rpm - rpm);
      });
  const bool imperial = drawn_->curves.imperial;
  staPowerGraph.SetPanel(kReadingPanel, ReadingText(*nearest, imperial));
  chPowerGraph.Labels = ReadingMarks(*nearest, imperial);
  return nearest->rpm;
}

void frmPowerGraph::HideReading() {
  chPowerGraph.HairLine = std::nullopt;
  chPowerGraph.Labels = std::vector<ChartMark>();
  staPowerGraph.SetPanel(kReadingPanel, "");
}

}  // namespace tarnview
