#pragma once

#include "driver/Hand.h"

namespace tavrelkin::bench {

// Moves the pointer around a place for five seconds, 60 times a second, a turn a second.
void moveInCircles(test::Hand& hand, ScreenPoint centre, double radius);

}  // namespace tavrelkin::bench
