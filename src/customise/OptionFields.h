#pragma once

#include <vector>

#include "model/GeneralSettings.h"
#include "ui/Form.h"

namespace tarnview {

/// The settings that the Options window shows, each in the control that its row of AllSettings
/// names, by the rule by which the settings file is read.
class OptionFields {
 public:
  struct Field {
    SettingRow row;
    Control* control;
  };
  explicit OptionFields(const Form& form);

  const std::vector<Field>& All() const { return fields_; }
  /// Fills the controls, in the order of the file.
  void Show(const Settings& settings);
  /// What the controls hold now.
  void Take(Settings& settings) const;
  /// Brings the text of a field into its limits; what is none of its kind becomes the default, a
  /// date the last good one.
  void Settle(const Control& control);
  void SettleAll();

 private:
  Settings Shown() const;

  std::vector<Field> fields_;
  Date chipDate_ = kNoDate;  ///< the last good one
};

}  // namespace tarnview
