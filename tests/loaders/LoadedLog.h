#pragma once

#include <string>
#include <vector>

#include "loaders/FMLinkLog.h"
#include "model/Catalogue.h"
#include "support/LoadMessages.h"

namespace tarnview {

/// A log loaded from a text, with the default tables.
struct LoadedLog {
  explicit LoadedLog(std::string_view text, const Settings& itsSettings = {}, bool silent = false)
      : settings(itsSettings) {
    outcome = LoadFMLinkLog(text, {log, catalogue.gcolFixedDataItems, settings, tables, progress},
                            silent);
  }

  /// The stored cells of a column: "3250 850".
  std::string Cells(int column) const {
    std::string text;
    for (int row = 0; row < log.glngDataLog.Rows(); ++row)
      text += (row ? " " : "") + std::to_string(log.glngDataLog(column, row));
    return text;
  }
  /// A line for each column that is not 0 throughout: "RPM: 3250 850".
  std::string Table() const {
    std::string text;
    for (int column = 0; column < log.glngDataLog.Columns(); ++column)
      for (const std::int32_t cell : log.glngDataLog.Column(column)) {
        if (!cell) continue;
        text += catalogue.gcolFixedDataItems.Item(column + 1).strShortName + ": " + Cells(column) +
                "\n";
        break;
      }
    return text;
  }

  struct Progress : LoadProgress {
    std::vector<std::string> stages;
    std::vector<long> lines;
    void Stage(std::string_view text, long = 0) override { stages.emplace_back(text); }
    void Line(long line) override { lines.push_back(line); }
  };

  Catalogue catalogue = BuildDataItemCatalogue();
  ConversionTables tables{DefaultO2Table(), DefaultAuxTable(), false, false};
  Settings settings;
  Progress progress;
  OpenLog log;
  LoadOutcome outcome;
};

}  // namespace tarnview
