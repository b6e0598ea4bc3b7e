#include "customise/DataItemPage.h"

#include <algorithm>

#include "base/Numbers.h"
#include "desk/ColourScheme.h"
#include "model/IniKeys.h"
#include "samplegraph/SampleListView.h"
#include "universal/UniversalDataItems.h"

namespace tarnview {
namespace {

const std::vector<std::string> kStyles{"Solid", "Dotted", "Dashed"};  // from 1
const std::vector<std::string> kWidths{"Thinnest", "Thinner", "Medium", "Fatter",
                                       "Fattest"};  // from 1

/// Of a pen, in tenths of an item's line width.
constexpr int kPenWidths = 10;

}  // namespace

DataItemPage::DataItemPage(OptionsControls& window, OptionsDraft& draft)
    : window_(window), draft_(draft) {
  window_.imgcboDataStyle.SetList(kStyles);
  window_.imgcboDataWidth.SetList(kWidths);
  UpdateFamilies();
  window_.cboLogFamily.Click = [this] { ListItems(); };
  window_.lvwDataItems.ItemClick = [this](int) { PopulateDataItemDisplay(); };
  window_.lvwDataItems.ItemCheck = [this](int row) { DataItemCheckBox(row); };
  window_.cmdCheckAll.Click = [this] { CheckAll(true); };
  window_.cmdUnCheckAll.Click = [this] { CheckAll(false); };
  window_.imgcboDataStyle.Click = [this] { RecordLineStyleChange(); };
  window_.imgcboDataWidth.Click = [this] { RecordLineWidthChange(); };
  window_.cmdDataColour.Click = [this] { RecordColourChange(); };
  window_.txtFactor.LostFocus = [this] { RecordFactorChange(); };
  window_.picDataSample.Resize = [this] { DrawSample(); };
  window_.cboGraphColourScheme.Click = [this] { DrawSample(); };
  window_.cmdReset.Click = [this] { cmdReset_Click(); };
}

clsLogDataItems& DataItemPage::Items() {
  if (Family() == kUniversalLogFamily) return draft_.catalogue.gcolUniversalDataItems;
  return draft_.catalogue.gcolFixedDataItems;
}

clsLogDataItem* DataItemPage::Item() {
  const int row = window_.lvwDataItems.SelectedRow();
  if (row > 0) return &Items().Item(StringToLong(window_.lvwDataItems.At(row).tag));
  return nullptr;
}

void DataItemPage::UpdateFamilies() {
  const int family = window_.cboLogFamily.ListIndex();
  window_.cboLogFamily.SetList(draft_.kinds.gcolLogFamilies.Descriptions());
  if (family >= 0) window_.cboLogFamily.SetListIndex(family);
}

void DataItemPage::ShowFamily(int family) {
  if (Family() == family)
    ListItems();
  else
    window_.cboLogFamily.SetListIndex(family - 1);
}

void DataItemPage::ListItems() {
  CheckedKeys displayed;
  for (int id = 1; id <= Items().Count(); ++id)
    if (Items().Item(id).blnDisplay) displayed[CheckedKey(id)] = id;
  SampleListForm form;
  form.blnShowLongName = true;
  form.lngLogFamily = Family();
  form.pictures = false;
  window_.lvwDataItems.Clear();
  SetUpSampleListView(window_.lvwDataItems, displayed, form, draft_.kinds.gcolLogFamilies, Items());
  PopulateDataItemDisplay();
}

void DataItemPage::PopulateDataItemDisplay() {
  const clsLogDataItem* item = Item();
  if (!item) return;
  filling_ = true;
  window_.imgcboDataStyle.SetListIndex(static_cast<int>(item->lngLineStyle) - 1);
  if (window_.imgcboDataStyle.ListIndex() < 0)
    window_.imgcboDataStyle.SetListIndex(static_cast<int>(kStyles.size()) -
                                         1);  // any other number is dashed
  window_.imgcboDataWidth.SetListIndex(static_cast<int>(item->lngLineWidth) - 1);
  window_.picDataColour.BackColour = item->lngColour;
  window_.txtFactor.Text = ShortestText(item->dblSampleDisplayFactor);
  filling_ = false;
  DrawSample();
}

/// As in a graph of the scheme that is chosen.
void DataItemPage::DrawSample() {
  const clsLogDataItem* item = Item();
  if (!item) return;
  ChartDescription graph;
  SetGraphColourScheme(graph, window_.cboGraphColourScheme.ListIndex() + 1);
  window_.picDataSample.BackColour = graph.colours.backdrop;
  const int width = window_.picDataSample.Width(), middle = window_.picDataSample.Height() / 2;
  const Pen pen{item->lngColour, static_cast<int>(item->lngLineStyle),
                static_cast<int>(item->lngLineWidth) * kPenWidths};
  Drawing drawing;
  drawing.strokes = {{{width / 10, middle, width - width / 10, middle}, pen}};
  window_.picDataSample.Draw(std::move(drawing));
}

void DataItemPage::RecordLineStyleChange() {
  clsLogDataItem* item = Item();
  if (filling_ || !item || window_.imgcboDataStyle.ListIndex() < 0) return;
  item->lngLineStyle = window_.imgcboDataStyle.ListIndex() + 1;
  DrawSample();
}

void DataItemPage::RecordLineWidthChange() {
  clsLogDataItem* item = Item();
  if (filling_ || !item || window_.imgcboDataWidth.ListIndex() < 0) return;
  item->lngLineWidth = window_.imgcboDataWidth.ListIndex() + 1;
  DrawSample();
}

void DataItemPage::RecordColourChange() {
  clsLogDataItem* item = Item();
  Dialog dialog{.kind = DialogKind::Colour,
                .title = "Data Item Colour",
                .colour = window_.picDataColour.BackColour};
  if (!item || !window_.host.Choose(dialog)) return;
  item->lngColour = dialog.colour;
  window_.picDataColour.BackColour = dialog.colour;
  DrawSample();
}

void DataItemPage::RecordFactorChange() {
  clsLogDataItem* item = Item();
  if (!item) return;
  item->dblSampleDisplayFactor =
      std::clamp(StringToDouble(window_.txtFactor.Text()), kLeastDisplayFactor, kMostDisplayFactor);
  window_.txtFactor.Text = ShortestText(item->dblSampleDisplayFactor);
}

void DataItemPage::DataItemCheckBox(int row) {
  const ListView::Row& shown = window_.lvwDataItems.At(row);
  Items().Item(StringToLong(shown.tag)).blnDisplay = shown.checked;
}

void DataItemPage::CheckAll(bool on) {
  ListView& list = window_.lvwDataItems;
  for (int row = 1; row <= list.Count(); ++row)
    list.SetChecked(row, on || Items().Item(StringToLong(list.At(row).tag)).blnMandatory);
}

/// As the catalogue has it, and for a Universal item as its definition's column says.
void DataItemPage::cmdReset_Click() {
  clsLogDataItem* item = Item();
  if (!item) return;
  const clsLogDataItems& catalogue = draft_.catalogue.gcolDefaultDataItems;
  clsLogDataItems items;
  if (Family() == kUniversalLogFamily)
    items = GenerateLogDataItemsGeneric(draft_.definition, catalogue);
  else
    items = catalogue.Duplicate();
  const clsLogDataItem& fresh = items.Item(item->intSeq);
  item->lngColour = fresh.lngColour;
  item->lngLineStyle = fresh.lngLineStyle;
  item->lngLineWidth = fresh.lngLineWidth;
  item->blnDisplay = fresh.blnDisplay;
  item->dblSampleDisplayFactor = fresh.dblSampleDisplayFactor;
  window_.lvwDataItems.SetChecked(window_.lvwDataItems.SelectedRow(), item->blnDisplay);
  PopulateDataItemDisplay();
}

}  // namespace tarnview
