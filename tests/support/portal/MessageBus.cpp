#include "support/portal/MessageBus.h"

#include <csignal>
#include <stdexcept>

#include <QUuid>

#include <sys/prctl.h>

namespace tavrelkin::test {

MessageBus::MessageBus() {
  process_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
  process_.start(QStringLiteral("dbus-daemon"),
                 {QStringLiteral("--config-file=" TAVRELKIN_BUS_CONFIGURATION), QStringLiteral("--nofork"),
                  QStringLiteral("--nopidfile"), QStringLiteral("--print-address")});
  while (!process_.canReadLine())
    if (!process_.waitForReadyRead())
      throw std::runtime_error("The message bus did not start. " + process_.readAllStandardError().toStdString());
  address_ = QString::fromLatin1(process_.readLine()).trimmed();
}

void MessageBus::stop() {
  process_.kill();
  process_.waitForFinished();
}

BusConnection::BusConnection(const QString& address)
    : bus(QDBusConnection::connectToBus(address, QUuid::createUuid().toString())) {}

}  // namespace tavrelkin::test
