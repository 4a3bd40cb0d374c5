#include "runtime/desktop/portal/DBus.h"

#include <utility>

#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QMetaObject>
#include <QMetaType>

namespace tavrelkin {

void callMethod(const QDBusConnection& bus, const QDBusMessage& call, std::chrono::milliseconds patience,
                QObject& context, std::function<void(const QDBusMessage&)> done) {
  if (!bus.isConnected()) {
    const auto disconnected = QDBusMessage::createError(QDBusError::Disconnected, {});
    QMetaObject::invokeMethod(
        &context, [done = std::move(done), disconnected] { done(disconnected); }, Qt::QueuedConnection);
    return;
  }
  auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, static_cast<int>(patience.count())), &context);
  const auto finish = [watcher, done = std::move(done)] {
    watcher->deleteLater();
    done(watcher->reply());
  };
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context, finish);
}

std::optional<const QDBusArgument> argumentOf(const QVariant& value, const char* signature) {
  if (value.metaType() != QMetaType::fromType<QDBusArgument>()) return std::nullopt;
  const auto argument = value.value<QDBusArgument>();
  if (argument.currentSignature() != QLatin1String(signature)) return std::nullopt;
  return argument;
}

DBusSignal::DBusSignal(QDBusConnection bus, const Source& source, Receive receive) : receive_(std::move(receive)) {
  bus.connect(source.sender, source.path, source.interface, source.name, this, SLOT(take(QDBusMessage)));
}

void DBusSignal::take(const QDBusMessage& message) {
  const auto receive = receive_;  // a copy, since the call may destroy this object
  receive(message);
}

}  // namespace tavrelkin
