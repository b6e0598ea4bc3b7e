#pragma once

#include <functional>
#include <ostream>
#include <utility>

namespace tarnview {

/// A value that tells its owner after it has changed. Setting the value that it has already raises
/// nothing.
template <class T>
class Property {
 public:
  using Changed = std::function<void()>;

  Property(T initial, Changed changed) : value_(std::move(initial)), changed_(std::move(changed)) {}
  Property(const Property&) = delete;

  Property& operator=(const Property& other) { return *this = other.value_; }
  Property& operator=(T value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    changed_();
    return *this;
  }

  const T& operator()() const { return value_; }
  operator const T&() const { return value_; }
  const T* operator->() const { return &value_; }

  friend bool operator==(const Property& property, const T& value) {
    return property.value_ == value;
  }
  friend std::ostream& operator<<(std::ostream& out, const Property& property) {
    return out << property.value_;
  }

 private:
  T value_;
  Changed changed_;
};

}  // namespace tarnview
