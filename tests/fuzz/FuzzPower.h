#pragma once

#include "power/CarFile.h"
#include "power/PowerChart.h"
#include "power/SavedRun.h"
#include "power/SpeedChart.h"
#include "power/SpeedQuery.h"

namespace tarnview {

/// Twenty samples of rising rpm.
inline std::vector<RunSample> SomeSamples() {
  std::vector<RunSample> samples;
  for (int i = 0; i < 20; ++i) samples.push_back({i * 0.1, 2000.0 + i * 100});
  return samples;
}

inline int FuzzPowerFile(const unsigned char* data, std::size_t size) {
  const PowerFile graph = ReadPowerFile({reinterpret_cast<const char*>(data), size});
  PowerFileText(graph, {});
  DragOf(graph, {});
  PowerRun run;
  run.contentsWeight = 180;
  run.smoothing = 7;
  run.samples = SomeSamples();
  const auto benchmark = InUnits(graph.points, graph.imperial(), true);
  const PowerCurves curves = CurvesOf(run, &benchmark);
  if (!curves.failed) PowerChart(curves, ShownBenchmark{benchmark, PeaksOf(benchmark)});
  const auto speeds = ShownSpeeds(graph.speed, 0.44704, 0.27778, 1);
  SpeedChart(speeds, &speeds, false);
  TimeBetween(speeds, 10, 60);
  return 0;
}

inline int FuzzCarFile(const unsigned char* data, std::size_t size) {
  CarFields fields = FieldsOf({});
  ReadCarFile({reinterpret_cast<const char*>(data), size}, fields);
  CarFileText(fields, {});
  PowerRun run;
  run.car = CarOf(fields);
  run.gear = run.car.lngPowerRunGear;
  run.contentsWeight = run.car.lngCarContentsWeight;
  run.smoothing = run.car.lngSmoothingFactor;
  run.samples = SomeSamples();
  CurvesOf(run);
  GearOfSpeed(run.car, 20, 4000);
  ConvertFields(fields, true);
  ConvertFields(fields, false);
  ValidateCD(fields.cd);
  ValidateFrontalArea(fields.frontalArea);
  return 0;
}

}  // namespace tarnview
