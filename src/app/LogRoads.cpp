#include "app/LogRoads.h"

#include <algorithm>
#include <cmath>

#include "app/Loaders.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "base/TextFile.h"
#include "loaders/LayoutMarks.h"
#include "model/Column.h"
#include "universal/BuiltInTitles.h"
#include "universal/DefinitionFaults.h"
#include "universal/DefinitionReader.h"
#include "universal/LogShape.h"
#include "universal/ShapeDefinition.h"
#include "universal/Units.h"
#include "universal/UniversalDataItems.h"

namespace tarnview {
namespace {

constexpr std::size_t kHead = 256 << 10;
constexpr const char* kDefinitions = "Universal Data Log Formats";
constexpr const char* kTitles = "Log Titles.txt";
/// A definition that knows fewer of a log's columns than nine in ten would lose the rest; the shape
/// has them all.
constexpr int kKnownOfTen = 9;

/// Whole lines from the beginning of a text.
std::string_view HeadOf(std::string_view bytes) {
  if (bytes.size() <= kHead) return bytes;
  const auto end = bytes.substr(0, kHead).find_last_of("\n\r");
  if (end == std::string_view::npos) return bytes.substr(0, kHead);
  return bytes.substr(0, end + 1);
}

std::string Joined(std::string_view first, std::string_view second) {
  return std::string(first) + "\n" + std::string(second);
}

/// What a definition makes of a number of a column.
double ValueBy(const clsDataLogColumn& column, double number) {
  double factor = 1;
  if (column.dblConversionFactor != 0) factor = column.dblConversionFactor.Value();
  if (column.blnConversionFactorFirst) return number * factor + column.dblConversionOffset;
  return (number + column.dblConversionOffset) * factor;
}

/// Where the log tells the unit of a known quantity, a definition reads it in that unit: the same
/// titles may stand over degrees C and F.
bool Agrees(const clsDataLog& definition, const LogShape& shape) {
  constexpr double kNearly = 0.03, kSlack = 0.5;
  for (const clsDataLogColumn& column : definition.objColumns)
    for (std::size_t at = 0; at < shape.columns.size(); ++at) {
      const ShapeColumn& found = shape.columns[at];
      const ShapeItem& item = shape.items[at];
      if (item.item != column.lngDataItemID || item.item == ItemOf(kSecs) || !IsUnit(found.unit))
        continue;
      if (!SameIgnoringCase(found.header, column.strColumnTitle)) continue;
      const double number = found.median / found.scale, wanted = number * item.factor + item.offset;
      if (std::fabs(ValueBy(column, number) - wanted) > std::fabs(wanted) * kNearly + kSlack)
        return false;
    }
  return true;
}

/// The seconds from line to line that a definition makes of the log's clock are those of the shape.
/// Where nothing tells the clock's unit, any that a logger may have are right.
bool ClockAgrees(const clsDataLog& definition, const LogShape& shape) {
  if (!shape.HasClock()) return true;
  const ShapeColumn& clock = shape.columns[static_cast<std::size_t>(shape.time.column)];
  const bool texts = shape.time.form >= TimeForm::Clock;
  for (const clsDataLogColumn& column : definition.objColumns) {
    if (column.lngDataItemID != ItemOf(kSecs) ||
        !SameIgnoringCase(clock.header, column.strColumnTitle))
      continue;
    if (!definition.strTimeForm.empty())
      return TimeFormOfName(definition.strTimeForm) == shape.time.form;
    if (texts || column.lngConversionType == kDateAndTime)
      return texts && column.lngConversionType == kDateAndTime;
    const double stamp = shape.time.step / SecondsOf(shape.time.form);
    const double step = ValueBy(column, stamp) - ValueBy(column, 0);
    if (!IsUnit(clock.unit)) return IsPlausibleStep(step);
    return std::fabs(step - shape.time.step) <= shape.time.step * 0.03;
  }
  return true;
}

/// The program's own files are text, too.
bool IsOwnKind(const std::string& path) {
  constexpr std::string_view kOwn[] = {"pow", "car", "sam", "sca", "map"};
  return std::any_of(std::begin(kOwn), std::end(kOwn), [&](std::string_view own) {
    return SameIgnoringCase(GetExtension(path), own);
  });
}

}  // namespace

const TitleDictionary& LogRoads::Titles() {
  if (titles_) return *titles_;
  std::string text(BuiltInTitles());
  for (const std::string& folder : {globals_.dataFolder, globals_.gstrProgramFolder}) {
    if (folder.empty()) continue;
    if (const auto own = ReadText(files_, folder + kTitles)) text = Joined(text, *own);
  }
  return titles_.emplace(text);
}

LoadOutcome LogRoads::Try(std::string_view bytes, int fileType,
                          const clsDataLog& definition) const {
  const LoaderRow* loader = LoaderFor(fileType);
  if (!loader) return {};
  const clsLogDataItems& fixed = globals_.catalogue.gcolFixedDataItems;
  clsLogDataItems items;
  if (fileType == kUniversalLog)
    items = GenerateLogDataItemsGeneric(definition, fixed);
  else
    items = fixed.Duplicate();
  NoProgress progress;
  OpenLog log;
  return loader->load(bytes, {log, items, globals_.settings, globals_.tables, progress},
                      definition);
}

LoadOutcome LogRoads::TryAs(std::string_view bytes, int fileType, const clsDataLog& definition,
                            LogRoad& road) const {
  LoadOutcome outcome;
  outcome.loaded = true;
  road.fileType = fileType;
  if (!LoaderFor(fileType)) return outcome;  // of another room, which looks for itself
  outcome = Try(HeadOf(bytes), fileType, definition);
  road.columns = outcome.columns;
  road.known = outcome.columns - static_cast<int>(outcome.unknownColumns.size());
  return outcome;
}

std::optional<LogRoad> LogRoads::ByContent(std::string_view bytes, const std::string& path) {
  if (IsOwnKind(path)) return std::nullopt;
  const std::string_view head = HeadOf(bytes);
  LogRoad fixed;
  fixed.fileType = FileTypeByMarks(head);
  if (fixed.fileType != kUnknownFile && Try(head, fixed.fileType, {}).loaded) {
    fixed.takenAs = globals_.kinds.gcolFileTypes.Item(fixed.fileType).GetSingularDescription();
    return fixed;
  }
  const LogShape shape = ReadLogShape(bytes, Titles(), globals_.catalogue.gcolFixedDataItems);
  if (auto road = ByDefinitions(head, shape)) return road;
  return ByShape(bytes, shape, path);
}

/// Of the definitions at hand the one that knows most of the columns, if those are nearly all.
std::optional<LogRoad> LogRoads::ByDefinitions(std::string_view head, const LogShape& shape) {
  std::optional<LogRoad> best;
  for (const std::string& folder : {globals_.gstrProgramFolder, globals_.dataFolder}) {
    if (folder.empty()) continue;
    const std::string definitions = AddBackslash(folder + kDefinitions);
    for (const std::string& name : files_.List(definitions, "*.txt")) {
      LogRoad road;
      road.definition = ReadDefinition(definitions + name);
      if (!road.definition || !Agrees(*road.definition, shape) ||
          !ClockAgrees(*road.definition, shape) ||
          !TryAs(head, kUniversalLog, *road.definition, road).loaded)
        continue;
      road.takenAs = "Universal: " + road.definition->strName;
      const bool enough = road.known * 10 >= road.columns * kKnownOfTen;
      if (enough && (!best || road.known > best->known)) best = std::move(road);
    }
  }
  return best;
}

/// Nothing for a file with a fault.
std::optional<clsDataLog> LogRoads::ReadDefinition(const std::string& path) {
  const auto text = ReadText(files_, path);
  if (!text) return std::nullopt;
  try {
    return ReadDataLogDefinition(*text, path, globals_.catalogue.gcolFixedDataItems);
  } catch (const DefinitionFault&) {
    return std::nullopt;
  }
}

std::optional<LogRoad> LogRoads::ByShape(std::string_view bytes, const LogShape& shape,
                                         const std::string& path) {
  if (!shape.Found()) return std::nullopt;
  LogRoad road;
  road.takenAs = "Universal: by its shape";
  road.definition = DefinitionOfShape(shape, FileTitle(path), GetExtension(path),
                                      globals_.settings.beyond.linesASecond);
  road.noRate = !shape.HasClock() && shape.lineFrequency <= 0;
  if (!TryAs(bytes, kUniversalLog, *road.definition, road).loaded) return std::nullopt;
  road.known = road.columns = static_cast<int>(shape.columns.size());
  if (shape.HasClock())
    road.notes = shape.time.why;
  else
    road.notes = "";
  return road;
}

}  // namespace tarnview
