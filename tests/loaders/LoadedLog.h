#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "base/Text.h"
#include "loaders/LoadContext.h"
#include "model/Catalogue.h"
#include "support/Accept.h"

namespace tarnview {

/// A log loaded from a text, with the default tables.
struct LoadedLog {
  using Loader = LoadOutcome (*)(std::string_view bytes, const LoadContext& context);

  LoadedLog(Loader load, std::string_view text, const Settings& itsSettings = {})
      : settings(itsSettings) {
    outcome = load(text, {log, catalogue.gcolFixedDataItems, settings, tables, progress});
  }

  /// "samples zones, plots from 0, air from -10, says 7 8": what came of it, but for the cells.
  std::string Outcome() const {
    std::string text = outcome.loaded ? "" : "nothing";
    if (log.gblnSamplesLoaded) text += "samples ";
    if (log.gblnZonesLoaded) text += "zones ";
    if (log.gblnChangesLoaded) text += "changes ";
    if (text.back() == ' ') text.pop_back();
    if (log.glngFirstPlotSample >= 0)
      text += ", plots from " + std::to_string(log.glngFirstPlotSample);
    if (log.glngLowestAirTemp != kNoAirTemp)
      text += ", air from " + std::to_string(log.glngLowestAirTemp);
    if (!outcome.messages.empty()) text += ", says";
    for (const LoadMessage& message : outcome.messages)
      text += " " + std::to_string(static_cast<int>(message.id));
    return text;
  }

  /// The stored cells of all columns that are not 0 throughout, side by side: a line for each
  /// sample, begun anew where it gets too long.
  std::string Table() const {
    constexpr std::size_t kLongest = 150;
    std::vector<std::string> block(static_cast<std::size_t>(log.glngDataLog.Rows()) + 1);
    std::string text;
    for (int column = 0; column < log.glngDataLog.Columns(); ++column) {
      std::vector<std::string> cells{catalogue.gcolFixedDataItems.Item(column + 1).strShortName};
      for (const std::int32_t cell : log.glngDataLog.Column(column))
        cells.push_back(std::to_string(cell));
      if (std::all_of(cells.begin() + 1, cells.end(), [](auto& cell) { return cell == "0"; }))
        continue;
      std::size_t width = block[0].empty() ? 0 : 2;
      width += std::max_element(cells.begin(), cells.end(), IsShorter)->size();
      for (std::size_t row = 0; row < cells.size(); ++row)
        block[row] += std::string(width - cells[row].size(), ' ') + cells[row];
      if (block[0].size() <= kLongest) continue;
      text += Join(block, "\n") + "\n";
      block.assign(block.size(), "");
    }
    return block[0].empty() ? text : text + Join(block, "\n") + "\n";
  }

  std::string Told() const { return Outcome() + "\n" + Table(); }

  /// The stored cells of a column: "3250 850".
  std::string Cells(int column) const {
    std::string text;
    for (int row = 0; row < log.glngDataLog.Rows(); ++row)
      text += (row ? " " : "") + std::to_string(log.glngDataLog(column, row));
    return text;
  }

  /// Those of a column by its item's short name.
  std::string CellsOf(const std::string& name) const {
    int column = 0;
    while (catalogue.gcolFixedDataItems.Item(column + 1).strShortName != name) ++column;
    return Cells(column);
  }

  struct Progress : LoadProgress {
    std::vector<std::string> stages;
    std::vector<long> lines;
    long expected = 0;  ///< rows
    void Stage(std::string_view text, long rows) override {
      stages.emplace_back(text);
      expected = std::max(expected, rows);
    }
    void Line(long line) override { lines.push_back(line); }
  };

  Catalogue catalogue = BuildDataItemCatalogue();
  ConversionTables tables{DefaultO2Table(), DefaultAuxTable(), false, false};
  Settings settings;
  Progress progress;
  OpenLog log;
  LoadOutcome outcome;

 private:
  static bool IsShorter(const std::string& a, const std::string& b) { return a.size() < b.size(); }
};

/// Texts that are all alike, behind another.
inline std::string Repeated(std::string text, std::string_view one, int count,
                            std::string_view end = "\n") {
  text.reserve(text.size() + (one.size() + end.size()) * static_cast<std::size_t>(count));
  while (count-- > 0) text.append(one).append(end);
  return text;
}

}  // namespace tarnview
