#include "power/frmPowerBenchComments.h"

#include <algorithm>

namespace tarnview {

frmPowerBenchComments::frmPowerBenchComments(Host& itsHost, const std::string& comments)
    : Form(itsHost, "frmPowerBenchComments", "Power Graph Comments") {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "PowerBenchComments";
  txtComments.Text = comments;
  cmdOK.Click = [this] { Accept(); };
  cmdCancel.Click = [this] { Unload(); };
}

std::string frmPowerBenchComments::Comments() const {
  std::string line = txtComments.Text;
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return line;
}

}  // namespace tarnview
