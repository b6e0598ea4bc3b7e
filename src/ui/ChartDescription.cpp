#include "ui/ChartDescription.h"

namespace tarnview {

Object Describe(const ChartDescription& chart) {
  Object facts = chart.facts;
  List series;
  for (const ChartSeries& one : chart.series)
    series.emplace_back(Object{{"item", one.id},
                               {"name", one.name},
                               {"x", MakeList(one.x)},
                               {"y", MakeList(one.y)},
                               {"colour", one.pen.colour},
                               {"style", one.pen.style},
                               {"width", one.pen.width / 10}});
  facts.emplace_back("series", std::move(series));
  facts.emplace_back("x_axis", Object{{"min", chart.x.min}, {"max", chart.x.max}, {"format", chart.x.format}});
  facts.emplace_back("y_axis", Object{{"max", chart.y.max}, {"divisions", chart.y.divisions}});
  return facts;
}

}  // namespace tarnview
