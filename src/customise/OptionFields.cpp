#include "customise/OptionFields.h"

#include <string>

#include "base/Numbers.h"
#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/TextBox.h"
#include "zones/ChipIdentity.h"

namespace tarnview {
namespace {

constexpr std::string_view kWindow = "frmOptions/";

// Fields with a rule of their own.
constexpr std::string_view kChipDate = "txtChipDate", kChipType = "cboChipType";

Control* FindByFullName(const Form& form, std::string_view name) {
  for (Control* control : form.Controls())
    if (control->FullName() == name) return control;
  return nullptr;
}

/// The number that the first entry of a list stands for.
int FirstOf(const ComboBox& list) { return list.name == "cboHumidityType" ? 0 : 1; }

/// What a flag's row says of its limits are its two texts, "Y or N".
std::string FlagText(const SettingRow& row, bool on) {
  return {on ? row.limits.front() : row.limits.back()};
}

void ShowIn(Control& control, const SettingRow& row, const Settings& settings) {
  const std::string text = row.text(settings);
  if (control.name == kChipType)
    dynamic_cast<ComboBox&>(control).Text = std::string(
        SetChipTypeCombo(settings.gdblDefaultEngineSize, settings.gintDefaultChipVersion));
  else if (control.name == kChipDate)
    dynamic_cast<TextBox&>(control).Text = DayText(settings.gdatDefaultChipDate);
  else if (auto* field = dynamic_cast<TextBox*>(&control))
    field->Text = text;
  else if (auto* box = dynamic_cast<CheckBox*>(&control))
    box->Value = text == FlagText(row, true);
  else if (auto* list = dynamic_cast<ComboBox*>(&control))
    list->SetListIndex(StringToLong(text) - FirstOf(*list));
}

void TakeFrom(const Control& control, const SettingRow& row, Settings& settings) {
  if (control.name == kChipType) {
    const ChipType& chip = DecipherChipType(dynamic_cast<const ComboBox&>(control).Text());
    settings.gdblDefaultEngineSize = chip.dblEngineSize;
    settings.gintDefaultChipVersion = chip.intChipVersion;
  } else if (const auto* field = dynamic_cast<const TextBox*>(&control)) {
    row.take(settings, field->Text());
  } else if (const auto* box = dynamic_cast<const CheckBox*>(&control)) {
    row.take(settings, FlagText(row, box->Value));
  } else if (const auto* list = dynamic_cast<const ComboBox*>(&control)) {
    row.take(settings, std::to_string(list->ListIndex() + FirstOf(*list)));
  }
}

}  // namespace

OptionFields::OptionFields(const Form& form) {
  for (SettingRow& row : AllSettings())
    if (std::string_view(row.setIn.window).starts_with(kWindow))
      if (Control* control = FindByFullName(form, row.setIn.control))
        fields_.push_back({std::move(row), control});
}

void OptionFields::Show(const Settings& settings) {
  chipDate_ = settings.gdatDefaultChipDate;
  for (const Field& field : fields_) ShowIn(*field.control, field.row, settings);
}

void OptionFields::Take(Settings& settings) const {
  for (const Field& field : fields_) TakeFrom(*field.control, field.row, settings);
}

/// What the controls hold, within the limits, of which some hang on other controls.
Settings OptionFields::Shown() const {
  Settings shown;
  shown.gdatDefaultChipDate = chipDate_;
  Take(shown);
  shown.gintRelativeHumidity = HumidityLimits(shown).Hold(shown.gintRelativeHumidity);
  return shown;
}

void OptionFields::Settle(const Control& control) {
  const Settings shown = Shown();
  chipDate_ = shown.gdatDefaultChipDate;
  for (const Field& field : fields_)
    if (field.control == &control && dynamic_cast<TextBox*>(field.control))
      ShowIn(*field.control, field.row, shown);
}

void OptionFields::SettleAll() {
  for (const Field& field : fields_) Settle(*field.control);
}

}  // namespace tarnview
