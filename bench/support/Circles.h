#pragma once

#include "driver/Hand.h"

namespace tavrelkin::bench {

// Moves the pointer in a circle for five seconds, 60 times a second, one turn a second.
void moveInCircles(test::Hand& hand, ScreenPoint centre, double radius);

}  // namespace tavrelkin::bench
