#include "universal/DefinitionEdit.h"

#include <algorithm>

#include "base/Text.h"
#include "model/Column.h"
#include "universal/ShapeDefinition.h"

namespace tarnview {
namespace {

bool IsTime(const clsDataLogColumn& column) { return column.lngDataItemID == ItemOf(kSecs); }

/// The definition column reads this column of a log.
bool Reads(const clsDataLogColumn& column, const ShapeColumn& of) {
  const std::string title = OrElse(of.header, of.title);
  return SameIgnoringCase(Trim(title), Trim(column.strColumnTitle)) &&
         (column.lngTitleOccurrence == 0 || column.lngTitleOccurrence == of.occurrence);
}

const clsDataLogColumn* ColumnFor(const clsDataLog& definition, const ShapeColumn& of) {
  const auto& columns = definition.objColumns;
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const auto& column) {
    return !IsTime(column) && Reads(column, of);
  });
  if (found == columns.end()) return nullptr;
  return &*found;
}

ShapeItem ItemOfColumn(const clsDataLogColumn& column) {
  ShapeItem item;
  item.item = column.lngDataItemID;
  item.name = column.strName;
  item.description = column.strDescription;
  item.unit = column.strUnit;
  if (column.dblConversionFactor != 0) item.factor = column.dblConversionFactor;
  item.offset = column.dblConversionOffset;
  if (!column.blnConversionFactorFirst) item.offset *= item.factor;
  item.places = column.lngColumnDecimalPlaces;
  if (column.dblDisplayFactor.IsSet()) item.displayFactor = column.dblDisplayFactor;
  item.shown = !column.blnDisplay.IsSet() || column.blnDisplay;
  item.list = column.lngType == kValueListColumn;
  item.why = "as the definition has it";
  return item;
}

/// The form of one definition in place of another's.
void TakeForm(clsDataLog& to, const clsDataLog& from) {
  to.lngDelimiterAsciiCharacter = from.lngDelimiterAsciiCharacter;
  to.lngDataLinesBefore = from.lngDataLinesBefore;
  to.lngColumnHeadersLinesBefore = from.lngColumnHeadersLinesBefore;
  to.dblLineFrequency = from.dblLineFrequency;
  to.strEncoding = from.strEncoding;
  to.strDecimalSign = from.strDecimalSign;
  to.blnQuoted = from.blnQuoted;
  to.blnDelimiterRuns = from.blnDelimiterRuns;
  to.strCommentPrefix = from.strCommentPrefix;
  to.lngTitleRows = from.lngTitleRows;
  to.lngUnitsRow = from.lngUnitsRow;
  to.strNoValueTexts = from.strNoValueTexts;
  to.strTitlesStart = from.strTitlesStart;
  to.strTitlesFrom = from.strTitlesFrom;
  to.strTimeForm = from.strTimeForm;
}

/// What an edit says of a column; all else of it stays.
void TakeEdit(clsDataLogColumn& column, const clsDataLogColumn& edited) {
  clsDataLogColumn before = std::move(column);
  column = edited;
  column.dblOffset = before.dblOffset;
  column.dblMinValue = before.dblMinValue;
  column.dblMaxValue = before.dblMaxValue;
  column.blnSetToMinimum = before.blnSetToMinimum;
  column.blnSetToMaximum = before.blnSetToMaximum;
  column.blnSmooth = before.blnSmooth;
  column.lngLineStyle = before.lngLineStyle;
  column.lngLineWidth = before.lngLineWidth;
  if (before.lngColour.IsSet()) column.lngColour = before.lngColour;
}

/// Columns of a definition that is being put together anew.
class Merge {
 public:
  Merge(const clsDataLog& definition, const LogShape& shape, const DefinitionEdits& edits)
      : old_(definition), shape_(shape), edits_(edits) {
    for (const clsDataLogColumn& column : old_.objColumns)
      nextOwn_ = std::max(nextOwn_, column.lngDataItemID + 1);
    double linesASecond = 10;
    if (old_.dblLineFrequency > 0) linesASecond = old_.dblLineFrequency;
    made_ = DefinitionOfShape(Numbered(), edits.name, old_.strFileExtension, linesASecond);
  }

  clsDataLog Run() {
    clsDataLog result = old_;
    result.strName = edits_.name;
    result.objColumns = {};
    if (edits_.form) TakeForm(result, made_);
    for (const clsDataLogColumn& column : old_.objColumns) Keep(column, result);
    for (const clsDataLogColumn& column : made_.objColumns)
      if (IsTime(column) ? edits_.form : IsEdited(column) && !IsRead(column))
        result.objColumns.AddDirect(column);
    for (const clsDataLogColumn& column : result.objColumns)
      result.blnOwnDataItems = result.blnOwnDataItems || column.lngDataItemID >= kFirstOwnItem;
    return result;
  }

 private:
  /// Items of the log's own that an edit brings get numbers that no column has.
  LogShape Numbered() {
    LogShape shape = shape_;
    for (const std::size_t at : edits_.columns)
      if (shape.items[at].item >= kFirstOwnItem &&
          !old_.objColumns.DataItemInColumns(shape.items[at].item))
        shape.items[at].item = std::max(nextOwn_++, kFirstOwnItem);
    return shape;
  }

  void Keep(const clsDataLogColumn& column, clsDataLog& result) const {
    if (IsTime(column)) {
      if (!edits_.form) result.objColumns.AddDirect(column);
      return;
    }
    for (const std::size_t at : edits_.columns) {
      if (!Reads(column, shape_.columns[at])) continue;
      if (shape_.items[at].item == 0) return;
      clsDataLogColumn changed = column;
      TakeEdit(changed, *ColumnFor(made_, shape_.columns[at]));
      result.objColumns.AddDirect(changed);
      return;
    }
    result.objColumns.AddDirect(column);
  }

  bool IsEdited(const clsDataLogColumn& column) const {
    return std::any_of(edits_.columns.begin(), edits_.columns.end(),
                       [&](std::size_t at) { return Reads(column, shape_.columns[at]); });
  }
  /// The old definition has a column for what this one reads.
  bool IsRead(const clsDataLogColumn& column) const {
    return std::any_of(edits_.columns.begin(), edits_.columns.end(), [&](std::size_t at) {
      return Reads(column, shape_.columns[at]) && ColumnFor(old_, shape_.columns[at]);
    });
  }

  const clsDataLog& old_;
  const LogShape& shape_;
  const DefinitionEdits& edits_;
  clsDataLog made_;  ///< of the shape alone
  int nextOwn_ = kFirstOwnItem;
};

}  // namespace

ShapeChoices ChoicesOf(const clsDataLog& definition) {
  ShapeChoices choices;
  choices.encoding = EncodingOfName(definition.strEncoding);
  choices.delimiter = static_cast<char>(definition.lngDelimiterAsciiCharacter);
  if (definition.blnDelimiterRuns) choices.delimiter = ' ';
  choices.decimalSign = definition.strDecimalSign == "," ? ',' : '.';
  if (!definition.strTimeForm.empty()) choices.timeForm = TimeFormOfName(definition.strTimeForm);
  if (definition.dblLineFrequency > 0) choices.lineFrequency = definition.dblLineFrequency;
  choices.titleRows = std::max(definition.lngTitleRows, 1);
  if (!definition.strTitlesStart.empty() || !definition.strTitlesFrom.empty()) return choices;
  choices.titleLine = definition.lngColumnHeadersLinesBefore;
  choices.dataLine = definition.lngDataLinesBefore;
  if (definition.lngUnitsRow > 0)
    choices.unitsLine = definition.lngColumnHeadersLinesBefore + definition.lngUnitsRow;
  return choices;
}

int TimeColumnOf(const clsDataLog& definition, const LogShape& shape) {
  for (const clsDataLogColumn& column : definition.objColumns)
    for (std::size_t at = 0; IsTime(column) && at < shape.columns.size(); ++at)
      if (Reads(column, shape.columns[at])) return static_cast<int>(at);
  return -1;
}

void ShowColumnsOf(const clsDataLog& definition, LogShape& shape) {
  for (std::size_t at = 0; at < shape.columns.size(); ++at) {
    if (static_cast<int>(at) == shape.time.column) continue;
    const clsDataLogColumn* column = ColumnFor(definition, shape.columns[at]);
    if (column) {
      shape.items[at] = ItemOfColumn(*column);
      continue;
    }
    shape.items[at].item = 0;
    shape.items[at].why = "the definition does not read it";
  }
}

clsDataLog EditedDefinition(const clsDataLog& definition, const LogShape& shape,
                            const DefinitionEdits& edits) {
  return Merge(definition, shape, edits).Run();
}

}  // namespace tarnview
