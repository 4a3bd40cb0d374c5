#include <chrono>
#include <csignal>
#include <cstddef>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <thread>

#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include "runtime/desktop/BoundedInput.h"

namespace tavrelkin {
namespace {

using namespace std::chrono_literals;

std::function<void(int)> writes(std::size_t length) {
  return [length](int pipe) { EXPECT_EQ(write(pipe, std::string(length, 'x').data(), length), ssize_t(length)); };
}

void waitsUntilBroken(int pipe) {
  pollfd reader{pipe, 0, 0};
  poll(&reader, 1, -1);
}

void trickles(int pipe) {
  for (int sent = 0; sent < 5'000'000 && write(pipe, "x", 1) == 1; ++sent) {
  }
}

TEST(BoundedInput, IsTakenWholeOrNotAtAll) {
  std::signal(SIGPIPE, SIG_IGN);
  constexpr auto kAny = std::numeric_limits<std::size_t>::max();
  const struct {
    const char* name;
    std::function<void(int)> source;
    std::size_t most;
    std::chrono::milliseconds patience;
    std::optional<std::size_t> expected;
  } rows[] = {
      {"the longest", writes(300'000), 300'000, 60s, 300'000},       {"too long", trickles, 1000, 60s, std::nullopt},
      {"too long by a byte", writes(1001), 1000, 60s, std::nullopt}, {"empty", writes(0), 1000, 60s, 0},
      {"silent", waitsUntilBroken, 1000, 20ms, std::nullopt},        {"endless", trickles, kAny, 20ms, std::nullopt},
  };
  for (const auto& row : rows) {
    std::thread source;
    const auto request = [&](int writeEnd) {
      source = std::thread([write = row.source, own = dup(writeEnd)] {
        write(own);
        close(own);
      });
    };
    const auto taken = readThroughPipe(request, row.most, std::chrono::steady_clock::now() + row.patience);
    source.join();
    EXPECT_EQ(taken, row.expected ? std::optional(std::string(*row.expected, 'x')) : std::nullopt) << row.name;
  }
}

TEST(BoundedInput, IsNotAskedForWhenTimeIsOver) {
  EXPECT_FALSE(readThroughPipe([](int) { FAIL(); }, 1000, std::chrono::steady_clock::now()));
}

}  // namespace
}  // namespace tavrelkin
