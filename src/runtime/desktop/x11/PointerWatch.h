#pragma once

#include <cstdint>
#include <functional>

#include <QObject>

#include <xcb/xcb.h>

namespace tavrelkin {

// Reports each movement of the pointer anywhere on the screen, by the raw events of XInput2.
class PointerWatch {
 public:
  PointerWatch(xcb_connection_t* connection, xcb_window_t root);

  // Sets the function to call; an empty function ends the watch. Without XInput2 the function is never called.
  void set(std::function<void()> moved);

  // Must be called for each event of the connection. Remembers that a call is due if the event is a movement.
  void note(const xcb_generic_event_t& event);

  // Makes the call that is due, if any. deliver() calls at once and may only be used from the event loop. deliverSoon()
  // lets the event loop make the call; it is for events that came while the program was waiting for a reply.
  void deliver();
  void deliverSoon();

 private:
  bool hasXInput2();
  void select(std::uint32_t eventMask);

  xcb_connection_t* connection_;
  xcb_window_t root_;
  std::uint8_t opcode_ = 0;  // the extension code of XInput2; 0 if the server lacks it
  std::function<void()> moved_;
  bool motionSeen_ = false;
  bool deliveryPosted_ = false;
  QObject context_;  // drops a posted delivery when the watch is destroyed
};

}  // namespace tavrelkin
