#include "cli/Json.h"

#include <cmath>
#include <cstdio>

#include "base/Text.h"

namespace tarnview {
namespace {

/// Below this every whole double is exact.
constexpr double kExact = 9e15;

struct Writer {
  Json operator()(std::monostate) const { return nullptr; }
  Json operator()(bool flag) const { return flag; }
  Json operator()(long long number) const { return number; }
  Json operator()(double number) const {
    if (std::abs(number) < kExact && number == std::trunc(number))
      return static_cast<long long>(number);
    return number;
  }
  Json operator()(const std::string& text) const { return ToUtf8(text); }
  Json operator()(const List& list) const {
    Json out = Json::array();
    for (const Value& one : list) out.push_back(ToJson(one));
    return out;
  }
  Json operator()(const Object& facts) const {
    Json out = Json::object();
    for (const auto& [name, value] : facts) out[ToUtf8(name)] = ToJson(value);
    return out;
  }
};

}  // namespace

Json ToJson(const Value& value) { return std::visit(Writer{}, value.Get()); }
Json ToJson(const Object& facts) { return Writer{}(facts); }

Json MessagesJson(const std::vector<Box>& messages) {
  Json out = Json::array();
  for (const Box& box : messages)
    out.push_back({{"id", box.id},
                   {"text", ShownAsUtf8(box.TextWithin(kMostDetailsTold))},
                   {"style", box.style}});
  return out;
}

void Print(const Json& json) {
  const std::string text = json.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fflush(stdout);
}

}  // namespace tarnview
