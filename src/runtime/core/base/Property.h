#pragma once

#include <functional>
#include <utility>

namespace tavrelkin {

// A value that is read and written like a plain member. Each write calls a hook of its owner. There is no copy
// constructor, so `auto x = property` does not compile: it would copy the property instead of its value.
template <class T>
class Property {
 public:
  using Hook = std::function<void(const T&)>;

  Property() = default;
  explicit Property(T value, Hook hook = {}) : value_(std::move(value)), hook_(std::move(hook)) {}
  Property(const Property&) = delete;

  Property& operator=(const Property& other) { return *this = other.value_; }
  Property& operator=(T value) {
    value_ = std::move(value);
    if (hook_) hook_(value_);
    return *this;
  }

  operator const T&() const { return value_; }
  const T& get() const { return value_; }
  const T& operator->() const { return value_; }

  // Stores a value without calling the hook. For a value that the screen already shows, such as the value of a slider
  // that the user has moved.
  void store(T value) { value_ = std::move(value); }

 private:
  T value_{};
  Hook hook_;
};

}  // namespace tavrelkin
