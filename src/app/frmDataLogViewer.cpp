#include "app/frmDataLogViewer.h"

#include "app/SystemInformation.h"
#include "app/frmAbout.h"
#include "desk/Placement.h"

namespace tarnview {
frmDataLogViewer::frmDataLogViewer(Globals& globals, Services& services, SettingsFile& settingsFile)
    : MainWindowControls(services.host),
      globals_(globals),
      services_(services),
      settingsFile_(settingsFile),
      log_(globals.log),
      details_({lvwSampleDetails, chkShowCheckedOnly, chSampleGraph}, drawn_, selection_, log_,
               globals.kinds.gcolLogFamilies),
      graph_(
          *this,
          {lvwSampleDetails, chkQuickGraph, chkFixY, txtYMax, updYMax, chSampleGraph, fraPicture},
          {log_, range_, drawn_, selection_, redraw_},
          {globals.settings, status_, services.messages}, *this),
      highlight_({chSampleGraph}, plotted_, details_, status_, *this),
      scrolling_({hsbGraphScroll, hsbGraphScrollLarge}, plotted_, *this),
      zoom_({cboZoomAmount, chkQuickGraph}, plotted_, services.messages, *this),
      mouse_({chSampleGraph, chkQuickGraph, cmdZoomFull}, plotted_, highlight_, *this),
      presets_({lvwPresets, lvwSampleDetails, chkShowCheckedOnly, chkFixY, txtYMax},
               globals.gcolSampleGraphPresets, globals.kinds.gcolLogFamilies, *this),
      export_({lvwSampleDetails, chkShowCheckedOnly}, range_, log_, services.files, status_),
      output_(services.host, services.messages, services.errors),
      zoneInfluence_({fraZoneInfl, lblZoneInfl, picZoneInfl, mnuViewZoneInfl, cmdDrawGraph},
                     selection_, log_),
      tags_(services.host, log_.gcolLogTags, *this),
      scatter_(*this, globals, services, range_, status_, *this),
      power_(*this, globals, services, range_, *this),
      ecu_(*this, globals, services, logFiles_),
      zones_(*this, globals, services, *this),
      customising_(*this, globals, services, power_, zones_, *this),
      commands_(services.errors, "frmDataLogViewer") {
  DefaultButton = &cmdDrawGraph;
  HelpTopic = "SampleGraph";
  txtFindItem.Change = [this] { details_.FindItem(txtFindItem.Text()); };
  SetUpZoomMenus();
  BindCommands();
  zones_.Upload = [this](const ZoneSheet& sheet, const ZoneMap& source) {
    ecu_.UploadZones(ZonesOfSheet(sheet, source, globals_.settings),
                     [this](const std::string& path) { return zones_.LoadZones(path); });
  };
  services_.messages.ShowNonModal = [this](Message, const std::string& text) {
    ShowNonModal(text);
  };
}

void frmDataLogViewer::Form_Load() {
  if (globals_.catalogue.gcolUniversalDataItems.Count() == 0)
    definition_.LoadDataLogDefinitionLocal();
  settingsFile_.LoadPresets();
  JoinDefinitionPresets();
  TakeSettings();
  presets_.PopulatePresetGraphs(false, globals_.UsualFileType());
  zoneInfluence_.DisplayZoneInfluence();
  HideForLoad();
  GatherSettings();
  settingsFile_.Remember();
}

void frmDataLogViewer::Form_Activate() {
  if (!globals_.gblnStarting) return;
  logFiles_.LoadConversionFiles();
  globals_.gblnStarting = false;
}

void frmDataLogViewer::OpenFromCommandLine(const std::string& commandLine) {
  if (!logFiles_.OpenFromCommandLine(commandLine) || !cmdDrawGraph.Enabled) return;
  chkQuickGraph.Value = true;
  DrawGraph();
}

bool frmDataLogViewer::DropFile(const std::string& path) {
  if (services_.files.FolderExists(path)) return false;
  return TrapEvent(services_.errors, "frmDataLogViewer", "DropFile", [&] {
    if (logFiles_.SaveChangesPrompt()) logFiles_.OpenFile(path, kUnknownFile);
  });
}

void frmDataLogViewer::Form_Unload() {
  globals_.settings.windows.main = PlacementOf(*this);
  globals_.settings.beyond.mainDividers = Dividers;
  nonModalMessages_.UnloadAll();
  scatter_.UnloadAll();
  power_.UnloadAll();
  log_.gblnZonesDirty = false;  // saved, or given up by an answer
  zones_.ForgetEdits();
  WriteINIFile();
  tags_.Unload();
}

void frmDataLogViewer::SampleShown(std::int32_t index) {
  zoneInfluence_.ShowSample(index);
  commands_.Update();
}

bool frmDataLogViewer::CurrentRange(clsLogTag& tag) const {
  const std::int64_t from = range_.From(), to = range_.To();
  if (!log_.gblnSamplesLoaded || from >= to || from < log_.glngFirstSampleTime ||
      to > log_.glngLastSampleTime)
    return false;
  tag = {static_cast<std::int32_t>(to), static_cast<std::int32_t>(from)};
  return true;
}

void frmDataLogViewer::ShowRange(const clsLogTag& tag) {
  if (!log_.gblnSamplesLoaded) return;
  range_.SetFrom(tag.FromSequence);
  range_.SetTo(tag.ToSequence);
  graph_.DrawGraphChecked();
}

void frmDataLogViewer::PlotRun(const SampleRange& range, std::int32_t sample) {
  range_.SetFrom(range.from);
  range_.SetTo(range.to);
  selection_.Highlight(sample);
  redraw_.Force();
  graph_.DrawGraphChecked();
}

void frmDataLogViewer::StartSysInfo() {
  const std::string tool = SystemInformationTool();
  if (tool.empty() || !services_.files.FileExists(tool))
    services_.messages.Tell("System Information Is Unavailable At This Time", kBoxOk);
  else
    services_.programs.ShellOpen(tool);
}

void frmDataLogViewer::ShowNonModal(const std::string& text) {
  const int number = nonModalMessages_.NextNumber();
  auto& window = nonModalMessages_.Add(
      std::make_unique<frmNonModalMessage>(host, [this](int ID) { nonModalMessages_.Remove(ID); }));
  window.ID = number;
  window.MessageText(text);
  window.Show();
}

}  // namespace tarnview
