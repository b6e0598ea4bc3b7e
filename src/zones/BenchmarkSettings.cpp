#include "zones/BenchmarkSettings.h"

#include <limits>

#include "base/Text.h"
#include "model/IniKeys.h"
#include "zones/ChipIdentity.h"

namespace tarnview {
namespace {

using B = clsBenchmark;

constexpr const char* kSection = "Benchmarks";
constexpr int kLines = 16, kZonesOfLine = 16;
constexpr std::size_t kFieldWidth = 4;  // characters
constexpr int kLeastOfField = -999, kMostOfField = 999;
constexpr const char* kEmergency = "Emergency Benchmark";

std::int16_t ToShort(std::string_view text) {
  using Limits = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(
      std::clamp<std::int32_t>(StringToLong(text), Limits::min(), Limits::max()));
}

// An empty text leaves the default of a row that has one.

void ReadEngineSize(B& benchmark, std::string_view text) {
  if (const double size = StringToDouble(text); IsEngineSize(size)) benchmark.EngineSize = size;
}
void ReadChipVersion(B& benchmark, std::string_view text) {
  if (!text.empty()) benchmark.ChipVersion = static_cast<std::int16_t>(ValidateChipVersion(text));
}
void ReadPressure(B& benchmark, std::string_view text) {
  if (!text.empty()) benchmark.AtmosphericPressure = ToShort(text);
}

const IniKey<B> kKeys[] = {
    // clang-format off
    {"Name", IniText<B>{&B::strName}},
    {"File", IniText<B>{&B::File}},
    {"Engine Size", IniRule<B>{ReadEngineSize, [](const B& b) { return std::string(EngineSizeText(b.EngineSize)); }}},
    {"Chip Date", IniDate<B>{&B::ChipDate}},
    {"Chip Version", IniRule<B>{ReadChipVersion, [](const B& b) { return std::to_string(b.ChipVersion); }}},
    {"Atmospheric Pressure",
     IniRule<B>{ReadPressure, [](const B& b) { return std::to_string(b.AtmosphericPressure); }}},
    // clang-format on
};

IniPlace PlaceOf(int n) { return {kSection, "Benchmark " + std::to_string(n) + " "}; }
std::string LineKey(int line) { return "Data Line " + std::to_string(line); }

int FieldNumber(std::string_view text) {
  return std::clamp(StringToLong(text), kLeastOfField, kMostOfField);
}

/// Fields of four characters. The reader of the file has taken the first one's blank, which is put
/// back.
void ReadLine(B& benchmark, int line, std::string text) {
  if (text.size() % kFieldWidth == kFieldWidth - 1) text.insert(0, 1, ' ');
  for (std::size_t c = 0; c < kZonesOfLine && c * kFieldWidth < text.size(); ++c)
    benchmark.ZoneSettings(kZonesOfLine * line + static_cast<int>(c)) = static_cast<std::int16_t>(
        FieldNumber(std::string_view(text).substr(c * kFieldWidth, kFieldWidth)));
}

/// A value that is not known, -1, takes the blank for its sign, so that the fields keep their
/// width.
std::string LineText(const B& benchmark, int line) {
  std::string text;
  for (int c = 0; c < kZonesOfLine; ++c) {
    const int value = std::clamp<int>(benchmark.ZoneSettings(kZonesOfLine * line + c),
                                      kLeastOfField, kMostOfField);
    text += TextIf(value >= 0, " ") + PaddedText(value, 3);
  }
  return text;
}

B Blank(const Settings& settings) {
  B benchmark;
  benchmark.EngineSize = settings.gdblDefaultEngineSize;
  benchmark.ChipDate = settings.gdatDefaultChipDate;
  benchmark.ChipVersion = static_cast<std::int16_t>(settings.gintDefaultChipVersion);
  benchmark.AtmosphericPressure =
      static_cast<std::int16_t>(settings.gintDefaultAtmosphericPressure);
  return benchmark;
}

}  // namespace

void ReadBenchmarks(const IniTable& table, const Settings& settings, clsBenchmarks& benchmarks) {
  for (int n = 1; table.Find(kSection, PlaceOf(n).KeyOf("Name")); ++n) {
    B benchmark = Blank(settings);
    ReadIniKeys<B>(kKeys, table, PlaceOf(n), benchmark);
    for (std::string* name : {&benchmark.strName, &benchmark.File})
      if (name->empty()) *name = "Benchmark " + std::to_string(n);
    for (int line = 0; line < kLines; ++line)
      if (const std::string* text = table.Find(kSection, PlaceOf(n).KeyOf(LineKey(line))))
        ReadLine(benchmark, line, *text);
    benchmarks.AddDirect(std::move(benchmark));
  }
  if (benchmarks.Count() > 0) return;
  B emergency = Blank(settings);
  emergency.strName = emergency.File = kEmergency;
  benchmarks.AddDirect(std::move(emergency));
}

void WriteBenchmarks(const clsBenchmarks& benchmarks, IniWriter& file) {
  int n = 0;
  for (const B& benchmark : benchmarks) {
    const IniPlace place = PlaceOf(++n);
    WriteIniKeys<B>(kKeys, place, benchmark, file);
    for (int line = 0; line < kLines; ++line)
      file.Line(place.KeyOf(LineKey(line)), LineText(benchmark, line));
  }
}

}  // namespace tarnview
