#include "zoneeditor/frmZoneData.h"

#include <algorithm>
#include <cmath>

#include "base/Text.h"
#include "zoneeditor/frmCopyBench.h"
#include "zoneeditor/frmOffset.h"
#include "zones/AirFuelTargets.h"
#include "zones/BenchmarkCopy.h"
#include "zones/ChipIdentity.h"
#include "zones/ZoneEdits.h"

namespace tarnview {
namespace {

struct TabRow {
  const char* caption;
  const char* help;
};
constexpr TabRow kTabs[] = {{"General", "ZoneDataGeneralTab"},
                            {"Fuel", "ZoneDataFuelZonesTab"},
                            {"Ignition", "ZoneDataIgnitionZonesTab"},
                            {"Notes", "ZoneDataNotesTab"}};

constexpr int kYesNoQuestion = kBoxYesNo + kBoxQuestion;
constexpr int kBoostTargetsUnit = 0, kWastegateUnit = 1;

}  // namespace

frmZoneData::frmZoneData(Host& itsHost, const Surroundings& surroundings,
                         ZoneEditorParameters parameters)
    : Form(itsHost, "frmZoneData", "Tarnview Zone Data - " + parameters.fileName),
      around_(surroundings),
      parameters_(std::move(parameters)),
      history_(OpenSheet(parameters_.map)),
      comparison_(parameters_.comparison, around_.benchmarks),
      radBoost(*this, "radBoost", {kBoostTargetsUnit, kWastegateUnit},
               std::string("fraBoostTargets"), std::string()),
      Driven(*this, *this, Grids, around_.drive),
      commands_(around_.errors, "frmZoneData") {
  CancelButton = &cmdCancel;
  radBoost(kBoostTargetsUnit).Caption = std::string("Boost Targets");
  radBoost(kWastegateUnit).Caption = std::string("Wastegate %");
  SetUpTabs();
  SetUpCaptions();
  BindControls();
  BindCommands();
}

void frmZoneData::SetUpTabs() {
  Frame* const pages[] = {&fraGeneralTab, &fraFuelTab, &fraIgnitionTab, &fraNotesTab};
  std::vector<TabStrip::Tab> tabs;
  for (std::size_t tab = 0; tab < std::size(kTabs); ++tab) {
    const bool empty = pages[tab] == &fraNotesTab && ReadOnly() && parameters_.map.strNotes.empty();
    if (empty)
      pages[tab]->Visible = false;
    else
      tabs.push_back({kTabs[tab].caption, pages[tab]});
  }
  tabZoneData2.SetTabs(std::move(tabs));
}

/// The manual opens at the tab in view.
void frmZoneData::SetHelpTopic() {
  HelpTopic = kTabs[std::max(tabZoneData2.Selected() - 1, 0)].help;
}

void frmZoneData::SetUpCaptions() {
  const bool map = Upper(parameters_.fileName).ends_with("MAP");
  const bool benchmark = ReadOnly() || (!map && !parameters_.comparison);
  std::string own = "This Datalog";
  if (map) own = "This MAP File";
  if (benchmark) own = "This Benchmark";
  for (const auto& frame : fraData) {
    const SheetGrid grid{frame->index};
    frame->Caption = own;
    if (IsBenchmarkGrid(grid)) frame->Caption = std::string("Selected Benchmark");
    if (IsDifferenceGrid(grid)) frame->Caption = std::string("Difference");
  }
  if (ReadOnly()) cmdCancel.Caption = std::string("&Close");
}

void frmZoneData::BindControls() {
  tabZoneData2.Click = [this] { SetHelpTopic(); };
  SetHelpTopic();
  cboBenchmark.Click = [this] { cboBenchmark_Click(); };
  cboSteps.Click = [this] {
    if (!showing_ && cboSteps.ListIndex() >= 0)
      GoTo(static_cast<std::size_t>(cboSteps.ListIndex()));
  };
  for (const auto& button : radBoost)
    button->Click = [this, unit = button->index] {
      if (!showing_) radBoost_Click(unit);
    };
  for (const auto& grid : Grids.grdData) {
    grid->RightClick = [this, which = SheetGrid{grid->index}] { GridRightClicked(which); };
    grid->SelectionChanged = [this] { commands_.Update(); };
    grid->GotFocus = [this] { commands_.Update(); };
  }
  for (Grid* grid : {&Driven.grdDrive(0), &Driven.grdDrive(1), &Driven.grdProposal})
    grid->GotFocus = [this] { commands_.Update(); };
  Driven.Changed = [this] { commands_.Update(); };
}

void frmZoneData::Form_Load() {
  Grids.LayOut(ReadOnly());
  Driven.LayOut(ReadOnly());
  SetUpComparison();
  const bool boost = !Sheet().normallyAspirated && !ReadOnly();
  fraBoost.Enabled = fraBoostTargets.Enabled = boost;
  for (const auto& button : radBoost) button->Enabled = boost;
  for (Control* control :
       std::initializer_list<Control*>{&lblBenchmark, &cboBenchmark, &cmdDetails, &cmdCopyBenchmark,
                                       &cmdOK, &lblSteps, &cboSteps})
    control->Visible = !ReadOnly();
  cmdUpload.Visible = !ReadOnly() && parameters_.mayUpload;
  ShowSheet();
}

/// The benchmark that was chosen last, else the first entry.
void frmZoneData::SetUpComparison() {
  if (ReadOnly()) return;
  const std::vector<std::string> names = comparison_.Names();
  cboBenchmark.SetList(names);
  if (!cboBenchmark.Choose(around_.settings.gstrDefaultBenchmark) && !names.empty())
    cboBenchmark.SetListIndex(0);
  cboBenchmark_Click();
}

void frmZoneData::cboBenchmark_Click() {
  comparison_.Choose(cboBenchmark.ListIndex());
  if (cboBenchmark.ListIndex() >= 0) around_.settings.gstrDefaultBenchmark = cboBenchmark.Text();
  if (IsShown()) ShowSheet();
}

void frmZoneData::ShowSheet() {
  showing_ = true;
  Fields.Show(Sheet(), ReadOnly());
  radBoost(Sheet().boostTargets ? kBoostTargetsUnit : kWastegateUnit).Value = true;
  Grids.Show();
  Driven.Show();
  ShowSteps();
  showing_ = false;
  commands_.Update();
}

/// What was done from the top down; the chosen entry is where the editor stands.
void frmZoneData::ShowSteps() {
  const std::vector<EditHistory::Step>& steps = history_.Steps();
  const auto& listed = cboSteps.Entries();
  // A step changes the list at its end alone; to undo and redo changes nothing in it.
  if (listed.size() != steps.size() + 1 || (!steps.empty() && listed.back() != steps.back().name)) {
    std::vector<std::string> names{"As opened"};
    for (const EditHistory::Step& step : steps) names.push_back(step.name);
    cboSteps.SetList(std::move(names));
  }
  cboSteps.SetListIndex(static_cast<int>(history_.Done()));
  if (history_.CanUndo())
    mnuEditUndo.Caption = "&Undo " + history_.UndoName();
  else
    mnuEditUndo.Caption = "&Undo";
  if (history_.CanRedo())
    mnuEditRedo.Caption = "&Redo " + history_.RedoName();
  else
    mnuEditRedo.Caption = "&Redo";
}

void frmZoneData::Do(std::string step, ZoneSheet after) {
  if (ReadOnly()) return;
  const bool stepped = history_.Do(step, std::move(after));
  if (stepped) Say(std::move(step));
  ShowSheet();
  if (stepped && around_.stepped) around_.stepped(history_);
}

void frmZoneData::GoTo(std::size_t done) {
  if (done == history_.Done()) return;
  history_.GoTo(done);
  if (done == 0)
    Say("As opened");
  else
    Say(history_.UndoName());
  ShowSheet();
  if (around_.stepped) around_.stepped(history_);
}

void frmZoneData::Resume(EditHistory history) { history_ = std::move(history); }

std::vector<std::string> frmZoneData::ConvertedTargets() const {
  const ZoneMap map = Map();
  const AFTargets targets =
      CalcAFTargets(map.zones, map.chip, around_.tables, around_.auxInput.dblFactor);
  std::vector<std::string> texts;
  for (const double target : targets.targets)
    texts.push_back(
        around_.auxInput.GetFormattedData(static_cast<std::int32_t>(std::trunc(target))));
  return texts;
}

bool frmZoneData::CopyFirstToAll() {
  const char* what = Sheet().boostTargets ? "boost target" : "wastegate duty cycle";
  const std::string text =
      std::string("Would you like to copy the first ") + what + " to all the rest? ";
  return around_.messages.Tell(text, kYesNoQuestion) == Reply::Yes;
}

void frmZoneData::radBoost_Click(int unit) {
  const bool targets = unit == kBoostTargetsUnit;
  if (targets == Sheet().boostTargets) return;
  const std::string text = std::string("Confirm change to specifying ") +
                           (targets ? "boost targets" : "wastegate duty cycles") +
                           " (existing data will be erased) ?";
  if (around_.messages.Tell(text, kYesNoQuestion) == Reply::Yes)
    Do(radBoost(unit).Caption(), WithBoostTargets(Sheet(), targets));
  else
    ShowSheet();
}

void frmZoneData::cmdCopyBenchmark_Click() {
  const ZoneMap source = comparison_.Map(Map());
  frmCopyBench window(host, source.chip.datChipDate, Sheet().chip.datChipDate,
                      Sheet().normallyAspirated);
  window.ShowModal();
  if (!window.Accepted()) return;
  CopiedSheet copied = CopyFromBenchmark(Sheet(), source, window.Boxes());
  for (const Message message : copied.messages) around_.messages.ShowMessage(message);
  Do("Copy " + window.Names() + " from " + cboBenchmark.Text(), std::move(copied.sheet));
}

/// Another editor, in which nothing can be changed.
void frmZoneData::cmdDetails_Click() {
  ZoneEditorParameters parameters;
  parameters.map = comparison_.Map(Map());
  parameters.detailsOnly = true;
  parameters.fileName = cboBenchmark.Text() + TextIf(comparison_.IsBenchmark(), " (benchmark)");
  Surroundings around = around_;
  around.stepped = nullptr;
  around.drive = nullptr;
  frmZoneData(host, around, std::move(parameters)).ShowModal();
}

void frmZoneData::cmdDefault_Click() {
  if (!around_.messages.AskQuestion(Question::OverwriteChip, true)) return;
  const ChipIdentity& chip = Sheet().chip;
  if (IsEngineSize(chip.dblEngineSize))
    around_.settings.gdblDefaultEngineSize = chip.dblEngineSize;
  else
    around_.settings.gdblDefaultEngineSize = 1.6;
  around_.settings.gdatDefaultChipDate = chip.datChipDate;
  around_.settings.gintDefaultChipVersion = chip.intChipVersion;
  Do("Rules of the chip", WithChipRules(Sheet()));
}

bool frmZoneData::UploadFits() const {
  const ChipIdentity& chip = Sheet().chip;
  const Settings& own = around_.settings;
  return chip.dblEngineSize == own.gdblDefaultEngineSize &&
         chip.intChipVersion == own.gintDefaultChipVersion &&
         chip.datChipDate == own.gdatDefaultChipDate;
}

void frmZoneData::cmdOK_Click() {
  // Enter and shortcuts leave the caret in its field.
  SetFocus(nullptr);
  Accept();
}

bool frmZoneData::Form_QueryUnload() {
  if (ReadOnly() || Accepted() || !Changed()) return true;
  return around_.messages.AskQuestion(Question::ThrowChangesAway, true);
}

}  // namespace tarnview
