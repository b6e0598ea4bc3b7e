#pragma once

#include "model/Settings.h"
#include "ui/Chart.h"
#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/MenuItem.h"
#include "ui/Picture.h"
#include "ui/ProgressBar.h"
#include "ui/ScrollBar.h"
#include "ui/StatusBar.h"
#include "ui/TextBox.h"
#include "ui/UpDown.h"

namespace tarnview {

/// What the zoom box offers; the zoom menus' entries bear the same numbers as their index.
inline const std::vector<int> kZoomAmounts(kZoomBoxAmounts.begin(), kZoomBoxAmounts.end());
/// Entries of the recent list.
inline constexpr int kMostRecentFiles = 9;

/// The controls of the main window, in reading order. No behaviour: that is frmDataLogViewer's.
class MainWindowControls : public Form {
 public:
  explicit MainWindowControls(Host& itsHost) : Form(itsHost, "frmDataLogViewer", "Tarnview") {}

  // Left column: plot range and zoom, then the items.
  Frame picMainBorder{*this, "picMainBorder"};
  Frame fraGraphSeriesFrame{*this, "fraGraphSeriesFrame"};
  Label lblPlotRangeFrom{*this, "lblPlotRangeFrom", "Plot F&rom"};
  TextBox PlotRangeFrom{*this, "PlotRangeFrom"};
  UpDown updPlotRangeFrom{*this, "updPlotRangeFrom"};
  Label lblPlotRangeTo{*this, "lblPlotRangeTo", "P&lot To"};
  TextBox PlotRangeTo{*this, "PlotRangeTo"};
  UpDown updPlotRangeTo{*this, "updPlotRangeTo"};
  CommandButton cmdDrawGraph{*this, "cmdDrawGraph", "&Draw"};
  CheckBox chkQuickGraph{*this, "chkQuickGraph", "&Quick Graph"};
  CheckBox chkFixY{*this, "chkFixY", "Fi&x Graph Max"};
  TextBox txtYMax{*this, "txtYMax"};
  UpDown updYMax{*this, "updYMax"};
  CommandButton cmdZoomIn{*this, "cmdZoomIn", "Zoom &In"};
  CommandButton cmdZoomOut{*this, "cmdZoomOut", "Zoom &Out"};
  CommandButton cmdZoomFull{*this, "cmdZoomFull", "F&ull"};
  Label lblZoomAmount{*this, "lblZoomAmount", "Zoom &Amount"};
  ComboBox cboZoomAmount{*this, "cboZoomAmount", true};
  CheckBox chkShowCheckedOnly{*this, "chkShowCheckedOnly", "Chec&ked Data Items Only"};
  Label lblFindItem{*this, "lblFindItem", "Find an item"};
  TextBox txtFindItem{*this, "txtFindItem"};
  ListView lvwSampleDetails{*this, "lvwSampleDetails", {{"Item"}, {"Value", true}}, true};
  ListView lvwPresets{*this, "lvwPresets", {{"Preset Graphs"}}};
  Frame fraZoneInfl{*this, "fraZoneInfl", "Zone Influence"};
  ControlArray<Label> lblZoneInfl{*this, "lblZoneInfl", UpTo(4), ""};
  Picture picZoneInfl{*this, "picZoneInfl", 1500, 900};

  // The graph, or the place where it will be.
  Chart chSampleGraph{*this, "chSampleGraph"};
  Frame fraPicture{*this, "fraPicture"};
  Label lblEmptyPlace{*this, "lblEmptyPlace"};
  CommandButton cmdDataPointLeft{*this, "cmdDataPointLeft", "<"};
  ScrollBar hsbGraphScroll{*this, "hsbGraphScroll"};
  ScrollBar hsbGraphScrollLarge{*this, "hsbGraphScrollLarge"};
  CommandButton cmdDataPointRight{*this, "cmdDataPointRight", ">"};
  StatusBar staDataLogViewer{*this, "staDataLogViewer", 3};
  ProgressBar proProgInd{*this, "proProgInd"};

  // The menu bar, in order.
  MenuItem mnuFile{*this, "mnuFile", "&File"};
  MenuItem mnuFileNew{*this, "mnuFileNew", "&New...", "Ctrl+N"};
  MenuItem mnuFileOpen{*this, "mnuFileOpen", "&Open...", "Ctrl+L"};
  MenuItem mnuFileSave{*this, "mnuFileSave", "&Save", "Ctrl+S"};
  MenuItem mnuFileSaveAs{*this, "mnuFileSaveAs", "Save &As..."};
  MenuItem mnuFileNewLogDescription{*this, "mnuFileNewLogDescription", "New Log Descrip&tion..."};
  MenuItem mnuFileEditDefinition{*this, "mnuFileEditDefinition", "Edit De&finition..."};
  MenuItem mnuFileExport{*this, "mnuFileExport", "&Export...", "Ctrl+E"};
  MenuItem mnuFilePrint{*this, "mnuFilePrint", "&Print...", "Ctrl+P"};
  MenuItem mnuFilePrintPreview{*this, "mnuFilePrintPreview", "Print Pre&view..."};
  MenuItem mnuFileSavePicture{*this, "mnuFileSavePicture", "Save Pict&ure As..."};
  MenuItem mnuSepRecentlyUsed{*this, "mnuSepRecentlyUsed", "-"};
  ControlArray<MenuItem> mnuRecentlyUsed{*this, "mnuRecentlyUsed", UpTo(kMostRecentFiles), "", ""};
  MenuItem mnuFileExit{*this, "mnuFileExit", "E&xit"};
  MenuItem mnuFileDrawScatter{*this, "mnuFileDrawScatter", "Scatter Graph Auto &Draw"};

  MenuItem mnuEdit{*this, "mnuEdit", "&Edit"};
  MenuItem mnuCopy{*this, "mnuCopy", "&Copy Graph", "Ctrl+C"};
  MenuItem mnuEditUpdatePreset{*this, "mnuEditUpdatePreset", "&Update Preset Graph"};
  MenuItem mnuEditNewPreset{*this, "mnuEditNewPreset", "&New Preset Graph..."};

  MenuItem mnuView{*this, "mnuView", "&View"};
  MenuItem mnuViewScrollLeft{*this, "mnuViewScrollLeft", "Scroll &Left"};
  MenuItem mnuViewScrollRight{*this, "mnuViewScrollRight", "Scroll &Right"};
  MenuItem mnuViewPageLeft{*this, "mnuViewPageLeft", "&Page Left"};
  MenuItem mnuViewPageRight{*this, "mnuViewPageRight", "P&age Right"};
  MenuItem mnuViewStart{*this, "mnuViewStart", "&Start of Log"};
  MenuItem mnuViewFinish{*this, "mnuViewFinish", "&Finish of Log"};
  MenuItem mnuViewZoomIn{*this, "mnuViewZoomIn", "Zoom &In"};
  ControlArray<MenuItem> mnuViewZoomInAmount{*this, "mnuViewZoomInAmount", kZoomAmounts, "", ""};
  MenuItem mnuViewZoomOut{*this, "mnuViewZoomOut", "Zoom &Out"};
  ControlArray<MenuItem> mnuViewZoomOutAmount{*this, "mnuViewZoomOutAmount", kZoomAmounts, "", ""};
  MenuItem mnuViewZoomFull{*this, "mnuViewZoomFull", "Zoom O&ut Full"};
  MenuItem mnuViewPrevious{*this, "mnuViewPrevious", "Pre&vious Graph"};
  MenuItem mnuViewGoto{*this, "mnuViewGoto", "&Go to Sample...", "Ctrl+G"};
  MenuItem mnuViewNewDataTag{*this, "mnuViewNewDataTag", "New &Data Tag"};
  MenuItem mnuViewTags{*this, "mnuViewTags", "Data &Tags"};
  MenuItem mnuViewZoneInfl{*this, "mnuViewZoneInfl", "&Zone Influence"};

  MenuItem mnuModules{*this, "mnuModules", "&Modules"};
  MenuItem mnuModulesZoneData{*this, "mnuModulesZoneData", "&Zone Data Editor"};
  MenuItem mnuModulesScatterGraph{*this, "mnuModulesScatterGraph", "&Scatter Graph"};
  MenuItem mnuModulesPowerGraph{*this, "mnuModulesPowerGraph", "&Power Graph"};

  MenuItem mnuTools{*this, "mnuTools", "&Tools"};
  MenuItem mnuToolsDataLogView{*this, "mnuToolsDataLogView", "&Data Log View"};
  MenuItem mnuToolsConvert{*this, "mnuToolsConvert", "&Convert Binary Log..."};

  MenuItem mnuCustomise{*this, "mnuCustomise", "&Customise"};
  MenuItem mnuCustomiseOptions{*this, "mnuCustomiseOptions", "&Options..."};
  MenuItem mnuCustomisePresetSample{*this, "mnuCustomisePresetSample", "Preset &Sample Graphs..."};
  MenuItem mnuCustomisePresetScatter{*this, "mnuCustomisePresetScatter",
                                     "Preset S&catter Graphs..."};
  MenuItem mnuCustomiseCarDefs{*this, "mnuCustomiseCarDefs", "Car &Definitions..."};
  MenuItem mnuCustomiseBenchmarks{*this, "mnuCustomiseBenchmarks", "&Benchmarks..."};

  MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
  MenuItem mnuHelpHelp{*this, "mnuHelpHelp", "&Contents"};
  MenuItem mnuHelpAbout{*this, "mnuHelpAbout", "&About Tarnview..."};

  // The graph's own menu.
  MenuItem mnuRightClick{*this, "mnuRightClick", "Graph"};
  MenuItem mnuRightClickDrawGraph{*this, "mnuRightClickDrawGraph", "&Draw Graph"};
  MenuItem mnuRightClickZoomIn{*this, "mnuRightClickZoomIn", "Zoom &In"};
  ControlArray<MenuItem> mnuRightClickZoomInAmount{*this, "mnuRightClickZoomInAmount", kZoomAmounts,
                                                   "", ""};
  MenuItem mnuRightClickZoomOut{*this, "mnuRightClickZoomOut", "Zoom &Out"};
  ControlArray<MenuItem> mnuRightClickZoomOutAmount{*this, "mnuRightClickZoomOutAmount",
                                                    kZoomAmounts, "", ""};
  MenuItem mnuRightClickZoomOutFull{*this, "mnuRightClickZoomOutFull", "Zoom O&ut Full"};
  MenuItem mnuRightClickPrevGraph{*this, "mnuRightClickPrevGraph", "Pre&vious Graph"};
  MenuItem mnuRightClickGoto{*this, "mnuRightClickGoto", "&Go to Sample..."};
  MenuItem mnuRightClickPlotFrom{*this, "mnuRightClickPlotFrom", "Set Plot &From"};
  MenuItem mnuRightClickPlotTo{*this, "mnuRightClickPlotTo", "Set Plot &To"};
  MenuItem mnuRightClickPlotFromAnd{*this, "mnuRightClickPlotFromAnd", "Set Plot From and Draw"};
  MenuItem mnuRightClickPlotToAnd{*this, "mnuRightClickPlotToAnd", "Set Plot To and Draw"};
  MenuItem mnuRightClickNewDataTag{*this, "mnuRightClickNewDataTag", "Ne&w Data Tag"};
  MenuItem mnuRightClickCopy{*this, "mnuRightClickCopy", "&Copy Graph"};
  MenuItem mnuRightClickPrint{*this, "mnuRightClickPrint", "&Print..."};
};

}  // namespace tarnview
