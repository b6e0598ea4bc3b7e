#include "desk/ColourScheme.h"

namespace tarnview {

void SetGraphColourScheme(ChartDescription& chart, int intScheme) {
  constexpr ChartColours kGrey{true, 0xC0C0C0, 0x000000, 0x000000};
  constexpr ChartColours kBlack{false, 0x000000, 0xFFFFFF, 0x808080};
  constexpr ChartColours kWhite{false, 0xFFFFFF, 0x000000, 0x000000};
  chart.colours = intScheme == 1 ? kGrey : intScheme == 2 ? kBlack : kWhite;
}

}  // namespace tarnview
