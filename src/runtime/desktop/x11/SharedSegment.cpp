#include "runtime/desktop/x11/SharedSegment.h"

#include <cstring>
#include <utility>

#include <sys/ipc.h>
#include <sys/shm.h>

#include "runtime/desktop/x11/Xcb.h"

namespace tavrelkin {

std::unique_ptr<SharedSegment> SharedSegment::make(xcb_connection_t* connection, xcb_window_t root, std::size_t bytes) {
  const auto* extension = xcb_get_extension_data(connection, &xcb_shm_id);
  if (!extension || !extension->present) return nullptr;

  const int kernelId = shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
  if (kernelId == -1) return nullptr;

  std::unique_ptr<SharedSegment> segment;
  void* const memory = shmat(kernelId, nullptr, 0);
  if (reinterpret_cast<std::intptr_t>(memory) != -1) {
    segment.reset(new SharedSegment(connection, static_cast<std::uint8_t*>(memory)));
    if (!segment->attach(kernelId)) segment.reset();
  }
  // The kernel keeps the segment while it is attached, and frees it with the process, even after a crash.
  shmctl(kernelId, IPC_RMID, nullptr);

  return segment && segment->isReached(root) ? std::move(segment) : nullptr;
}

SharedSegment::SharedSegment(xcb_connection_t* connection, std::uint8_t* data) : connection_(connection), data_(data) {}

SharedSegment::~SharedSegment() {
  if (id_ != XCB_NONE) xcb_shm_detach(connection_, id_);
  shmdt(data_);
}

bool SharedSegment::attach(int kernelId) {
  const xcb_shm_seg_t id = xcb_generate_id(connection_);
  const auto cookie = xcb_shm_attach_checked(connection_, id, static_cast<std::uint32_t>(kernelId), 0);
  const XcbPtr<xcb_generic_error_t> error(xcb_request_check(connection_, cookie));
  if (error || xcb_connection_has_error(connection_)) return false;
  id_ = id;
  return true;
}

// A server on another machine or in another container may attach a segment of its own that has the same id. So this
// function checks that an image from the server arrives in this process's memory. It fills the segment with two values
// in turn: a pixel of the screen differs from at least one of them.
bool SharedSegment::isReached(xcb_window_t root) {
  for (const int filling : {0x00, 0xFF}) {
    std::uint8_t before[4];
    std::memset(before, filling, sizeof before);
    std::memcpy(data_, before, sizeof before);
    const auto cookie = xcb_shm_get_image(connection_, root, 0, 0, 1, 1, ~0U, XCB_IMAGE_FORMAT_Z_PIXMAP, id_, 0);
    if (!await(connection_, cookie, xcb_shm_get_image_reply)) return false;
    if (std::memcmp(data_, before, sizeof before) != 0) return true;
  }
  return false;
}

}  // namespace tavrelkin
