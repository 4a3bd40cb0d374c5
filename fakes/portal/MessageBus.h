#pragma once

#include <QDBusConnection>
#include <QString>

#include "driver/Process.h"

namespace tavrelkin::test {

// A message bus of the test's own, which starts no services, not even those of the machine.
class MessageBus {
 public:
  // Returns when it can be connected to. Throws where it doesn't start.
  MessageBus();

  const QString& address() const { return address_; }

  // Ends it at once, as in a crash.
  void kill() { process_.end(SIGKILL); }

 private:
  Home home_;
  Process process_;
  QString address_;
};

// A connection to a bus that ends with the object.
class BusConnection {
 public:
  explicit BusConnection(const QString& address);
  BusConnection(const BusConnection&) = delete;
  BusConnection& operator=(const BusConnection&) = delete;
  ~BusConnection() { QDBusConnection::disconnectFromBus(bus.name()); }

  QDBusConnection bus;
};

}  // namespace tavrelkin::test
