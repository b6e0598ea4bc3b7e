#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tarnview {

class Value;

/// Facts by name, in the order in which they were added.
using Object = std::vector<std::pair<std::string, Value>>;
using List = std::vector<Value>;

/// A small tree of facts: how a control or a chart tells what it holds, for tests and for the
/// command line. Texts are Windows-1252 bytes, as everywhere inside the program.
class Value {
 public:
  Value() = default;
  Value(bool flag) : held_(flag) {}
  Value(int number) : held_(static_cast<long long>(number)) {}
  Value(long number) : held_(static_cast<long long>(number)) {}
  Value(long long number) : held_(number) {}
  Value(double number) : held_(number) {}
  Value(const char* text) : held_(std::string(text)) {}
  Value(std::string text) : held_(std::move(text)) {}
  Value(List list) : held_(std::move(list)) {}
  Value(Object object) : held_(std::move(object)) {}

  using Held = std::variant<std::monostate, bool, long long, double, std::string, List, Object>;
  const Held& Get() const { return held_; }

 private:
  Held held_;
};

/// A list of anything that a Value can hold.
template <class Items>
List MakeList(const Items& items) {
  return List(items.begin(), items.end());
}

}  // namespace tarnview
