#include "zoneeditor/frmBenchmarkDetails.h"

#include "base/Paths.h"
#include "base/Text.h"
#include "desk/SaveDialog.h"
#include "zoneeditor/frmLoadBenchmark.h"
#include "zones/MapFile.h"

namespace tarnview {

frmBenchmarkDetails::frmBenchmarkDetails(Host& itsHost, const Surroundings& surroundings,
                                         const clsBenchmark& ColItem)
    : Form(itsHost, "frmBenchmarkDetails", "Benchmark Details"),
      around_(surroundings),
      benchmark_(ColItem) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "BenchmarkDetails";
  txtFile.HoldsPath = true;
  txtName.ToolTip = std::string("Name of benchmark");
  txtFile.ToolTip = std::string("Path and file name of benchmark source file");
  cmdBrowse.Click = [this] { cmdBrowse_Click(); };
  cmdLoad.Click = [this] { Load(); };
  cmdSave.Click = [this] { cmdSave_Click(); };
  cmdZones.Click = [this] { cmdZones_Click(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmBenchmarkDetails::Form_Load() {
  txtName.Text = benchmark_.strName;
  txtFile.Text = benchmark_.File;
  Enable();
}

void frmBenchmarkDetails::Enable() {
  cmdSave.Enabled = cmdZones.Enabled = !benchmark_.File.empty();
}

void frmBenchmarkDetails::cmdBrowse_Click() {
  const clsFileType& log = around_.types.Item(kFMLinkLog);
  const clsFileType& map = around_.types.Item(kMAPFile);
  Dialog dialog{.title = "Open",
                .filter = log.CommonDialogFilter() + "|" + map.CommonDialogFilter(),
                .initialPath = OrElse(txtFile.Text(), around_.settings.gstrDefaultWorkingDirectory),
                .path = FileTitle(txtFile.Text())};
  if (SameIgnoringCase(GetExtension(txtFile.Text()), map.strFileExtension)) dialog.filterIndex = 2;
  if (!host.Choose(dialog)) return;
  txtFile.Text = dialog.path;
  toLoad_ = true;
}

bool frmBenchmarkDetails::Load() {
  const std::string path = txtFile.Text;
  if (path.empty() || !around_.files.FileExists(path)) {
    around_.messages.ShowMessage(Message::FileNotLoaded);
    return false;
  }
  frmLoadBenchmark loading(host, around_.files, around_.settings, around_.messages);
  loading.FileToLoad = path;
  loading.Run();
  if (!loading.SuccessfulLoad()) {
    around_.messages.ShowMessage(Message::ZonesNotLoaded);
    return false;
  }
  benchmark_ = loading.LoadedBenchmark();
  benchmark_.File = path;
  benchmark_.strName = txtName.Text;
  toLoad_ = false;
  Enable();
  return true;
}

void frmBenchmarkDetails::cmdSave_Click() {
  Dialog dialog{.kind = DialogKind::Save,
                .title = "Save",
                .filter = around_.types.Item(kMAPFile).CommonDialogFilter(),
                .initialPath = benchmark_.File,
                .path = WithoutExtension(FileTitle(benchmark_.File)) + ".map"};
  if (!ChooseFileToSave(host, dialog)) return;
  if (!WriteMapFile(around_.files, dialog.path, MapOf(benchmark_), around_.clock.Now()))
    around_.messages.ShowMessage(Message::SomethingWentWrong);
}

void frmBenchmarkDetails::cmdZones_Click() {
  ZoneMap map = MapOf(benchmark_);
  if (around_.editZones(map, benchmark_.strName + " (benchmark)")) SetMap(benchmark_, map);
}

void frmBenchmarkDetails::cmdOK_Click() {
  if (Trim(txtName.Text()).empty()) {
    around_.messages.ShowMessage(Message::BenchmarkNameMissing);
    return SetFocus(&txtName);
  }
  benchmark_.strName = txtName.Text;
  benchmark_.File = txtFile.Text;
  if ((benchmark_.File.empty() || toLoad_) && !Load()) return;
  Accept();
}

}  // namespace tarnview
