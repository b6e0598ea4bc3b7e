#pragma once

#include <string>

#include "model/IniFile.h"

namespace tarnview {

inline constexpr const char* kBeyondSection = "Beyond";

/// Settings that came after the file's form was settled: the section "Beyond", behind all others.
/// Each is written only where it differs from its default, so that a file with none of them is as
/// it always was.
struct BeyondSettings {
  bool drawAfterOpening = false;  ///< a log's ticked items are drawn as soon as it is open
  // Where the bars between a window's parts stand, in the toolkit's words.
  std::string mainDividers, scatterDividers;
  double linesASecond = 10;    ///< of logs without a clock, as it was last answered
  std::string ownItemDisplay;  ///< OwnItemDisplay
};

void ReadBeyondSettings(const IniTable& table, BeyondSettings& settings);
/// Writes no heading, and nothing where every setting has its default.
void WriteBeyondSettings(const BeyondSettings& settings, IniWriter& file);

}  // namespace tarnview
