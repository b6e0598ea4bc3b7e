#pragma once

#include <initializer_list>
#include <utility>

#include "model/Column.h"
#include "model/OpenLog.h"

namespace tarnview {

/// One more row of a log in memory, with the raw values of its cells; the log ends with it.
inline void AddSample(OpenLog& log, std::initializer_list<std::pair<Column, std::int32_t>> cells) {
  const int row = log.glngDataLog.AddRow();
  for (const auto& [column, value] : cells) log.glngDataLog.Set(column, row, value);
  log.glngLastSample = row;
  log.glngFirstSampleTime = log.Sample(0);
  log.glngLastSampleTime = log.Sample(row);
  log.gblnSamplesLoaded = true;
}

}  // namespace tarnview
