#include "scatter/PointStyle.h"

#include <algorithm>
#include <string>
#include <vector>

#include "ui/Form.h"

namespace tarnview {
namespace {

const char* const kShapes[] = {"3D Ball", "Circle", "Dash", "Diamond", "Down Tri",
                               "Plus",    "Square", "Star", "Up Tri",  "X"};
constexpr int kLargestSize = 10;
constexpr std::int32_t kLastColour = 0x1000000;

}  // namespace

PointStyleControls::PointStyleControls(const Controls& controls) : controls_(controls) {
  controls_.cboPointShape.SetList({std::begin(kShapes), std::end(kShapes)});
  std::vector<std::string> sizes;
  for (int size = 1; size <= kLargestSize; ++size) sizes.push_back(std::to_string(size));
  controls_.cboPointSize.SetList(std::move(sizes));
  controls_.cboPointSize.LostFocus = [this] {
    if (controls_.cboPointSize.ListIndex() < 0) controls_.cboPointSize.SetListIndex(0);
  };
  controls_.cmdColourSelector.Click = [this] { cmdColourSelector_Click(); };
  Show({});
}

PointStyle PointStyleControls::Style() const {
  // A size that was just typed and is none counts as the first, as it will once the caret leaves.
  return {std::max(controls_.cboPointShape.ListIndex(), 0),
          std::max(controls_.cboPointSize.ListIndex(), 0) + 1,
          static_cast<std::int32_t>(controls_.picColour.BackColour())};
}

void PointStyleControls::Show(const PointStyle& style) {
  const int lastShape = static_cast<int>(std::size(kShapes)) - 1;
  controls_.cboPointShape.SetListIndex(std::clamp(style.lngPointShape, 0, lastShape));
  controls_.cboPointSize.SetListIndex(std::clamp(style.lngPointSize, 1, kLargestSize) - 1);
  controls_.picColour.BackColour = std::clamp(style.lngPointColour, 0, kLastColour);
}

void PointStyleControls::cmdColourSelector_Click() {
  Dialog dialog{.kind = DialogKind::Colour,
                .title = "Point Colour",
                .colour = controls_.picColour.BackColour};
  if (controls_.picColour.form.host.Choose(dialog)) controls_.picColour.BackColour = dialog.colour;
}

}  // namespace tarnview
