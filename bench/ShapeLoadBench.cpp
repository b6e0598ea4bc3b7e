// Logs of unknown form beside today's path: the same columns through the built-in definition, and,
// by the definition of their shape, as they stand, with decimal commas, all quoted, as UTF-16; and
// a wide log of 475 columns. A look at a log takes a few milliseconds, however large it is.

#include <algorithm>
#include <cstdio>

#include "LogBench.h"
#include "SyntheticUniversalLog.h"
#include "model/Catalogue.h"
#include "universal/BuiltInTitles.h"
#include "universal/DefaultDataLogDefinition.h"
#include "universal/LogShape.h"
#include "universal/ShapeDefinition.h"
#include "universal/UniversalDataItems.h"
#include "universal/UniversalLog.h"

namespace tarnview::bench {
namespace {

const Catalogue& Items() {
  static const Catalogue catalogue = BuildDataItemCatalogue();
  return catalogue;
}

LogShape Look(std::string_view text) {
  static const TitleDictionary titles{BuiltInTitles()};
  return ReadLogShape(text, titles, Items().gcolFixedDataItems);
}

std::string WithCommas(std::string text) {
  for (char& c : text) c = c == ',' ? ';' : (c == '.' ? ',' : c);
  return text;
}

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '\r') continue;
    quoted += c == ',' ? "\",\"" : (c == '\n' ? "\"\n\"" : std::string(1, c));
  }
  quoted.pop_back();
  return quoted;
}

std::string AsUtf16(const std::string& text) {
  std::string wide = "\xFF\xFE";
  for (const char c : text) {
    wide += c;
    wide += '\0';
  }
  return wide;
}

/// Seconds and 474 channels, of values with none to three decimals.
std::string WideLog(int lines) {
  constexpr int kChannels = 474;
  std::string text = "Time (s)";
  for (int channel = 0; channel < kChannels; ++channel)
    text += ",Channel " + std::to_string(channel);
  char number[32];
  for (int line = 0; line < lines; ++line) {
    std::snprintf(number, sizeof number, "\n%.2f", line * 0.02);
    text += number;
    for (int channel = 0; channel < kChannels; ++channel) {
      std::snprintf(number, sizeof number, ",%.*f", channel % 4,
                    (line / (channel % 7 + 1) % 500 + channel) * 0.37);
      text += number;
    }
  }
  return text;
}

void Load(benchmark::State& state, const std::string& text, const clsDataLog& definition) {
  const clsLogDataItems items = GenerateLogDataItemsGeneric(definition, Items().gcolFixedDataItems);
  const ConversionTables tables;
  const Settings settings;
  NoProgress progress;
  for (auto _ : state) {
    OpenLog log;
    if (!LoadGenericDataLog(text, {log, items, settings, tables, progress}, definition).loaded)
      state.SkipWithError("not loaded");
    benchmark::DoNotOptimize(log);
  }
}

int Main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const std::string plain = SyntheticUniversalLog(300000);
  const struct {
    const char* name;
    std::string text;
  } kLogs[] = {{"AsItStands", plain},
               {"DecimalCommas", WithCommas(plain)},
               {"Quoted", Quoted(plain)},
               {"Utf16", AsUtf16(plain)},
               {"Wide_475x30000", WideLog(30000)}};
  const auto add = [](const std::string& name, auto function) {
    benchmark::RegisterBenchmark(name.c_str(), function)->Unit(benchmark::kMillisecond);
  };
  add("Today", [&](benchmark::State& state) { Load(state, plain, DefaultDataLogDefinition()); });
  for (const auto& log : kLogs) {
    const LogShape shape = Look(log.text);
    const clsDataLog definition = DefinitionOfShape(shape, log.name, "csv", 10);
    std::printf("%s: %.1f MB, %zu columns, score %d\n", log.name,
                static_cast<double>(log.text.size()) / 1e6, shape.columns.size(), shape.score);
    add(std::string("Look_") + log.name, [&](benchmark::State& state) {
      for (auto _ : state) benchmark::DoNotOptimize(Look(log.text));
    });
    add(log.name,
        [&log, definition](benchmark::State& state) { Load(state, log.text, definition); });
  }
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const auto perByte = [&](const std::string& name, const std::string& text) {
    return reporter.milliseconds[name] / static_cast<double>(text.size());
  };
  for (const auto& log : kLogs)
    std::printf("%s: %.2f x today's path per byte\n", log.name,
                perByte(log.name, log.text) / perByte("Today", plain));
  return 0;
}

}  // namespace
}  // namespace tarnview::bench

int main(int argc, char** argv) { return tarnview::bench::Main(argc, argv); }
