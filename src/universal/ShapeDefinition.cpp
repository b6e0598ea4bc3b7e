#include "universal/ShapeDefinition.h"

#include <algorithm>

#include "base/Text.h"
#include "model/Column.h"

namespace tarnview {
namespace {

constexpr double kMetresPerSecondOfMph = 0.44704;

void TakeForm(clsDataLog& definition, const LogShape& shape) {
  definition.lngDelimiterAsciiCharacter = static_cast<unsigned char>(shape.form.delimiter);
  definition.blnDelimiterRuns = shape.form.delimiter == ' ';
  definition.blnQuoted = shape.form.quoted || shape.rows.quotedTitles;
  if (shape.form.decimalSign == ',') definition.strDecimalSign = ",";
  definition.strEncoding = EncodingName(shape.encoding);
  definition.strCommentPrefix = shape.rows.commentPrefix;
  const auto known = NoValueTexts();
  std::vector<std::string> texts(known.begin(), known.end());
  texts.insert(texts.end(), shape.noValueTexts.begin(), shape.noValueTexts.end());
  definition.strNoValueTexts = Join(texts, "|");
}

/// The first two titles are enough to find their line again, however long the preamble of another
/// log is.
std::string TitlesStartOf(const LogShape& shape) {
  const auto& titles = shape.rows.firstRow;
  if (titles.size() < 2 || titles[0].empty()) return "";
  return titles[0] + shape.form.delimiter + titles[1];
}

void TakeLines(clsDataLog& definition, const LogShape& shape) {
  const ShapeRows& rows = shape.rows;
  definition.lngDataLinesBefore = std::max(rows.dataLine, 0);
  if (rows.titleLine < 0) {
    if (shape.channelTitles)
      definition.strTitlesFrom = "CHANNELS";
    else
      definition.strTitlesFrom = "NONE";
    return;
  }
  definition.lngColumnHeadersLinesBefore = rows.titleLine;
  definition.strTitlesStart = TitlesStartOf(shape);
  if (rows.titleRows > 1) definition.lngTitleRows = rows.titleRows;
  if (rows.unitsLine > rows.titleLine) definition.lngUnitsRow = rows.unitsLine - rows.titleLine;
}

void TakeValues(clsDataLogColumn& column, const ShapeColumn& from, const ShapeItem& item) {
  if (!item.list) return;
  column.lngType = kValueListColumn;
  column.objColumnValues->Add("", 0);  // any other text
  for (const std::string& text : from.texts)
    column.objColumnValues->Add(text, column.objColumnValues->Count());
}

void TakeConversion(clsDataLogColumn& column, const ShapeItem& item) {
  if (item.factor != 1) column.dblConversionFactor = item.factor;
  if (item.offset != 0) column.dblConversionOffset = item.offset;
  column.blnConversionFactorFirst = item.offset != 0;
  column.blnSigned = !item.list && item.item != ItemOf(kSecs);
}

clsDataLogColumn ColumnOf(const ShapeColumn& from, const ShapeItem& item, bool clock) {
  clsDataLogColumn column;
  column.strName = item.name;
  column.strDescription = item.description;
  column.strColumnTitle = OrElse(from.header, from.title);
  column.lngDataItemID = item.item;
  column.lngType = kNumericColumn;
  column.strUnit = item.unit;
  column.lngTitleOccurrence = from.occurrence;
  column.lngColumnDecimalPlaces = item.places;
  column.lngDisplayDecimalPlaces = item.places;
  if (from.content == ColumnContent::Time && !clock) column.lngConversionType = kDateAndTime;
  if (clock) return column;
  TakeConversion(column, item);
  TakeValues(column, from, item);
  column.blnDisplayZero = true;
  column.dblDisplayFactor = item.displayFactor;
  if (!item.shown) column.blnDisplay = false;
  if (item.item >= kFirstOwnItem) column.lngColour = ColourOfOwnItem(item.item);
  return column;
}

/// A title in the table of columns stands once for each field of that title; where there is but
/// one, it needs no number.
void DropNeedlessOccurrences(clsDataLogColumn& column, const std::vector<ShapeColumn>& columns) {
  const auto alike = std::count_if(columns.begin(), columns.end(), [&](const ShapeColumn& other) {
    return SameIgnoringCase(other.header, column.strColumnTitle);
  });
  if (alike < 2) column.lngTitleOccurrence = 0;
}

}  // namespace

clsDataLog DefinitionOfShape(const LogShape& shape, const std::string& name,
                             const std::string& extension, double linesASecond) {
  clsDataLog definition;
  definition.strName = name;
  definition.strFileExtension = OrElse(extension, "csv");
  definition.strVersion = "1.00";
  definition.strComments = "Made from a log's own text.";
  definition.dblAutoGearSpeedFactor = kMetresPerSecondOfMph;
  definition.blnOwnDataItems = true;
  TakeForm(definition, shape);
  TakeLines(definition, shape);
  if (shape.HasClock())
    definition.strTimeForm = TimeFormName(shape.time.form);
  else if (shape.lineFrequency > 0)
    definition.dblLineFrequency = shape.lineFrequency;
  else
    definition.dblLineFrequency = linesASecond;
  for (std::size_t at = 0; at < shape.columns.size(); ++at) {
    if (shape.items[at].item <= 0) continue;
    const bool clock = static_cast<int>(at) == shape.time.column;
    clsDataLogColumn column = ColumnOf(shape.columns[at], shape.items[at], clock);
    if (clock)
      column.lngColumnDecimalPlaces = column.lngDisplayDecimalPlaces =
          shape.time.step < 0.002 ? 4 : 3;
    DropNeedlessOccurrences(column, shape.columns);
    definition.objColumns.AddDirect(column);
  }
  return definition;
}

}  // namespace tarnview
