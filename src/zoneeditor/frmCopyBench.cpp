#include "zoneeditor/frmCopyBench.h"

#include "base/Text.h"

namespace tarnview {
namespace {

/// The boxes that there are.
std::vector<int> BoxNumbers() {
  std::vector<int> numbers;
  for (int box = 0; box < kCopyBoxes; ++box)
    if (!CopyBoxCaption(box).empty()) numbers.push_back(box);
  return numbers;
}

constexpr int kEverything = static_cast<int>(CopyBox::Everything);

}  // namespace

frmCopyBench::frmCopyBench(Host& itsHost, Date sourceDate, Date formDate, bool normallyAspirated)
    : Form(itsHost, "frmCopyBench", "Copy from Benchmark"),
      chkOptions(*this, "chkOptions", BoxNumbers(), std::string()) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "CopyBenchmark";
  for (const auto& box : chkOptions) {
    box->Caption = std::string(CopyBoxCaption(box->index));
    box->Enabled = CopyBoxAvailable(CopyBox{box->index}, sourceDate, formDate, normallyAspirated);
    box->Click = [this, &box = *box] { BoxClicked(box); };
  }
  cmdOK.Click = [this] { Accept(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmCopyBench::BoxClicked(CheckBox& box) {
  if (ticking_) return;
  ticking_ = true;
  if (box.index != kEverything) {
    if (!box.Value()) chkOptions(kEverything).Value = false;
  } else if (box.Value()) {
    for (const auto& other : chkOptions)
      if (other->Enabled()) other->Value = true;
  }
  ticking_ = false;
}

CopyBoxes frmCopyBench::Boxes() const {
  CopyBoxes boxes{};
  for (const auto& box : chkOptions)
    boxes[static_cast<std::size_t>(box->index)] = box->Value() && box->Enabled();
  return boxes;
}

std::string frmCopyBench::Names() const {
  if (chkOptions(kEverything).Value()) return chkOptions(kEverything).Caption();
  std::vector<std::string> names;
  for (const auto& box : chkOptions)
    if (box->Value()) names.push_back(box->Caption());
  return Join(names, ", ");
}

}  // namespace tarnview
