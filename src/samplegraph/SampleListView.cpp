#include "samplegraph/SampleListView.h"

#include "base/Numbers.h"
#include "base/Text.h"

namespace tarnview {
namespace {

/// Pictures of the list's image list ilsDisplayedDataItems.
constexpr int kIconDisplayed = 1;
constexpr int kIconNotDisplayed = 2;
constexpr int kValueColumn = 1;

void NoteChecks(const ListView& lvw, CheckedKeys& objCheckedKeys) {
  for (const auto& row : lvw.Rows()) {
    const int seq = StringToLong(row.tag);
    if (row.checked)
      objCheckedKeys[CheckedKey(seq)] = seq;
    else
      objCheckedKeys.erase(CheckedKey(seq));
  }
}

bool IsRow(const clsLogDataItem& item, int intMode, bool blnIsChecked) {
  switch (intMode) {
    case kPlottableItems:
      return item.blnSampleGraphPlottable;
    case kDisplayedItems:
    case kDisplayedInAnyCase:
      return item.blnDisplay;
    case kDisplayedAndCheckedItems:
      return item.blnDisplay && blnIsChecked;
    default:
      return true;
  }
}

ListView::Row MakeRow(const clsLogDataItem& item, const SampleListForm& form) {
  ListView::Row row;
  if (form.blnSeqColumn) row.texts.push_back(PaddedText(item.intSeq, 2));
  row.texts.push_back(item.strShortName);
  if (form.blnShowLongName)
    row.texts.push_back(item.strLongName);
  else
    row.toolTip = item.strLongName;
  const std::string titles = WithLead("Data log column(s): ", item.strColumnTitles);
  if (!row.toolTip.empty() && !titles.empty()) row.toolTip += "\r\n";
  row.toolTip += titles;
  row.tag = std::to_string(item.intSeq);
  if (!form.pictures) return row;
  if (item.blnDisplay)
    row.icon = kIconDisplayed;
  else
    row.icon = kIconNotDisplayed;
  if (item.blnSampleGraphPlottable) row.colour = item.lngColour;
  return row;
}

}  // namespace

std::string CheckedKey(int intSeq) { return "K" + PaddedText(intSeq, 2); }

void SetUpSampleListView(ListView& lvw, CheckedKeys& objCheckedKeys, const SampleListForm& form,
                         const clsLogFamilies& families, const clsLogDataItems& objItems) {
  if (lvw.CheckBoxes) NoteChecks(lvw, objCheckedKeys);
  int lngLogFamily = form.lngLogFamily;
  if (lngLogFamily == 0 && form.lngFileType > 0) {
    lngLogFamily = families.FirstLogFamily(form.lngFileType);
    if (lngLogFamily < 1) return;
  }

  std::vector<ListView::Row> rows;
  for (const clsLogDataItem* item : objItems.InDisplayOrder()) {
    const bool blnIsChecked = objCheckedKeys.contains(CheckedKey(item->intSeq));
    if (!IsRow(*item, form.intMode, blnIsChecked)) continue;
    if (lngLogFamily > 0 && !item->InFamily(lngLogFamily)) continue;
    rows.push_back(MakeRow(*item, form));
    rows.back().checked = lvw.CheckBoxes && blnIsChecked;
  }
  lvw.SetRows(std::move(rows));
  if (lvw.Count() > 0) lvw.Select(1);
}

void PopulateSampleListView(std::int32_t lngIndex, ListView& lvw, const OpenLog& log) {
  for (int row = 1; row <= lvw.Count(); ++row) {
    std::string value;
    if (lngIndex >= 0) value = log.FormatDataItem(StringToLong(lvw.At(row).tag), lngIndex);
    lvw.SetText(row, kValueColumn, std::move(value));
  }
}

std::vector<int> ItemsOfRows(const ListView& lvw, bool checkedOnly) {
  std::vector<int> items;
  for (const auto& row : lvw.Rows())
    if (row.checked || !checkedOnly) items.push_back(StringToLong(row.tag));
  return items;
}

}  // namespace tarnview
