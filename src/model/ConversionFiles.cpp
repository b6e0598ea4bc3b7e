#include "model/ConversionFiles.h"

#include <utility>

#include "base/RuntimeError.h"
#include "base/TextFile.h"

namespace tarnview {
namespace {

constexpr long kPathFileAccessError = 75;

}  // namespace

ConversionTable ConversionFiles::LoadConversionTable(const std::string& path,
                                                     const ConversionTable& defaults) {
  if (path.empty() || !files_.FileExists(path)) return defaults;
  const auto text = ReadText(files_, path);
  if (!text) {
    tell_(Message::ConversionFileNotLoaded, "");
    log_.LogError("modTarnview", "LoadConversionTable",
                  RuntimeError(kPathFileAccessError, "Path/File access error"),
                  /*reraise=*/false);
    return defaults;
  }
  ConversionTable table = ParseConversionTable(*text);
  if (table.empty()) return defaults;
  return table;
}

void ConversionFiles::LoadO2ConvFile(ConversionTables& tables, const std::string& path) {
  if (!std::exchange(tables.reloadO2, false)) return;
  tables.O2 = LoadConversionTable(path, DefaultO2Table());
}

void ConversionFiles::LoadAuxInputConvFile(ConversionTables& tables, const std::string& path) {
  if (!std::exchange(tables.reloadAux, false)) return;
  tables.Aux = LoadConversionTable(path, DefaultAuxTable());
}

}  // namespace tarnview
