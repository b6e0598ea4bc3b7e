#include "customise/frmLogDescription.h"

#include <algorithm>
#include <functional>
#include <optional>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "model/Column.h"
#include "universal/DefinitionEdit.h"
#include "universal/ShapeDefinition.h"

namespace tarnview {
namespace {

constexpr TextEncoding kEncodings[] = {TextEncoding::Windows1252, TextEncoding::Utf8,
                                       TextEncoding::Utf16LE, TextEncoding::Utf16BE};
constexpr char kDelimiters[] = {'\t', ';', ',', '|', ' '};
constexpr char kDecimalSigns[] = {'.', ','};
struct FormWord {
  TimeForm form;
  const char* word;
};
constexpr FormWord kForms[] = {{TimeForm::Seconds, "Seconds"},
                               {TimeForm::Milliseconds, "Milliseconds"},
                               {TimeForm::Microseconds, "Microseconds"},
                               {TimeForm::Minutes, "Minutes"},
                               {TimeForm::Hours, "Hours"},
                               {TimeForm::Days, "Days"},
                               {TimeForm::Unix, "Unix Time"},
                               {TimeForm::UnixMilliseconds, "Unix Time (ms)"},
                               {TimeForm::Clock, "Clock"},
                               {TimeForm::DateAndTime, "Date and Time"}};
constexpr const char* kOwnItem = "An item of the log's own";
constexpr const char* kNotRead = "Not read";
constexpr double kUsualLinesASecond = 10;
constexpr int kHeadLines = 60;

/// What a line of the head is: its word, and the chip beside it, 0xBBGGRR.
struct LineKind {
  const char* word;
  long colour;
};
constexpr LineKind kPreamble{"Preamble", 0xB0B0B0}, kTitles{"Titles", 0xD07030},
    kUnitsOf{"Units", 0x30A0D0}, kData{"Data", 0x50A050};

LineKind KindOfLine(int line, const ShapeRows& rows) {
  if (line >= rows.titleLine && line < rows.titleLine + rows.titleRows) return kTitles;
  if (line == rows.unitsLine) return kUnitsOf;
  if (rows.dataLine >= 0 && line >= rows.dataLine) return kData;
  return kPreamble;
}

template <class Values, class Value>
int IndexOf(const Values& values, Value value) {
  const auto found = std::find(std::begin(values), std::end(values), value);
  if (found == std::end(values)) return -1;
  return static_cast<int>(found - std::begin(values));
}

/// An entry of the list of items. A definition may have named its item in its own way.
std::string ItemText(const ShapeItem& item, const clsLogDataItems& catalogue) {
  if (item.item == 0) return kNotRead;
  if (item.item >= kFirstOwnItem) return kOwnItem;
  return catalogue.Item(item.item).strShortName;
}

/// "x 0.5556 - 17.78"; "" where a number of the log is the value.
std::string ConversionText(const ShapeItem& item) {
  const auto shown = [](double number) { return NumberText(RoundPlaces(number, 4)); };
  std::string text;
  if (item.factor != 1) text = "x " + shown(item.factor);
  if (item.offset > 0) text += " + " + shown(item.offset);
  if (item.offset < 0) text += " - " + shown(-item.offset);
  return std::string(Trim(text));
}

/// Beyond those that a definition may have used: they are numbered anew in the end.
int OwnNumber(std::size_t column) { return kLastOwnItem + 1 + static_cast<int>(column); }

std::string LineText(int line) {
  if (line < 0) return "";
  return std::to_string(line + 1);
}

}  // namespace

frmLogDescription::frmLogDescription(Host& itsHost, FileBytes bytes, const std::string& path,
                                     const TitleDictionary& titles,
                                     const clsLogDataItems& catalogue, const clsDataLog* edited)
    : Form(itsHost, "frmLogDescription", edited ? "Edit Definition" : "New Log Description"),
      bytes_(std::move(bytes)),
      extension_(GetExtension(path)),
      titles_(titles),
      catalogue_(catalogue),
      old_(edited ? std::optional(*edited) : std::nullopt) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "LogDescription";
  FillLists();
  txtName.Text = FileTitle(WithoutExtension(path));
  if (old_) {
    txtName.Text = old_->strName;
    StartFrom(*old_);
  }
  Look();
  TieEvents();
}

void frmLogDescription::TieEvents() {
  const auto choose = [this](auto take) { return [this, take] { TakeChoice(take); }; };
  cboEncoding.Click = choose([this] { choices_.encoding = kEncodings[cboEncoding.ListIndex()]; });
  cboDelimiter.Click =
      choose([this] { choices_.delimiter = kDelimiters[cboDelimiter.ListIndex()]; });
  cboDecimalSign.Click =
      choose([this] { choices_.decimalSign = kDecimalSigns[cboDecimalSign.ListIndex()]; });
  cboTimeColumn.Click = choose([this] { choices_.timeColumn = cboTimeColumn.ListIndex() - 1; });
  cboTimeForm.Click = choose([this] { choices_.timeForm = kForms[cboTimeForm.ListIndex()].form; });
  txtTitleLine.LostFocus = choose([this] { TakeLine(choices_.titleLine, txtTitleLine); });
  txtUnitsLine.LostFocus = choose([this] { TakeLine(choices_.unitsLine, txtUnitsLine); });
  txtDataLine.LostFocus = choose([this] { TakeLine(choices_.dataLine, txtDataLine); });
  txtLineFrequency.LostFocus = choose([this] {
    choices_.lineFrequency = std::clamp(StringToDouble(txtLineFrequency.Text()), 0.0, 100000.0);
  });
  lvwColumns.ItemClick = [this](int) { ShowColumn(); };
  cboItem.Click = [this] { TakeColumn(); };
  chkShown.Click = [this] { TakeColumn(); };
  for (TextBox* box : {&txtFactor, &txtOffset, &txtUnit, &txtDecimals})
    box->LostFocus = [this] { TakeColumn(); };
  cmdOK.Click = [this] { Accept(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmLogDescription::FillLists() {
  std::vector<std::string> texts;
  for (const TextEncoding encoding : kEncodings) texts.emplace_back(EncodingName(encoding));
  cboEncoding.SetList(std::move(texts));
  texts.clear();
  for (const char delimiter : kDelimiters) texts.emplace_back(DelimiterName(delimiter));
  cboDelimiter.SetList(std::move(texts));
  cboDecimalSign.SetList({"Point", "Comma"});
  texts.clear();
  for (const FormWord& row : kForms) texts.emplace_back(row.word);
  cboTimeForm.SetList(std::move(texts));
  texts = {kOwnItem, kNotRead};
  for (const clsLogDataItem* item : catalogue_.InDisplayOrder())
    if (item->intSeq != ItemOf(kSample) && item->intSeq != ItemOf(kSecs))
      texts.push_back(item->strShortName);
  cboItem.SetList(std::move(texts));
}

/// The titles of the log must be known before its clock is.
void frmLogDescription::StartFrom(const clsDataLog& definition) {
  choices_ = ChoicesOf(definition);
  const LogShape shape = ReadLogShape(bytes_, titles_, catalogue_, choices_);
  choices_.timeColumn = TimeColumnOf(definition, shape);
}

void frmLogDescription::TakeChoice(const std::function<void()>& choose) {
  if (showing_) return;
  choose();
  formEdited_ = true;
  Look();
}

/// An empty field says that there is no such line.
void frmLogDescription::TakeLine(std::optional<int>& choice, const TextBox& box) {
  choice = std::max(StringToLong(box.Text()), 0) - 1;
}

/// The shape as the choices leave it, and what was edited of its columns.
void frmLogDescription::Look() {
  shape_ = ReadLogShape(bytes_, titles_, catalogue_, choices_);
  if (old_) ShowColumnsOf(*old_, shape_);
  for (std::size_t at = 0; at < shape_.columns.size(); ++at) {
    const auto edited = edited_.find(KeyOf(at));
    if (edited != edited_.end() && static_cast<int>(at) != shape_.time.column)
      shape_.items[at] = edited->second;
  }
  showing_ = true;
  ShowFindings();
  ShowHead();
  ShowColumns();
  showing_ = false;
  cmdOK.Enabled = !shape_.columns.empty();
}

void frmLogDescription::ShowFindings() {
  cboEncoding.SetListIndex(IndexOf(kEncodings, shape_.encoding));
  cboDelimiter.SetListIndex(IndexOf(kDelimiters, shape_.form.delimiter));
  cboDecimalSign.SetListIndex(IndexOf(kDecimalSigns, shape_.form.decimalSign));
  txtTitleLine.Text = LineText(shape_.rows.titleLine);
  txtUnitsLine.Text = LineText(shape_.rows.unitsLine);
  txtDataLine.Text = LineText(shape_.rows.dataLine);
  std::vector<std::string> clocks{"No clock"};
  for (const ShapeColumn& column : shape_.columns) clocks.push_back(column.title);
  cboTimeColumn.SetList(std::move(clocks));
  cboTimeColumn.SetListIndex(shape_.time.column + 1);
  const auto form = std::find_if(std::begin(kForms), std::end(kForms), [this](const FormWord& row) {
    return row.form == shape_.time.form;
  });
  cboTimeForm.SetListIndex(-1);
  if (form != std::end(kForms)) cboTimeForm.SetListIndex(static_cast<int>(form - kForms));
  cboTimeForm.Enabled = shape_.HasClock();
  txtLineFrequency.Enabled = !shape_.HasClock();
  if (shape_.lineFrequency > 0)
    txtLineFrequency.Text = NumberText(shape_.lineFrequency);
  else
    txtLineFrequency.Text = "";
  lblWhy.Caption = Join(shape_.why, "\r\n");
}

void frmLogDescription::ShowHead() {
  const ShapeText text(std::string_view(bytes_).substr(0, ShapeText::kHead), shape_.encoding);
  std::vector<ListView::Row> rows;
  for (int line = 0; line < std::min(kHeadLines, static_cast<int>(text.head.size())); ++line) {
    const LineKind kind = KindOfLine(line, shape_.rows);
    constexpr std::size_t kShown = 400;
    std::string shown(text.head[static_cast<std::size_t>(line)].substr(0, kShown));
    std::replace(shown.begin(), shown.end(), '\t', ' ');
    rows.push_back(
        {{std::to_string(line + 1), kind.word, std::move(shown)}, "", "", false, 0, kind.colour});
  }
  lvwHead.SetRows(std::move(rows));
}

void frmLogDescription::ShowColumns() {
  // At first the one behind the clock: of the clock there is nothing to edit.
  int selected = shape_.time.column == 0 ? 2 : 1;
  if (lvwColumns.SelectedRow() > 0) selected = lvwColumns.SelectedRow();
  std::vector<ListView::Row> rows;
  for (std::size_t at = 0; at < shape_.columns.size(); ++at) {
    const ShapeColumn& column = shape_.columns[at];
    const ShapeItem& item = shape_.items[at];
    const bool number = column.content == ColumnContent::Number;
    std::string name = item.name;
    if (item.item >= kFirstOwnItem) name = "Own";
    if (item.item == 0) name = kNotRead;
    rows.push_back({{column.title, column.unit, Join(column.first, "  "),
                     TextIf(number, NumberText(column.lowest)),
                     TextIf(number, NumberText(column.highest)), std::move(name),
                     ConversionText(item), std::to_string(item.places), item.shown ? "Yes" : "No"},
                    std::to_string(at),
                    item.why});
  }
  lvwColumns.SetRows(std::move(rows));
  if (lvwColumns.Count() > 0) lvwColumns.Select(std::min(selected, lvwColumns.Count()));
  ShowColumn();
}

ShapeItem* frmLogDescription::Selected() {
  const int row = lvwColumns.SelectedRow();
  if (row < 1) return nullptr;
  return &shape_.items[static_cast<std::size_t>(StringToLong(lvwColumns.At(row).tag))];
}

void frmLogDescription::ShowColumn() {
  const bool was = showing_;
  showing_ = true;
  const ShapeItem* item = Selected();
  const bool editable = item && item->item != ItemOf(kSecs);
  for (Control* control : std::initializer_list<Control*>{&cboItem, &txtFactor, &txtOffset,
                                                          &txtUnit, &txtDecimals, &chkShown})
    control->Enabled = editable;
  if (item) {
    cboItem.Text = ItemText(*item, catalogue_);
    txtFactor.Text = NumberText(item->factor);
    txtOffset.Text = NumberText(item->offset);
    txtUnit.Text = item->unit;
    txtDecimals.Text = std::to_string(item->places);
    chkShown.Value = item->shown;
  }
  showing_ = was;
}

/// What the fields below the columns hold goes to the selected one. Of two columns that want one
/// item of the catalogue the other gets an item of its own.
void frmLogDescription::TakeColumn() {
  ShapeItem* item = Selected();
  if (showing_ || !item || item->item == ItemOf(kSecs)) return;
  const auto at = static_cast<std::size_t>(item - shape_.items.data());
  const clsLogDataItem* known = catalogue_.ByShortName(cboItem.Text());
  int wanted = item->item;
  if (known)
    wanted = known->intSeq;
  else if (wanted < kFirstOwnItem)
    wanted = OwnNumber(at);
  if (cboItem.Text() == kNotRead) wanted = 0;
  if (wanted != item->item) {
    for (std::size_t other = 0; other < shape_.items.size(); ++other)
      if (wanted > 0 && shape_.items[other].item == wanted)
        shape_.items[other].item = OwnNumber(other);
    item->item = wanted;
    if (known) {
      item->name = known->strShortName;
      item->description = known->strLongName;
    } else {
      item->name = shape_.columns[at].title;
      item->description = shape_.columns[at].title;
    }
  }
  item->factor = StringToDouble(txtFactor.Text());
  item->offset = StringToDouble(txtOffset.Text());
  item->unit = txtUnit.Text();
  item->places = std::clamp(StringToLong(txtDecimals.Text()), 0, 5);
  item->shown = chkShown.Value;
  item->why = "chosen by hand";
  edited_[KeyOf(at)] = *item;
  showing_ = true;
  ShowColumns();
  showing_ = false;
}

/// Of several columns of one title each has its own.
std::string frmLogDescription::KeyOf(std::size_t column) const {
  return shape_.columns[column].header + "\n" + std::to_string(shape_.columns[column].occurrence);
}

clsDataLog frmLogDescription::Definition() const {
  LogShape shape = shape_;
  if (old_) {
    DefinitionEdits edits{OrElse(txtName.Text(), old_->strName), formEdited_, {}};
    for (std::size_t at = 0; at < shape.columns.size(); ++at)
      if (edited_.contains(KeyOf(at))) edits.columns.push_back(at);
    return EditedDefinition(*old_, shape, edits);
  }
  // Own items are numbered anew, in the order of the columns.
  int next = kFirstOwnItem;
  for (ShapeItem& item : shape.items)
    if (item.item >= kFirstOwnItem) item.item = next++;
  return DefinitionOfShape(shape, OrElse(txtName.Text(), "My Logger"), extension_,
                           kUsualLinesASecond);
}

}  // namespace tarnview
