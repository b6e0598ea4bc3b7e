#pragma once

#include <string>
#include <utility>

#include "DefinitionText.h"
#include "universal/DefinitionReader.h"
#include "universal/UniversalDataItems.h"
#include "universal/UniversalLog.h"

namespace tarnview {

/// A log loaded from a text through a definition.
struct LoadedUniversal {
  LoadedUniversal(clsDataLog itsDefinition, std::string_view text, const Settings& settings = {})
      : definition(std::move(itsDefinition)),
        items(GenerateLogDataItemsGeneric(definition, BuiltInItems())) {
    log.gstrCurrentFile = "/run.csv";
    NoProgress progress;
    outcome =
        LoadGenericDataLog(text, {log, items, settings, ConversionTables{}, progress}, definition);
  }
  LoadedUniversal(const DefinitionText& text, std::string_view logText,
                  const Settings& settings = {})
      : LoadedUniversal(ReadDataLogDefinition(text.Text(), "", BuiltInItems()), logText, settings) {
  }

  /// The stored cells of an item: "3250 850~"; marked, where none was logged.
  std::string Cells(int item, bool marked = false) const {
    std::string text;
    for (int row = 0; row < log.glngDataLog.Rows(); ++row) {
      text += (row ? " " : "") + std::to_string(log.glngDataLog(item - 1, row));
      if (marked && !log.glngDataLog.IsLogged(item - 1, row)) text += "~";
    }
    return text;
  }
  std::string FirstMessage() const {
    return outcome.messages.empty() ? ""
                                    : std::to_string(static_cast<int>(outcome.messages[0].id)) +
                                          ": " + outcome.messages[0].extra;
  }

  clsDataLog definition;
  clsLogDataItems items;
  OpenLog log;
  LoadOutcome outcome;
};

}  // namespace tarnview
