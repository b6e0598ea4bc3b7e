#include "zoneeditor/frmOffset.h"

#include <algorithm>

#include "base/Numbers.h"

namespace tarnview {
namespace {

constexpr int kMost = 255;

}  // namespace

frmOffset::frmOffset(Host& itsHost) : Form(itsHost, "frmOffset", "Apply Offset") {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "ZoneDataFuelZonesTab";
  txtOffset.ToolTip = std::string(
      "Enter a value between -255 and +255 to be added to the highlighted range of cells");
  txtOffset.LostFocus = [this] { HoldOffset(); };
  cmdOK.Click = [this] {
    HoldOffset();
    Accept();
  };
  cmdCancel.Click = [this] { Unload(); };
}

int frmOffset::Offset() const { return std::clamp(StringToLong(txtOffset.Text()), -kMost, kMost); }

void frmOffset::HoldOffset() { txtOffset.Text = std::to_string(Offset()); }

}  // namespace tarnview
