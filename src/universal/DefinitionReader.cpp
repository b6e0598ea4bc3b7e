#include "universal/DefinitionReader.h"

#include <unordered_map>

#include "base/Text.h"
#include "fields/TextLines.h"
#include "model/Column.h"
#include "universal/DefinitionAttributes.h"
#include "universal/DefinitionFaults.h"

namespace tarnview {
namespace {

constexpr std::string_view kDefinition = "[DATALOGDEFINITION]", kColumn = "[COLUMN]",
                           kValues = "[VALUES]", kSampleGraph = "[SAMPLE GRAPH]",
                           kScatterGraph = "[SCATTER GRAPH]", kFilter = "[FILTER]";

/// The place of the "=" that makes a line an attribute: behind a key and before a value; npos if it
/// is none.
std::size_t Equals(std::string_view line) {
  const auto at = line.find('=');
  if (at == 0 || at + 1 == line.size()) return std::string_view::npos;
  return at;
}

/// False for a line that is no attribute.
template <class Block>
bool ReadAttribute(Block& block, std::string_view line) {
  const auto at = Equals(line);
  if (at == std::string_view::npos) return false;
  SetAttribute(block, TrimControlCharacters(line.substr(0, at)),
               TrimControlCharacters(line.substr(at + 1)));
  return true;
}

/// In the blocks of presets blanks before the "=" belong to the key, and what is no attribute is
/// passed over.
template <class Block>
void ReadPresetAttribute(Block& block, std::string_view line) {
  line = Trim(line);
  const auto at = Equals(line);
  if (at != std::string_view::npos)
    SetAttribute(block, line.substr(0, at), Trim(line.substr(at + 1)));
}

class Reader {
 public:
  Reader(std::string_view text, const std::string& path, const clsLogDataItems& catalogue)
      : lines_(text), path_(path), catalogue_(catalogue) {}

  clsDataLog Read() {
    ReadHeader();
    ReadColumns();
    while (Starts(kSampleGraph)) ReadSampleGraph();
    while (Starts(kScatterGraph)) ReadScatterGraph();
    return std::move(definition_);
  }

 private:
  std::string_view Line() const { return lines_.Current(); }
  bool Is(std::string_view section) const { return SameIgnoringCase(Line(), section); }
  /// The current line starts a block of that kind. A section line that ends the file starts
  /// nothing.
  bool Starts(std::string_view section) const { return Is(section) && !lines_.AtEnd(); }
  [[noreturn]] void Fail(Message message) const {
    throw DefinitionFault(message, std::string(Line()));
  }

  void ReadHeader() {
    if (lines_.AtEnd() || !SameIgnoringCase(lines_.Next(), kDefinition))
      Fail(Message::NoHeaderDefinition);
    while (!lines_.AtEnd()) {
      lines_.Next();
      // The line that ends the file is not looked at: kept on purpose.
      if (lines_.AtEnd() || Is(kColumn)) break;
      if (!ReadAttribute(definition_, Line())) Fail(Message::BadHeaderAttribute);
    }
    CheckHeader(definition_, path_);
    if (!Starts(kColumn)) Fail(Message::NoColumnDefinitions);
  }

  void ReadColumns() {
    clsDataLogColumns columns;
    while (Starts(kColumn)) {
      const clsDataLogColumn column = ReadColumn();
      CheckColumn(column, definition_, catalogue_);
      columns.AddDirect(column);
    }
    definition_.objColumns = columns.Duplicate();
    CheckTime(definition_, path_);
    for (const clsDataLogColumn& column : definition_.objColumns) {
      firstColumns_.emplace(column.lngDataItemID, &column);
    }
  }

  clsDataLogColumn ReadColumn() {
    clsDataLogColumn column;
    while (!lines_.AtEnd()) {
      lines_.Next();
      // The same as in the header, so that the last attribute of a file wants a line behind it.
      if (lines_.AtEnd() || EndsColumn()) break;
      if (SameIgnoringCase(Trim(Line()), kValues)) {
        ReadValues(*column.objColumnValues);
        break;
      }
      if (!ReadAttribute(column, Line())) Fail(Message::BadColumnAttribute);
    }
    return column;
  }

  bool EndsColumn() const { return Is(kColumn) || Is(kSampleGraph) || Is(kScatterGraph); }

  void ReadValues(clsDataLogColumnValues& values) {
    while (!lines_.AtEnd()) {
      lines_.Next();
      if (EndsColumn()) return;
      values.Add(std::string(TrimControlCharacters(Line())), values.Count());
    }
  }

  void ReadSampleGraph() {
    clsSampleGraphPreset preset;
    while (!lines_.AtEnd()) {
      lines_.Next();
      if (Is(kSampleGraph) || Is(kScatterGraph)) break;
      ReadPresetAttribute(preset, Line());
    }
    if (!definition_.blnOwnDataItems)
      std::erase_if(preset.colDataItems, [](int item) { return item > kColumnCount; });
    CheckSampleGraph(preset, definition_, catalogue_, path_);
    preset.lngLogFamily = kUniversalLogFamily;
    definition_.objPresetSampleGraphs.AddDirect(std::move(preset));
  }

  void ReadScatterGraph() {
    clsScatterGraphPreset preset;
    while (!lines_.AtEnd()) {
      lines_.Next();
      if (Is(kFilter) || Is(kScatterGraph)) break;
      ReadPresetAttribute(preset, Line());
    }
    while (Starts(kFilter)) ReadFilter(preset);
    CheckScatterGraph(preset, definition_, catalogue_, path_);
    preset.lngLogFamily = kUniversalLogFamily;
    definition_.objPresetScatterGraphs.AddDirect(std::move(preset));
  }

  void ReadFilter(clsScatterGraphPreset& preset) {
    clsScatterFilter filter;
    while (!lines_.AtEnd()) {
      lines_.Next();
      if (Is(kFilter) || Is(kScatterGraph)) break;
      ReadPresetAttribute(filter, Line());
    }
    const clsDataLogColumnValues* values = ValuesOf(filter.lngDataItemSeq);
    CheckFilter(filter, preset, definition_, values, catalogue_, path_);
    if (values) filter.dblTo = kBoundNotSet;
    preset.objFilters.AddDirect(filter);
  }

  /// The value list of the first column of an item, if that is a column of values.
  const clsDataLogColumnValues* ValuesOf(int item) const {
    const auto found = firstColumns_.find(item);
    const clsDataLogColumn* column = nullptr;
    if (found != firstColumns_.end()) column = found->second;
    if (column && column->lngType == kValueListColumn) return column->objColumnValues.get();
    return nullptr;
  }

  TextLines lines_;
  const std::string& path_;
  const clsLogDataItems& catalogue_;
  clsDataLog definition_;
  std::unordered_map<int, const clsDataLogColumn*> firstColumns_;  ///< by item
};

}  // namespace

clsDataLog ReadDataLogDefinition(std::string_view text, const std::string& path,
                                 const clsLogDataItems& catalogue) {
  return Reader(text, path, catalogue).Read();
}

}  // namespace tarnview
