#include "qt/pictures/PowerPictures.h"

#include "base/Paths.h"

namespace tarnview {
namespace {

/// What a speed graph shows where there is a run: a steady pull, and one that was a little slower.
SpeedGraphInput SomeSpeeds(bool filled) {
  SpeedGraphInput input;
  if (!filled) return input;
  input.file = "turbo.txt";
  for (int i = 0; i < 120; ++i) {
    const double seconds = i * 0.08;
    input.run.push_back({seconds, 11 + seconds * 3.1 - seconds * seconds * 0.09});
    input.benchmark.push_back({seconds, (11 + seconds * 2.7 - seconds * seconds * 0.07) / 0.44704});
  }
  return input;
}

/// In which the example's saved graph was driven.
constexpr int kThirdGear = 2;

}  // namespace

PowerPictures::PowerPictures(Program& program, Clock& clock, FileSystem& files, ErrorLog& errors,
                             Messages& messages, const std::string& log)
    : program_(program) {
  Host& host = program_.MainWindow().host;
  const bool filled = !log.empty();
  const std::string saved = WithoutExtension(log) + ".pow";
  graphs_.push_back(&program_.MainWindow().Power().Open());
  for (const FoundRun& run : FindRuns(program_.Global().log)) {
    if (graphs_.size() > 2) break;
    frmPowerGraph& graph = OpenRun(run);
    if (graphs_.size() == 3 && files.FileExists(saved)) {
      graph.LoadBenchmark(saved);
      graph.cmdDrawGraph.Press();
    }
  }
  speedGraph_ = std::make_unique<frmSpeedGraph>(
      host, frmSpeedGraph::Surroundings{program_.Global().settings, errors, messages},
      SomeSpeeds(filled), [](int) {});
  comments_ =
      std::make_unique<frmPowerBenchComments>(host, filled ? "After the larger injectors" : "");
  const auto bytes = files.Read(saved);
  details_ =
      std::make_unique<frmPowerBenchDetails>(host, bytes ? ReadPowerFile(*bytes) : PowerFile());
  car_ = std::make_unique<frmCarDefinitionDetails>(
      host,
      frmCarDefinitionDetails::Surroundings{workingDirectory_, files, clock, errors, messages},
      clsCarDef());
}

frmPowerGraph& PowerPictures::OpenRun(const FoundRun& run) {
  frmPowerGraph& graph = program_.MainWindow().Power().Open();
  graphs_.push_back(&graph);
  graph.cmdFindRuns.Press();
  graph.txtPlotRangeFrom.Text = std::to_string(run.from);
  graph.txtPlotRangeTo.Text = std::to_string(run.to);
  graph.cboGear.SetListIndex(kThirdGear);
  graph.cmdDrawGraph.Press();
  return graph;
}

std::vector<Form*> PowerPictures::Forms() {
  std::vector<Form*> forms{speedGraph_.get(), comments_.get(), details_.get(), car_.get()};
  forms.insert(forms.end(), graphs_.begin(), graphs_.end());
  return forms;
}

}  // namespace tarnview
