#include "runtime/core/concurrency/Control.h"

#include <utility>

#include "runtime/toolkit/Window.h"

namespace tavrelkin {

Control::Control(Window& owner, String name) : owner_(owner), name_(std::move(name)) {
  owner.controls_.push_back(this);
}

}  // namespace tavrelkin
