#include "samplegraph/SampleDetails.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/LocateSample.h"

namespace tarnview {
namespace {

/// Rows above this one ("Sample" and "Secs") never move the chart's selection.
constexpr int kFirstCurveRow = 3;

}  // namespace

SampleDetails::SampleDetails(const Controls& controls, const DrawnGraph& drawn,
                             const Selection& selection, const OpenLog& log,
                             const clsLogFamilies& families)
    : controls_(controls), drawn_(drawn), selection_(selection), log_(log), families_(families) {
  controls_.chkShowCheckedOnly.ToolTip =
      std::string("Check this to only display the data items that have been checked");
  controls_.chkShowCheckedOnly.Click = [this] { chkShowCheckedOnly_Click(); };
  controls_.lvwSampleDetails.ItemCheck = [this](int row) { lvwSampleDetails_ItemCheck(row); };
  controls_.lvwSampleDetails.ItemClick = [this](int row) { lvwSampleDetails_ItemClick(row); };
  controls_.lvwSampleDetails.DblClick = [this](int row) { ListViewToggleCheckBox(row); };
}

void SampleDetails::SetUpSampleGraphSampleListView(int lngFileType, const clsLogDataItems& items) {
  fileType_ = lngFileType;
  items_ = &items;
  const bool wasVisible = controls_.lvwSampleDetails.Visible;
  controls_.lvwSampleDetails.Visible = false;
  SampleListForm form;
  if (controls_.chkShowCheckedOnly.Value)
    form.intMode = kDisplayedAndCheckedItems;
  else
    form.intMode = kDisplayedInAnyCase;
  form.lngFileType = lngFileType;
  SetUpSampleListView(controls_.lvwSampleDetails, checked_, form, families_, items);
  controls_.lvwSampleDetails.Visible = wasVisible;
}

void SampleDetails::SelectItem(int item) {
  const int row = controls_.lvwSampleDetails.RowOfTag(std::to_string(item));
  if (row > 0) controls_.lvwSampleDetails.Select(row);
}

void SampleDetails::FindItem(const std::string& text) {
  ListView& list = controls_.lvwSampleDetails;
  const std::string wanted = Upper(text);
  const auto holds = [&](int row) {
    const ListView::Row& it = list.At(row);
    return Upper(it.texts[0]).find(wanted) != std::string::npos ||
           Upper(it.toolTip).find(wanted) != std::string::npos;
  };
  if (wanted.empty()) return;
  for (int step = 0; step < list.Count(); ++step) {
    // The selected row itself stays where it still fits what has been typed so far.
    const int row = (std::max(list.SelectedRow(), 1) - 1 + step) % list.Count() + 1;
    if (!holds(row)) continue;
    list.Select(row);
    return;
  }
}

std::vector<int> SampleDetails::CheckedItems() const {
  CheckedKeys keys = checked_;
  for (const auto& row : controls_.lvwSampleDetails.Rows()) {
    const int seq = StringToLong(row.tag);
    keys.erase(CheckedKey(seq));
    if (row.checked) keys[CheckedKey(seq)] = seq;
  }
  std::vector<int> items;
  for (const auto& [key, seq] : keys) items.push_back(seq);
  std::sort(items.begin(), items.end());
  return items;
}

void SampleDetails::SetCheckedItems(const std::vector<int>& items) {
  checked_.clear();
  for (int seq : items)
    if (!items_ ||
        (seq >= 1 && seq <= items_->Count() && items_->Item(seq).blnSampleGraphPlottable))
      checked_[CheckedKey(seq)] = seq;
  controls_.lvwSampleDetails.Clear();
  if (items_) SetUpSampleGraphSampleListView(fileType_, *items_);
}

void SampleDetails::chkShowCheckedOnly_Click() {
  if (!items_) return;
  SetUpSampleGraphSampleListView(fileType_, *items_);
  if (log_.gblnSamplesLoaded) ShowHighlighted();
}

void SampleDetails::ShowHighlighted() {
  const std::int32_t sample = selection_.lngHighlightSample();
  PopulateSampleListView(LocateSample(log_, sample - log_.glngFirstSampleTime, sample));
}

void SampleDetails::lvwSampleDetails_ItemCheck(int row) {
  ListView& list = controls_.lvwSampleDetails;
  // A value such as "Sample" can be read but never plotted: its check is taken back.
  if (list.At(row).checked && !items_->Item(StringToLong(list.At(row).tag)).blnSampleGraphPlottable)
    list.SetChecked(row, false);
}

void SampleDetails::lvwSampleDetails_ItemClick(int row) {
  if (!controls_.chSampleGraph.Visible || row < kFirstCurveRow) return;
  const int item = StringToLong(controls_.lvwSampleDetails.At(row).tag);
  const auto found = std::find(drawn_.intPlottedItems.begin(), drawn_.intPlottedItems.end(), item);
  if (found != drawn_.intPlottedItems.end() && CurveChosen)
    CurveChosen(static_cast<int>(found - drawn_.intPlottedItems.begin()));
}

void SampleDetails::ListViewToggleCheckBox(int row) {
  ListView& list = controls_.lvwSampleDetails;
  list.SetChecked(row, !list.At(row).checked);
}

}  // namespace tarnview
