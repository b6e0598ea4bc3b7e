#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "ui/ChartDescription.h"

namespace tarnview {

/// The options of every command that draws a chart into a file.
struct PictureOptions {
  std::optional<int> scheme;  ///< of colours; without it that of the settings
  std::string out;
  std::string size = "1400x800";

  void AddTo(CLI::App& command);
};

/// Draws a chart as the options say; true, too, where no file is asked for. A failure is told on
/// standard error.
bool DrawPicture(const ChartDescription& chart, const PictureOptions& options);

}  // namespace tarnview
