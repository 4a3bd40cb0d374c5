#pragma once

#include <cstdint>
#include <functional>

#include <QObject>

#include <xcb/xcb.h>

namespace tavrelkin {

// Tells of each movement of the pointer, wherever it is, by the raw events of XInput2.
class PointerWatch {
 public:
  PointerWatch(xcb_connection_t* connection, xcb_window_t root);

  // What to call; an empty function ends the watch. Without XInput2 nothing is ever called.
  void set(std::function<void()> moved);

  // Looks at an event of the connection, and remembers it if it is a movement.
  void note(const xcb_generic_event_t& event);

  // Makes the call that is due, if any: deliver() at once, which is for the event loop only, and deliverSoon() from the
  // event loop, for events that came in while the program was waiting for a reply.
  void deliver();
  void deliverSoon();

 private:
  bool hasXInput2();
  void select(std::uint32_t eventMask);

  xcb_connection_t* connection_;
  xcb_window_t root_;
  std::uint8_t opcode_ = 0;  // of XInput2; 0 if the server lacks it
  std::function<void()> moved_;
  bool motionSeen_ = false;
  bool deliveryPosted_ = false;
  QObject context_;  // takes the posted delivery back when the watch is gone
};

}  // namespace tavrelkin
