#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace tavrelkin {

// Waits until a file descriptor has input or its other end is closed. False when `end` comes first, and on an error.
bool waitForInput(int descriptor, std::chrono::steady_clock::time_point end);

// Makes a pipe and gives its write end to `request`, which keeps it only by duplicating it; then takes in all that is
// written there until every write end is closed. Nothing when that does not happen before `end`, when more than `most`
// bytes come, and on an error. A writer that is still busy then finds the pipe broken.
std::optional<std::string> readThroughPipe(const std::function<void(int writeEnd)>& request, std::size_t most,
                                           std::chrono::steady_clock::time_point end);

}  // namespace tavrelkin
