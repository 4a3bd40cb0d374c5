#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include <QDBusConnection>
#include <QObject>

namespace tavrelkin {

struct PortalInterface;

// Lets the user take one colour of the screen with the desktop's own picker, by the desktop portal. Nothing here
// blocks, and all calls back come from the event loop.
class ColorPickerPortal {
 public:
  // `patience` is how long the portal may take for what it answers without the user. The user may take any time.
  explicit ColorPickerPortal(QDBusConnection bus, std::chrono::milliseconds patience = std::chrono::seconds(10));
  ColorPickerPortal(const ColorPickerPortal&) = delete;
  ColorPickerPortal& operator=(const ColorPickerPortal&) = delete;
  ~ColorPickerPortal();

  // Whether the portal has a picker. Calls `done` once, unless this object ends first.
  void askAvailable(std::function<void(bool)> done);

  // Takes back the question that is open, if any, then asks the user for a colour. Calls `done` once with 0xRRGGBB,
  // unless cancel(), another pick() or the end of this object comes first; with nothing if the user gives up, there is
  // no picker, or the portal reports an error, gives a malformed answer or none in time.
  void pick(std::function<void(std::optional<std::uint32_t>)> done);

  // Takes the question back; `done` is not called.
  void cancel();

 private:
  struct Pick;

  void ask(const PortalInterface& portal);
  void finish(std::optional<std::uint32_t> color);

  QDBusConnection bus_;
  std::chrono::milliseconds patience_;
  std::unique_ptr<Pick> pick_;
  QObject context_;  // drops the answers that are still due when the object ends
};

}  // namespace tavrelkin
