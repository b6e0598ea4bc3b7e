#include "scatter/frmScatterFilter.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "presets/ScatterFilters.h"

namespace tarnview {
namespace {

double BoundIn(const ComboBox& box) {
  if (box.Text->empty()) return kBoundNotSet;
  return StringToDouble(box.Text());
}

}  // namespace

frmScatterFilter::frmScatterFilter(Host& itsHost, const Catalogue& catalogue, Messages& messages)
    : Form(itsHost, "frmScatterFilter", "Scatter Graph Filter"),
      catalogue_(catalogue),
      messages_(messages) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "ScatterFilter";
  imgcboDataItem.Click = [this] { imgcboDataItem_Click(); };
  for (ComboBox* box : {&cboFrom, &cboTo}) box->LostFocus = [this, box] { BoundIsLeft(*box); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

const clsLogDataItem* frmScatterFilter::Item() const {
  const int seq = items_.Item();
  if (seq == 0) return nullptr;
  return &ItemsOfFamily(catalogue_, family_).Item(seq);
}

bool frmScatterFilter::IsList() const { return Item() && Item()->intType == kListItem; }

void frmScatterFilter::SetScatterFilter(const clsScatterFilter& objFilter, int lngLogFamily,
                                        bool blnQuiet) {
  family_ = lngLogFamily;
  items_.SetItems(FilterItems(catalogue_, family_));
  items_.Choose(objFilter.lngDataItemSeq, messages_, blnQuiet);
  if (!Item() || Item()->intSeq != objFilter.lngDataItemSeq) return;
  const std::string from = FilterBoundText(objFilter.dblFrom, *Item());
  if (!IsList()) {
    cboFrom.Text = from;
    cboTo.Text = FilterBoundText(objFilter.dblTo, *Item());
  } else if (objFilter.dblFrom >= 0) {
    // By its place, since two values of a list may read alike.
    cboFrom.SetListIndex(RoundToLong(objFilter.dblFrom));
  }
}

void frmScatterFilter::imgcboDataItem_Click() {
  std::vector<std::string> values;
  if (IsList()) values = Item()->varDescList;
  cboFrom.SetList(std::move(values));
  cboFrom.SetListIndex(0);  // the first value of a list item, else empty
  cboTo.Text = std::string();
  cboTo.Enabled = !IsList();
}

/// On the way to OK or out of the window there is nothing to refuse: OK checks for itself.
void frmScatterFilter::BoundIsLeft(ComboBox& box) {
  if (IsUnloading() || ActiveControl() == &cmdCancel) return;
  if (!Recognise(box) && ActiveControl() != &cmdOK) Refuse(box);
}

/// Puts what was typed in its proper form; false where a list item has no such value.
bool frmScatterFilter::Recognise(ComboBox& box) {
  if (!IsList()) {
    const std::string text(Trim(box.Text()));
    if (text.empty())
      box.Text = text;
    else
      box.Text = NumberText(StringToDouble(text));
    return true;
  }
  if (&box == &cboTo || box.ListIndex() >= 0) return true;
  const auto& entries = box.Entries();
  const auto found = std::find_if(entries.begin(), entries.end(), [&](const std::string& entry) {
    return SameIgnoringCase(entry, box.Text());
  });
  if (found == entries.end()) return false;
  box.SetListIndex(static_cast<int>(found - entries.begin()));
  return true;
}

void frmScatterFilter::Refuse(ComboBox& box) {
  messages_.ShowMessage(Message::ValueNotRecognised);
  box.SetFocus();
}

clsScatterFilter frmScatterFilter::FilterInWindow() const {
  clsScatterFilter filter;
  filter.lngDataItemSeq = items_.Item();
  if (IsList()) {
    filter.dblFrom = cboFrom.ListIndex();
    filter.dblTo = kBoundNotSet;
  } else {
    filter.dblFrom = BoundIn(cboFrom);
    filter.dblTo = BoundIn(cboTo);
  }
  return filter;
}

void frmScatterFilter::cmdOK_Click() {
  for (ComboBox* box : {&cboFrom, &cboTo})
    if (!Recognise(*box)) return Refuse(*box);
  const clsScatterFilter filter = FilterInWindow();
  const bool hasFrom = filter.dblFrom != kBoundNotSet, hasTo = filter.dblTo != kBoundNotSet;
  if (!hasFrom && !hasTo) return messages_.ShowMessage(Message::NoFilterCriteria);
  if (hasFrom && hasTo && filter.dblFrom > filter.dblTo)
    return messages_.ShowMessage(Message::FromAboveTo);
  filter_ = filter;
  Accept();
}

}  // namespace tarnview
