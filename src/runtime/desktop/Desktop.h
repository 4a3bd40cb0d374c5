#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "runtime/desktop/Offer.h"
#include "runtime/desktop/ScreenReader.h"

namespace tavrelkin {

// A call that is made once, later, from the event loop. Destroying or cancelling it before then takes it back.
class Alarm {
 public:
  Alarm() = default;
  Alarm(const Alarm&) = delete;
  Alarm& operator=(const Alarm&) = delete;
  virtual ~Alarm() = default;

  // Asks for the call after `delay`, in place of any earlier request. A delay of zero or less means: as soon as the
  // event loop has nothing else to do.
  virtual void set(std::chrono::nanoseconds delay) = 0;
  virtual void cancel() = 0;
};

// All that differs between machines, or that a test must play. The runtime asks nothing of the machine but through this
// interface and through the widgets of the toolkit.
class Desktop {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;

  Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  virtual ~Desktop() = default;

  // The screen, the pointer and the Option key. It lives as long as the desktop.
  virtual ScreenReader& screenReader() = 0;

  // A clock that only goes forward.
  virtual TimePoint now() const = 0;

  // The time between two frames of the display.
  virtual std::chrono::nanoseconds frameInterval() const = 0;

  // An alarm, not set yet, that calls `ring`. It must not outlive the desktop.
  virtual std::unique_ptr<Alarm> newAlarm(std::function<void()> ring) = 0;

  // Shows `text` with an OK button over the front window, and returns when the user has closed it.
  virtual void messageBox(const std::string& text) = 0;

  // Lets the user choose a colour, 0xRRGGBB, in a dialog over the front window that begins at `initial` and has
  // `prompt` as its title. Returns when it is closed; nothing where the user gives up.
  virtual std::optional<std::uint32_t> selectColor(std::uint32_t initial, const std::string& prompt) = 0;

  // Lets the user choose where to save a file, in a dialog over the front window that begins with `name` and shows the
  // files that `filter`, as "Swatches (*.aco)", lets through; all where that is empty. Asks before it gives the path of
  // an existing file, and adds nothing to what the user typed. Returns when it is closed; nothing where the user gives
  // up.
  virtual std::optional<std::string> chooseSaveFile(const std::string& filter, const std::string& name) = 0;

  // The path of the folder for the program's own files of this user, which is made first where it is missing. If that
  // can't be done there is still a path, but no folder. Empty on a desktop without such a place.
  virtual std::string applicationDataFolder() = 0;

  // What another program has on the clipboard, and what its drag carries that is just being dropped on a window of this
  // one. Null where the toolkit's own reading will do, or must.
  virtual std::unique_ptr<Offer> clipboardOffer() { return nullptr; }
  virtual std::unique_ptr<Offer> dropOffer() { return nullptr; }
};

// The desktop in use. It must be installed before any other part of the runtime is used.
Desktop& desktop();

// Puts another desktop in place, and gives back the one before it, if any.
std::unique_ptr<Desktop> installDesktop(std::unique_ptr<Desktop> next);

}  // namespace tavrelkin
