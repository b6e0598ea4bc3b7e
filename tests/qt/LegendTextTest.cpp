#include <gtest/gtest.h>

#include "qt/chart/LegendText.h"

namespace tarnview {
namespace {

TEST(LegendText, BreaksLongNamesAtWords) {
  const char* kRows[][2] = {
      // clang-format off
      {"RPM", "RPM"},
      {"", ""},
      {"Exactly 24 characters...", "Exactly 24 characters..."},
      {"Your Power (141.2 hp @ 6480 rpm, Vmax 128.1 mph)", "Your Power\n(141.2 hp @ 6480 rpm,\nVmax 128.1 mph)"},
      {"Your Torque (131.0 lbft @ 4200 rpm)", "Your Torque\n(131.0 lbft @ 4200 rpm)"},
      {"Averylongnameofasinglewordalone", "Averylongnameofasinglew\u2026"}};
  // clang-format on
  for (const auto& [name, shown] : kRows) EXPECT_EQ(LegendText(name), QString(shown)) << name;
}

}  // namespace
}  // namespace tarnview
