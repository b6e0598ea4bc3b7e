#include "ui/ChartDescription.h"

#include <iterator>

namespace tarnview {
namespace {

Object DescribeKind(const Curves& curves, const ChartDescription& chart) {
  List series;
  for (const ChartSeries& one : curves.series)
    series.emplace_back(Object{{"item", one.id},
                               {"name", one.name},
                               {"x", MakeList(one.x)},
                               {"y", MakeList(one.y)},
                               {"colour", one.pen.colour},
                               {"style", one.pen.style},
                               {"width", one.pen.width / 10}});
  Object y{{"max", chart.y.max}, {"divisions", chart.y.divisions}};
  if (chart.y.min < 0) y.emplace_back("min", chart.y.min);
  return {
      {"series", std::move(series)},
      {"x_axis", Object{{"min", chart.x.min}, {"max", chart.x.max}, {"format", chart.x.format}}},
      {"y_axis", std::move(y)}};
}

Object DescribeKind(const PointCloud& cloud, const ChartDescription&) {
  List points;
  for (std::size_t i = 0; i < cloud.x.size(); ++i)
    points.emplace_back(MakeList(std::vector<double>{cloud.x[i], cloud.y[i], cloud.sample[i]}));
  return {{"x_item", cloud.xItem}, {"y_item", cloud.yItem}, {"points", std::move(points)}};
}

Object DescribeKind(const Surface& surface, const ChartDescription&) {
  List values, locked;
  for (std::size_t row = 0; row < surface.rows.size(); ++row) {
    List one;
    for (std::size_t column = 0; column < surface.columns.size(); ++column) {
      one.emplace_back(surface.At(row, column));
      if (surface.IsLocked(row, column))
        locked.emplace_back(List{static_cast<int>(row) + 1, static_cast<int>(column) + 1});
    }
    values.emplace_back(std::move(one));
  }
  return {{"title", surface.title},
          {"subtitle", surface.subtitle},
          {"rotation", surface.view.rotation},
          {"elevation", surface.view.elevation},
          {"zoom", surface.view.zoom},
          {"rows", MakeList(surface.rows)},
          {"columns", MakeList(surface.columns)},
          {"values", std::move(values)},
          {"locked", std::move(locked)},
          {"height_axis", Object{{"min", surface.height.min},
                                 {"max", surface.height.max},
                                 {"divisions", surface.height.divisions}}}};
}

}  // namespace

const std::vector<ChartSeries>& ChartDescription::Series() const {
  static const std::vector<ChartSeries> kNone;
  const auto* curves = std::get_if<Curves>(&kind);
  if (curves) return curves->series;
  return kNone;
}

List Describe(const std::vector<ChartMark>& marks) {
  List list;
  for (const ChartMark& mark : marks)
    list.emplace_back(Object{{"x", mark.x}, {"y", mark.y}, {"text", mark.text}});
  return list;
}

Object Describe(const ChartDescription& chart) {
  Object facts = chart.facts;
  Object more = std::visit([&](const auto& kind) { return DescribeKind(kind, chart); }, chart.kind);
  facts.insert(facts.end(), std::make_move_iterator(more.begin()),
               std::make_move_iterator(more.end()));
  if (!chart.marks.empty()) facts.emplace_back("marks", Describe(chart.marks));
  return facts;
}

}  // namespace tarnview
