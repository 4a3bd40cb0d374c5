#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace tavrelkin {

// A position in physical pixels of the screen; all monitors share one coordinate system. It may be negative, and may
// lie outside all monitors.
struct ScreenPoint {
  std::int32_t x = 0;
  std::int32_t y = 0;
  friend bool operator==(ScreenPoint, ScreenPoint) = default;
};

enum class ScreenState {
  notAsked,     // the user has to allow reading, and has not been asked yet
  asking,       // the user is being asked, or the desktop has not answered yet
  live,         // pixel() and pointer() return what is on screen
  idle,         // allowed, but not in use; the next read or watch() makes the reader live within some milliseconds
  refused,      // the user did not allow reading
  lost,         // the desktop has stopped sharing the screen
  unavailable,  // this desktop does not let programs read the screen
};

// Reads the screen, the pointer and the Option key on one kind of display server. NativeDesktop.cpp chooses the class.
class ScreenReader {
 public:
  ScreenReader() = default;
  ScreenReader(const ScreenReader&) = delete;
  ScreenReader& operator=(const ScreenReader&) = delete;
  virtual ~ScreenReader() = default;

  virtual ScreenState state() const { return ScreenState::live; }

  // Asks the desktop for the screen if reading it requires the user's permission. The user is asked once in a run.
  // Returns at once; state() is `asking` then. Does nothing while the screen can be read or is being asked for. If the
  // request fails, one message to the user says why.
  //
  // On some desktops a program can't read the screen, but the user can pick a single colour with a click. On these,
  // request() lets the user pick a colour and passes it to `picked`, as 0xRRGGBB, from the event loop. Without
  // `picked`, a message to the user says that only single colours can be picked.
  using Picked = std::function<void(std::uint32_t)>;
  virtual void request(const Picked& /*picked*/ = {}) {}

  // Forgets the `picked` of the request that is under way: it is not called any more. A caller can use this to release
  // the objects that `picked` holds.
  virtual void dropRequest() {}

  // Whether the user can pick single colours although state() is `unavailable`; see request().
  virtual bool canPickColor() const { return false; }

  // Drops the cached results of pointer() and pixel(). The runtime calls it whenever a handler or a thread's turn
  // begins, so it must be cheap.
  virtual void beginTurn() {}

  // The pixel at `at` as 0xRRGGBB, whichever program's window is visible there. Black outside the screen. Within one
  // turn the pixels may come from one capture, which is never more than a few milliseconds old. While state() is
  // neither live nor idle, the result is a pattern of greys that can't be mistaken for the screen.
  virtual std::uint32_t pixel(ScreenPoint at) = 0;

  // Where the pointer is, even if another program is in front. While a press, a release or a key is being handled, it
  // is the position at the time of that event; the call may then block for up to 100 ms.
  virtual ScreenPoint pointer() = 0;

  // Calls `changed` from the event loop soon after each movement of the pointer anywhere on the screen, after each
  // change of state() and, if tellsEachChange(), after each change on the screen. An empty function, the initial
  // setting, turns this off. The calls wake the process, so a program that is idle should turn them off.
  virtual void watch(std::function<void()> changed) = 0;

  // Whether watch() reports each change on the screen, so that no polling is needed.
  virtual bool tellsEachChange() const { return false; }

  // Whether the Option key (Alt or AltGr) is held down now.
  virtual bool optionKey() = 0;
};

}  // namespace tavrelkin
