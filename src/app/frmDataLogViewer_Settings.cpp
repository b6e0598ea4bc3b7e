// The main window's side of the settings: what it takes from them, and what it gives back when it
// closes.

#include <algorithm>

#include "app/frmDataLogViewer.h"
#include "base/Numbers.h"
#include "desk/Placement.h"
#include "model/SettingLimits.h"
#include "universal/DefinitionPresets.h"

namespace tarnview {
void frmDataLogViewer::TakeSettings() {
  const Settings& settings = globals_.settings;
  ApplyPlacement(settings.windows.main, *this);
  Dividers = settings.beyond.mainDividers;
  cboZoomAmount.Text = std::to_string(settings.gintZoomAmount);
  chkQuickGraph.Value = settings.gblnQuickGraph;
  txtYMax.Text = std::to_string(settings.gintGraphYMax);
  txtYMax.Enabled = updYMax.Enabled = false;
  chkFixY.Value = settings.gblnFixGraphMax;
  mnuFileDrawScatter.Checked = settings.gblnScatterGraphAutoDraw;
  const std::string& picture = settings.gstrAlternativeBackgroundPicture;
  if (services_.files.IsFile(picture))
    fraPicture.BackgroundPicture = picture;
  else
    fraPicture.BackgroundPicture = std::string();
  logFiles_.TakeRecentFiles();
  details_.SetUpSampleGraphSampleListView(settings.gintDefaultFileType,
                                          definition_.ItemsOf(settings.gintDefaultFileType));
  details_.SetCheckedItems(settings.gcolCheckedDataItems);
  chkShowCheckedOnly.Value = settings.gblnShowCheckedOnly;
}

/// A definition's presets join the user's on a first run, and later whenever one is chosen.
void frmDataLogViewer::JoinDefinitionPresets() {
  if (!globals_.settings.firstRun) return;
  AddDefinitionPresets(globals_.gclsDataLogDefinition, globals_.gcolSampleGraphPresets,
                       globals_.gcolScatterGraphPresets);
}

void frmDataLogViewer::GatherSettings() {
  Settings& settings = globals_.settings;
  settings.gintZoomAmount = ZoomAmount(StringToLong(cboZoomAmount.Text()));
  settings.gblnQuickGraph = chkQuickGraph.Value;
  settings.gblnFixGraphMax = chkFixY.Value;
  settings.gintGraphYMax = kGraphYMaxLimits.Hold(StringToLong(txtYMax.Text()));
  settings.gblnShowCheckedOnly = chkShowCheckedOnly.Value;
  settings.gblnScatterGraphAutoDraw = mnuFileDrawScatter.Checked;
  settings.recentFiles = logFiles_.Recent().Tags();
  settings.gcolCheckedDataItems = details_.CheckedItems();
  const clsLogDataItems& items = globals_.catalogue.gcolFixedDataItems;
  std::stable_sort(settings.gcolCheckedDataItems.begin(), settings.gcolCheckedDataItems.end(),
                   [&](int a, int b) { return items.Item(a).intKey < items.Item(b).intKey; });
}

bool frmDataLogViewer::WriteINIFile() {
  if (globals_.gstrINIFileToWrite.empty()) return true;
  GatherSettings();
  return settingsFile_.WriteINIFile(globals_.gstrINIFileToWrite,
                                    [this](const char* text) { status_.Say(text); });
}

void frmDataLogViewer::ListsChanged() {
  presets_.PopulatePresetGraphs(false, globals_.UsualFileType());
  scatter_.UpdatePresets();
  commands_.Update();
}

/// The graph, the list and every scatter window are shown anew, as the settings and the data items
/// now say.
void frmDataLogViewer::OptionsChanged() {
  const Settings& settings = globals_.settings;
  mnuFileDrawScatter.Checked = settings.gblnScatterGraphAutoDraw;
  fraPicture.BackgroundPicture = settings.gstrAlternativeBackgroundPicture;
  details_.SetUpSampleGraphSampleListView(globals_.UsualFileType(),
                                          definition_.ItemsOf(globals_.UsualFileType()));
  if (log_.gblnSamplesLoaded) {
    SetDataLogViewerCaption();
    details_.ShowHighlighted();
  }
  if (graph_.Drawn()) {
    redraw_.Force();
    graph_.DrawSampleGraph();
  }
  ListsChanged();
  scatter_.OptionsChanged();
  power_.OptionsChanged();
}

}  // namespace tarnview
