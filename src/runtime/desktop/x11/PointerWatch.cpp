#include "runtime/desktop/x11/PointerWatch.h"

#include <utility>

#include <QMetaObject>

#include <xcb/xinput.h>

#include "runtime/desktop/x11/Xcb.h"

namespace tavrelkin {

PointerWatch::PointerWatch(xcb_connection_t* connection, xcb_window_t root) : connection_(connection), root_(root) {
  if (hasXInput2()) opcode_ = xcb_get_extension_data(connection_, &xcb_input_id)->major_opcode;
}

// Before version 2.2 no raw events come while another program holds a grab, as each open menu does.
bool PointerWatch::hasXInput2() {
  const auto* extension = xcb_get_extension_data(connection_, &xcb_input_id);
  if (!extension || !extension->present) return false;
  const auto version =
      await(connection_, xcb_input_xi_query_version(connection_, 2, 2), xcb_input_xi_query_version_reply);
  return version && (version->major_version > 2 || (version->major_version == 2 && version->minor_version >= 2));
}

void PointerWatch::set(std::function<void()> moved) {
  if (opcode_ == 0) return;
  const bool wasOn = static_cast<bool>(moved_);
  moved_ = std::move(moved);
  motionSeen_ = false;
  const bool isOn = static_cast<bool>(moved_);
  if (isOn != wasOn) select(isOn ? std::uint32_t{XCB_INPUT_XI_EVENT_MASK_RAW_MOTION} : 0);
}

void PointerWatch::select(std::uint32_t eventMask) {
  const struct {
    xcb_input_event_mask_t head;
    std::uint32_t bits;
  } mask = {{XCB_INPUT_DEVICE_ALL_MASTER, 1}, eventMask};
  xcb_input_xi_select_events(connection_, root_, 1, &mask.head);
  xcb_flush(connection_);
}

void PointerWatch::note(const xcb_generic_event_t& event) {
  if (!moved_ || kindOf(event) != XCB_GE_GENERIC) return;
  const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
  if (generic.extension == opcode_ && generic.event_type == XCB_INPUT_RAW_MOTION) motionSeen_ = true;
}

void PointerWatch::deliver() {
  if (!std::exchange(motionSeen_, false)) return;
  const auto moved = moved_;  // a copy: the call may end the watch
  moved();
}

void PointerWatch::deliverSoon() {
  if (!motionSeen_ || std::exchange(deliveryPosted_, true)) return;
  const auto call = [this] {
    deliveryPosted_ = false;
    deliver();
  };
  QMetaObject::invokeMethod(&context_, call, Qt::QueuedConnection);
}

}  // namespace tavrelkin
