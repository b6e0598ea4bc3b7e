#include "scatter/frmScatterGraph.h"

#include "desk/ChartCommands.h"
#include "desk/Placement.h"
#include "samplegraph/SampleListView.h"

namespace tarnview {
namespace {

/// To be seen on all three backdrops.
constexpr PointStyle kFirstStyle{0, 4, 0xC06000};
/// Between two windows that open on each other, so that the caption of the lower one shows; in
/// twips, 24 pixels.
constexpr int kCascadeStep = 360;

}  // namespace

frmScatterGraph::frmScatterGraph(Host& itsHost, const Surroundings& surroundings,
                                 MainWindow& mainWindow)
    : ScatterWindowControls(itsHost),
      around_(surroundings),
      mainWindow_(mainWindow),
      style_({cboPointShape, cboPointSize, picColour, cmdColourSelector}),
      filters_({lvwFilters, cmdFilterNew, cmdFilterMod, cmdFilterDelete},
               {around_.catalogue, around_.messages}),
      presets_(lvwPresets, around_.presets, around_.kinds.gcolLogFamilies),
      drawing_(*this, {chScatterGraph, fraPicture, lblEmptyPlace, fraSampleDetails},
               {around_.log, around_.settings, status_, around_.messages, around_.errors}),
      output_(itsHost, around_.messages, around_.errors),
      commands_(around_.errors, "frmScatterGraph") {
  HelpTopic = "ScatterGraph";
  noItem_.strLongName = "None";
  style_.Show(kFirstStyle);
  DefaultButton = &cmdDrawGraph;
  BindControls();
  commands_.Bind(Joined({CommandRows(), OutputCommands()}));
}

void frmScatterGraph::BindControls() {
  cboColourBy.Click = [this] {
    Recolour();
    commands_.Update();
  };
  lvwPresets.ItemClick = [this](int row) {
    if (const clsScatterGraphPreset* preset = presets_.Of(row)) SelectPreset(*preset, false);
  };
  lvwPresets.DblClick = [this](int row) {
    if (presets_.Of(row)) cmdDrawGraph.Press();
  };
  chScatterGraph.PointSelected = [this](int, int point) { chScatterGraph_PointSelected(point); };
  chScatterGraph.RightClick = [this] { host.PopupMenu(mnuRightClick); };
}

std::vector<Command> frmScatterGraph::CommandRows() {
  const auto drawn = [this] { return drawing_.Drawn(); };
  return {
      // clang-format off
      {&cmdDrawGraph, [this] { DrawScatter(false); },
       [this] { return around_.log.gblnSamplesLoaded; }},
      {&cmdShowPoint, [this] { cmdShowPoint_Click(); }, drawn},
      {&mnuFileExport, [this] { mnuFileExport_Click(); }, [this] { return drawing_.OfOpenLog(); }},
      {&mnuFileClose, [this] { Unload(); }, {}},
      {&mnuEditUpdatePreset, [this] { mnuEditUpdatePreset_Click(); },
       [this] { return presets_.HasRows(); }},
      {&mnuEditNewPreset, [this] { mnuEditNewPreset_Click(); }, {}},
      {&mnuViewSampleDetails, [this] { ShowSampleDetails(!blnShowSampleDetails_); }, {}},
      {&mnuViewDensity,
       [this] {
         mnuViewDensity.Checked = !mnuViewDensity.Checked;
         Recolour();
       },
       [this] { return colourBy_.Item() == 0; }},
      {&mnuHelpHelp, [this] { host.ShowHelp(HelpTopic); }, {}},
      // clang-format on
  };
}

std::vector<Command> frmScatterGraph::OutputCommands() {
  const ChartItems items{mnuEditCopy,        mnuRightClickCopy,   mnuFilePrint,
                         mnuRightClickPrint, mnuFilePrintPreview, mnuFileSavePicture};
  return ChartCommands(
      output_, items,
      {chScatterGraph, [this] { return DetailsForPrint(); },
       [this] { return drawing_.strGraphedFile(); }, [this] { return drawing_.Drawn(); }});
}

void frmScatterGraph::Form_Load() {
  ApplyPlacement(around_.settings.windows.scatterGraph, *this);
  Dividers = around_.settings.beyond.scatterDividers;
  MoveDown(Cascade);
  ShowBackgroundPicture();
  SetCaption();
  RefreshDataItems();
  xAxis_.Choose(ItemOf(kRPM), around_.messages, true);
  yAxis_.DataItemImageComboDefault();
  ShowSampleDetails(around_.settings.gblnDisplaySampleInScatter);
  if (initialPreset_ >= 1 && initialPreset_ <= around_.presets.Count()) {
    lvwPresets.Select(lvwPresets.RowOfTag(std::to_string(initialPreset_)));
    SelectPreset(around_.presets.Item(initialPreset_), true);
  } else if (around_.settings.gblnAutoScatterFilter) {
    if (const auto filter = mainWindow_.RangeFilter()) filters_.AddFilter(*filter);
  }
}

/// Only of use where a place is known: the desktop finds one for each window that has none.
void frmScatterGraph::MoveDown(int steps) {
  Left += steps * kCascadeStep;
  Top += steps * kCascadeStep;
}

void frmScatterGraph::ShowBackgroundPicture() {
  const std::string& picture = around_.settings.gstrAlternativeBackgroundPicture;
  const bool there = around_.files.IsFile(picture);
  if (there)
    fraPicture.BackgroundPicture = picture;
  else
    fraPicture.BackgroundPicture = std::string();
  const bool quiet = initialPreset_ > 0;
  if (!quiet && !picture.empty() && !there)
    around_.messages.ShowMessage(Message::BackgroundPictureNotFound);
}

void frmScatterGraph::Form_Unload() {
  MoveDown(-Cascade);
  if (const auto placement = PlacementOf(*this)) around_.settings.windows.scatterGraph = placement;
  if (!Dividers.empty()) around_.settings.beyond.scatterDividers = Dividers;
  mainWindow_.ScatterGraphClosed(ID);
}

/// Before a first log, items are those of the file type that the user opens most.
int frmScatterGraph::FileType() const {
  if (around_.log.gintCurrentFileType > 0) return around_.log.gintCurrentFileType;
  return around_.settings.gintDefaultFileType;
}

void frmScatterGraph::SetCaption() {
  const OpenLog& log = around_.log;
  std::string caption = "Tarnview Scatter Graph - " + log.gstrCurrentFileTitle;
  if (log.blnTooLong)
    caption += " Sample Load Range " + std::to_string(log.glngFirstSampleTime) + " - " +
               std::to_string(log.glngLastSampleTime);
  Caption = caption;
}

void frmScatterGraph::LogIsClosing() {
  drawing_.LogChanged();
  lngShowPointSample_ = 0;
  PopulateSampleListViewFromSample(-1);
  commands_.Update();
}

void frmScatterGraph::RefreshDataItems() {
  DataItemList items = AxisItems(around_.catalogue, Family());
  xAxis_.SetItems(items);
  yAxis_.SetItems(items);
  items.insert(items.begin(), &noItem_);
  colourBy_.SetItems(items);
  filters_.SetLogFamily(Family());
  CheckedKeys noChecks;
  SampleListForm form;
  form.intMode = kDisplayedItems;
  form.lngFileType = FileType();
  form.pictures = false;
  SetUpSampleListView(lvwSampleDetails, noChecks, form, around_.kinds.gcolLogFamilies,
                      ItemsOfFamily(around_.catalogue, Family()));
  PopulatePresets();
  commands_.Update();
}

ScatterRequest frmScatterGraph::Request() const {
  const int tint = colourBy_.Item();
  // Colours tell either the item or how dense the points lie.
  const bool density = mnuViewDensity.Checked && tint == 0;
  return {xAxis_.Item(), yAxis_.Item(), style_.Style(), tint, density, filters_.objFilters()};
}

void frmScatterGraph::DrawScatter(bool blnQuiet) {
  if (!around_.log.gblnSamplesLoaded) return;
  lngShowPointSample_ = 0;
  PopulateSampleListViewFromSample(-1);
  drawing_.DrawScatter(Request(), blnQuiet);
  if (drawing_.Drawn()) SetCaption();
  if (drawing_.Drawn())
    Subtitle = AxesOnShow();
  else
    Subtitle = std::string();
  commands_.Update();
}

std::string frmScatterGraph::AxesOnShow() const {
  const auto name = [this](int item) { return around_.log.gcolDataItems->Item(item).strShortName; };
  const PointCloud& points = drawing_.dblScatterData();
  return name(points.yItem) + " against " + name(points.xItem);
}

void frmScatterGraph::OptionsChanged() {
  fraPicture.BackgroundPicture = around_.settings.gstrAlternativeBackgroundPicture;
  RefreshDataItems();
  drawing_.TakeColourScheme();
}

void frmScatterGraph::Recolour() { drawing_.Recolour(Request()); }

bool frmScatterGraph::ChooseAxes(int xItem, int yItem) {
  const int before = xAxis_.Item();
  if (!xAxis_.SearchImageComboForDataItem(xItem)) return false;
  if (yAxis_.SearchImageComboForDataItem(yItem)) return true;
  xAxis_.SearchImageComboForDataItem(before);
  return false;
}

void frmScatterGraph::chScatterGraph_PointSelected(int point) {
  const double sample = drawing_.dblScatterData().sample[static_cast<std::size_t>(point - 1)];
  if (drawing_.OfOpenLog())
    lngShowPointSample_ = static_cast<std::int32_t>(sample);
  else
    lngShowPointSample_ = 0;
  PopulateSampleListViewFromSample(drawing_.IndexOfPoint(point));
}

void frmScatterGraph::PopulateSampleListViewFromSample(std::int32_t index) {
  PopulateSampleListView(index, lvwSampleDetails, around_.log);
}

void frmScatterGraph::cmdShowPoint_Click() {
  if (lngShowPointSample_ > 0 && around_.log.gblnSamplesLoaded)
    mainWindow_.ShowPoint(lngShowPointSample_);
}

void frmScatterGraph::ShowSampleDetails(bool show) {
  blnShowSampleDetails_ = show;
  mnuViewSampleDetails.Checked = show;
  fraSampleDetails.Visible = show;
}

}  // namespace tarnview
