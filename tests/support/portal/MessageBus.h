#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>

namespace tavrelkin::test {

// A message bus of the test's own, which starts no services; it ends with the object, and with the test.
class MessageBus {
 public:
  MessageBus();
  MessageBus(const MessageBus&) = delete;
  MessageBus& operator=(const MessageBus&) = delete;
  ~MessageBus() { stop(); }

  const QString& address() const { return address_; }

  void stop();

 private:
  QProcess process_;
  QString address_;
};

// A connection to the bus that ends with the object.
class BusConnection {
 public:
  explicit BusConnection(const QString& address);
  BusConnection(const BusConnection&) = delete;
  BusConnection& operator=(const BusConnection&) = delete;
  ~BusConnection() { QDBusConnection::disconnectFromBus(bus.name()); }

  QDBusConnection bus;
};

}  // namespace tavrelkin::test
