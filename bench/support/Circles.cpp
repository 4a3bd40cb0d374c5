#include "bench/support/Circles.h"

#include <chrono>
#include <cmath>
#include <numbers>
#include <thread>

namespace tavrelkin::bench {

void moveInCircles(test::Hand& hand, ScreenPoint centre, double radius) {
  constexpr int kRate = 60;
  constexpr int kSeconds = 5;
  const auto begun = std::chrono::steady_clock::now();
  for (int i = 0; i < kRate * kSeconds; ++i) {
    std::this_thread::sleep_until(begun + i * std::chrono::nanoseconds(std::chrono::seconds(1)) / kRate);
    const double angle = i * 2 * std::numbers::pi / kRate;
    hand.moveTo({centre.x + static_cast<int>(std::lround(radius * std::cos(angle))),
                 centre.y + static_cast<int>(std::lround(radius * std::sin(angle)))});
  }
}

}  // namespace tavrelkin::bench
