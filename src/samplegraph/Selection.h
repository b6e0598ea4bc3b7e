#pragma once

#include <cstdint>

namespace tarnview {

/// What is selected in the Sample Graph: a point of a curve, and the sample that it stands for.
class Selection {
 public:
  std::int32_t lngHighlightSample() const {
    return lngHighlightSample_;
  }  ///< `Sample` value; 0 for none
  std::int32_t lngSelectedPoint() const {
    return lngSelectedPoint_;
  }  ///< row of the table, from 1; 0 for none
  int intSelectedSeries() const {
    return intSelectedSeries_;
  }  ///< the chart's number, 2j + 1 for the item at place j
  int intSelectedItem() const { return intSelectedItem_; }  ///< data item of that series

  void Select(int series, std::int32_t point, int item) {
    intSelectedSeries_ = series;
    lngSelectedPoint_ = point;
    intSelectedItem_ = item;
  }
  /// The sample stays selected when the range moves about it.
  void Highlight(std::int32_t sample) { lngHighlightSample_ = sample; }
  /// No sample: the next draw selects the middle of the graph.
  void Forget() { lngHighlightSample_ = 0; }
  /// Forgets a sample outside a range of `Sample` values.
  void KeepWithin(std::int64_t from, std::int64_t to) {
    if (lngHighlightSample_ < from || lngHighlightSample_ > to) Forget();
  }
  /// No point, until the next draw selects one again.
  void ForgetPoint() { lngSelectedPoint_ = 0; }

 private:
  std::int32_t lngHighlightSample_ = 0;
  std::int32_t lngSelectedPoint_ = 0;
  int intSelectedSeries_ = 0;
  int intSelectedItem_ = 0;
};

}  // namespace tarnview
