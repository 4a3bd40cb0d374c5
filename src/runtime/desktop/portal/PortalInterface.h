#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include "runtime/desktop/portal/DBusSignal.h"

namespace tavrelkin {

// The path of the object that has all interfaces of the desktop portal.
inline constexpr auto portalPath = "/org/freedesktop/portal/desktop";

// One interface of the desktop portal, as it says itself.
struct PortalInterface {
  enum class State {
    there,
    absent,  // there is no bus, no portal, or none with this interface
    silent,  // no answer came in time
  };

  State state = State::absent;
  QString owner;  // the unique name of the portal's process
  QVariantMap properties;

  // The value of a property of type UINT32; 0 if the property is missing or has another type.
  std::uint32_t number(const char* property) const;
};

// Looks the interface up and returns at once; the portal is started if it doesn't run. `done` is called from the event
// loop, unless `context` ends first.
void findPortal(const QDBusConnection& bus, const QString& interface, std::chrono::milliseconds patience,
                QObject& context, std::function<void(const PortalInterface&)> done);

// Watches whether the owner of a portal is still on the bus.
class PortalWatch {
 public:
  // `gone` is called from the event loop when the owner has left the bus, or the bus has ended. It may destroy this
  // object.
  PortalWatch(const QDBusConnection& bus, const QString& owner, const std::function<void()>& gone);

 private:
  QDBusServiceWatcher owner_;
  DBusSignal disconnected_;
};

}  // namespace tavrelkin
