#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <string>

#include "base/FileSystem.h"
#include "ui/ChartDescription.h"

namespace tarnview {

/// Draws a chart into a file, as the screen shows it; the ending of `path` (.png, .svg, .pdf) says
/// as what. Sizes are in pixels of 1/96 inch. False: nothing was written, and `error` says why.
bool DrawPicture(FileSystem& files, const ChartDescription& chart, const std::string& path,
                 int width, int height, std::string& error);
/// On the machine's own disk.
bool DrawPicture(const ChartDescription& chart, const std::string& path, int width, int height,
                 std::string& error);

/// The same without a file. The image has `ratio` pixels for each of the screen's points.
QImage DrawImage(const ChartDescription& chart, QSize size, double ratio);
QByteArray DrawSvg(const ChartDescription& chart, QSize size);

}  // namespace tarnview
