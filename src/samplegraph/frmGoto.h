#pragma once

#include <cstdint>

#include "model/OpenLog.h"
#include "ui/CheckBox.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

namespace tarnview {

/// Asks for a sample, by its number or by its time; each of the two fields follows the other.
class frmGoto : public Form {
 public:
  /// The log must hold a row.
  frmGoto(Host& itsHost, const OpenLog& log, std::int32_t lngSample, bool blnShowPointWidth);

  Label lblSampleNumber{*this, "lblSampleNumber", "Sample &Number"};
  TextBox txtSampleNumber{*this, "txtSampleNumber"};
  Label lblSampleTime{*this, "lblSampleTime", "Sample &Time (secs)"};
  TextBox txtSampleTime{*this, "txtSampleTime"};
  CheckBox chkShowPointWidth{*this, "chkShowPointWidth", "&Use Show Point Width"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  /// What was accepted.
  std::int32_t lngSampleNumber() const { return sample_; }
  bool blnShowPointWidth() const { return chkShowPointWidth.Value; }

 private:
  void ValidateSampleNumber();
  void ValidateSampleTime();
  void ShowTime(std::int32_t index);
  void cmdOK_Click();

  const OpenLog& log_;
  std::int32_t sample_;
};

}  // namespace tarnview
