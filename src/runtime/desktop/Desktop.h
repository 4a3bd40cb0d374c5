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

// Calls a function once, later, from the event loop. Destroying the alarm, or cancelling it, before then prevents the
// call.
class Alarm {
 public:
  Alarm() = default;
  Alarm(const Alarm&) = delete;
  Alarm& operator=(const Alarm&) = delete;
  virtual ~Alarm() = default;

  // Schedules the call after `delay`, in place of any call that was scheduled before. With a delay of zero or less, the
  // call comes as soon as the event loop has nothing else to do.
  virtual void set(std::chrono::nanoseconds delay) = 0;
  virtual void cancel() = 0;
};

// Everything that differs between machines, or that a test must simulate. The runtime reaches the machine only through
// this interface and through the widgets of the toolkit.
class Desktop {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;

  Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  virtual ~Desktop() = default;

  // Reads the screen, the pointer and the Option key. The reader lives as long as the desktop.
  virtual ScreenReader& screenReader() = 0;

  // The time on a clock that only goes forward.
  virtual TimePoint now() const = 0;

  // The time between two frames of the display; always more than zero.
  virtual std::chrono::nanoseconds frameInterval() const = 0;

  // Makes an alarm that calls `ring`. It is not set yet, and must not outlive the desktop.
  virtual std::unique_ptr<Alarm> newAlarm(std::function<void()> ring) = 0;

  // Shows `text` with an OK button over the front window, and returns when the user has closed it.
  virtual void messageBox(const std::string& text) = 0;

  // Lets the user choose a colour in a dialog over the front window. The dialog has `prompt` as its title and starts at
  // `initial`, 0xRRGGBB. Returns when the dialog is closed, with the colour as 0xRRGGBB, or with nothing if the user
  // cancels.
  virtual std::optional<std::uint32_t> selectColor(std::uint32_t initial, const std::string& prompt) = 0;

  // Lets the user choose where to save a file, in a dialog over the front window that proposes `name`. The dialog lists
  // the files that match `filter`, such as "Swatches (*.aco)", or all files if `filter` is empty. It asks before it
  // accepts an existing file, and adds no extension to the typed name. Returns when the dialog is closed, with the
  // absolute path, or with nothing if the user cancels.
  virtual std::optional<std::string> chooseSaveFile(const std::string& filter, const std::string& name) = 0;

  // The path of the user's folder for this program's own files. Makes the folder if it is missing, but returns the path
  // even if that fails. Empty if the desktop has no such place.
  virtual std::string applicationDataFolder() = 0;

  // clipboardOffer() is the data that another program has put on the clipboard. dropOffer() is the data of another
  // program's drag, while its drop on a window of this program is being handled. Null if the data must be read through
  // the toolkit.
  virtual std::unique_ptr<Offer> clipboardOffer() { return nullptr; }
  virtual std::unique_ptr<Offer> dropOffer() { return nullptr; }
};

// The desktop in use. It must be installed before any other part of the runtime is used.
Desktop& desktop();

// Replaces the desktop in use, and returns the previous one, or null.
std::unique_ptr<Desktop> installDesktop(std::unique_ptr<Desktop> next);

}  // namespace tavrelkin
