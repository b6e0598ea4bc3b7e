#pragma once

#include <span>
#include <string_view>

#include "model/ZoneSettings.h"

namespace tarnview {

/// "1.8" for exactly 1.8, "1.6" for anything else.
std::string_view EngineSizeText(double size);
double EngineSizeIn(std::string_view text);
constexpr bool IsEngineSize(double size) { return size == 1.6 || size == 1.8; }

/// The number of the text when it is at least 1 and below 4, else 2.
int ValidateChipVersion(std::string_view text);

/// A chip's date as logs and MAP files write it ("X18-Sep-2001", "18-Sep-01", "18Sep2001", or any
/// date); `defaultDate` where it cannot be read.
Date ParseChipDate(std::string_view text, Date defaultDate);

/// The chips that a user can own.
struct ChipType {
  std::string_view text;
  double dblEngineSize;
  int intChipVersion;
};
std::span<const ChipType> ChipTypes();

/// The text of a chip's type; "1.8 Mk1" for a combination that is none.
std::string_view SetChipTypeCombo(double engineSize, int chipVersion);
/// The type of that text; "1.8 Mk1" for any other text.
const ChipType& DecipherChipType(std::string_view text);

}  // namespace tarnview
