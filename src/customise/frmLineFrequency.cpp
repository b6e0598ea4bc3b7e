#include "customise/frmLineFrequency.h"

#include <algorithm>

#include "base/Numbers.h"
#include "model/SettingLimits.h"

namespace tarnview {

frmLineFrequency::frmLineFrequency(Host& itsHost, double linesASecond)
    : Form(itsHost, "frmLineFrequency", "Lines a Second") {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "AnyLog";
  txtLineFrequency.Text = NumberText(linesASecond);
  txtLineFrequency.LostFocus = [this] { txtLineFrequency.Text = NumberText(LinesASecond()); };
  cmdOK.Click = [this] { Accept(); };
  cmdCancel.Click = [this] { Unload(); };
}

double frmLineFrequency::LinesASecond() const {
  return std::clamp(StringToDouble(txtLineFrequency.Text()), kLeastLinesASecond, kMostLinesASecond);
}

}  // namespace tarnview
