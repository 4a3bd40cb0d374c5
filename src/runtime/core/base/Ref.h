#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "runtime/core/base/Exceptions.h"

namespace tavrelkin {

template <class T>
class Ref;

template <class T, class... Args>
Ref<T> New(Args&&... args);

// The base of all classes that are shared by reference: windows, pictures, menus, tables. An object counts its
// references and is deleted with the last one. The program has one OS thread, so the count is a plain number.
class Object {
 public:
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object() = default;

 protected:
  Object() = default;

  // New() calls this after the most derived constructor. At that time virtual calls reach the overrides of the most
  // derived class.
  virtual void constructed() {}

 private:
  template <class T>
  friend class Ref;
  template <class T, class... Args>
  friend Ref<T> New(Args&&... args);

  // Starts at 1, for the reference that New() returns. So a constructor can make and drop references to its own object
  // without deleting it.
  std::size_t references_ = 1;
};

// A counted reference to an Object, or nil. Using a nil reference throws NilObjectException.
template <class T>
class Ref {
 public:
  Ref() = default;
  Ref(std::nullptr_t) {}
  explicit Ref(T* object) : object_(object) { retain(); }
  Ref(const Ref& other) : object_(other.object_) { retain(); }
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  template <class U>
  requires std::is_convertible_v<U*, T*> Ref(const Ref<U>& other) : object_(other.get()) { retain(); }
  ~Ref() { release(); }

  Ref& operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  // The object, or null if the reference is nil.
  T* get() const { return object_; }

  T& operator*() const { return checked(); }
  T* operator->() const { return &checked(); }
  explicit operator bool() const { return object_ != nullptr; }

  friend bool operator==(const Ref& a, const Ref& b) { return a.object_ == b.object_; }
  friend bool operator==(const Ref& a, std::nullptr_t) { return a.object_ == nullptr; }

 private:
  template <class U, class... Args>
  friend Ref<U> New(Args&&... args);

  void retain() const {
    if (object_) ++asObject().references_;
  }
  void release() {
    if (object_ && --asObject().references_ == 0) delete object_;
  }
  Object& asObject() const { return *object_; }
  T& checked() const {
    if (!object_) throw NilObjectException();
    return *object_;
  }

  T* object_ = nullptr;
};

// Makes an object and returns the first reference to it.
template <class T, class... Args>
Ref<T> New(Args&&... args) {
  Ref<T> made;
  made.object_ = new T(std::forward<Args>(args)...);
  made.asObject().constructed();
  return made;
}

}  // namespace tavrelkin
