#include "ui/ChartDescription.h"

namespace tarnview {
namespace {

Object DescribePoints(const PointCloud& cloud, Object facts) {
  List points;
  for (std::size_t i = 0; i < cloud.x.size(); ++i)
    points.emplace_back(MakeList(std::vector<double>{cloud.x[i], cloud.y[i], cloud.sample[i]}));
  facts.emplace_back("x_item", cloud.xItem);
  facts.emplace_back("y_item", cloud.yItem);
  facts.emplace_back("points", std::move(points));
  return facts;
}

}  // namespace

Object Describe(const ChartDescription& chart) {
  if (chart.points) return DescribePoints(*chart.points, chart.facts);
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
