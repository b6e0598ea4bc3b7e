#pragma once

#include <functional>
#include <string>
#include <vector>

#include "desk/ChartOutput.h"
#include "desk/Commands.h"

namespace tarnview {

/// The menu items by which a window gives its chart away.
struct ChartItems {
  MenuItem &copy, &rightClickCopy;
  MenuItem &print, &rightClickPrint, &printPreview;
  MenuItem& savePicture;
};

/// What they give away, asked for when one is chosen.
struct ChartSource {
  const Chart& chart;
  std::function<PrintDetails()> details;
  std::function<std::string()> file;  ///< the log that the picture is named after
  std::function<bool()> drawn;        ///< empty: always
};

/// Their rows; output and chart are the window's own.
std::vector<Command> ChartCommands(ChartOutput& output, const ChartItems& items,
                                   const ChartSource& source);

}  // namespace tarnview
