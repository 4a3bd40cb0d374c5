#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace tavrelkin {

// Waits until the file descriptor has input or its other end is closed. False if `end` comes first, or on an error.
bool waitForInput(int descriptor, std::chrono::steady_clock::time_point end);

// Makes a pipe and passes its write end to `request`, which must duplicate the descriptor to keep it. Then reads until
// every write end is closed, and returns what was read. Nothing if a write end is still open at `end`, if more than
// `most` bytes come, or on an error. A writer that is still busy then gets a broken pipe.
std::optional<std::string> readThroughPipe(const std::function<void(int writeEnd)>& request, std::size_t most,
                                           std::chrono::steady_clock::time_point end);

}  // namespace tavrelkin
