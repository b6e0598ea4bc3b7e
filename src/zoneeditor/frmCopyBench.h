#pragma once

#include "ui/CheckBox.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "zones/BenchmarkCopy.h"

namespace tarnview {

/// Asks what to copy from a benchmark.
class frmCopyBench : public Form {
 public:
  frmCopyBench(Host& itsHost, Date sourceDate, Date formDate, bool normallyAspirated);

  ControlArray<CheckBox> chkOptions;  ///< by CopyBox
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  CopyBoxes Boxes() const;
  /// "Fuel Zones, Ignition Zones"; "Everything" where that is ticked.
  std::string Names() const;

 private:
  void BoxClicked(CheckBox& box);

  bool ticking_ = false;  ///< all boxes, by "Everything"
};

}  // namespace tarnview
