#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include <xcb/shm.h>

namespace tavrelkin {

// Memory that the display server writes images into.
class SharedSegment {
 public:
  // Makes a segment of `bytes` bytes, at least 4. Null if the server has no MIT-SHM or can't reach this process's
  // memory, for example because it runs on another machine.
  static std::unique_ptr<SharedSegment> make(xcb_connection_t* connection, xcb_window_t root, std::size_t bytes);

  SharedSegment(const SharedSegment&) = delete;
  SharedSegment& operator=(const SharedSegment&) = delete;
  ~SharedSegment();

  // The server's identifier of the segment.
  xcb_shm_seg_t id() const { return id_; }
  const std::uint8_t* data() const { return data_; }

 private:
  SharedSegment(xcb_connection_t* connection, std::uint8_t* data);
  bool attach(int kernelId);
  bool isReached(xcb_window_t root);

  xcb_connection_t* connection_;
  std::uint8_t* data_;
  xcb_shm_seg_t id_ = XCB_NONE;
};

}  // namespace tavrelkin
