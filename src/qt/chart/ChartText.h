#pragma once

#include <QString>

#include "ui/ChartDescription.h"

namespace tarnview {

/// What a chart shows, in a sentence, for a reader of the screen.
QString ChartText(const ChartDescription& chart);

}  // namespace tarnview
