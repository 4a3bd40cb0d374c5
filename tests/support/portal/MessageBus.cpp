#include "support/portal/MessageBus.h"

#include <QUuid>

namespace tavrelkin::test {

MessageBus::MessageBus()
    : process_(
          {"dbus-daemon", "--config-file=" TAVRELKIN_BUS_CONFIGURATION, "--nofork", "--nopidfile", "--print-address"},
          home_.environment({})),
      address_(QString::fromStdString(process_.firstLine())) {}

BusConnection::BusConnection(const QString& address)
    : bus(QDBusConnection::connectToBus(address, QUuid::createUuid().toString())) {}

}  // namespace tavrelkin::test
