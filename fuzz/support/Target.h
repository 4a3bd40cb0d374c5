#pragma once

#include <cstddef>
#include <cstdint>

#include "fakes/FakeDesktop.h"

// Each target defines this function. The fuzzer, or the replay of a corpus, calls it again and again with different
// bytes. It returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tavrelkin {

// Ends the program and names the rule if the rule does not hold. The fuzzer then keeps the input.
void require(bool holds, const char* rule);

// The desktop that the program's code uses in a target, after all its messages are removed.
FakeDesktop& freshDesktop();

}  // namespace tavrelkin
