#include "zoneeditor/GeneralFields.h"

#include <algorithm>

#include "base/Clock.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "zones/AutoTune.h"
#include "zones/ChipIdentity.h"
#include "zones/ChipRules.h"
#include "zones/ZoneEdits.h"
#include "zones/ZoneFlags.h"

namespace tarnview {
namespace {

/// The zones that have a field, in the order of the window.
constexpr int kFields[] = {6,  16,  17,  226, 227, 247,                       // start
                           8,  18,  19,  20,  251,                            // idle
                           3,  12,  14,  15,  112, 113, 208, 209, 248, 249,   // wastegate
                           4,  252, 253, 254, 255,                            // air temperature
                           13, 21,                                            // ignition
                           0,  1,   245, 246, 250,                            // fuel
                           2,  7,   9,   10,  11,  224, 225, 228, 243, 244};  // miscellaneous
constexpr int kLeastAtmos = 0, kMostAtmos = 255;                              ///< kPa

std::vector<std::string> Texts(std::span<const std::string_view> views) {
  return {views.begin(), views.end()};
}

std::string FromTo(const std::string& what, const std::string& from, const std::string& to) {
  return what + " " + from + " to " + to;
}

/// Notes are kept as a file writes them.
std::string LinesWithCRLF(std::string_view text) {
  std::string lines;
  for (const char c : text) {
    if (c == '\n' && !lines.ends_with('\r')) lines += '\r';
    lines += c;
  }
  return lines;
}

std::string Trimmed(std::string_view caption) { return std::string(Trim(caption)); }

}  // namespace

GeneralFields::ZoneField::ZoneField(Form& form, int itsZone)
    : zone(itsZone),
      label(form, "lblZone", "", itsZone),
      text(form, "txtZone", "", itsZone),
      arrows(form, "updZone", itsZone) {}

GeneralFields::GeneralFields(Form& form, SheetKeeper& keeper)
    : lblEngineSize(form, "lblEngineSize", "Engine Si&ze"),
      lblMAPID(form, "lblMAPID", "MAP ID"),
      lblChipDate(form, "lblChipDate", "Chip Date"),
      lblAtmos(form, "lblAtmos", "Atmospheric Pressure (kPa)"),
      cboEngineSize(form, "cboEngineSize"),
      cboMAPID(form, "cboMAPID"),
      txtChipDate(form, "txtChipDate"),
      txtAtmos(form, "txtAtmos"),
      chkMisc0(form, "chkMisc", "", 0),
      chkMisc1(form, "chkMisc", "", 1),
      chkMisc2(form, "chkMisc", "", 2),
      chkMisc3(form, "chkMisc", "", 3),
      chkMisc4(form, "chkMisc", "", 4),
      chkBoost0(form, "chkBoost", "", 0),
      chkBoost1(form, "chkBoost", "", 1),
      chkIdle0(form, "chkIdle", "", 0),
      chkIdle1(form, "chkIdle", "", 1),
      chkAutoTune1(form, "chkAutoTune", "", 1),
      lblAutoTune0(form, "lblAutoTune", "Type", 0),
      lblAutoTune1(form, "lblAutoTune", "O2 Sensor", 1),
      cboAutoTune0(form, "cboAutoTune", false, 0),
      cboAutoTune1(form, "cboAutoTune", false, 1),
      lblNotes(form, "lblNotes", "&Notes"),
      txtNotes(form, "txtNotes"),
      keeper_(keeper),
      txtTrim_(form, "txtTrim"),
      updTrim_(form, "updTrim") {
  for (const int zone : kFields) {
    zones_.push_back(std::make_unique<ZoneField>(form, zone));
    BindZone(*zones_.back());
  }
  txtNotes.MultiLine = true;
  cboAutoTune0.ToolTip = std::string("Type of auto-tuning to use");
  cboAutoTune1.ToolTip = std::string("Which oxygen sensor to use for use for auto tuning.");
  BindChip();
  BindTuning();
}

void GeneralFields::BindZone(ZoneField& field) {
  field.text.LostFocus = [this, &field] { LeaveZone(field.zone, field.text.Text); };
  field.arrows.UpClick = [this, zone = field.zone] { StepZone(zone, 1); };
  field.arrows.DownClick = [this, zone = field.zone] { StepZone(zone, -1); };
}

void GeneralFields::BindChip() {
  cboEngineSize.SetList({"1.6", "1.8"});
  cboMAPID.SetList(Texts(MAPIDs()));
  cboEngineSize.Click = [this] {
    if (showing_) return;
    const std::string text = cboEngineSize.Text;
    keeper_.Do("Engine Size " + text, WithEngineSize(keeper_.Sheet(), StringToDouble(text)));
  };
  cboMAPID.Click = [this] {
    if (showing_) return;
    ZoneSheet sheet = keeper_.Sheet();
    sheet.MAPID = cboMAPID.Text();
    std::string step = "MAP ID " + sheet.MAPID;
    keeper_.Do(std::move(step), std::move(sheet));
  };
  txtChipDate.LostFocus = [this] { LeaveChipDate(); };
  txtAtmos.LostFocus = [this] {
    ZoneSheet sheet = keeper_.Sheet();
    sheet.intAtmosphericPressure =
        std::clamp(StringToLong(txtAtmos.Text()), kLeastAtmos, kMostAtmos);
    std::string step = "Atmospheric Pressure " + std::to_string(sheet.intAtmosphericPressure);
    keeper_.Do(std::move(step), std::move(sheet));
  };
  txtNotes.LostFocus = [this] {
    ZoneSheet sheet = keeper_.Sheet();
    sheet.strNotes = LinesWithCRLF(txtNotes.Text());
    keeper_.Do("Notes", std::move(sheet));
  };
}

void GeneralFields::BindTuning() {
  for (const TickBox& row : TickBoxes())
    row.box.Click = [this, row] {
      if (showing_) return;
      const std::string word = row.box.Value() ? " on" : " off";
      keeper_.Do(Trimmed(row.box.Caption()) + word,
                 WithTick(keeper_.Sheet(), row.tick, row.box.Value));
    };
  cboAutoTune0.Click = [this] {
    if (showing_) return;
    keeper_.Do("Auto Tuning " + cboAutoTune0.Text(),
               WithAutoTuneType(keeper_.Sheet(), cboAutoTune0.Text()));
  };
  cboAutoTune1.Click = [this] {
    if (showing_) return;
    keeper_.Do("O2 Sensor " + cboAutoTune1.Text(),
               WithSensor(keeper_.Sheet(), cboAutoTune1.Text()));
  };
  txtTrim_.LostFocus = [this] { LeaveTrim(txtTrim_.Text); };
  updTrim_.UpClick = [this] { StepZone(zone::kTrim, 1); };
  updTrim_.DownClick = [this] { StepZone(zone::kTrim, -1); };
}

std::vector<GeneralFields::TickBox> GeneralFields::TickBoxes() {
  return {{Tick::EGR, chkMisc0},           {Tick::Security, chkMisc1},
          {Tick::QuadInjection, chkMisc2}, {Tick::AltEGRCurve, chkMisc3},
          {Tick::KnockLight, chkMisc4},    {Tick::TargetControl, chkBoost0},
          {Tick::IATTarget, chkBoost1},    {Tick::TPSIdleSwitch, chkIdle0},
          {Tick::IdleStabilise, chkIdle1}, {Tick::MixtureFuel, chkAutoTune1}};
}

void GeneralFields::LeaveZone(int zone, const std::string& text) {
  const ZoneSheet& before = keeper_.Sheet();
  ZoneSheet after = WithField(before, zone, text);
  std::string step = FromTo(std::string(FieldLabel(before, zone)), FieldText(before, zone),
                            FieldText(after, zone));
  keeper_.Do(std::move(step), std::move(after));
}

void GeneralFields::StepZone(int zone, int by) {
  const GeneralZone* field = FindGeneralZone(zone, keeper_.Sheet().chip);
  LeaveZone(zone, std::to_string(keeper_.Sheet().Shown(zone) + by * field->step));
}

void GeneralFields::LeaveTrim(const std::string& degrees) {
  const ZoneSheet& before = keeper_.Sheet();
  ZoneSheet after = WithTrim(before, degrees);
  std::string step = FromTo("Trim", TrimDegreesText(before.Shown(zone::kTrim)),
                            TrimDegreesText(after.Shown(zone::kTrim)));
  keeper_.Do(std::move(step), std::move(after));
}

/// A text that is no date is put back.
void GeneralFields::LeaveChipDate() {
  const auto date = ParseDate(txtChipDate.Text());
  ZoneSheet sheet = keeper_.Sheet();
  if (date && *date != sheet.chip.datChipDate) sheet = WithChipDate(std::move(sheet), *date);
  keeper_.Do("Chip Date " + txtChipDate.Text(), std::move(sheet));
}

void GeneralFields::Show(const ZoneSheet& sheet, bool readOnly) {
  showing_ = true;
  ShowZones(sheet, readOnly);
  for (const TickBox& row : TickBoxes()) {
    row.box.Caption = std::string(TickCaption(row.tick, sheet.chip));
    row.box.Value = sheet.Ticked(row.tick);
    row.box.Enabled = !readOnly && TickExists(sheet, row.tick);
  }
  cboEngineSize.Text = std::string(EngineSizeText(sheet.chip.dblEngineSize));
  cboMAPID.Text = sheet.MAPID;
  txtChipDate.Text = DayText(sheet.chip.datChipDate);
  txtAtmos.Text = std::to_string(sheet.intAtmosphericPressure);
  txtNotes.Text = sheet.strNotes;
  txtNotes.ReadOnly = readOnly;
  for (Control* control :
       std::initializer_list<Control*>{&cboEngineSize, &cboMAPID, &txtChipDate, &txtAtmos})
    control->Enabled = !readOnly;
  ShowTuning(sheet, readOnly);
  showing_ = false;
}

void GeneralFields::ShowZones(const ZoneSheet& sheet, bool readOnly) {
  for (const auto& field : zones_) {
    const ZoneRange range = FieldRange(sheet, field->zone);
    const bool available = !readOnly && FieldExists(sheet, field->zone);
    field->label.Caption = std::string(FieldLabel(sheet, field->zone));
    field->text.Text = FieldText(sheet, field->zone);
    field->text.ToolTip = std::to_string(range.low) + " to " + std::to_string(range.high);
    field->arrows.Min = range.low;
    field->arrows.Max = range.high;
    for (Control* control :
         std::initializer_list<Control*>{&field->label, &field->text, &field->arrows})
      control->Enabled = available;
  }
  txtTrim_.Text = TrimDegreesText(sheet.Shown(zone::kTrim));
  txtTrim_.Enabled = updTrim_.Enabled = !readOnly;
}

void GeneralFields::ShowTuning(const ZoneSheet& sheet, bool readOnly) {
  const bool mixture = ChipAllows(ChipRule::MixtureFuelFlag, sheet.chip);
  cboAutoTune0.SetList(Texts(AutoTuneTypes(sheet.chip)));
  cboAutoTune0.Text = sheet.autoTuneType;
  cboAutoTune1.SetList(Texts(O2SensorsOf(sheet)));
  cboAutoTune1.Text = sheet.O2Sensor;
  cboAutoTune0.Enabled = lblAutoTune0.Enabled = !readOnly;
  cboAutoTune1.Enabled = lblAutoTune1.Enabled = !readOnly && sheet.autoTuneType != "Off";
  cboAutoTune1.Visible = lblAutoTune1.Visible = !mixture;
  chkAutoTune1.Visible = mixture;
}

}  // namespace tarnview
