#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include "runtime/desktop/portal/DBus.h"

namespace tavrelkin {

// The path of the object with all interfaces of the desktop portal.
inline constexpr auto portalPath = "/org/freedesktop/portal/desktop";

// One interface of the desktop portal, as the portal describes it.
struct PortalInterface {
  enum class State {
    there,
    absent,  // there is no bus, no portal, or no portal with this interface
    silent,  // no answer came in time
  };

  State state = State::absent;
  QString owner;  // the unique name of the portal's process
  QVariantMap properties;

  // The value of a property of type UINT32; 0 if the property is missing or has another type.
  std::uint32_t number(const char* property) const;
};

// Looks up the interface and returns at once; starts the portal if it is not running. `done` is called from the event
// loop, unless `context` is destroyed first.
void findPortal(const QDBusConnection& bus, const QString& interface, std::chrono::milliseconds patience,
                QObject& context, std::function<void(const PortalInterface&)> done);

// Watches whether the portal's process is still on the bus.
class PortalWatch {
 public:
  // `gone` is called from the event loop when the owner leaves the bus, or the bus ends. It may destroy this object.
  PortalWatch(const QDBusConnection& bus, const QString& owner, const std::function<void()>& gone);

 private:
  QDBusServiceWatcher owner_;
  DBusSignal disconnected_;
};

}  // namespace tavrelkin
