#include "qt/pictures/AllWindows.h"

#include "ecu/frmConvertBIN.h"
#include "ecu/frmNewDownload.h"
#include "ecu/frmUpload.h"
#include "ecu/frmUploadConf.h"

namespace tarnview {
namespace {

/// As long as an installed definition's: the widest that the window must hold.
DefinitionDetails Definition(bool filled) {
  if (!filled) return {};
  return {"Hydra Nemesis", "1.4",
          "Built-in definition for logs of the Hydra Nemesis software, in metric units"};
}

/// In the manner of a logger with a preamble, semicolons and decimal commas.
constexpr const char* kStrangeLog =
    "Made up logger 2.1;drive of 24.11.2026\n\n"
    "Zeit;Motordrehzahl;Ladedruck;Lambda 1;Drosselklappe;Gang;Status\n"
    "s;1/min;mbar;;%;;\n"
    "0,00;2103;1012;0,99;12,5;3;Teillast\n0,05;2120;1030;0,99;14,0;3;Teillast\n0,10;2164;1105;0,98;"
    "41,5;3;Teillast\n"
    "0,15;2240;1298;0,91;88,0;3;Volllast\n0,20;2331;1504;0,86;100,0;3;Volllast\n0,25;2420;1688;0,"
    "84;100,0;3;Volllast\n";

}  // namespace

struct AllWindows::NoMainWindow : frmDataTags::MainWindow {
  bool CurrentRange(clsLogTag&) const override { return false; }
  void ShowRange(const clsLogTag&) override {}
  void TagsChanged() override {}
};

/// With a point in the middle of the log.
struct AllWindows::WholeDrive final : DriveGrids::Drive {
  explicit WholeDrive(const OpenLog& itsLog) : log(itsLog) {}
  const OpenLog& Log() const override { return log; }
  DrivenRange PlotRange() const override { return WholeLog(log); }
  int CurrentSample() const override { return log.glngDataLog.Rows() / 2; }
  void SelectSample(int) override {}
  const OpenLog& log;
};

AllWindows::AllWindows(Host& host, const std::string& log, const std::string& settingsFile)
    : messages_(host, [](int) { return std::string(); }),
      programs_(processes_, host),
      program_(host, files_, clock_, processes_, ProgramFolders{}, settingsFile),
      mainWindow_(std::make_unique<NoMainWindow>()),
      splash_(host),
      about_(host, Definition(!log.empty()), [] {}),
      message_(host, [](int) {}),
      tags_(host, tagList_, *mainWindow_) {
  if (!log.empty()) Fill();
  oneSample_.Clear(program_.Global().catalogue.gcolFixedDataItems, 1);
  oneSample_.glngDataLog.AddRow();
  program_.Start(log, false);
  MakeGraphWindows();
  MakeScatterDetails(!log.empty());
  MakeScatterGraphs();
  power_ = std::make_unique<PowerPictures>(program_, clock_, files_, errors_, messages_, log);
  MakeEcuWindows(!log.empty());
  MakeOptions(!log.empty());
  MakeGridGraphs();
  MakeZoneEditors();
  MakeZoneDialogs();
  for (Form* form : Forms())
    if (!form->IsShown()) form->Show();
}

AllWindows::~AllWindows() {
  for (Form* form : Forms()) form->Unload();
}

void AllWindows::Fill() {
  message_.MessageText(
      "The log holds columns that the definition does not know.\r\n\r\nTheir names are in "
      "Universal Load Unknown "
      "Columns.txt.");
  for (const auto& [from, to] :
       {std::pair{120, 480}, std::pair{1912, 2203}, std::pair{30217, 31044}})
    tagList_.Add(from, to);
}

void AllWindows::MakeGraphWindows() {
  Globals& globals = program_.Global();
  Host& host = program_.MainWindow().host;
  const clsLogFamilies& families = globals.kinds.gcolLogFamilies;
  clsSampleGraphPresets presets;
  for (const char* name :
       {"Overview", "A/F Investigation", "Knock Investigation", "Power Graphing"}) {
    clsSampleGraphPreset& preset = presets.AddDirect(clsSampleGraphPresets::BlankPreset());
    preset.strName = name;
    preset.lngLogFamily = 1;
    preset.colDataItems = globals.settings.gcolCheckedDataItems;
  }
  if (globals.log.gblnSamplesLoaded)
    goto_ = std::make_unique<frmGoto>(host, globals.log,
                                      program_.MainWindow().Selected().lngHighlightSample(), true);
  else
    goto_ = std::make_unique<frmGoto>(host, oneSample_, 1, false);
  newPreset_ = std::make_unique<frmNewPresetName>(host, messages_, clsSampleGraphPresets::NEW_NAME);
  presetList_ = std::make_unique<MaintainedCollection<clsSampleGraphPresets>>(
      presets, [](auto&) { return false; });
  maint_ = std::make_unique<frmMaint>(
      host, *presetList_,
      frmMaint::Texts{"Preset Sample Graph Editor", "&Preset Graphs", "PresetSampleGraphEditor"},
      families, 1, messages_);
  presetDetails_ = std::make_unique<frmPresetSampleDetails>(
      host,
      PresetSurroundings{families, globals.catalogue, globals.settings.gstrDefaultWorkingDirectory,
                         files_, clock_, errors_, messages_},
      presets.Item(1));
  definitionFiles_ = std::make_unique<DefinitionFiles>(files_, messages_.Teller(), errors_,
                                                       globals.catalogue.gcolFixedDataItems);
  firstRun_ = std::make_unique<frmFindINIFile>(host, globals.kinds.gcolFileTypes,
                                               std::vector<DefinitionChoice>{}, *definitionFiles_,
                                               messages_);
  lineFrequency_ = std::make_unique<frmLineFrequency>(host, 10);
  logDescription_ = std::make_unique<frmLogDescription>(
      host, globals.log.gblnSamplesLoaded ? kStrangeLog : "", "strange.csv", titles_,
      globals.catalogue.gcolFixedDataItems);
}

void AllWindows::MakeScatterDetails(bool filled) {
  Globals& globals = program_.Global();
  Host& host = program_.MainWindow().host;
  clsScatterGraphPreset preset = clsScatterGraphPresets::BlankPreset();
  clsScatterFilter filter;
  if (filled) {
    preset.strName = "Spool Up";
    preset.lngXAxisDataItem = ItemOf(kRPM);
    preset.lngYAxisDataItem = ItemOf(kMAP);
    preset.lngPointShape = static_cast<int>(PointShape::UpTriangle);
    preset.lngPointSize = 6;
    preset.lngPointColour = 0x0080FF;
    filter.lngDataItemSeq = ItemOf(kMAP);
    filter.dblFrom = 100.5;
    preset.objFilters.AddDirect(filter);
    preset.objFilters.AddDirect({.dblTo = 7000, .dblFrom = 1200, .lngDataItemSeq = ItemOf(kRPM)});
    preset.objFilters.AddDirect({.dblFrom = 1, .lngDataItemSeq = ItemOf(kThrottle)});
  }
  scatterDetails_ = std::make_unique<frmPresetScatterDetails>(
      host,
      PresetSurroundings{globals.kinds.gcolLogFamilies, globals.catalogue,
                         globals.settings.gstrDefaultWorkingDirectory, files_, clock_, errors_,
                         messages_},
      preset);
  filter_ = std::make_unique<frmScatterFilter>(host, globals.catalogue, messages_);
  filter_->SetScatterFilter(filter, 1, true);
}

/// One as it opens; with a log also few points, all points shaded where they fall together, and all
/// coloured by a third item, with one selected.
void AllWindows::MakeScatterGraphs() {
  frmDataLogViewer& main = program_.MainWindow();
  scatterGraphs_.push_back(&main.Scatter().OpenScatterGraph());
  const OpenLog& log = program_.Global().log;
  if (!log.gblnSamplesLoaded) return;
  constexpr int kFew = 300;
  const double start = log.glngFirstSampleTime;
  const struct {
    int yItem, colourBy;
    bool density;
    clsScatterFilter filter;
    PointStyle style;
  } kGraphs[] = {
      {ItemOf(kMAP), 0, false, {start + kFew - 1, start, ItemOf(kSample)}, {8, 6, 0x0080FF}},
      {ItemOf(kMAP), 0, true, {kBoundNotSet, 0, ItemOf(kRPM)}, {1, 4, 0xA00000}},
      {ItemOf(kIAdv), ItemOf(kMAP), false, {kBoundNotSet, 0, ItemOf(kRPM)}, {1, 4, 0xA00000}},
  };
  for (const auto& graph : kGraphs) {
    frmScatterGraph& window = main.Scatter().OpenScatterGraph();
    window.AddFilter(graph.filter);
    window.ChooseAxes(ItemOf(kRPM), graph.yItem);
    window.ChooseColourBy(graph.colourBy);
    window.Style().Show(graph.style);
    window.mnuViewDensity.Checked = graph.density;
    window.DrawScatter(true);
    if (graph.colourBy > 0 && window.chScatterGraph.Data().Cloud())
      window.chScatterGraph.SelectPoint(1, 1);
    scatterGraphs_.push_back(&window);
  }
}

void AllWindows::MakeEcuWindows(bool filled) {
  Settings& settings = program_.Global().settings;
  Host& host = program_.MainWindow().host;
  const EcuWorld world{host, settings, files_, clock_, programs_, messages_};
  const std::vector<std::string> recent{"/home/driver/Logs/2026-11-24a.txt",
                                        "/home/driver/Logs/turbo.map"};
  ecuWindows_.push_back(std::make_unique<frmNewDownload>(
      world,
      NewFile{NewFileType::DataLog, filled ? "2026-11-24a" : "", settings.gblnRetainBinary}));
  auto upload = std::make_unique<frmUpload>(
      world, ComparisonChoices{filled ? recent : std::vector<std::string>(), ""});
  if (filled) upload->chkOption(2).Value = true;
  ecuWindows_.push_back(std::move(upload));
  ecuWindows_.push_back(std::make_unique<frmUploadConf>(host, settings));
  ecuWindows_.push_back(std::make_unique<frmConvertBIN>(world, filled ? recent.front() : ""));
}

void AllWindows::MakeOptions(bool filled) {
  for (int page = 1; page <= (filled ? 4 : 1); ++page) {
    OptionsDraft draft = DraftOf(program_.Global());
    draft.settings.gblnSAECorrection = filled;
    options_.push_back(std::make_unique<frmOptions>(
        program_.MainWindow().host, frmOptions::Surroundings{files_, errors_, messages_},
        std::move(draft), kFMLinkLog));
    options_.back()->tabOptions.Select(page);
  }
}

/// The fuel zones of the log, to be edited, and its ignition zones to be looked at.
void AllWindows::MakeGridGraphs() {
  const LoadedZones& loaded = program_.Global().log.zones;
  const GraphAngles& angles = program_.Global().settings.angles;
  for (ZoneGrid zones : {ZoneGrid::Fuel, ZoneGrid::Ignition}) {
    const int grid = zones == ZoneGrid::Fuel ? 0 : 3;
    GridGraphRequest request;
    request.readOnly = zones == ZoneGrid::Ignition;
    request.grid = grid;
    request.normallyAspirated = loaded.gblnZoneLayout6;
    request.rotation = AnglesOf(angles, grid).rotation;
    request.elevation = AnglesOf(angles, grid).elevation;
    request.kind = GraphKind(grid);
    request.source = GraphSource(grid, "");
    if (zones == ZoneGrid::Fuel)
      request.caption = "Fuel (This Datalog)";
    else
      request.caption = "Ignition (This Datalog)";
    for (int row = 1; row <= kGridRows; ++row)
      for (int column = 1; column <= kGridColumns; ++column) {
        const auto cell = static_cast<std::size_t>(ZoneCell(zones, row - 1, column - 1));
        request.table.Text(row, column) = std::to_string(loaded.zones[cell]);
      }
    gridGraphs_.push_back(std::make_unique<frmGridGraph>(
        program_.MainWindow().host, frmGridGraph::Surroundings{angles, errors_, messages_},
        request));
    if (program_.Global().log.gblnZonesLoaded) gridGraphs_.back()->chGridGraph.SelectPoint(3, 7);
  }
}

/// The zones of the open log; of a chip with none where there is no log.
ZoneEditorParameters AllWindows::ZonesToEdit() const {
  const OpenLog& log = program_.Global().log;
  ZoneEditorParameters parameters;
  parameters.map = MapOf(log.zones);
  if (!log.gblnZonesLoaded) parameters.map.chip = {1.8, MakeDate(2004, 7, 2), 3};
  parameters.comparison = ComparisonZones{log.zones.changes, log.zones.original};
  parameters.fileName = log.gstrCurrentFileTitle;
  parameters.mayUpload = true;
  return parameters;
}

/// The editor as it opens, once for each tab, with a log also edited.
void AllWindows::MakeZoneEditors() {
  Globals& globals = program_.Global();
  Host& host = program_.MainWindow().host;
  const ZoneEditorParameters parameters = ZonesToEdit();
  const clsLogDataItem& volts = globals.catalogue.gcolFixedDataItems.Item(ItemOf(kAuxNF));
  frmZoneData::Surroundings around{
      globals.settings, globals.gcolBenchmarks, globals.tables, volts, errors_, messages_};
  const auto open = [&](int tab) -> frmZoneData& {
    auto editor = std::make_unique<frmZoneData>(host, around, parameters);
    editor->tabZoneData2.Select(tab);
    zoneWindows_.push_back(std::move(editor));
    return static_cast<frmZoneData&>(*zoneWindows_.back());
  };
  constexpr int kGeneral = 1, kFuel = 2, kTabs = 4;
  for (int tab = kGeneral; tab <= (globals.log.gblnZonesLoaded ? kTabs : kGeneral); ++tab)
    open(tab);
  if (globals.log.gblnSamplesLoaded) {
    drive_ = std::make_unique<WholeDrive>(globals.log);
    around.drive = drive_.get();
    for (int tab = kFuel; tab < kTabs; ++tab) {
      frmZoneData& editor = open(tab);
      editor.Show();
      editor.Driven.cboShowOnGrid.SetListIndex(
          static_cast<int>(tab == kFuel ? GridShow::Error : GridShow::Knock));
      editor.Driven.Propose();
    }
  }
}

void AllWindows::MakeZoneDialogs() {
  Globals& globals = program_.Global();
  Host& host = program_.MainWindow().host;
  zoneWindows_.push_back(std::make_unique<frmOffset>(host));
  const Date date = ZonesToEdit().map.chip.datChipDate;
  zoneWindows_.push_back(std::make_unique<frmCopyBench>(host, date, date, false));
  zoneWindows_.push_back(std::make_unique<frmBenchmarkDetails>(
      host,
      frmBenchmarkDetails::Surroundings{globals.kinds.gcolFileTypes, globals.settings, files_,
                                        clock_, messages_,
                                        [](ZoneMap&, const std::string&) { return false; }},
      globals.gcolBenchmarks.Item(1)));
  auto loading = std::make_unique<frmLoadBenchmark>(host, files_, globals.settings, messages_);
  loading->FileToLoad = "street.map";
  zoneWindows_.push_back(std::move(loading));
}

std::vector<Form*> AllWindows::Forms() {
  std::vector<Form*> forms{&program_.MainWindow(),
                           &splash_,
                           &about_,
                           &message_,
                           &tags_,
                           goto_.get(),
                           newPreset_.get(),
                           maint_.get(),
                           presetDetails_.get(),
                           scatterDetails_.get(),
                           filter_.get(),
                           firstRun_.get(),
                           logDescription_.get(),
                           lineFrequency_.get()};
  forms.insert(forms.end(), scatterGraphs_.begin(), scatterGraphs_.end());
  const auto power = power_->Forms();
  forms.insert(forms.end(), power.begin(), power.end());
  for (const auto& window : ecuWindows_) forms.push_back(window.get());
  for (const auto& window : options_) forms.push_back(window.get());
  for (const auto& graph : gridGraphs_) forms.push_back(graph.get());
  for (const auto& window : zoneWindows_) forms.push_back(window.get());
  return forms;
}

}  // namespace tarnview
