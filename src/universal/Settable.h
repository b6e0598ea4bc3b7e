#pragma once

#include <utility>

namespace tarnview {

/// A value that knows whether it was ever written, so that "not given" is another thing than "given
/// as 0". Nothing lowers the flag; a copy has its source's flag.
template <class T>
class Settable {
 public:
  Settable& operator=(T value) {
    value_ = std::move(value);
    set_ = true;
    return *this;
  }
  operator const T&() const { return value_; }
  const T& Value() const { return value_; }
  bool IsSet() const { return set_; }

 private:
  T value_{};
  bool set_ = false;
};

}  // namespace tarnview
