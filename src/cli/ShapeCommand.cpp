#include <memory>
#include <string>

#include "app/LogRoads.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "base/TextFile.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/LogSession.h"
#include "universal/DefinitionWriter.h"
#include "universal/LogShape.h"
#include "universal/ShapeDefinition.h"

namespace tarnview {
namespace {

constexpr double kUsualLinesASecond = 10;

struct ShapeOptions {
  std::string file, definitionOut;
};

Json TextsJson(const std::vector<std::string>& texts) {
  Json out = Json::array();
  for (const std::string& text : texts) out.push_back(ToUtf8(text));
  return out;
}

Json ColumnJson(const ShapeColumn& column, const ShapeItem& item) {
  return {{"title", ToUtf8(column.header)},
          {"unit", ToUtf8(column.unit)},
          {"item", item.item},
          {"name", ToUtf8(item.name)},
          {"item_unit", ToUtf8(item.unit)},
          {"factor", ToJson(item.factor)},
          {"offset", ToJson(item.offset)},
          {"decimals", item.places},
          {"first_values", TextsJson(column.first)},
          {"lowest", ToJson(column.lowest)},
          {"highest", ToJson(column.highest)},
          {"why", ToUtf8(item.why)}};
}

Json TimeJson(const LogShape& shape) {
  const bool clock = shape.HasClock();
  const auto column = static_cast<std::size_t>(clock ? shape.time.column : 0);
  return {{"column", clock ? Json(ToUtf8(shape.columns[column].header)) : Json()},
          {"form", std::string(TimeFormName(shape.time.form))},
          {"step", ToJson(shape.time.step)},
          {"line_frequency", ToJson(shape.lineFrequency)}};
}

Json ShapeJson(const LogShape& shape) {
  Json out{{"found", shape.Found()},
           {"score", shape.score},
           {"encoding", std::string(EncodingName(shape.encoding))},
           {"delimiter", std::string(DelimiterName(shape.form.delimiter))},
           {"decimal_sign", std::string(1, shape.form.decimalSign)},
           {"quoted", shape.form.quoted || shape.rows.quotedTitles},
           {"lines_before_titles", shape.rows.titleLine},
           {"lines_before_data", shape.rows.dataLine},
           {"titles", TextsJson(shape.rows.titles)},
           {"units", TextsJson(shape.rows.units)},
           {"time", TimeJson(shape)},
           {"columns", Json::array()},
           {"why", TextsJson(shape.why)}};
  for (std::size_t at = 0; at < shape.columns.size(); ++at)
    out["columns"].push_back(ColumnJson(shape.columns[at], shape.items[at]));
  return out;
}

int TellShape(const ShapeOptions& options) {
  RealFileSystem files;
  const auto bytes = ReadText(files, options.file);
  if (!bytes) return kFailed;
  Globals globals;
  globals.dataFolder = DataFolder(files);
  LogRoads roads(globals, files);
  const LogShape shape = ReadLogShape(*bytes, roads.Titles(), globals.catalogue.gcolFixedDataItems);
  Print(ShapeJson(shape));
  if (!shape.Found()) return kFailed;
  if (options.definitionOut.empty()) return kDone;
  const clsDataLog definition = DefinitionOfShape(shape, FileTitle(options.file),
                                                  GetExtension(options.file), kUsualLinesASecond);
  if (files.Write(options.definitionOut, DefinitionFileText(definition))) return kDone;
  return kFailed;
}

}  // namespace

void AddShapeCommand(CLI::App& program, int& status) {
  CLI::App* command =
      program.add_subcommand("shape", "Tells what the form of a text log is taken to be, as JSON");
  command->footer("Example:\n  tarnview-cli shape run.csv --definition-out my-logger.txt");
  auto options = std::make_shared<ShapeOptions>();
  command->add_option("FILE", options->file, "The log")->required()->check(CLI::ExistingFile);
  command->add_option("--definition-out", options->definitionOut,
                      "Write a definition of such logs to this file");
  command->callback([options, &status] { status = TellShape(*options); });
}

}  // namespace tarnview
