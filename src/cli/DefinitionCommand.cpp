#include <memory>
#include <optional>

#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/ConsoleHost.h"
#include "cli/Json.h"
#include "desk/Messages.h"
#include "model/Catalogue.h"
#include "universal/DefaultDataLogDefinition.h"
#include "universal/DefinitionAttributes.h"
#include "universal/DefinitionFiles.h"

namespace tarnview {
namespace {

struct DefinitionOptions {
  std::string file;
  bool full = false;
};

Json Held(const std::string& text) { return ToUtf8(text); }
Json Held(std::int32_t number) { return number; }
Json Held(double number) { return ToJson(number); }
Json Held(bool flag) { return flag; }
Json Held(const std::vector<int>& numbers) { return numbers; }
template <std::int32_t Low, std::int32_t High>
Json Held(Clamped<Low, High> number) {
  return static_cast<std::int32_t>(number);
}

template <class T>
void AddMember(Json& out, const char* property, const char*, const T& member) {
  out[property] = Held(member);
}
template <class T>
void AddMember(Json& out, const char* property, const char* flag, const Settable<T>& member) {
  out[property] = Held(member.Value());
  out[flag] = member.IsSet();
}

/// The properties that a definition file sets, by their names.
template <class Block>
Json Properties(const Block& block, std::span<const Attribute<Block>> attributes) {
  Json out = Json::object();
  for (const auto& attribute : attributes)
    std::visit(
        [&](auto member) { AddMember(out, attribute.property, attribute.flag, block.*member); },
        attribute.member);
  return out;
}

Json BlockJson(const clsDataLogColumn& column) {
  Json out = Properties(column, ColumnAttributes());
  out["strColumnTitleCaps"] = ToUtf8(column.strColumnTitleCaps());
  Json values = Json::array();
  for (const auto& value : *column.objColumnValues)
    values.push_back({{"strDataLogValue", ToUtf8(value->strDataLogValue)},
                      {"lngDataLogTranslation", value->lngDataLogTranslation}});
  out["objColumnValues"] = std::move(values);
  return out;
}

Json BlockJson(const clsSampleGraphPreset& preset) {
  Json out = Properties(preset, SampleGraphAttributes());
  out["lngLogFamily"] = Held(preset.lngLogFamily);
  return out;
}

Json BlockJson(const clsScatterGraphPreset& preset) {
  Json out = Properties(preset, ScatterGraphAttributes());
  out["lngLogFamily"] = Held(preset.lngLogFamily);
  Json filters = Json::array();
  for (const clsScatterFilter& filter : preset.objFilters)
    filters.push_back(Properties(filter, FilterAttributes()));
  out["objFilters"] = std::move(filters);
  return out;
}

/// The number of a collection's records or, where `full`, the records.
template <class Collection>
Json CollectionJson(const Collection& records, bool full) {
  if (!full) return records.Count();
  Json out = Json::array();
  for (const auto& record : records) out.push_back(BlockJson(record));
  return out;
}

int CheckDefinition(const DefinitionOptions& options) {
  ConsoleHost host;
  RealFileSystem files;
  RealClock clock;
  Messages messages(host, {});
  ErrorLog errors(files, clock, "");
  const Catalogue catalogue = BuildDataItemCatalogue();
  DefinitionFiles loader(files, messages.Teller(), errors, catalogue.gcolFixedDataItems);
  std::optional<clsDataLog> definition;
  if (options.file == "-")
    definition = DefaultDataLogDefinition();
  else
    definition = loader.LoadDataLogDefinition(options.file);
  const clsDataLog none;
  const clsDataLog& it = definition ? *definition : none;
  Json out{{"ok", definition.has_value()},
           {"messages", MessagesJson(host.messages)},
           {"name", ToUtf8(it.strName)},
           {"extension", ToUtf8(it.strFileExtension)},
           {"columns", CollectionJson(it.objColumns, options.full)},
           {"sample_presets", CollectionJson(it.objPresetSampleGraphs, options.full)},
           {"scatter_presets", CollectionJson(it.objPresetScatterGraphs, options.full)}};
  if (options.full) out.update(Properties(it, HeaderAttributes()));
  Print(out);
  if (definition) return kDone;
  return kFailed;
}

}  // namespace

void AddDefinitionCommand(CLI::App& program, int& status) {
  CLI::App* command =
      program.add_subcommand("definition", "Checks a definition file of Universal logs");
  command->footer("Example:\n  tarnview-cli definition my-logger.txt --full");
  auto options = std::make_shared<DefinitionOptions>();
  command
      ->add_option("FILE", options->file, "The definition file, or - for the built-in definition")
      ->required();
  command->add_flag("--full", options->full, "Print columns and presets, not only their numbers");
  command->callback([options, &status] { status = CheckDefinition(*options); });
}

}  // namespace tarnview
