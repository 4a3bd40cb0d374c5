#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace tavrelkin {

// A position in the screen's own pixels, over all monitors. May be negative, and may lie off every monitor.
struct ScreenPoint {
  std::int32_t x = 0;
  std::int32_t y = 0;
  friend bool operator==(ScreenPoint, ScreenPoint) = default;
};

enum class ScreenState {
  notAsked,     // the user has to allow it first, and was not asked yet
  asking,       // the user is being asked, or the desktop has not answered yet
  live,         // pixel() and pointer() give what is on screen
  idle,         // allowed, but nobody reads: the next read, or watch(), makes it live within some milliseconds
  refused,      // the user did not allow it
  lost,         // it could be read until the desktop stopped giving it
  unavailable,  // this desktop does not give it
};

// Reads the screen and the pointer of one kind of display server. NativeDesktop.cpp chooses among the classes.
class ScreenReader {
 public:
  ScreenReader() = default;
  ScreenReader(const ScreenReader&) = delete;
  ScreenReader& operator=(const ScreenReader&) = delete;
  virtual ~ScreenReader() = default;

  virtual ScreenState state() const { return ScreenState::live; }

  // Asks the desktop for the screen where that takes the user's permission; the user is asked once in a run. Returns at
  // once: state() is `asking` then. Does nothing while the screen can be read or is being asked for. A request that
  // fails is explained to the user by one message.
  //
  // Where the desktop gives no more than single colours, each picked by the user with a click, the user picks one for
  // `picked`, which takes it as 0xRRGGBB from the event loop. Without `picked` the user is told so by a message.
  using Picked = std::function<void(std::uint32_t)>;
  virtual void request(const Picked& /*picked*/ = {}) {}

  // Forgets for whom a request is under way: `picked` is not called any more. What it holds may have to go before the
  // desktop does.
  virtual void dropRequest() {}

  // Whether `unavailable` still leaves the user a way to pick single colours, see request().
  virtual bool canPickColor() const { return false; }

  // A handler or a thread's turn begins: drops what pointer() and pixel() have cached. Cheap.
  virtual void beginTurn() {}

  // The pixel at `at` as 0xRRGGBB, whichever window shows there. Black off the screen. Within one turn the answers may
  // come from one capture, which is never older than a few milliseconds. Where the state is neither live nor idle: a
  // pattern of greys that can't be taken for the screen.
  virtual std::uint32_t pixel(ScreenPoint at) = 0;

  // Where the pointer is, also when the program is not in front. In the event of a press, a release or a key it is the
  // place of that moment, which may take up to 100 ms to find out.
  virtual ScreenPoint pointer() = 0;

  // While on, `changed` is called from the event loop soon after each movement of the pointer, wherever it is, after
  // each change of state() and, where tellsEachChange(), after each change of what is on screen. An empty function
  // turns it off, as it is at first. A program that is idle leaves it off, since the changes wake the process.
  virtual void watch(std::function<void()> changed) = 0;

  // Whether watch() tells of each change on the screen, so that nobody needs to look at it from time to time.
  virtual bool tellsEachChange() const { return false; }

  // Whether the Option key is held down now: Alt or AltGr.
  virtual bool optionKey() = 0;
};

}  // namespace tavrelkin
