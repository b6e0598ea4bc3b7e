#pragma once

#include <string_view>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/Catalogue.h"
#include "model/OpenLog.h"
#include "power/PowerCurves.h"
#include "support/Table.h"

namespace tarnview {

/// A log of the built-in items in memory, made of lines "sample seconds rpm throttle speed".
struct PowerLog {
  explicit PowerLog(std::string_view lines) {
    log.Clear(catalogue.gcolFixedDataItems, 0);
    std::string_view line;
    while (TakeLine(lines, line)) AddSample(line);
    log.glngLastSample = log.glngDataLog.Rows() - 1;
    if (log.glngLastSample < 0) return;
    log.glngFirstSampleTime = log.Sample(0);
    log.glngLastSampleTime = log.Sample(log.glngLastSample);
    log.gblnSamplesLoaded = true;
  }

  void AddSample(std::string_view line) {
    constexpr int kItems[] = {1, 63, 3, 17, 24};
    const int row = log.glngDataLog.AddRow();
    const auto fields = Split(line, ' ');
    for (std::size_t i = 0; i < fields.size(); ++i) {
      const int item = kItems[i];
      const double value = StringToDouble(fields[i]);
      log.glngDataLog.Set(item - 1, row, catalogue.gcolFixedDataItems.Item(item).SetRawData(value));
    }
  }

  Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;
};

/// "3000 90 100; 3500 90 120": rpm, power and torque of each point.
inline std::vector<PowerPoint> PointsOf(const std::string& text) {
  std::vector<PowerPoint> points;
  for (const std::string& point : SplitAt(text, "; ")) {
    const auto words = Split(point, ' ');
    if (words.size() == 3)
      points.push_back({std::stod(words[0]), std::stod(words[1]), std::stod(words[2])});
  }
  return points;
}

}  // namespace tarnview
