#pragma once

#include "scatter/ScatterFilterList.h"
#include "ui/Chart.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/MenuItem.h"
#include "ui/Picture.h"
#include "ui/ProgressBar.h"
#include "ui/StatusBar.h"

namespace tarnview {

/// The controls of a scatter window, in reading order. No behaviour: that is frmScatterGraph's.
class ScatterWindowControls : public Form {
 public:
  explicit ScatterWindowControls(Host& itsHost)
      : Form(itsHost, "frmScatterGraph", "Tarnview Scatter Graph") {}

  // Left column: what is drawn, how, and from which samples.
  Label lblXAxis{*this, "lblXAxis", "&X Axis"};
  ComboBox cboXAxis{*this, "cboXAxis"};
  Label lblYAxis{*this, "lblYAxis", "&Y Axis"};
  ComboBox cboYAxis{*this, "cboYAxis"};
  Label lblPointShape{*this, "lblPointShape", "&Point"};
  ComboBox cboPointShape{*this, "cboPointShape"};
  Label lblPointSize{*this, "lblPointSize", "Si&ze"};
  ComboBox cboPointSize{*this, "cboPointSize", true};
  Label lblColour{*this, "lblColour", "Colour"};
  Picture picColour{*this, "picColour", 600, 300};
  CommandButton cmdColourSelector{*this, "cmdColourSelector", "&Colour..."};
  Label lblColourBy{*this, "lblColourBy", "Colour &by"};
  ComboBox cboColourBy{*this, "cboColourBy"};
  CommandButton cmdDrawGraph{*this, "cmdDrawGraph", "&Draw"};
  CommandButton cmdShowPoint{*this, "cmdShowPoint", "&Show Point..."};
  Label lblFilters{*this, "lblFilters", "F&ilters"};
  ListView lvwFilters{*this, "lvwFilters", FilterColumns()};
  CommandButton cmdFilterNew{*this, "cmdFilterNew", "&New..."};
  CommandButton cmdFilterMod{*this, "cmdFilterMod", "&Modify..."};
  CommandButton cmdFilterDelete{*this, "cmdFilterDelete", "De&lete"};
  ListView lvwPresets{*this, "lvwPresets", {{"Preset Graphs"}}};

  // The graph, or the place where it will be, and the sample of the selected point.
  Chart chScatterGraph{*this, "chScatterGraph"};
  Frame fraPicture{*this, "fraPicture"};
  Label lblEmptyPlace{*this, "lblEmptyPlace"};
  Frame fraSampleDetails{*this, "fraSampleDetails"};
  ListView lvwSampleDetails{*this, "lvwSampleDetails", {{"Item"}, {"Value", true}}};
  StatusBar staScatterGraph{*this, "staScatterGraph", 3};
  ProgressBar prgProgInd{*this, "prgProgInd"};

  // The menu bar, in order.
  MenuItem mnuFile{*this, "mnuFile", "&File"};
  MenuItem mnuFileExport{*this, "mnuFileExport", "&Export...", "Ctrl+E"};
  MenuItem mnuFilePrint{*this, "mnuFilePrint", "&Print...", "Ctrl+P"};
  MenuItem mnuFilePrintPreview{*this, "mnuFilePrintPreview", "Print Pre&view..."};
  MenuItem mnuFileSavePicture{*this, "mnuFileSavePicture", "Save Pict&ure As..."};
  MenuItem mnuFileClose{*this, "mnuFileClose", "&Close", "Ctrl+W"};

  MenuItem mnuEdit{*this, "mnuEdit", "&Edit"};
  MenuItem mnuEditCopy{*this, "mnuEditCopy", "&Copy Graph", "Ctrl+C"};
  MenuItem mnuEditUpdatePreset{*this, "mnuEditUpdatePreset", "&Update Preset Graph"};
  MenuItem mnuEditNewPreset{*this, "mnuEditNewPreset", "&New Preset Graph..."};

  MenuItem mnuView{*this, "mnuView", "&View"};
  MenuItem mnuViewSampleDetails{*this, "mnuViewSampleDetails", "&Sample Details"};
  MenuItem mnuViewDensity{*this, "mnuViewDensity", "&Density"};

  MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
  MenuItem mnuHelpHelp{*this, "mnuHelpHelp", "&Scatter Graphs"};

  // The graph's own menu.
  MenuItem mnuRightClick{*this, "mnuRightClick", "Graph"};
  MenuItem mnuRightClickCopy{*this, "mnuRightClickCopy", "&Copy Graph"};
  MenuItem mnuRightClickPrint{*this, "mnuRightClickPrint", "&Print..."};
};

}  // namespace tarnview
