#pragma once

#include <cstdint>

#include "fields/TextLines.h"
#include "loaders/FMLinkLines.h"
#include "loaders/LoadContext.h"

namespace tarnview {

/// The sample section of a log: the fast data line by line, the slow data of the summaries spread
/// over the lines between them, and the tags that summaries open and close.
class FMLinkSamples {
 public:
  explicit FMLinkSamples(const LoadContext& context);

  /// Reads up to the line "Initial zone map", or to the end. `lineStep`: lines between two tellings
  /// of progress.
  void Read(TextLines& lines, long lineStep);
  /// Gives the samples behind the last summary its values, and all samples what follows from their
  /// other columns.
  void Finish();
  /// Closes an open tag and brings all tags within the log.
  void FinishTags();

  bool Full() const { return log_.glngDataLog.Rows() >= kMostSamples; }
  /// Engine size and chip version as the last summary told them.
  const ChipIdentity& Chip() const { return current_.chip; }

 private:
  void ReadLine(std::string_view line);
  void ReadSummary(std::string_view line);
  void MarkTag(bool inTag);
  void FindFirstPlotSample(int first, int end);

  const LoadContext& context_;
  OpenLog& log_;
  const FMLinkItems items_;
  Summary current_;
  SummaryRow previous_;
  bool anySummary_ = false;
  int start_ = 0;  ///< the first sample behind the last summary
  std::int32_t lastSample_ = 0;
  bool tagOpen_ = false;
  std::int32_t tagFrom_ = 0;
};

}  // namespace tarnview
