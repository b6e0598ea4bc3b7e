#pragma once

#include "base/Text.h"
#include "power/CarFile.h"

namespace tarnview {

/// What a car has other than a new one: " Units=M, Tyre Width=187,".
inline std::string CarTold(const clsCarDef& car) {
  const auto own = Split(CarFileText(FieldsOf(car), {}), '\n');
  const auto plain = Split(CarFileText(FieldsOf(clsCarDefs::BlankPreset()), {}), '\n');
  std::string told;
  for (std::size_t line = 0; line < own.size(); ++line)
    if (own[line] != plain[line]) told += " " + own[line].substr(0, own[line].size() - 1) + ",";
  return told;
}

}  // namespace tarnview
