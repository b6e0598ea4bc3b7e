#include "ui/Chart.h"

namespace tarnview {

void Chart::SetData(ChartDescription data) {
  data_ = std::move(data);
  series_ = point_ = 0;
  HairLine = std::nullopt;
  Changed(What::Content);
}

void Chart::SelectPoint(int series, int point) {
  series_ = series;
  point_ = point;
  Changed(What::Selection);
  PointSelected(series, point);
}

void Chart::Describe(Object& facts) const {
  facts.emplace_back("series", static_cast<int>(data_.series.size()));
  facts.emplace_back("selected", List{series_, point_});
}

Object Chart::FullDescription() const {
  Object facts = tarnview::Describe(data_);
  facts.emplace_back("selected", List{series_, point_});
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
      {"hover", [&] { action.words.empty() ? HoverEnd() : Hover(x(0)); }},
  };
  for (const auto& row : kGestures)
    if (action.verb == row.verb) return row.run();
  Control::Perform(action);
}

void Chart::PerformPoint(const Action& action) {
  const int series = action.Number(0);
  const int point = action.Number(1);
  const auto place = static_cast<std::size_t>((series - 1) / 2);
  const bool known = data_.points ? series == 1 : series >= 1 && series % 2 == 1 && place < data_.series.size();
  if (!known) throw CannotDo(FullName() + " has no such series");
  const auto& x = data_.points ? data_.points->x : data_.series[place].x;
  if (point < 1 || static_cast<std::size_t>(point) > x.size()) throw CannotDo(FullName() + " has no such point");
  SelectPoint(series, point);
}

}  // namespace tarnview
