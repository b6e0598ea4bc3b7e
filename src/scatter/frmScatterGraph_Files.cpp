// What a scatter window keeps and gives away: presets, the export, the page for the printer.

#include <utility>

#include "samplegraph/ExportRun.h"
#include "samplegraph/LogExport.h"
#include "samplegraph/frmNewPresetName.h"
#include "scatter/ScatterExport.h"
#include "scatter/frmScatterGraph.h"

namespace tarnview {

void frmScatterGraph::PopulatePresets(bool selectLast) {
  const int selected = lvwPresets.SelectedRow();
  ListView::Row before;
  if (selected > 0) before = lvwPresets.At(selected);
  presets_.Populate(selectLast, FileType());
  // The same place may hold another preset by now.
  int row = 0;
  if (!before.tag.empty()) row = lvwPresets.RowOfTag(before.tag);
  if (!selectLast && row > 0 && lvwPresets.At(row).texts == before.texts) lvwPresets.Select(row);
  commands_.Update();
}

void frmScatterGraph::SelectPreset(const clsScatterGraphPreset& preset, bool quiet) {
  xAxis_.Choose(preset.lngXAxisDataItem, around_.messages, quiet);
  yAxis_.Choose(preset.lngYAxisDataItem, around_.messages, quiet);
  style_.Show({preset.lngPointShape, preset.lngPointSize, preset.lngPointColour});
  filters_.SetFilters(preset.objFilters);
}

void frmScatterGraph::TakeWhatIsShown(clsScatterGraphPreset& preset) const {
  const ScatterRequest shown = Request();
  preset.lngXAxisDataItem = shown.xItem;
  preset.lngYAxisDataItem = shown.yItem;
  preset.lngPointShape = shown.style.lngPointShape;
  preset.lngPointSize = shown.style.lngPointSize;
  preset.lngPointColour = shown.style.lngPointColour;
  preset.objFilters = shown.objFilters;
}

void frmScatterGraph::mnuEditUpdatePreset_Click() {
  clsScatterGraphPreset* preset = presets_.Selected();
  if (!preset) return;
  TakeWhatIsShown(*preset);
  mainWindow_.ScatterPresetsChanged(false);
}

void frmScatterGraph::mnuEditNewPreset_Click() {
  frmNewPresetName window(host, around_.messages, clsScatterGraphPresets::NEW_NAME);
  window.ShowModal();
  if (!window.Accepted()) return;
  clsScatterGraphPreset preset = presets_.NewPreset(window.strName(), FileType());
  TakeWhatIsShown(preset);
  presets_.Add(std::move(preset));
  mainWindow_.ScatterPresetsChanged(true);
  PopulatePresets(true);
}

void frmScatterGraph::mnuFileExport_Click() {
  std::string path = GetExportPathFile(drawing_.strGraphedFile());
  const ExportRun run{*this, status_, around_.messages, around_.errors, "ExportGraph"};
  exported_ = run.Run(path, [this](const std::string& strFile) { ExportGraph(strFile); });
}

void frmScatterGraph::ExportGraph(const std::string& strFile) {
  const auto& type = around_.kinds.gcolFileTypes.Item(around_.log.gintCurrentFileType);
  ExportScatterGraph(strFile, drawing_, mainWindow_.ListedItems(), around_.log, type.strDescription,
                     around_.files, status_);
}

PrintDetails frmScatterGraph::DetailsForPrint() const {
  PrintDetails details{" Scatter Graph", {{"File", drawing_.strGraphedFile()}}};
  std::string label = "Filters";  // of the first alone
  for (const std::string& filter : drawing_.Filters())
    details.rows.emplace_back(std::exchange(label, ""), filter);
  return details;
}

}  // namespace tarnview
