#include "runtime/gui/Control.h"

#include <utility>

#include "runtime/gui/Window.h"

namespace tavrelkin {

Control::Control(Window& owner, String name) : owner_(owner), name_(std::move(name)) {
  owner.controls_.push_back(this);
}

}  // namespace tavrelkin
