#include "runtime/core/concurrency/Control.h"

#include <utility>

namespace tavrelkin {

Control::Control(ControlOwner& owner, String name) : owner_(owner), name_(std::move(name)) {
  owner.controls_.push_back(this);
}

}  // namespace tavrelkin
