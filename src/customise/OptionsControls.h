#pragma once

#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/Picture.h"
#include "ui/TabStrip.h"
#include "ui/TextBox.h"
#include "ui/UpDown.h"

namespace tarnview {

/// Which path a member of txtPath holds.
enum PathIndex : int {
  LogEXE,
  ConversionEXE,
  BackgroundPicture,
  WorkingDirectory,
  AuxConversionFile,
  O2ConversionFile,
  DefinitionFile,
  kPathCount
};

/// The controls of the Options window. No behaviour: that is frmOptions's. A page's frame stands
/// before what it holds; the paths, which are one array on two pages, stand before all pages.
class OptionsControls : public Form {
 public:
  explicit OptionsControls(Host& itsHost) : Form(itsHost, "frmOptions", "Options") {}

  Label lblFind{*this, "lblFind", "Fin&d a Setting"};
  TextBox txtFind{*this, "txtFind"};
  TabStrip tabOptions{*this, "tabOptions"};

  ControlArray<Label> lblPath{*this, "lblPath", UpTo(kPathCount), std::string()};
  ControlArray<TextBox> txtPath{*this, "txtPath", UpTo(kPathCount), std::string()};
  ControlArray<CommandButton> cmdBrowse{*this, "cmdBrowse", UpTo(kPathCount), std::string("...")};

  Frame fraGeneralTab{*this, "fraGeneralTab"};
  Label lblGraphColourScheme{*this, "lblGraphColourScheme", "Graph Colour &Scheme"};
  ComboBox cboGraphColourScheme{*this, "cboGraphColourScheme"};
  Label lblInitialPlotWidth{*this, "lblInitialPlotWidth", "&Initial Plot Width (samples)"};
  TextBox txtInitialPlotWidth{*this, "txtInitialPlotWidth"};
  Label lblSampleWidth{*this, "lblSampleWidth", "Show Point Sample Graph &Width (samples)"};
  TextBox txtSampleWidth{*this, "txtSampleWidth"};
  Label lblDefFreq{*this, "lblDefFreq", "Data Log &Line Frequency (per second)"};
  TextBox txtDefFreq{*this, "txtDefFreq"};
  Label lblPlotFromTemp{*this, "lblPlotFromTemp", "&Plot From Temperature ('C)"};
  TextBox txtPlotFromTemp{*this, "txtPlotFromTemp"};
  CheckBox chkDrawAfterOpening{*this, "chkDrawAfterOpening", "Draw After &Opening a Log"};
  CheckBox chkScatterAutoDraw{*this, "chkScatterAutoDraw", "Scatter &Graph Auto Draw"};
  CheckBox chkAutoScatterFilter{*this, "chkAutoScatterFilter", "Auto Scatter Graph Sample &Filter"};
  CheckBox chkSampleScatter{*this, "chkSampleScatter", "Display Sample Details in Scatter G&raph"};
  CheckBox chkAutoFileNames{*this, "chkAutoFileNames", "Auto File &Names"};
  Frame fraPowerGraph{*this, "fraPowerGraph", "Power Graph Defaults"};
  CheckBox chkPowerGraphGearSelection{*this, "chkPowerGraphGearSelection", "&Auto Gear Selection"};
  Label lblSpeedUnits{*this, "lblSpeedUnits", "Speed &Units"};
  ComboBox cboSpeedUnits{*this, "cboSpeedUnits"};
  Label lblmsConvFactor{*this, "lblmsConvFactor", "Factor to &m/s"};
  TextBox txtmsConvFactor{*this, "txtmsConvFactor"};
  CheckBox chkSAE{*this, "chkSAE", "SA&E Correction"};
  Label lblHumidityType{*this, "lblHumidityType", "&Humidity"};
  ComboBox cboHumidityType{*this, "cboHumidityType"};
  Label lblAmbTemp{*this, "lblAmbTemp", "Ambient &Temp ('C)"};
  TextBox txtAmbTemp{*this, "txtAmbTemp"};
  Label lblAtmos{*this, "lblAtmos", "Atmospheric Pressure (&kPa)"};
  TextBox txtAtmos{*this, "txtAtmos"};
  Label lblRH{*this, "lblRH", ""};
  TextBox txtRH{*this, "txtRH"};
  Label lblCorrFactor{*this, "lblCorrFactor", "Correction Factor"};
  TextBox txtCorrFactor{*this, "txtCorrFactor"};

  Frame fraFMLinkTab{*this, "fraFMLinkTab"};
  Label lblComPort{*this, "lblComPort", "Serial Com P&ort"};
  TextBox txtComPort{*this, "txtComPort"};
  Label lblChipType{*this, "lblChipType", "Chip T&ype"};
  ComboBox cboChipType{*this, "cboChipType"};
  Label lblChipDate{*this, "lblChipDate", "Chip Dat&e"};
  TextBox txtChipDate{*this, "txtChipDate"};
  CheckBox chkSilentDefaults{*this, "chkSilentDefaults", "&Silent Defaults"};
  CheckBox chkAutoTag{*this, "chkAutoTag", "&Auto Open Data Tags Window"};
  CheckBox chkRetainBIN{*this, "chkRetainBIN", "&Retain Binary Files"};
  Frame fraUploadDefs{*this, "fraUploadDefs", "Upload Defaults"};
  ControlArray<CheckBox> chkUploadDefs{*this, "chkUploadDefs", UpTo(4), std::string()};
  Frame fra3DGraph{*this, "fra3DGraph", "3D Graph Defaults"};
  Label lblRotation{*this, "lblRotation", "Rotation"};
  Label lblElevation{*this, "lblElevation", "Elevation"};
  ControlArray<Label> lbl3DSpec{*this, "lbl3DSpec", UpTo(2), std::string()};
  /// Fuel rotation, fuel elevation, ignition rotation, ignition elevation.
  ControlArray<TextBox> txt3DSpec{*this, "txt3DSpec", UpTo(4), std::string()};
  ControlArray<UpDown> updRotation{*this, "updRotation", UpTo(2)};
  ControlArray<UpDown> updElevation{*this, "updElevation", UpTo(2)};

  Frame fraFilesTab{*this, "fraFilesTab"};
  Label lblFileType{*this, "lblFileType", "Default File T&ype"};
  ComboBox cboFileType{*this, "cboFileType"};
  CommandButton cmdLoadGeneric{*this, "cmdLoadGeneric", "&Load"};

  Frame fraDataItemsTab{*this, "fraDataItemsTab"};
  Label lblLogFamily{*this, "lblLogFamily", "Log Famil&y"};
  ComboBox cboLogFamily{*this, "cboLogFamily"};
  ListView lvwDataItems{*this, "lvwDataItems", {{"Item"}, {"Description"}}, true};
  CommandButton cmdCheckAll{*this, "cmdCheckAll", "C&heck All"};
  CommandButton cmdUnCheckAll{*this, "cmdUnCheckAll", "&Uncheck All"};
  Frame fraDataItem{*this, "fraDataItem", "Display"};
  Label lblDataColour{*this, "lblDataColour", "Colour"};
  Picture picDataColour{*this, "picDataColour", 600, 300};
  CommandButton cmdDataColour{*this, "cmdDataColour", "&Colour..."};
  Label lblDataStyle{*this, "lblDataStyle", "Line &Style"};
  ComboBox imgcboDataStyle{*this, "imgcboDataStyle"};
  Label lblDataWidth{*this, "lblDataWidth", "Line &Width"};
  ComboBox imgcboDataWidth{*this, "imgcboDataWidth"};
  Picture picDataSample{*this, "picDataSample", 1500, 300};
  Label lblFactor{*this, "lblFactor", "&Factor"};
  TextBox txtFactor{*this, "txtFactor"};
  CommandButton cmdReset{*this, "cmdReset", "&Reset"};

  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
};

}  // namespace tarnview
