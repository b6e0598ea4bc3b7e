#include "scatter/ScatterFilterList.h"

#include <algorithm>

#include "base/Numbers.h"
#include "presets/ScatterFilters.h"
#include "scatter/frmScatterFilter.h"

namespace tarnview {
namespace {

std::string BoundCell(double bound, const clsLogDataItem& item) {
  if (bound == kBoundNotSet) return "-";
  return FilterBoundText(bound, item);
}

}  // namespace

ScatterFilterList::ScatterFilterList(const Controls& controls, const Surroundings& surroundings)
    : controls_(controls), around_(surroundings) {
  controls_.lvwFilters.DblClick = [this](int) { ModifyFilter(); };
  controls_.cmdFilterNew.Click = [this] { NewFilter(); };
  controls_.cmdFilterMod.Click = [this] { ModifyFilter(); };
  controls_.cmdFilterDelete.Click = [this] { DeleteFilter(); };
}

void ScatterFilterList::SetLogFamily(int lngLogFamily) {
  family_ = lngLogFamily;
  RemoveNonDisplayFilters(filters_, around_.catalogue, family_);
  PopulateFiltersListView(controls_.lvwFilters.SelectedRow());
}

void ScatterFilterList::SetFilters(clsScatterFilters objFilters) {
  filters_ = std::move(objFilters);
  PopulateFiltersListView(1);
}

void ScatterFilterList::AddFilter(const clsScatterFilter& objFilter) {
  filters_.AddDirect(objFilter);
  PopulateFiltersListView(filters_.Count());
}

void ScatterFilterList::PopulateFiltersListView(int selectRow) {
  std::vector<ListView::Row> rows;
  for (const clsScatterFilter& filter : filters_)
    rows.push_back(RowOf(filter, static_cast<int>(rows.size()) + 1));
  controls_.lvwFilters.SetRows(std::move(rows));
  controls_.lvwFilters.Select(selectRow);
}

ListView::Row ScatterFilterList::RowOf(const clsScatterFilter& filter, int position) const {
  ListView::Row row;
  row.tag = std::to_string(position);
  const clsLogDataItems& items = ItemsOfFamily(around_.catalogue, family_);
  if (filter.lngDataItemSeq < 1 || filter.lngDataItemSeq > items.Count()) return row;
  const clsLogDataItem& item = items.Item(filter.lngDataItemSeq);
  row.texts = {item.strShortName, BoundCell(filter.dblFrom, item),
               item.intType == kListItem ? "-" : BoundCell(filter.dblTo, item)};
  row.toolTip = FilterPrintString(filter, items);
  return row;
}

bool ScatterFilterList::NewFilterDetails(clsScatterFilter& filter, bool blnNew) {
  frmScatterFilter window(controls_.lvwFilters.form.host, around_.catalogue, around_.messages);
  window.SetScatterFilter(filter, family_, blnNew);
  window.ShowModal();
  if (!window.Accepted()) return false;
  filter = window.GetScatterFilter();
  return true;
}

void ScatterFilterList::NewFilter() {
  clsScatterFilter blank;
  if (NewFilterDetails(blank, true)) AddFilter(blank);
}

void ScatterFilterList::ModifyFilter() {
  const int position = Selected();
  if (position == 0 || !NewFilterDetails(filters_.Item(position), false)) return;
  PopulateFiltersListView(position);
}

void ScatterFilterList::DeleteFilter() {
  const int row = controls_.lvwFilters.SelectedRow();
  if (row == 0 || !around_.messages.AskQuestion(Question::DeleteFilter)) return;
  filters_.Remove(Selected());
  PopulateFiltersListView(row);
  controls_.lvwFilters.SetFocus();
}

int ScatterFilterList::Selected() const {
  const int row = controls_.lvwFilters.SelectedRow();
  if (row == 0) return 0;
  return StringToLong(controls_.lvwFilters.At(row).tag);
}

}  // namespace tarnview
