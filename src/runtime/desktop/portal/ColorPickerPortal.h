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

// Lets the user pick one colour of the screen with the desktop's own picker, through the desktop portal. No operation
// blocks, and all callbacks come from the event loop.
class ColorPickerPortal {
 public:
  // `patience` limits the time of each answer that the portal gives without the user. An answer by the user may take
  // any time.
  explicit ColorPickerPortal(QDBusConnection bus, std::chrono::milliseconds patience = std::chrono::seconds(10));
  ColorPickerPortal(const ColorPickerPortal&) = delete;
  ColorPickerPortal& operator=(const ColorPickerPortal&) = delete;
  ~ColorPickerPortal();

  // Calls `done` once with whether the portal has a picker, unless this object is destroyed first.
  void askAvailable(std::function<void(bool)> done);

  // Cancels the pick that is under way, if any, then asks the user to pick a colour. Calls `done` once, unless
  // cancel(), another pick() or the end of this object comes first. The argument is the colour as 0xRRGGBB; it is
  // nothing if the user cancels, if there is no picker, or if the portal reports an error, sends a malformed answer or
  // does not answer in time.
  void pick(std::function<void(std::optional<std::uint32_t>)> done);

  // Cancels the pick that is under way, if any; its `done` is not called.
  void cancel();

 private:
  struct Pick;

  void ask(const PortalInterface& portal);
  void finish(std::optional<std::uint32_t> color);

  QDBusConnection bus_;
  std::chrono::milliseconds patience_;
  std::unique_ptr<Pick> pick_;
  QObject context_;  // drops answers that come after the end of this object
};

}  // namespace tavrelkin
