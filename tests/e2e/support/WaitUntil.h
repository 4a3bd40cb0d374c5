#pragma once

#include <chrono>
#include <thread>

namespace tavrelkin::test {

// Whether `condition` comes true before the time is over. Asks again and again, since nothing tells when another
// process has got so far; returns as soon as it is true.
template <class Condition>
bool waitUntil(const Condition& condition, std::chrono::milliseconds longest = std::chrono::seconds(8)) {
  const auto end = std::chrono::steady_clock::now() + longest;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

}  // namespace tavrelkin::test
