#pragma once

#include <functional>
#include <utility>

namespace tavrelkin {

// A value that reads and is written like a plain member, and whose owner learns of each write at once. Can't be
// made as a copy, so that `auto` takes no proxy by accident.
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

  // Takes a value that the toolkit already shows, a slider that the user moved for instance, without calling the hook.
  void store(T value) { value_ = std::move(value); }

 private:
  T value_{};
  Hook hook_;
};

}  // namespace tavrelkin
