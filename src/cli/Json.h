#pragma once

#include <nlohmann/json.hpp>
#include <vector>

#include "ui/Host.h"
#include "ui/Value.h"

namespace tarnview {

using Json = nlohmann::ordered_json;

/// A tree of facts as JSON in UTF-8. A whole number is written without a fraction.
Json ToJson(const Value& value);
Json ToJson(const Object& facts);

/// `[{"id": 8, "text": ..., "style": 48}]`
Json MessagesJson(const std::vector<Box>& messages);

/// One line on standard output.
void Print(const Json& json);

}  // namespace tarnview
