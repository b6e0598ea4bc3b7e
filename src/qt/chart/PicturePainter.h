#pragma once

#include <string>

#include "ui/ChartDescription.h"

class QImage;

namespace tarnview {

/// Draws a chart into a file, as the screen shows it; the ending of `path` (.png, .svg, .pdf) says as what. Sizes are
/// in pixels of 1/96 inch. False: nothing was written, and `error` says why.
bool DrawPicture(const ChartDescription& chart, const std::string& path, int width, int height, std::string& error);

}  // namespace tarnview
