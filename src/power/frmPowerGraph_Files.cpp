// What a power graph window keeps and gives away: saved graphs, the recent list, copies into the
// log, the printed page.

#include <utility>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "base/TextFile.h"
#include "base/Units.h"
#include "desk/ChartCommands.h"
#include "desk/RecentMenu.h"
#include "desk/SaveDialog.h"
#include "model/Column.h"
#include "model/LocateSample.h"
#include "power/frmPowerBenchComments.h"
#include "power/frmPowerGraph.h"

namespace tarnview {

std::vector<Command> frmPowerGraph::FileCommandRows() {
  const auto drawn = [this] { return Drawn(); };
  std::vector<Command> rows{
      // clang-format off
      {&mnuFileOpen, [this] { mnuFileOpen_Click(); }, {}},
      {&mnuFileSave, [this] { mnuFileSave_Click(); }, drawn},
      {&mnuFileSaveAs, [this] { mnuFileSaveAs_Click(); }, drawn},
      {&mnuFileClose, [this] { Unload(); }, {}},
      // clang-format on
  };
  for (const auto& item : mnuFileRecent)
    rows.push_back({item.get(), [this, index = item->index] { OpenRecentFile(index); }, {}});
  return rows;
}

std::vector<Command> frmPowerGraph::OutputCommands() {
  const ChartItems items{mnuEditCopy,        mnuRightClickCopy,   mnuFilePrint,
                         mnuRightClickPrint, mnuFilePrintPreview, mnuFileSavePicture};
  return ChartCommands(output_, items,
                       {chPowerGraph, [this] { return DetailsForPrint(); },
                        [this] { return drawn_->file; }, [this] { return Drawn(); }});
}

Dialog frmPowerGraph::FileDialog(DialogKind kind, const char* title) const {
  return {.kind = kind,
          .title = title,
          .filter = kPowerFileFilter,
          .initialPath = OrElse(savedPath_, around_.settings.gstrDefaultWorkingDirectory)};
}

void frmPowerGraph::mnuFileOpen_Click() {
  Dialog dialog = FileDialog(DialogKind::Open, "Open Power Graph");
  if (host.Choose(dialog)) LoadBenchmark(dialog.path);
}

void frmPowerGraph::OpenRecentFile(int index) {
  const auto& paths = around_.settings.recentPowerGraphFiles;
  // A copy, since loading moves it to the top.
  if (const auto place = static_cast<std::size_t>(index); place < paths.size())
    LoadBenchmark(std::string(paths[place]));
}

bool frmPowerGraph::LoadBenchmark(const std::string& path) {
  const auto bytes = ReadText(around_.files, path);
  if (!bytes) {
    around_.messages.ShowMessage(Message::PowerBenchmarkNotLoaded);
    DropBenchmark();
    status_.Say("Loading failed");
    around_.messages.Tell("Can't do anything with that file I'm afraid.", kBoxExclamation);
    return false;
  }
  const auto loading = [this](const char* what) { status_.Say(what); };
  benchmark_ = Benchmark{WithoutExtension(FileTitle(path)), ReadPowerFile(*bytes, loading)};
  lblBenchmark2.Caption = benchmark_->name;
  cboBenchMarkAction.Enabled = true;
  mnuBench.Enabled = true;
  if (fields_.Action() == BenchmarkAction::Hide)
    cboBenchMarkAction.SetListIndex(static_cast<int>(BenchmarkAction::Show));
  RememberFile(path);
  status_.Say("Loading complete");
  commands_.Update();
  return true;
}

void frmPowerGraph::DropBenchmark() {
  benchmark_.reset();
  lblBenchmark2.Caption = std::string();
  cboBenchMarkAction.SetListIndex(static_cast<int>(BenchmarkAction::Hide));
  cboBenchMarkAction.Enabled = false;
  mnuBench.Enabled = false;
  commands_.Update();
}

void frmPowerGraph::RememberFile(const std::string& path) {
  AddRecentPath(around_.settings.recentPowerGraphFiles, path, kRecentPowerFiles);
  mainWindow_.RecentPowerFilesChanged();
}

void frmPowerGraph::ListRecentFiles() {
  ShowRecentPaths(mnuFileRecent, mnuSepRecent, around_.settings.recentPowerGraphFiles);
}

void frmPowerGraph::mnuFileSave_Click() {
  if (savedPath_.empty()) return mnuFileSaveAs_Click();
  SavePowerGraphFile(savedPath_);
}

void frmPowerGraph::mnuFileSaveAs_Click() {
  saved_ = false;
  Dialog dialog = FileDialog(DialogKind::Save, "Save Power Graph As");
  dialog.path = OrElse(savedPath_, WithoutExtension(drawn_->file) + ".pow");
  const auto withEnding = [](Dialog& chosen) {
    if (GetExtension(chosen.path).empty()) chosen.path += ".pow";
  };
  if (!ChooseFileToSave(host, dialog, withEnding)) return;
  SavePowerGraphFile(dialog.path);
}

void frmPowerGraph::SavePowerGraphFile(const std::string& strFileName) {
  saved_ = false;
  frmPowerBenchComments window(host, comments_);
  window.ShowModal();
  if (!window.Accepted()) return;
  comments_ = window.Comments();
  const RunOrigin origin{drawn_->file, std::to_string(drawn_->range.from),
                         std::to_string(drawn_->range.to), comments_};
  const PowerFile graph = SavedRun(drawn_->run, drawn_->curves, origin, drawn_->correctionFactor);
  saved_ = around_.files.Write(strFileName, PowerFileText(graph, around_.clock.Now()));
  if (!saved_) return around_.messages.ShowMessage(Message::SomethingWentWrong);
  savedPath_ = strFileName;
  RememberFile(strFileName);
  status_.Say("Saved");
}

void frmPowerGraph::mnuToolsSpeed_Click() {
  SpeedGraphInput input;
  input.file = drawn_->file;
  input.run = drawn_->curves.speed;
  input.imperial = drawn_->curves.imperial;
  if (benchmark_ && fields_.Action() != BenchmarkAction::Hide) {
    input.benchmark = benchmark_->graph.speed;
    if (benchmark_->graph.UnitsKnown())
      input.benchmarkImperial = benchmark_->graph.imperial();
    else
      input.benchmarkImperial = input.imperial;
  }
  mainWindow_.OpenSpeedGraph(input);
}

/// Writes a value into the sample of that number; beyond the log's last one there is none.
void frmPowerGraph::CopyToLog(int column, std::int64_t sample, double value) {
  OpenLog& log = around_.log;
  if (sample > log.glngLastSampleTime || column >= log.glngDataLog.Columns()) return;
  const auto wanted = static_cast<std::int32_t>(sample);
  const std::int32_t row = LocateSample(log, wanted - log.glngFirstSampleTime, wanted);
  log.glngDataLog.Set(column, row, log.gcolDataItems->Item(column + 1).SetRawData(value));
}

void frmPowerGraph::mnuToolsCopy_Click() {
  const auto& [from, to] = drawn_->range;
  std::int64_t sample = from;
  for (const PowerPoint& point : drawn_->curves.points) {
    ++sample;
    if (point.power <= 0) continue;
    CopyToLog(kPower, sample, point.power);
    CopyToLog(kTorque, sample, point.torque);
  }
  sample = from;
  for (const SpeedPoint& point : drawn_->curves.speed) {
    ++sample;
    if (point.speed > 0) CopyToLog(kSpeed, sample, point.speed / kMetresPerSecondInMph);
  }
  const double middle = static_cast<double>(from + to) / 2;
  mainWindow_.PlotRun(drawn_->range, RoundToLong(middle));
}

PrintDetails frmPowerGraph::DetailsForPrint() const {
  const PowerFile told = SavedRun(drawn_->run, drawn_->curves, {}, "");
  PrintDetails details{" Power Graph", {}};
  details.rows = {
      {"File", drawn_->file},
      // clang-format off
                  {"Plot Range", std::to_string(drawn_->range.from) + " - " + std::to_string(drawn_->range.to)},
                  {"Car", drawn_->run.car.strName},
                  {"Gear", told.gear},
                  {"Car Weight", told.carWeight},
                  {"Smoothing Factor", told.smoothing},
                  {"SAE Correction Factor", drawn_->run.corrected ? drawn_->correctionFactor : "Off"}};
  // clang-format on
  std::string label = "Curves";  // of the first alone
  for (const ChartSeries& series : chPowerGraph.Data().Series())
    details.rows.emplace_back(std::exchange(label, ""), series.name);
  return details;
}

}  // namespace tarnview
