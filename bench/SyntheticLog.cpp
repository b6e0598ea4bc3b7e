#include "SyntheticLog.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tarnview::bench {
namespace {

/// Where the drive stands at a sample: a slow swing from idle to full throttle and back, with some
/// noise on it.
struct Moment {
  explicit Moment(int sample) {
    const double swing = 0.5 - 0.5 * std::cos(sample / 90.0);
    const double noise = (static_cast<unsigned>(sample) * 2654435761u >> 20) / 4096.0 - 0.5;
    throttle = std::clamp(swing * 1.2 - 0.1 + noise * 0.02, 0.0, 1.0);
    RPM = static_cast<int>(850 + 6200 * swing * swing + 40 * noise);
    MAP = static_cast<int>(32 + 70 * throttle + 2 * noise);
    O2 = static_cast<int>(88 + 14 * throttle + 6 * noise);
    idle = throttle <= 0;
    full = throttle >= 1;
  }
  double throttle;
  int RPM, MAP, O2;
  bool idle, full;
};

void AddLogLine(std::string& log, int sample) {
  const Moment now(sample);
  char line[80];
  std::snprintf(
      line, sizeof line, "%-6d  %4d %c %3d %c %3d%c  %3d %c%4d %3d  %c%3d %c %3d%c%4.1f  %4.2f\r\n",
      sample, now.RPM, now.idle ? 'L' : 'S', now.MAP, "+-= 34g"[sample / 5 % 7], now.O2,
      sample % 40 == 3 ? 'a' : ' ', 12 + sample / 50 % 9, 'x',
      static_cast<int>(250 + 1500 * now.throttle), static_cast<int>(4 + 80 * now.throttle),
      now.idle   ? '*'
      : now.full ? 'w'
                 : ' ',
      static_cast<int>(8 + 90 * now.throttle), sample % 1000 < 100 ? 'n' : ' ',
      static_cast<int>(3 + now.RPM / 200), sample % 700 == 0 ? '!' : ' ',
      10 + 22 * (1 - now.throttle) + now.RPM / 1000.0, 0.4 + 4 * now.throttle);
  log += line;
}

void AddSummaryLine(std::string& log, int sample) {
  char line[80];
  const int temperature = std::min(20 + sample / 60, 88);
  const int speed = 40 + sample / 7 % 80;
  std::snprintf(line, sizeof line,
                "%c1.8    %4.1f    %3d AT %3d  %s CF    HR CP       %3d S=%3d %4.2fv\r\n",
                sample % 5000 < 400 ? '*' : ' ', 13.5 + sample / 100 % 6 / 10.0, temperature,
                21 + sample / 900 % 9, temperature > 85 ? "EF" : "  ", sample / 4000 % 100, speed,
                2 + sample / 300 % 20 / 10.0);
  log += line;
}

void AddRows(std::string& log, int skip, int rows, int cells) {
  for (int i = 0; i < skip; ++i) log += "--\r\n";
  for (int row = 0; row < rows; ++row) {
    for (int cell = 0; cell < cells; ++cell) {
      char text[8];
      std::snprintf(text, sizeof text, " %3d", 20 + row * 12 + cell * 3);
      log += text;
    }
    log += "\r\n";
  }
}

void AddZones(std::string& log) {
  log += "Initial zone map\r\n ATM";
  AddRows(log, 0, 1, 16);
  AddRows(log, 2, 1, 16);
  AddRows(log, 1, 6, 16);
  AddRows(log, 3, 6, 16);
  AddRows(log, 2, 1, 16);
  AddRows(log, 0, 1, 16);
  log += " ATM = 101 kPa        1.8  18-Sep-01\r\nNo lambda/knock zone changes\r\n";
}

}  // namespace

std::string SyntheticFMLinkLog(int samples) {
  std::string log = "Sample  RPM   MAP  O2\r\n";
  for (int sample = 1; sample <= samples; ++sample) {
    AddLogLine(log, sample);
    if (sample % 16 == 0) AddSummaryLine(log, sample);
  }
  AddZones(log);
  return log;
}

}  // namespace tarnview::bench
