#include "qt/chart/ChartText.h"

#include <QStringList>

#include "qt/Text.h"
#include "qt/chart/AxisNumbers.h"

namespace tarnview {
namespace {

QString From(const ChartAxis& axis) {
  return QString("from %1 to %2")
      .arg(ToQt(FormatNumber(axis.min, axis.format)).trimmed(),
           ToQt(FormatNumber(axis.max, axis.format)).trimmed());
}

QString TextOf(const ChartDescription& chart, const Curves& curves) {
  if (curves.series.empty()) return "Nothing is drawn.";
  QStringList names, marks;
  for (const ChartSeries& series : curves.series) names << ToQt(series.name);
  for (const ChartMark& mark : chart.marks) marks << ToQt(mark.text);
  const std::string over = chart.x.title.empty() ? "seconds" : chart.x.title;  // a log's time
  QString text =
      QString("Curves of %1, over %2 %3").arg(names.join(", "), ToQt(over), From(chart.x));
  if (!marks.empty()) text += "; marked: " + marks.join(", ");
  return text + ".";
}

QString TextOf(const ChartDescription& chart, const PointCloud& cloud) {
  QString text = QString("%1 points: %2 %3, over %4 %5")
                     .arg(cloud.x.size())
                     .arg(ToQt(chart.y.title), From(chart.y), ToQt(chart.x.title), From(chart.x));
  if (!cloud.tint.empty())
    text += ", coloured by " + ToQt(cloud.tintAxis.title) + " " + From(cloud.tintAxis);
  return text + ".";
}

QString TextOf(const ChartDescription&, const Surface& surface) {
  return QString("A surface of %1 rows and %2 columns, %3: %4 over %5, height %6.")
      .arg(surface.rows.size())
      .arg(surface.columns.size())
      .arg(ToQt(surface.title), ToQt(surface.rowTitle), ToQt(surface.columnTitle),
           From(surface.height));
}

}  // namespace

QString ChartText(const ChartDescription& chart) {
  return std::visit([&](const auto& kind) { return TextOf(chart, kind); }, chart.kind);
}

}  // namespace tarnview
