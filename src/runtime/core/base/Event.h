#pragma once

#include <functional>
#include <utility>

namespace tavrelkin {

template <class Signature>
class Event;

// An event that a class raises for its host. It has at most one handler; assignment replaces it. Without a handler, a
// call returns R{}.
template <class R, class... Args>
class Event<R(Args...)> {
 public:
  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  template <class Handler>
  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }

  // Whether there is a handler.
  explicit operator bool() const { return static_cast<bool>(handler_); }

  R operator()(Args... args) const {
    if (!handler_) return R();
    return handler_(args...);
  }

 private:
  std::function<R(Args...)> handler_;
};

}  // namespace tavrelkin
