#include "runtime/desktop/portal/PortalInterface.h"

#include <utility>

#include <QDBusError>
#include <QDBusMessage>

#include "runtime/desktop/portal/DBus.h"

namespace tavrelkin {

namespace {

PortalInterface interfaceOf(const QDBusMessage& reply) {
  if (reply.type() == QDBusMessage::ErrorMessage) {
    const auto error = QDBusError(reply).type();
    const bool isSilent = error == QDBusError::NoReply || error == QDBusError::TimedOut || error == QDBusError::Timeout;
    return {isSilent ? PortalInterface::State::silent : PortalInterface::State::absent, {}, {}};
  }
  if (reply.signature() != QStringLiteral("a{sv}")) return {};
  return {PortalInterface::State::there, reply.service(), qdbus_cast<QVariantMap>(reply.arguments().at(0))};
}

}  // namespace

std::uint32_t PortalInterface::number(const char* property) const {
  const QVariant value = properties.value(QString::fromLatin1(property));
  return value.metaType() == QMetaType::fromType<uint>() ? value.toUInt() : 0;
}

void findPortal(const QDBusConnection& bus, const QString& interface, std::chrono::milliseconds patience,
                QObject& context, std::function<void(const PortalInterface&)> done) {
  auto call =
      QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"), QString::fromLatin1(portalPath),
                                     QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("GetAll"));
  call << interface;
  callMethod(bus, call, patience, context,
             [done = std::move(done)](const QDBusMessage& reply) { done(interfaceOf(reply)); });
}

PortalWatch::PortalWatch(const QDBusConnection& bus, const QString& owner, const std::function<void()>& gone)
    : owner_(owner, bus, QDBusServiceWatcher::WatchForUnregistration),
      disconnected_(bus,
                    {{},
                     QStringLiteral("/org/freedesktop/DBus/Local"),
                     QStringLiteral("org.freedesktop.DBus.Local"),
                     QStringLiteral("Disconnected")},
                    [gone](const QDBusMessage&) { gone(); }) {
  QObject::connect(&owner_, &QDBusServiceWatcher::serviceUnregistered, gone);
}

}  // namespace tavrelkin
