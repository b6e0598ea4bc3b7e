#pragma once

#include <string_view>

namespace tarnview {

/// The unit of an item of the built-in catalogue in the logs of fixed layouts; "" for one that has
/// none or whose unit depends on the car ("Speed" follows the ECU's own).
std::string_view UnitOfFixedItem(int item);

}  // namespace tarnview
