#include "ui/Chart.h"

namespace tarnview {

void Chart::SetData(ChartDescription data) {
  data_ = std::move(data);
  series_ = point_ = 0;
  HairLine = std::nullopt;
  Labels = std::vector<ChartMark>();
  Changed(What::Content);
}

void Chart::SetView(const SurfaceView& view) {
  auto* surface = std::get_if<Surface>(&data_.kind);
  if (!surface || surface->view == view) return;
  surface->view = view;
  Changed(What::Content);
}

void Chart::SelectPoint(int series, int point) {
  MarkPoint(series, point);
  PointSelected(series, point);
}

void Chart::MarkPoint(int series, int point) {
  series_ = series;
  point_ = point;
  Changed(What::Selection);
}

void Chart::Describe(Object& facts) const {
  facts.emplace_back("series", static_cast<int>(data_.Series().size()));
  facts.emplace_back("selected", List{series_, point_});
}

Object Chart::FullDescription() const {
  Object facts = tarnview::Describe(data_);
  facts.emplace_back("selected", List{series_, point_});
  if (!Labels().empty()) facts.emplace_back("labels", tarnview::Describe(Labels()));
  return facts;
}

void Chart::Perform(const Action& action) {
  const auto x = [&](std::size_t n) { return action.Decimal(n); };
  const struct {
    const char* verb;
    std::function<void()> run;
  } kGestures[] = {
      {"popup", [&] { RightClick(); }},
      {"point", [&] { PerformPoint(action); }},
      {"double", [&] { DblClick(); }},
      {"wheel", [&] { Wheel(x(0), x(1)); }},
      {"band", [&] { Band(x(0), x(1)); }},
      {"pan", [&] { Pan(x(0), x(1)); }},
      {"turn", [&] { Turn(x(0), x(1)); }},
      {"hover", [&] { action.words.empty() ? HoverEnd() : Hover(x(0)); }},
  };
  for (const auto& row : kGestures)
    if (action.verb == row.verb) return row.run();
  Control::Perform(action);
}

void Chart::PerformPoint(const Action& action) {
  const int series = action.Number(0);
  const int point = action.Number(1);
  const std::size_t points = PointsOf(series);
  if (points == 0) throw CannotDo(FullName() + " has no such series");
  if (point < 1 || static_cast<std::size_t>(point) > points)
    throw CannotDo(FullName() + " has no such point");
  SelectPoint(series, point);
}

std::size_t Chart::PointsOf(int series) const {
  if (series < 1) return 0;
  const auto number = static_cast<std::size_t>(series);
  if (const Surface* surface = data_.AsSurface()) {
    if (number > surface->rows.size()) return 0;
    return surface->columns.size();
  }
  if (const PointCloud* cloud = data_.Cloud()) {
    if (number > 1) return 0;
    return cloud->x.size();
  }
  const std::size_t place = (number - 1) / 2;
  if (number % 2 == 1 && place < data_.Series().size()) return data_.Series()[place].x.size();
  return 0;
}

}  // namespace tarnview
