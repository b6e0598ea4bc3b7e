#include "ecu/frmUpload.h"

#include "base/Text.h"

namespace tarnview {
namespace {

enum Option { PermanentlyStore, Verify, ChangesOnly, Verbose };

struct OptionRow {
  Option option;
  const char* caption;
  const char* toolTip;
};

constexpr OptionRow kOptions[] = {
    {PermanentlyStore, "&Permanently Store ",
     "Check to save the uploaded settings into the Link permanently"},
    {Verify, "&Verify Upload", "Check to verify settings reached the ECU after upload"},
    {ChangesOnly, "Upload &Changes Only", "Check to only upload the changed zones to the ECU"},
    {Verbose, "Ver&bose Mode",
     "Check to show more information during the upload at the expense of upload time"},
};

/// In the order of AutoTuneMode.
const std::vector<std::string> kAutoTuneModes{"None", "Coarse No Idle", "Fine No Idle",
                                              "Fine With Idle"};

}  // namespace

frmUpload::frmUpload(const EcuWorld& world, ComparisonChoices choices)
    : Form(world.host, "frmUpload", "Upload Zone Settings"),
      world_(world),
      choices_(std::move(choices)) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "Upload";
  for (const OptionRow& row : kOptions) {
    chkOption(row.option).Caption = std::string(row.caption);
    chkOption(row.option).ToolTip = std::string(row.toolTip);
    chkOption(row.option).Value = world.settings.gblnUploadDefaults[row.option];
  }
  txtCCF.ToolTip = std::string("Path and file name of change comparison file");
  lstCCF.SetList(choices_.recentFiles);
  cboAutoTune.SetList(kAutoTuneModes);
  cboAutoTune.SetListIndex(0);
  EnableComparison();

  chkOption(ChangesOnly).Click = [this] { EnableComparison(); };
  lstCCF.Click = [this] {
    if (lstCCF.ListIndex >= 0)
      txtCCF.Text = lstCCF.Entries()[static_cast<std::size_t>(lstCCF.ListIndex())];
  };
  cmdCCF.Click = [this] { cmdCCF_Click(); };
  cmdOK.Click = [this] { Accept(); };
  cmdCancel.Click = [this] { Unload(); };
}

UploadOptions frmUpload::Chosen() const {
  return {.blnPermanentlyStore = chkOption(PermanentlyStore).Value(),
          .blnVerify = chkOption(Verify).Value(),
          .blnChangesOnly = chkOption(ChangesOnly).Value(),
          .blnVerbose = chkOption(Verbose).Value(),
          .strComparisonFile = txtCCF.Text(),
          .autoTune = static_cast<AutoTuneMode>(cboAutoTune.ListIndex())};
}

void frmUpload::EnableComparison() {
  const bool enabled = chkOption(ChangesOnly).Value;
  lblCCF.Enabled = txtCCF.Enabled = lstCCF.Enabled = cmdCCF.Enabled = enabled;
}

void frmUpload::cmdCCF_Click() {
  Dialog dialog{.title = "Open",
                .filter = choices_.filter,
                .initialPath = OrElse(txtCCF.Text(), world_.settings.gstrDefaultWorkingDirectory)};
  if (host.Choose(dialog)) txtCCF.Text = dialog.path;
}

}  // namespace tarnview
