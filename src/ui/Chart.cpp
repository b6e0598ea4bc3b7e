#include "ui/Chart.h"

namespace tarnview {

void Chart::SetData(ChartDescription data) {
  data_ = std::move(data);
  series_ = point_ = 0;
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
  if (action.verb == "popup") return RightClick();
  if (action.verb != "point") return Control::Perform(action);
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
