#include "fakes/portal/MessageBus.h"

#include <QUuid>

namespace tavrelkin::test {

namespace {

const std::string configuration = TAVRELKIN_BUS_CONFIGURATION;

}  // namespace

MessageBus::MessageBus()
    : process_({"dbus-daemon", "--config-file=" + configuration, "--nofork", "--nopidfile", "--print-address"},
               home_.environment({})),
      address_(QString::fromStdString(process_.firstLine())) {}

BusConnection::BusConnection(const QString& address)
    : bus(QDBusConnection::connectToBus(address, QUuid::createUuid().toString())) {}

}  // namespace tavrelkin::test
