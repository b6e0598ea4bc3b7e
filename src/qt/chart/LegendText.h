#pragma once

#include <QString>

namespace tarnview {

/// A series' name as a legend shows it: in lines of at most 24 characters, of which what stands in
/// brackets begins a new one. A word that is longer ends in an ellipsis.
QString LegendText(const QString& name);

}  // namespace tarnview
