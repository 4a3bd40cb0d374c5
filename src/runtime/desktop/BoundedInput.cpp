#include "runtime/desktop/BoundedInput.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdint>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace tavrelkin {

namespace {

using TimePoint = std::chrono::steady_clock::time_point;

// The read end of a pipe.
class PipeEnd {
 public:
  explicit PipeEnd(int descriptor) : descriptor_(descriptor) {}
  PipeEnd(const PipeEnd&) = delete;
  PipeEnd& operator=(const PipeEnd&) = delete;
  ~PipeEnd() { close(descriptor_); }

  std::optional<std::string> readAll(std::size_t most, TimePoint end) const {
    std::array<char, 65536> part;  // the capacity of a pipe
    std::string all;
    while (waitForInput(descriptor_, end)) {
      const ssize_t length = read(descriptor_, part.data(), part.size());
      if (length == 0) return all;
      if (length < 0 || static_cast<std::size_t>(length) > most - all.size()) break;
      all.append(part.data(), static_cast<std::size_t>(length));
    }
    return std::nullopt;
  }

 private:
  int descriptor_;
};

}  // namespace

bool waitForInput(int descriptor, TimePoint end) {
  for (;;) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now()).count();
    if (left <= 0) return false;
    pollfd input{descriptor, POLLIN, 0};
    const int ready = poll(&input, 1, static_cast<int>(std::min<std::int64_t>(left, INT_MAX)));
    if (ready > 0) return true;
    if (ready < 0 && errno != EINTR) return false;
  }
}

std::optional<std::string> readThroughPipe(const std::function<void(int)>& request, std::size_t most, TimePoint end) {
  std::array<int, 2> ends;
  if (std::chrono::steady_clock::now() >= end || pipe2(ends.data(), O_CLOEXEC) != 0) return std::nullopt;
  const PipeEnd source(ends[0]);
  request(ends[1]);
  close(ends[1]);
  return source.readAll(most, end);
}

}  // namespace tavrelkin
