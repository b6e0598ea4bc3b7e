#include "universal/DefinitionWriter.h"

#include <algorithm>
#include <variant>

#include "base/Numbers.h"
#include "base/Text.h"
#include "universal/DefinitionAttributes.h"

namespace tarnview {
namespace {

constexpr const char* kLineEnd = "\r\n";

std::string TextOf(const std::string& value) {
  std::string text = value;
  std::erase_if(text, [](char c) { return c == '\r' || c == '\n'; });
  return text;
}
std::string TextOf(std::int32_t value) { return std::to_string(value); }
std::string TextOf(double value) {
  // The reader of these numbers knows no exponent.
  std::string text = NumberText(value);
  if (text.find('E') == std::string::npos) return text;
  text = FixedText(value, 15);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text;
}
std::string TextOf(bool value) {
  if (value) return "Y";
  return "N";
}
std::string TextOf(const Clamped<kPlainNumber, kDateAndTime>& value) {
  return std::to_string(std::int32_t{value});
}
std::string TextOf(const std::vector<int>& values) {
  std::vector<std::string> texts;
  for (const int value : values) texts.push_back(std::to_string(value));
  return Join(texts, ",");
}

template <class T>
std::string TextOf(const Settable<T>& value) {
  return TextOf(value.Value());
}

template <class T>
bool Differs(const Settable<T>& value, const Settable<T>&) {
  return value.IsSet();
}
template <class T>
bool Differs(const T& value, const T& usual) {
  return TextOf(value) != TextOf(usual);
}

/// `usual` is a block as it starts.
template <class Block>
void WriteAttributes(std::string& out, const Block& block, const Block& usual,
                     std::span<const Attribute<Block>> attributes) {
  for (const auto& attribute : attributes)
    std::visit(
        [&](auto member) {
          const std::string text = TextOf(block.*member);
          if (Differs(block.*member, usual.*member) && !text.empty())
            out += std::string(attribute.key) + "=" + text + kLineEnd;
        },
        attribute.member);
}

template <class Block>
void WriteBlock(std::string& out, const char* section, const Block& block,
                std::span<const Attribute<Block>> attributes) {
  out += section;
  out += kLineEnd;
  WriteAttributes(out, block, Block(), attributes);
}

void WriteColumn(std::string& out, const clsDataLogColumn& column) {
  WriteBlock(out, "[COLUMN]", column, ColumnAttributes());
  if (column.objColumnValues->Count() == 0) return;
  out += std::string("[VALUES]") + kLineEnd;
  for (const auto& value : *column.objColumnValues)
    out += TextOf(value->strDataLogValue) + kLineEnd;
}

}  // namespace

std::string DefinitionFileText(const clsDataLog& definition) {
  std::string out;
  WriteBlock(out, "[DATALOGDEFINITION]", definition, HeaderAttributes());
  for (const clsDataLogColumn& column : definition.objColumns) WriteColumn(out, column);
  for (int n = 1; n <= definition.objPresetSampleGraphs.Count(); ++n)
    WriteBlock(out, "[SAMPLE GRAPH]", definition.objPresetSampleGraphs.Item(n),
               SampleGraphAttributes());
  for (int n = 1; n <= definition.objPresetScatterGraphs.Count(); ++n) {
    const clsScatterGraphPreset& preset = definition.objPresetScatterGraphs.Item(n);
    WriteBlock(out, "[SCATTER GRAPH]", preset, ScatterGraphAttributes());
    for (const clsScatterFilter& filter : preset.objFilters)
      WriteBlock(out, "[FILTER]", filter, FilterAttributes());
  }
  // The reader does not look at the line that ends a file; behind a value list an empty one would
  // be an entry.
  const clsDataLogColumns& columns = definition.objColumns;
  const bool list =
      columns.Count() > 0 && columns.Item(columns.Count()).objColumnValues->Count() > 0;
  if (list) return out;
  return out + kLineEnd;
}

}  // namespace tarnview
