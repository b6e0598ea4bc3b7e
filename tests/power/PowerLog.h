#pragma once

#include <string_view>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/Catalogue.h"
#include "power/PowerCurves.h"
#include "support/AddSample.h"
#include "support/Table.h"

namespace tarnview {

/// A log of the built-in items in memory, made of lines "sample seconds rpm throttle speed".
struct PowerLog {
  explicit PowerLog(std::string_view lines) {
    log.Clear(catalogue.gcolFixedDataItems, 0);
    std::string_view line;
    while (TakeLine(lines, line)) Add(line);
    if (log.glngDataLog.Rows() == 0) log.glngLastSample = -1;
  }

  void Add(std::string_view line) {
    auto fields = Split(line, ' ');
    fields.resize(5);
    const auto raw = [&](Column column, std::size_t field) {
      const double value = StringToDouble(fields[field]);
      return std::pair{column, catalogue.gcolFixedDataItems.Item(ItemOf(column)).SetRawData(value)};
    };
    AddSample(log, {raw(kSample, 0), raw(kSecs, 1), raw(kRPM, 2), raw(kTPS, 3), raw(kSpeed, 4)});
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
