#pragma once

#include <optional>

#include "ui/ChartDescription.h"
#include "ui/Control.h"

namespace tarnview {

/// The control that shows a chart. Series are numbered from 1 in pairs, an X and a Y column each,
/// so that the curve at place j (from 0) of the description is series 2j + 1; points are numbered
/// from 1. The points of a cloud are series 1. Of a surface, series and point are row and column.
class Chart : public Control {
 public:
  Chart(Form& owner, std::string itsName) : Control(owner, std::move(itsName)) {}

  Event<int, int> PointSelected;  ///< series, point; by hand or from code
  Event<> RightClick;

  // What a hand does beyond choosing a point; each x in the units of the X axis.
  Event<double, double> Wheel;  ///< at x, by so many notches: above 0 away from the user
  Event<double, double> Band;   ///< the range from x to x was marked
  Event<double, double> Pan;    ///< what is at the first x was drawn to the second
  Event<double, double> Turn;   ///< a surface was drawn by so many degrees to the right and up
  Event<> DblClick;
  Event<double> Hover;  ///< the pointer stands at x
  Event<> HoverEnd;     ///< it has left the graph

  /// Where a thin line runs through the graph, beside the selected point's own.
  Property<std::optional<double>> HairLine = Shown(std::optional<double>(), What::Selection);

  /// What stands where that line meets the curves.
  Property<std::vector<ChartMark>> Labels = Shown(std::vector<ChartMark>(), What::Selection);

  void SetData(ChartDescription data);
  const ChartDescription& Data() const { return data_; }
  /// Looks at a surface from elsewhere; what is selected stays so. Of another chart, nothing.
  void SetView(const SurfaceView& view);

  /// Selects a point and raises PointSelected, also for the point that is selected already.
  void SelectPoint(int series, int point);
  /// The same without the event.
  void MarkPoint(int series, int point);
  int SelectedSeries() const { return series_; }  ///< 0 for none
  int SelectedPoint() const { return point_; }    ///< 0 for none

  std::string_view Kind() const override { return "chart"; }
  bool TakesFocus() const override { return true; }
  void Describe(Object& facts) const override;
  /// The description with the selected point, for the action "chart".
  Object FullDescription() const;

 protected:
  void Perform(const Action& action) override;

 private:
  void PerformPoint(const Action& action);
  /// How many points the series has; 0 for a series that is not there.
  std::size_t PointsOf(int series) const;

  ChartDescription data_;
  int series_ = 0;
  int point_ = 0;
};

}  // namespace tarnview
