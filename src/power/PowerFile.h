#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Clock.h"
#include "power/DriveWheel.h"
#include "power/PowerCurves.h"

namespace tarnview {

inline constexpr const char* kPowerFileFilter = "Power Graph files (*.pow)|*.pow";

/// A saved power graph: where it came from, what it was worked out with (texts with their units,
/// only ever shown), and the finished curves.
struct PowerFile {
  std::string file;
  std::string plotFrom, plotTo;  ///< `Sample` values
  std::string comments;

  std::array<std::string, kGears> gearRatios;
  std::string finalDrive;
  std::array<std::string, kGears> gearLosses;
  std::string driveWheel;  ///< "Tyre size 185/60 R14"
  bool usesDrag = false;   ///< the two of the drag stand for those of the set point
  std::string setPointPower, setPointSpeed;
  std::string dragCoefficient, frontalArea;
  std::string gear;  ///< "3rd"
  std::string carWeight;
  std::string smoothing, dyno;
  std::string units;  ///< "Imperial" or "Metric": those of the points and of the speeds
  std::string temperature = "N/A";
  std::string pressure = "N/A";
  std::string humidity = "N/A";
  bool wetBulb = false;          ///< how the humidity is written; its text says so itself
  std::string correctionFactor;  ///< empty: none was applied
  std::string correctionSummary = "Off";

  std::vector<PowerPoint> points;
  std::vector<SpeedPoint> speed;  ///< mph or km/h; empty in older files

  bool imperial() const { return units == "Imperial"; }
  bool UnitsKnown() const { return imperial() || units == "Metric"; }
};

/// The file's text, CR LF behind each line. A power or torque of 1000 and an rpm of 10000 or more
/// is written in full, although readers take the fields by fixed places: kept on purpose.
std::string PowerFileText(const PowerFile& graph, const Moment& now);

/// What any text holds of a power graph, at most so many rows of each kind; a text without its
/// headings gives an empty one. `loading` is told what is being read, for the status bar.
inline constexpr std::size_t kMostPowerRows = 300000;
PowerFile ReadPowerFile(
    std::string_view text,
    const std::function<void(const char* what)>& loading = [](const char*) {});

}  // namespace tarnview
