#include "desk/ColourScheme.h"

#include <utility>

namespace tarnview {

void SetGraphColourScheme(ChartDescription& chart, int intScheme) {
  constexpr ChartColours kGrey{true, 0xC0C0C0, 0x000000, 0x000000};
  constexpr ChartColours kBlack{false, 0x000000, 0xFFFFFF, 0x808080};
  constexpr ChartColours kWhite{false, 0xFFFFFF, 0x000000, 0x000000};
  switch (intScheme) {
    case 1:
      chart.colours = kGrey;
      break;
    case 2:
      chart.colours = kBlack;
      break;
    default:
      chart.colours = kWhite;
  }
}

void TakeColourScheme(Chart& chart, int intScheme) {
  const int series = chart.SelectedSeries(), point = chart.SelectedPoint();
  ChartDescription data = chart.Data();
  SetGraphColourScheme(data, intScheme);
  chart.SetData(std::move(data));
  if (point > 0) chart.SelectPoint(series, point);
}

}  // namespace tarnview
