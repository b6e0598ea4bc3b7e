#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "loaders/FMLinkLog.h"
#include "model/Catalogue.h"
#include "support/LoadMessages.h"
#include "support/Table.h"

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
  /// Each column that is not 0 throughout, several to a line: "RPM: 3250 850".
  std::string Table() const {
    constexpr std::size_t kWidth = 130;
    std::string text, line;
    for (int column = 0; column < log.glngDataLog.Columns(); ++column) {
      const auto cells = log.glngDataLog.Column(column);
      if (std::all_of(cells.begin(), cells.end(), [](std::int32_t cell) { return cell == 0; }))
        continue;
      const std::string told =
          catalogue.gcolFixedDataItems.Item(column + 1).strShortName + ": " + Cells(column);
      if (line.size() + told.size() > kWidth) text += std::exchange(line, "") + "\n";
      line += (line.empty() ? "" : " | ") + told;
    }
    return "\n" + text + line + "\n";
  }
  /// The ids of the messages, and whether there are samples, zones and changes: "16, 51 samples".
  std::string Told() const {
    std::string told;
    for (const auto& message : outcome.messages)
      told += (told.empty() ? "" : ", ") + std::to_string(static_cast<int>(message.id));
    if (log.gblnSamplesLoaded) told += " samples";
    if (log.gblnZonesLoaded) told += " zones";
    if (log.gblnChangesLoaded) told += " changes";
    const bool any = log.gblnSamplesLoaded || log.gblnZonesLoaded || log.gblnChangesLoaded;
    return told + (outcome.loaded == any ? "" : " ?");
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
