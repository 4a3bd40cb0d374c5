#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include <unistd.h>

#include "runtime/desktop/ScreenReader.h"

namespace tavrelkin {

// A monitor of a screen cast, as the portal describes it.
struct CastStream {
  struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;
    friend bool operator==(Size, Size) = default;
  };

  std::uint32_t node = 0;               // the PipeWire node that sends the frames
  std::optional<ScreenPoint> position;  // the top left corner, in the desktop's logical pixels
  std::optional<Size> size;             // in logical pixels
};

// The largest number of streams, which is more than the number of monitors on any desk. The number comes from another
// program, and each stream costs memory and a connection.
inline constexpr std::size_t kMostStreams = 16;

// An open file descriptor with one owner.
class FileDescriptor {
 public:
  FileDescriptor() = default;
  explicit FileDescriptor(int fd) : fd_(fd) {}
  FileDescriptor(FileDescriptor&& other) noexcept : fd_(other.release()) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    reset(other.release());
    return *this;
  }
  ~FileDescriptor() { reset(-1); }

  int get() const { return fd_; }
  int release() {
    const int fd = fd_;
    fd_ = -1;
    return fd;
  }

 private:
  void reset(int fd) {
    if (fd_ >= 0) ::close(fd_);
    fd_ = fd;
  }

  int fd_ = -1;
};

// A screen cast that the user has allowed: its monitors, and the connection to PipeWire that sends their frames.
struct ScreenCast {
  std::vector<CastStream> streams;
  FileDescriptor pipeWire;
};

}  // namespace tavrelkin
