#include "model/clsWindowConfig.h"

#include <algorithm>
#include <array>

#include "model/IniKeys.h"

namespace tarnview {
namespace {

using Config = clsWindowConfig;
using Whole = IniWhole<Config>;

constexpr const char* kWindowState = "Window State";

const IniKey<Config> kKeys[] = {
    {kWindowState, Whole{&Config::lngWindowState, 0, Config::kMaximized}},
    {"Window Left", Whole{&Config::lngLeft}},
    {"Window Top", Whole{&Config::lngTop}},
    {"Window Width", Whole{&Config::lngWidth}},
    {"Window Height", Whole{&Config::lngHeight}},
};

}  // namespace

void clsWindowConfig::WriteIniFileEntry(IniWriter& file, const std::string& prefix) const {
  WriteIniKeys<Config>(kKeys, {"", prefix}, *this, file);
}

std::optional<clsWindowConfig> ReadWindowConfig(const IniTable& table, const std::string& section,
                                                const WindowKeys& keys) {
  if (!table.Find(section, std::string(keys.prefix) + kWindowState)) return std::nullopt;
  clsWindowConfig config;
  ReadIniKeys<Config>(kKeys, table, {section, keys.prefix}, config);
  config.lngWidth = std::max(config.lngWidth, keys.leastWidth);
  config.lngHeight = std::max(config.lngHeight, keys.leastHeight);
  return config;
}

}  // namespace tarnview
