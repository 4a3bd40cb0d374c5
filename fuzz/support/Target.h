#pragma once

#include <cstddef>
#include <cstdint>

#include "fakes/FakeDesktop.h"

// What the fuzzer, or the replay of a corpus, calls again and again with other bytes. Each target defines it; it gives
// 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tavrelkin {

// Ends the program where a rule does not hold, and says which one: the fuzzer then keeps the input.
void require(bool holds, const char* rule);

// The desktop that the program's code sees in a target, without any message.
FakeDesktop& freshDesktop();

}  // namespace tavrelkin
