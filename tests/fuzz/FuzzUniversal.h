#pragma once

#include "model/Catalogue.h"
#include "universal/DefaultDataLogDefinition.h"
#include "universal/DefinitionFaults.h"
#include "universal/DefinitionReader.h"
#include "universal/UniversalDataItems.h"
#include "universal/UniversalLog.h"

namespace tarnview {

/// Reads the bytes as a definition file.
inline int FuzzDataLogDefinition(const unsigned char* data, std::size_t size) {
  static const Catalogue catalogue = BuildDataItemCatalogue();
  try {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    GenerateLogDataItemsGeneric(
        ReadDataLogDefinition(text, "fuzz.txt", catalogue.gcolFixedDataItems),
        catalogue.gcolFixedDataItems);
  } catch (const DefinitionFault&) {
  }
  return 0;
}

inline void LoadThrough(const clsDataLog& definition, std::string_view text) {
  static const Catalogue catalogue = BuildDataItemCatalogue();
  const clsLogDataItems items =
      GenerateLogDataItemsGeneric(definition, catalogue.gcolFixedDataItems);
  NoProgress progress;
  OpenLog log;
  LoadGenericDataLog(text, {log, items, Settings(), ConversionTables(), progress}, definition);
}

/// The bytes are a definition and, behind a line "[LOG]", a log; without that line all of them are
/// a log.
inline int FuzzUniversalLog(const unsigned char* data, std::size_t size) {
  static const Catalogue catalogue = BuildDataItemCatalogue();
  constexpr std::string_view kLog = "\n[LOG]\n";
  std::string_view text(reinterpret_cast<const char*>(data), size);
  clsDataLog definition = DefaultDataLogDefinition();
  definition.strFileIDText.clear();
  if (const auto at = text.find(kLog); at != std::string_view::npos) {
    try {
      definition =
          ReadDataLogDefinition(text.substr(0, at + 1), "fuzz.txt", catalogue.gcolFixedDataItems);
    } catch (const DefinitionFault&) {
    }
    text.remove_prefix(at + kLog.size());
  }
  LoadThrough(definition, text);
  return 0;
}

}  // namespace tarnview
