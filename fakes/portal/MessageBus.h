#pragma once

#include <QDBusConnection>
#include <QString>

#include "driver/Process.h"

namespace tavrelkin::test {

// A message bus for one test. It starts no services, not even those of the machine.
class MessageBus {
 public:
  // Returns when the bus accepts connections. Throws if it doesn't start.
  MessageBus();

  const QString& address() const { return address_; }

  // Ends the bus at once, as a crash does.
  void kill() { process_.end(SIGKILL); }

 private:
  Home home_;
  Process process_;
  QString address_;
};

// A connection to a bus; it closes with the object.
class BusConnection {
 public:
  explicit BusConnection(const QString& address);
  BusConnection(const BusConnection&) = delete;
  BusConnection& operator=(const BusConnection&) = delete;
  ~BusConnection() { QDBusConnection::disconnectFromBus(bus.name()); }

  QDBusConnection bus;
};

}  // namespace tavrelkin::test
