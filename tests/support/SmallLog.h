#pragma once

#include <cstdio>
#include <functional>
#include <string>

namespace tarnview {

/// What a sample of a small FM Link log shows; the rest of its line is at rest.
struct SmallSample {
  int sample = 1;
  int rpm = 1000;
  int mapKPa = 40;
  int knock = 0;
};

/// An FM Link log of `count` samples numbered from 1, a summary behind every 16, 80 degrees C, and
/// no zones: its load shows message 16. `shape` may change a sample.
inline std::string SmallLog(int count, const std::function<void(SmallSample&)>& shape = {}) {
  std::string text = "Sample   RPM\r\n";
  char line[80];
  for (int n = 1; n <= count; ++n) {
    SmallSample one;
    one.sample = n;
    if (shape) shape(one);
    std::snprintf(line, sizeof line,
                  "%-6d  %4d  D%3d    %3d  x   0  xxx 250  10.0   40  n %3d 12.0\r\n", one.sample,
                  one.rpm, one.mapKPa, 90, one.knock);
    text += line;
    if (n % 16 == 0) text += " 1.8    13.8     80 AT  25                             0   0\r\n";
  }
  return text + "Initial zone map\r\n";
}

}  // namespace tarnview
